// A line that is too wide would run into the next one, where it could not be wiped.
#include "host/ProgressLine.h"

#include <gtest/gtest.h>

namespace {

TEST(ProgressLine, ATextIsCutToTheColumnsThereAre) {
  EXPECT_EQ(ProgressLine::fit("reading", 10), "reading");
  EXPECT_EQ(ProgressLine::fit("reading", 7), "reading");
  EXPECT_EQ(ProgressLine::fit("reading", 4), "read");
  EXPECT_EQ(ProgressLine::fit("reading", 0), "");
}

TEST(ProgressLine, ACharacterThatMayBeWideCountsTwice) {
  EXPECT_EQ(ProgressLine::fit("\u6CE8\u6587: reading", 5), "\u6CE8\u6587:");
  EXPECT_EQ(ProgressLine::fit("\u6CE8\u6587", 3), "\u6CE8");
}

TEST(ProgressLine, NobodyIsShownWhatNobodyWants) { EXPECT_FALSE(ProgressLine(false).isOn()); }

}  // namespace
