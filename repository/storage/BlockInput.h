// BlockInput: a regular file read in large blocks, as an input stream for RapidJSON.
#pragma once

#include <cstddef>
#include <memory>

#include "foundation/KYRFile.h"

class BlockInput {
 public:
  using Ch = char;
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;

  /// Raises a KYRException that names the path and the reason for a file that cannot be read.
  explicit BlockInput(const KYRFile& file);
  BlockInput(const BlockInput&) = delete;
  BlockInput& operator=(const BlockInput&) = delete;
  ~BlockInput();

  /// The next byte; 0 at the end.
  char Peek() const noexcept { return at_ < end_ ? block_[at_] : '\0'; }
  char Take() {
    const char next = Peek();
    if (at_ < end_ && ++at_ == end_) fill();
    return next;
  }
  /// Bytes taken so far.
  std::size_t Tell() const noexcept { return before_ + at_; }
  bool isAtEnd() const noexcept { return at_ == end_; }

  // The writing half of RapidJSON's stream concept, which parsing from a file never uses.
  char* PutBegin() noexcept { return nullptr; }
  void Put(char) noexcept {}
  void Flush() noexcept {}
  std::size_t PutEnd(char*) noexcept { return 0; }

 private:
  void fill();
  [[noreturn]] void raise(int error) const;

  KYRString path_;
  std::unique_ptr<char[]> block_;
  int descriptor_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::size_t before_ = 0;  // bytes in the blocks before this one
};
