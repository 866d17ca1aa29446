// UMLObjectMemory: room for the UML objects of one file, in large blocks.
//
// A file has objects by the hundred thousand, which all go together. One behind the other in the order of
// reading they take no more than their size and the rest of the last block, and those that belong together
// lie together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "foundation/PreparedPages.h"

class UMLObjectMemory {
 public:
  /// Room for an object of any class with virtual functions. It is there until `release`.
  void* allocate(std::size_t size) {
    constexpr std::size_t unit = alignof(std::max_align_t) / 2;
    static_assert(unit >= alignof(void*));
    const std::size_t needed = (size + unit - 1) / unit * unit;
    if (needed > left_) addBlock(needed);
    std::byte* const place = next_;
    next_ += needed;
    left_ -= needed;
    return place;
  }
  /// Gives all back. Nobody has an object in it any more.
  void release() noexcept {
    blocks_.clear();
    next_ = nullptr;
    left_ = 0;
    blockSize_ = smallestBlock;
  }

 private:
  static constexpr std::size_t smallestBlock = std::size_t{16} * 1024;  // small files need no more
  static constexpr std::size_t largestBlock = std::size_t{1024} * 1024;

  void addBlock(std::size_t needed) {
    const std::size_t size = std::max(needed, blockSize_);
    blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
    next_ = blocks_.back().get();
    preparePages(next_, size);
    left_ = size;
    blockSize_ = std::min(2 * blockSize_, largestBlock);
  }

  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::byte* next_ = nullptr;
  std::size_t left_ = 0;
  std::size_t blockSize_ = smallestBlock;
};
