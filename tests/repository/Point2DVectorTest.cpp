#include "repository/bridgelib/Point2DVector.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(Point2DVector, HoldsPointsInOrder) {
  Point2DVector points;
  EXPECT_TRUE(points.empty());
  points.addPoint({1, 2});
  points.addPoint({3, 4});
  EXPECT_EQ(points.getSize(), 2);
  EXPECT_FALSE(points.empty());
  EXPECT_EQ(points[1].x, 3);
  points[1].y = 9;
  EXPECT_EQ(points.encodeKYRLinePoints(), "1,2;3,9");
}

TEST(Point2DVector, TheStoredTextGivesThePointsBack) {
  constexpr int lowest = std::numeric_limits<int>::min();
  constexpr int highest = std::numeric_limits<int>::max();
  Point2DVector points;
  for (const Point2D& point : {Point2D{10, 20}, Point2D{-3, 0}, Point2D{lowest, highest}})
    points.addPoint(point);
  const KYRString text = points.encodeKYRLinePoints();
  EXPECT_EQ(text, "10,20;-3,0;-2147483648,2147483647");
  Point2DVector decoded;
  ASSERT_TRUE(Point2DVector::decodeKYRLinePoints(text, decoded));
  ASSERT_EQ(decoded.getSize(), 3);
  EXPECT_EQ(decoded[2].x, lowest);
  EXPECT_EQ(decoded.encodeKYRLinePoints(), text);
  ASSERT_TRUE(Point2DVector::decodeKYRLinePoints("", decoded));
  EXPECT_TRUE(decoded.empty());
  EXPECT_EQ(decoded.encodeKYRLinePoints(), "");
}

TEST(Point2DVector, OtherTextsAreRefusedAndLeaveThePoints) {
  Point2DVector points;
  points.addPoint({1, 1});
  for (const char* text : {"1", "1,", ",1", "1,2;", ";1,2", "1,2,3", "1,2;;3,4", " 1,2", "1,2 ", "01,2",
                           "+1,2", "-0,1", "1.5,2", "2147483648,0", "a,b"}) {
    EXPECT_FALSE(Point2DVector::decodeKYRLinePoints(text, points)) << text;
    EXPECT_EQ(points.getSize(), 1);
  }
}

}  // namespace
