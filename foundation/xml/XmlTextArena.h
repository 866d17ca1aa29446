// XmlTextArena: characters in large blocks, each text with a zero behind it. They never move and are
// given back all at once. Since texts are shown rather than copied, an arena may outlive the document
// that it was made for: whoever shows its characters keeps it.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Export.h"

class KYR_EXPORT XmlTextArena {
 public:
  /// A copy of `text` that lives as long as the arena.
  std::string_view store(std::string_view text);
  /// Keeps another arena as long as this one lives: what shows the texts of both needs this one alone.
  void keep(std::shared_ptr<const XmlTextArena> other) noexcept { kept_ = std::move(other); }
  std::size_t getMemorySize() const noexcept { return memorySize_; }

 private:
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;
  char* allocateBlock(std::size_t size);

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
  std::size_t memorySize_ = 0;
  std::shared_ptr<const XmlTextArena> kept_;
};
