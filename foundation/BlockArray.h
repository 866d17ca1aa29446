// BlockArray<T>: an array that grows by blocks, each as large as all before it together.
//
// Nothing is ever moved, so references stay valid and growing needs no room for two copies. The system
// gives memory to a block only as it is filled, so a half empty one costs little. Since neither the
// blocks nor their directory move, one thread may read elements that it knows to be there while
// another appends. T is a plain record or a KYRString that borrows: nothing that would need its
// destructor, so the blocks are given back as they are.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

template <class T>
class BlockArray {
 public:
  static constexpr std::size_t firstBlockShift = 10;
  static constexpr std::size_t firstBlockSize = std::size_t{1} << firstBlockShift;

  std::size_t size() const noexcept { return size_; }
  const T& operator[](std::size_t index) const noexcept { return *at(index); }
  T& operator[](std::size_t index) noexcept { return *at(index); }

  template <class... Argument>
  T& emplaceBack(Argument&&... arguments) {
    T* const added = new (makeRoom()) T{std::forward<Argument>(arguments)...};
    ++size_;
    return *added;
  }
  /// Appends what `make` returns, made in place.
  template <class Make>
  T& appendMade(Make make) {
    T* const added = new (makeRoom()) T(make());
    ++size_;
    return *added;
  }
  /// Appends `count` entries of another array, from an index on.
  void appendFrom(const BlockArray& other, std::size_t from, std::size_t count) {
    while (count != 0) {
      T* const place = makeRoom();
      const std::size_t left = endOf(size_) - size_;
      const std::size_t there = endOf(from) - from;
      const std::size_t piece = std::min({count, left, there});
      std::uninitialized_copy_n(other.at(from), piece, place);
      size_ += piece;
      from += piece;
      count -= piece;
    }
  }
  /// Takes on the entries of `other`, which must outlive this array and grow no more, without copying
  /// them. Further entries begin a block of their own, so their indexes leave a gap. To be called on an
  /// empty array.
  void shareBlocks(const BlockArray& other) {
    const std::size_t used = other.size_ == 0 ? 0 : blockOf(other.size_ - 1) + 1;
    for (std::size_t block = 0; block < used; ++block) {
      blocks_[block] = Block(other.blocks_[block].get(), Release{false});
    }
    size_ = firstOf(used);
    sharedSize_ = size_;
  }
  /// Bytes of the elements in blocks of its own.
  std::size_t getMemorySize() const noexcept { return (size_ - sharedSize_) * sizeof(T); }

 private:
  struct Release {
    bool owns = true;
    void operator()(T* block) const noexcept {
      if (owns) ::operator delete(block);
    }
  };
  using Block = std::unique_ptr<T, Release>;
  // Block 0 holds the first 2^10 elements, block n those from 2^(9+n) on.
  static constexpr std::size_t blockCount = 64 - firstBlockShift;

  static std::size_t blockOf(std::size_t index) noexcept {
    return static_cast<std::size_t>(std::bit_width(index >> firstBlockShift));
  }
  static std::size_t firstOf(std::size_t block) noexcept {
    return block == 0 ? 0 : firstBlockSize << (block - 1);
  }

  // Where the block of an element ends.
  static std::size_t endOf(std::size_t index) noexcept { return firstOf(blockOf(index) + 1); }

  T* makeRoom() {
    const std::size_t block = blockOf(size_);
    if (blocks_[block] == nullptr) {
      const std::size_t size = block == 0 ? firstBlockSize : firstOf(block);
      // NOLINTNEXTLINE(bugprone-sizeof-expression): the entries may be pointers
      blocks_[block].reset(static_cast<T*>(::operator new(size * sizeof(T))));
    }
    return at(size_);
  }
  T* at(std::size_t index) const noexcept {
    const std::size_t block = blockOf(index);
    return blocks_[block].get() + (index - firstOf(block));
  }

  std::array<Block, blockCount> blocks_;
  std::size_t size_ = 0;
  std::size_t sharedSize_ = 0;
};
