// MemoryFile: a text that can be opened by a path and never touches a disk, for tests that read
// thousands of files.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "foundation/KYRFile.h"

class MemoryFile {
 public:
  explicit MemoryFile(std::string_view content) : descriptor_(memfd_create("kyr-test", MFD_CLOEXEC)) {
    if (descriptor_ < 0) throw std::runtime_error("no file in memory");
    path_ = "/proc/self/fd/" + std::to_string(descriptor_);
    while (!content.empty()) {
      const ssize_t count = ::write(descriptor_, content.data(), content.size());
      if (count <= 0) break;
      content.remove_prefix(static_cast<std::size_t>(count));
    }
    if (content.empty()) return;
    close(descriptor_);
    throw std::runtime_error("file in memory not written");
  }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(descriptor_); }

  KYRFile file() const { return KYRFile(path_.c_str()); }
  const std::string& path() const noexcept { return path_; }

 private:
  int descriptor_;
  std::string path_;
};
