// Small outputs need no thread: the first block goes straight to the target.
#include "repository/storage/BackgroundSink.h"

#include <utility>

namespace {

// Enough to go on for a while when the disk holds the thread up.
constexpr std::size_t blockCount = 8;

}  // namespace

BackgroundSink::BackgroundSink(BlockSink& target)
    : target_(target),
      blocks_(blockCount, std::string(), [this](const std::string& block) { target_.write(block); }) {}

BackgroundSink::~BackgroundSink() = default;

void BackgroundSink::write(std::string_view block) {
  if (std::exchange(isFirst_, false)) {
    target_.write(block);
    return;
  }
  blocks_.give([block](std::string& place) { place.assign(block); });
}

void BackgroundSink::finish() { blocks_.wait(); }
