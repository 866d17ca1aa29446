// TemporaryFile: a file with given content that goes with its object.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "foundation/KYRFile.h"

class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& content) {
    char name[] = "/tmp/kyr-test-XXXXXX";
    const int descriptor = mkstemp(name);
    if (descriptor < 0) throw std::runtime_error("no temporary file");
    path = name;
    std::size_t written = 0;
    while (written < content.size()) {
      const ssize_t count = write(descriptor, content.data() + written, content.size() - written);
      if (count <= 0) break;
      written += static_cast<std::size_t>(count);
    }
    close(descriptor);
    if (written != content.size()) throw std::runtime_error("temporary file not written");
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() { unlink(path.c_str()); }

  KYRFile file() const { return KYRFile(path.c_str()); }

  std::string path;
};
