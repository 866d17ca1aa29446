// ModelFolder: a folder of its own for the models that a test saves and loads.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "foundation/KYRException.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/support/TemporaryName.h"

/// The folder goes with the test.
class ModelFolder : public testing::Test {
 protected:
  ModelFolder() {
    folder_ = temporaryName("model");
    if (mkdtemp(folder_.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  ~ModelFolder() override { std::filesystem::remove_all(folder_); }

  std::string path(const char* name = "model.json") const { return folder_ + "/" + name; }
  KYRFile file(const char* name = "model.json") const { return KYRFile(path(name).c_str()); }
  static std::string read(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
  }
  std::string content(const char* name = "model.json") const { return read(path(name)); }
  void write(const std::string& text, const char* name = "model.json") const {
    std::ofstream(path(name), std::ios::binary) << text;
  }
  std::string save(const KYRStoreModel& model) const {
    saveStoreModelFile(file(), model);
    return content();
  }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator all(folder_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

  std::string folder_;
};

/// The message of the exception that the operation raises.
inline std::string failureOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const KYRException& exception) {
    return exception.getMessage().getCharacters();
  }
  return "nothing raised";
}
