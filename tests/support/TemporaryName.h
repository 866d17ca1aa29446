// TemporaryName: where tests put their files. A file system in memory, where there is one: what is saved is
// synced, and thousands of saves would wait for a disk.
#pragma once

#include <unistd.h>

#include <string>

/// A template for mkstemp or mkdtemp.
inline std::string temporaryName(const char* name) {
  const char* const memory = "/dev/shm";
  const bool isThere = access(memory, W_OK | X_OK) == 0;
  return std::string(isThere ? memory : "/tmp") + "/kyr-" + name + "-XXXXXX";
}
