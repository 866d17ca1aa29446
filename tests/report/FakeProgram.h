// FakeProgram: a script that stands in for `dot`, in a folder of its own.
#pragma once

#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

class FakeProgram {
 public:
  explicit FakeProgram(const std::string& script, unsigned int mode = 0755) {
    char name[] = "/tmp/kyr-dot-XXXXXX";
    if (mkdtemp(name) == nullptr) throw std::runtime_error("no temporary folder");
    folder = name;
    path = folder + "/dot";
    std::ofstream(path) << script;
    if (chmod(path.c_str(), mode) != 0) throw std::runtime_error("no mode");
  }
  FakeProgram(const FakeProgram&) = delete;
  FakeProgram& operator=(const FakeProgram&) = delete;
  ~FakeProgram() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  std::string folder;
  std::string path;
};
