// BackgroundSink: hands blocks on from a thread of its own, so that whoever makes the next block need not
// wait until the system has taken the last one.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <string>
#include <thread>

#include "repository/storage/BlockOutput.h"

class KYR_EXPORT BackgroundSink : public BlockSink {
 public:
  /// `target`, which is written to by one thread at a time, must outlive the sink.
  explicit BackgroundSink(BlockSink& target) : target_(target) {}
  /// Blocks that `finish` has not waited for may be lost.
  ~BackgroundSink() override;
  /// Copies the block and returns; waits when eight others wait already. Raises what an earlier block raised.
  void write(std::string_view block) override;
  /// Returns when the target has taken all blocks. Raises what it raised; to be called once, at the end.
  void finish();

 private:
  static constexpr std::size_t blockCount =
      8;  // enough to go on for a while when the disk holds the thread up

  void start();
  void run() noexcept;
  void stop() noexcept;

  BlockSink& target_;
  std::thread thread_;  // started by the second block: small outputs need none
  std::mutex mutex_;    // guards what follows
  std::condition_variable changed_;
  std::string blocks_[blockCount];  // a ring
  std::size_t given_ = 0;
  std::size_t taken_ = 0;
  bool isFinished_ = false;
  std::exception_ptr failure_;
  bool isFirst_ = true;
  bool isAlone_ = false;  // the system had no thread to give
};
