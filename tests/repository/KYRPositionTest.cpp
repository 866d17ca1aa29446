#include "repository/model/KYRPosition.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

TEST(KYRPosition, SaturatesAtBothEnds) {
  KYRPosition position;
  EXPECT_EQ(position, 0);
  position = 65535;
  EXPECT_EQ(position, 65535);
  position = 65536;
  EXPECT_EQ(position, 65535);
  position = INT64_MAX;
  EXPECT_EQ(position, 65535);
  position = -1;
  EXPECT_EQ(position, 0);
}

TEST(KYRPosition, Takes16Bits) { EXPECT_EQ(sizeof(KYRPosition), 2U); }

}  // namespace
