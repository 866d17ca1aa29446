// XmlTextArena: characters in large blocks, each text with a zero behind it. They never move and are
// given back all at once.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/Export.h"

class KYR_EXPORT XmlTextArena {
 public:
  /// A copy of `text` that lives as long as the arena.
  std::string_view store(std::string_view text);
  std::size_t getMemorySize() const noexcept { return memorySize_; }

 private:
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;
  char* allocateBlock(std::size_t size);

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
  std::size_t memorySize_ = 0;
};
