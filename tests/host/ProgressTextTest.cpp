// The words of the progress line.
#include "host/ProgressText.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

std::string textOf(const KYRImportProgress::State& state) {
  return std::string(ProgressText::of(state).view());
}

TEST(ProgressText, ReadingIsToldInBytesAndPerCentOfTheFile) {
  EXPECT_EQ(textOf({KYRPhase::objects, 34'180'000, 101'320'000}), "reading 34.2 of 101.3 MB, 33 %");
  EXPECT_EQ(textOf({std::nullopt, 0, 2'000'000}), "reading 0.0 of 2.0 MB, 0 %");
  EXPECT_EQ(ProgressText::brieflyOf({KYRPhase::objects, 1, 2}).view(), "reading 50 %");
}

TEST(ProgressText, AFileThatHasGrownIsReadAllTheSame) {
  EXPECT_EQ(textOf({KYRPhase::objects, 300, 200}), "making objects");
}

TEST(ProgressText, BehindTheReadingThePhaseIsToldByItsName) {
  EXPECT_EQ(textOf({KYRPhase::normalise, 100, 100}), "bringing the file into the usual form");
  EXPECT_EQ(textOf({KYRPhase::convert, 0, 0}), "converting");
  EXPECT_EQ(ProgressText::brieflyOf({KYRPhase::save, 0, 0}).view(), "saving");
  EXPECT_EQ(textOf({std::nullopt, 0, 0}), "");
}

TEST(ProgressText, EachPhaseBehindTheReadingHasItsName) {
  std::set<std::string> names;
  for (std::size_t phase = 1; phase < KYRPhaseTimes::phaseCount; ++phase) {
    names.insert(textOf({static_cast<KYRPhase>(phase), 0, 0}));
  }
  EXPECT_EQ(names.size(), KYRPhaseTimes::phaseCount - 1);
  EXPECT_FALSE(names.contains(""));
}

}  // namespace
