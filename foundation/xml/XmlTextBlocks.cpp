// A ring of blocks between the reading thread and the one that tokenises.
#include "foundation/xml/XmlTextBlocks.h"

#include <system_error>

#include "foundation/KYRPhaseTimes.h"
#include "foundation/WorkerThread.h"

XmlTextBlocks::XmlTextBlocks(XmlInput& input, std::size_t blockSize, XmlThreads threads)
    : decoder_(input), blocks_(threads == XmlThreads::several ? blockCount : 1) {
  for (Block& block : blocks_) block.bytes.resize(blockSize);
  if (threads == XmlThreads::one) return;
  try {
    thread_ = startWorkerThread([this] { fillAhead(); });
  } catch (const std::system_error&) {  // the system has no thread to give: blocks are filled when asked for
  }
}

XmlTextBlocks::~XmlTextBlocks() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    isAbandoned_ = true;
    changed_.notify_all();
  }
  thread_.join();
}

const XmlTextBlocks::Block& XmlTextBlocks::next() {
  if (!thread_.joinable()) {
    fill(blocks_.front());
    return blocks_.front();
  }
  std::unique_lock lock(mutex_);
  ++given_;
  changed_.notify_all();
  changed_.wait(lock, [this] { return filled_ >= given_ || failure_; });
  if (filled_ < given_) std::rethrow_exception(failure_);
  return blocks_[(given_ - 1) % blocks_.size()];
}

void XmlTextBlocks::fill(Block& block) {
  block.starts.clear();
  block.length = decoder_.read(block.bytes.data(), block.bytes.size());
  block.isPlain = scan_.scan({block.bytes.data(), block.length}, block.starts) && !decoder_.isBroken();
}

// Runs on the thread. One block is always the reader's.
void XmlTextBlocks::fillAhead() noexcept {
  const KYRPhaseTimer timer(KYRPhase::tokenise);
  try {
    for (std::size_t number = 0;; ++number) {
      {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return isAbandoned_ || number + 1 < given_ + blocks_.size(); });
        if (isAbandoned_) return;
      }
      Block& block = blocks_[number % blocks_.size()];
      fill(block);
      const bool wasLast = isLast(block);
      const std::lock_guard lock(mutex_);
      filled_ = number + 1;
      changed_.notify_all();
      if (wasLast) return;
    }
  } catch (...) {
    const std::lock_guard lock(mutex_);
    failure_ = std::current_exception();
    changed_.notify_all();
  }
}
