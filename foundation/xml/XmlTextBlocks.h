// XmlTextBlocks: an XML text in UTF-8, block by block, each looked at by XmlTagScan.
//
// Reading, converting and looking take a good part of the time that tokenising takes, and need nothing of it.
// So for a large file a thread of its own does them some blocks ahead.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "foundation/Export.h"
#include "foundation/xml/XmlDecoder.h"
#include "foundation/xml/XmlPosition.h"
#include "foundation/xml/XmlTagScan.h"

/// Whether a large file may be worked on by more threads than the caller's.
enum class XmlThreads { one, several };

class KYR_EXPORT XmlTextBlocks {
 public:
  struct Block {
    std::vector<char> bytes;
    std::size_t length = 0;           // of `bytes`; 0 at the end of the text
    std::vector<XmlPosition> starts;  // of its start tags
    bool isPlain = true;  // false: bytes that the scan refused, or that the encoding does not have
  };

  /// The input must outlive the blocks, and nobody else may read it meanwhile. Raises a KYRException for an
  /// encoding that is unknown.
  XmlTextBlocks(XmlInput& input, std::size_t blockSize, XmlThreads threads);
  XmlTextBlocks(const XmlTextBlocks&) = delete;
  XmlTextBlocks& operator=(const XmlTextBlocks&) = delete;
  ~XmlTextBlocks();

  /// The next block, until the next call. Not to be called behind the end, nor behind a block that is not
  /// plain. Raises what the input raises.
  const Block& next();

 private:
  static constexpr std::size_t blockCount = 8;

  void fill(Block& block);
  void fillAhead() noexcept;
  static bool isLast(const Block& block) noexcept { return block.length == 0 || !block.isPlain; }

  XmlDecoder decoder_;
  XmlTagScan scan_;
  std::vector<Block> blocks_;  // a ring; one without a thread
  std::mutex mutex_;           // guards what follows
  std::condition_variable changed_;
  std::size_t filled_ = 0;  // blocks so far
  std::size_t given_ = 0;   // blocks so far; the last of them is in use
  bool isAbandoned_ = false;
  std::exception_ptr failure_;  // raised behind the filled blocks
  std::thread thread_;
};
