// MemoryAtEnd: given objects are destroyed, unless the process is said to end soon.
#include "foundation/MemoryAtEnd.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t many = MemoryAtEnd::worthLeaving;

class Counted {
 public:
  explicit Counted(int& destroyed) : destroyed_(destroyed) {}
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { ++destroyed_; }

 private:
  int& destroyed_;
};

class MemoryAtEndTest : public testing::Test {
 protected:
  ~MemoryAtEndTest() override {
    MemoryAtEnd::leaveToSystem(false);
    MemoryAtEnd::needMemory(false);
  }

  int destroyed_ = 0;
};

TEST_F(MemoryAtEndTest, WhatIsGivenIsDestroyedInAProcessThatGoesOn) {
  EXPECT_FALSE(MemoryAtEnd::isLeftToSystem());
  MemoryAtEnd::give(std::make_unique<Counted>(destroyed_), many);
  EXPECT_EQ(destroyed_, 1);
}

// The leak detection of the sanitizers finds what would not be reachable.
TEST_F(MemoryAtEndTest, WhatIsGivenStaysInMemoryInAProcessThatEnds) {
  static int destroyed = 0;  // the object outlives the test
  MemoryAtEnd::leaveToSystem(true);
  MemoryAtEnd::give(std::make_unique<Counted>(destroyed), many);
  EXPECT_EQ(destroyed, 0);
}

TEST_F(MemoryAtEndTest, WhoeverNeedsMemoryIsHeardFirst) {
  MemoryAtEnd::needMemory(true);
  MemoryAtEnd::leaveToSystem(true);
  EXPECT_FALSE(MemoryAtEnd::isLeftToSystem());
  MemoryAtEnd::give(std::make_unique<Counted>(destroyed_), many);
  EXPECT_EQ(destroyed_, 1);
}

TEST_F(MemoryAtEndTest, SmallThingsAreDestroyedAllTheSame) {
  MemoryAtEnd::leaveToSystem(true);
  MemoryAtEnd::give(std::make_unique<Counted>(destroyed_), many - 1);
  EXPECT_EQ(destroyed_, 1);
}

TEST_F(MemoryAtEndTest, NothingIsGivenForNull) {
  MemoryAtEnd::leaveToSystem(true);
  MemoryAtEnd::give(std::unique_ptr<Counted>(), many);
  MemoryAtEnd::leaveToSystem(false);
  MemoryAtEnd::give(std::make_unique<Counted>(destroyed_), many);
  EXPECT_EQ(destroyed_, 1);
}

}  // namespace
