// XmlBlockArray<T>: an array that grows by blocks.
//
// Nothing is ever moved, so references stay valid, growing needs no room for two copies, and at most
// one block stands partly empty. T is a plain record or a KYRString that borrows: nothing that would
// need its destructor, so the blocks are given back as they are.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

template <class T>
class XmlBlockArray {
 public:
  static constexpr std::size_t blockShift = 12;
  static constexpr std::size_t blockSize = std::size_t{1} << blockShift;

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
  void appendFrom(const XmlBlockArray& other, std::size_t from, std::size_t count) {
    while (count != 0) {
      T* const place = makeRoom();
      const std::size_t left = blockSize - (size_ & (blockSize - 1));
      const std::size_t there = blockSize - (from & (blockSize - 1));
      const std::size_t piece = std::min({count, left, there});
      std::uninitialized_copy_n(other.at(from), piece, place);
      size_ += piece;
      from += piece;
      count -= piece;
    }
  }
  /// Takes on the entries of `other`, which must outlive this array and grow no more, without copying
  /// them. Further entries begin a block of their own, so their indexes start at the next multiple of
  /// `blockSize`. To be called on an empty array.
  void shareBlocks(const XmlBlockArray& other) {
    blocks_.reserve(other.blocks_.size());
    for (const Block& block : other.blocks_) blocks_.push_back(Block(block.get(), Release{false}));
    size_ = blocks_.size() * blockSize;
    sharedCount_ = blocks_.size();
  }
  /// Bytes of the blocks that are its own.
  std::size_t getMemorySize() const noexcept {
    return (blocks_.size() - sharedCount_) * blockSize * sizeof(T);
  }

 private:
  struct Release {
    bool owns = true;
    void operator()(T* block) const noexcept {
      if (owns) ::operator delete(block);
    }
  };
  using Block = std::unique_ptr<T, Release>;

  T* makeRoom() {
    if ((size_ >> blockShift) == blocks_.size()) {
      blocks_.push_back(Block(static_cast<T*>(::operator new(blockSize * sizeof(T)))));
    }
    return at(size_);
  }
  T* at(std::size_t index) const noexcept {
    return blocks_[index >> blockShift].get() + (index & (blockSize - 1));
  }

  std::vector<Block> blocks_;
  std::size_t size_ = 0;
  std::size_t sharedCount_ = 0;
};
