// Small texts share blocks; large ones get their own, so that no block is left half empty.
#include "foundation/xml/XmlTextArena.h"

#include <cstring>

char* XmlTextArena::allocateBlock(std::size_t size) {
  blocks_.push_back(std::make_unique_for_overwrite<char[]>(size));
  memorySize_ += size;
  return blocks_.back().get();
}

std::string_view XmlTextArena::store(std::string_view text) {
  const std::size_t size = text.size() + 1;
  char* place = next_;
  if (size > left_) {
    if (size > blockSize / 8) {  // a block of its own, so that none is left half empty
      place = allocateBlock(size);
    } else {
      place = next_ = allocateBlock(blockSize);
      left_ = blockSize;
    }
  }
  if (place == next_) {
    next_ += size;
    left_ -= size;
  }
  text.copy(place, text.size());
  place[text.size()] = '\0';
  return {place, text.size()};
}
