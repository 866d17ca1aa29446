// BackgroundSink: hands blocks on from a thread of its own, so that whoever makes the next block need not
// wait until the system has taken the last one.
#pragma once

#include <string>

#include "repository/storage/BackgroundQueue.h"
#include "repository/storage/BlockOutput.h"

class KYR_EXPORT BackgroundSink : public BlockSink {
 public:
  /// `target`, which is written to by one thread at a time, must outlive the sink. Blocks that `finish` has
  /// not waited for may be lost.
  explicit BackgroundSink(BlockSink& target);
  ~BackgroundSink() override;
  /// Copies the block and returns; waits when eight others wait already. Raises what an earlier block raised.
  void write(std::string_view block) override;
  /// Returns when the target has taken all blocks. Raises what it raised; to be called once, at the end.
  void finish();

 private:
  BlockSink& target_;
  bool isFirst_ = true;
  BackgroundQueue<std::string> blocks_;
};
