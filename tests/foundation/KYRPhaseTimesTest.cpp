// KYRPhaseTimes: times are entered for the phase that took them, and only while somebody wants them.
#include "foundation/KYRPhaseTimes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

class KYRPhaseTimesTest : public testing::Test {
 protected:
  ~KYRPhaseTimesTest() override { KYRPhaseTimes::setCurrent(nullptr); }
  // Uses the processor until the timer must have seen it.
  static void work(KYRPhase phase) {
    for (const double before = timesOf(phase); timesOf(phase) == before;) {
      const KYRPhaseTimer timer(phase);
      for (volatile int i = 0; i < 100000;) i = i + 1;
    }
  }
  static double timesOf(KYRPhase phase) { return KYRPhaseTimes::getCurrent()->getSeconds(phase); }
};

TEST_F(KYRPhaseTimesTest, ATimerEntersItsPhaseAndNoOther) {
  KYRPhaseTimes times;
  KYRPhaseTimes::setCurrent(&times);
  work(KYRPhase::link);
  EXPECT_GT(times.getSeconds(KYRPhase::link), 0);
  EXPECT_EQ(times.getSeconds(KYRPhase::save), 0);
}

TEST_F(KYRPhaseTimesTest, WithoutAnybodyWhoWantsThemNothingIsEntered) {
  KYRPhaseTimes times;
  { const KYRPhaseTimer timer(KYRPhase::save); }
  EXPECT_EQ(KYRPhaseTimes::getCurrent(), nullptr);
  EXPECT_EQ(times.getSeconds(KYRPhase::save), 0);
}

TEST_F(KYRPhaseTimesTest, EachPhaseHasANameOfItsOwn) {
  std::set<std::string> names;
  for (std::size_t phase = 0; phase < KYRPhaseTimes::phaseCount; ++phase) {
    names.insert(KYRPhaseTimes::getName(static_cast<KYRPhase>(phase)));
  }
  EXPECT_EQ(names.size(), KYRPhaseTimes::phaseCount);
  EXPECT_TRUE(names.contains("tokenise"));
  EXPECT_STREQ(KYRPhaseTimes::getName(KYRPhase::release), "release");
}

}  // namespace
