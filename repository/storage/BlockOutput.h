// BlockOutput: bytes gathered into large blocks on their way into a file.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "foundation/Export.h"

/// Receives whole blocks.
class KYR_EXPORT BlockSink {
 public:
  BlockSink() = default;
  BlockSink(const BlockSink&) = delete;
  BlockSink& operator=(const BlockSink&) = delete;
  virtual ~BlockSink();
  virtual void write(std::string_view block) = 0;
};

/// An output stream for RapidJSON. The last block is handed on by `Flush` only.
class BlockOutput {
 public:
  using Ch = char;
  static constexpr std::size_t blockSize = std::size_t{256} * 1024;

  explicit BlockOutput(BlockSink& sink) : sink_(sink), block_(new char[blockSize]) {}

  void Put(char character) {
    if (used_ == blockSize) Flush();
    block_[used_++] = character;
  }
  void write(std::string_view bytes) {
    while (bytes.size() > blockSize - used_) {
      const std::size_t part = blockSize - used_;
      append(bytes.substr(0, part));
      Flush();
      bytes.remove_prefix(part);
    }
    append(bytes);
  }
  void Flush() {
    sink_.write({block_.get(), used_});
    used_ = 0;
  }

 private:
  void append(std::string_view bytes) {
    if (bytes.empty()) return;
    std::memcpy(block_.get() + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
  }

  BlockSink& sink_;
  std::unique_ptr<char[]> block_;
  std::size_t used_ = 0;
};
