// BackgroundRelease: what is given goes, elsewhere, and before the one who gave it.
#include "foundation/BackgroundRelease.h"

#include <gtest/gtest.h>

#include <atomic>

namespace {

struct Tracked {
  explicit Tracked(std::atomic<int>& counter) : count(counter) {}
  Tracked(const Tracked&) = delete;
  Tracked& operator=(const Tracked&) = delete;
  ~Tracked() {
    isElsewhere = std::this_thread::get_id() != maker;
    ++count;
  }
  std::atomic<int>& count;
  std::thread::id maker = std::this_thread::get_id();
  static inline std::atomic<bool> isElsewhere = false;
};

TEST(BackgroundRelease, WhatIsGivenIsGoneWhenTheOwnerHasWaited) {
  std::atomic<int> gone = 0;
  BackgroundRelease release;
  release.wait();
  release.give(std::make_unique<Tracked>(gone));
  release.wait();
  EXPECT_EQ(gone, 1);
  EXPECT_TRUE(Tracked::isElsewhere);
}

TEST(BackgroundRelease, EverythingGivenIsGoneBehindTheOwner) {
  std::atomic<int> gone = 0;
  {
    BackgroundRelease release;
    for (int i = 0; i < 3; ++i) release.give(std::make_unique<Tracked>(gone));
  }
  EXPECT_EQ(gone, 3);
}

}  // namespace
