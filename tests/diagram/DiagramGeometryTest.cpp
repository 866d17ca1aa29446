// Numbers and points of diagrams: what texts say, how they are scaled, where lines are cut.
#include "diagram/DiagramGeometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

using Bridge = KYROmgUml2XmiImportBridge;

std::string text(const Point2D& point) { return std::to_string(point.x) + "," + std::to_string(point.y); }
std::string text(const KYRString& value) { return std::string(value.view()); }

std::string pointsOf(const std::string& geometry) {
  Point2DVector points;
  Bridge::parsePoints(KYRString(std::string_view(geometry)), points);
  return text(points.encodeKYRLinePoints());
}

Point2DVector pointsFrom(const std::string& stored) {
  Point2DVector points;
  EXPECT_TRUE(Point2DVector::decodeKYRLinePoints(KYRString(std::string_view(stored)), points));
  return points;
}

// The box as "x,y,w,h", or "no" for one that is not usable.
std::string boxOf(const std::string& content) {
  const TemporaryFile file("<shape>" + content + "</shape>");
  RecordingLog log;
  KYRDOM dom(&log);
  const std::unique_ptr<KYRDOMElement> root(dom.parseFile(file.file()));
  int x = -1;
  int y = -1;
  int w = -1;
  int h = -1;
  const bool isBox = Bridge::readGeometry(root.get(), x, y, w, h);
  const std::string numbers =
      std::to_string(x) + "," + std::to_string(y) + "," + std::to_string(w) + "," + std::to_string(h);
  return isBox ? numbers : "no " + numbers;
}

}  // namespace

TEST(DiagramGeometry, ScalesAreCutOffTowardZeroInDoublePrecision) {
  EXPECT_EQ(scaleX(10), 13);
  EXPECT_EQ(scaleX(11), 14);
  EXPECT_EQ(scaleX(-11), -14);
  EXPECT_EQ(scaleY(10), 11);
  EXPECT_EQ(scaleY(100), 114);  // 100 * 1.15 is a little below 115
  EXPECT_EQ(unscaleX(14), 10);
  EXPECT_EQ(unscaleY(-11), -9);
}

TEST(DiagramGeometry, WhatIsTooLargeSaturates) {
  EXPECT_EQ(scaleX(largest), largest);
  EXPECT_EQ(scaleY(smallest), smallest);
  EXPECT_EQ(sum(largest, 1), largest);
  EXPECT_EQ(sum(smallest, -1), smallest);
  EXPECT_EQ(sum(largest, smallest), -1);
}

TEST(DiagramGeometry, APointIsReadAsFarAsItsTextGoes) {
  const struct {
    const char* source;
    const char* point;
  } rows[] = {
      {"10, 20", "13,23"},
      {"10,20", "13,23"},
      {" \t\n\v\f\r10,  20 rest", "13,23"},
      {"+10, -20", "13,-23"},
      {"10 , 20", "13,0"},  // no blank before a comma
      {"10", "13,0"},
      {"10,", "13,0"},
      {"10, x", "13,0"},
      {"x, 20", "0,0"},
      {", 20", "0,0"},
      {"- 10, 20", "0,0"},
      {"1.5, 2", "1,0"},
      {"", "0,0"},
      {"99999999999999999999, -99999999999999999999", "2147483647,-2147483648"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(text(Bridge::parsePoint(row.source)), row.point) << row.source;
  }
}

TEST(DiagramGeometry, EveryPointOfALineIsClosedByASemicolon) {
  EXPECT_EQ(pointsOf("10, 10; 20, 20; "), "13,11;26,23");
  EXPECT_EQ(pointsOf("10, 10; 20, 20"), "13,11");
  EXPECT_EQ(pointsOf("10, 10"), "");
  EXPECT_EQ(pointsOf("10, 10;;20, 20;"), "13,11;0,0;26,23");
  EXPECT_EQ(pointsOf(" ; "), "0,0");
  EXPECT_EQ(pointsOf(""), "");
  EXPECT_EQ(pointsOf("\n 10, 10 ;\n 20, 20 ;"), "13,11;26,23");
}

TEST(DiagramGeometry, ABoxNeedsAllFourNumbers) {
  EXPECT_EQ(boxOf("<geometry>1, 2, 3, 4</geometry>"), "1,2,3,4");
  EXPECT_EQ(boxOf("<geometry>\n-1,-2,-3,-4, 5</geometry>"), "-1,-2,-3,-4");
  EXPECT_EQ(boxOf("<geometry>1, 2, 3</geometry>"), "no 0,0,0,0");
  EXPECT_EQ(boxOf("<geometry>1, 2, 3, x</geometry>"), "no 0,0,0,0");
  EXPECT_EQ(boxOf("<geometry>1 , 2, 3, 4</geometry>"), "no 0,0,0,0");
  EXPECT_EQ(boxOf("<geometry/>"), "no 0,0,0,0");
  EXPECT_EQ(boxOf(""), "no 0,0,0,0");
}

TEST(DiagramGeometry, ALineOfEvenPointsIsCutBetweenTheTwoInTheMiddle) {
  const Point2DVector points = pointsFrom("0,0;10,0;20,4;30,4");
  const LineHalves inOrder = splitLine(points, HalfDirection::fileOrder);
  EXPECT_EQ(text(inOrder.middle), "15,2");
  EXPECT_EQ(text(inOrder.first.encodeKYRLinePoints()), "0,0;10,0;15,2");
  EXPECT_EQ(text(inOrder.second.encodeKYRLinePoints()), "15,2;20,4;30,4");
  const LineHalves outward = splitLine(points, HalfDirection::outward);
  EXPECT_EQ(text(outward.first.encodeKYRLinePoints()), "15,2;10,0;0,0");
  EXPECT_EQ(text(outward.second.encodeKYRLinePoints()), "15,2;20,4;30,4");
}

TEST(DiagramGeometry, ALineOfOddPointsIsCutAtTheOneInTheMiddle) {
  const Point2DVector points = pointsFrom("0,0;10,5;20,9");
  const LineHalves inOrder = splitLine(points, HalfDirection::fileOrder);
  EXPECT_EQ(text(inOrder.middle), "10,5");
  EXPECT_EQ(text(inOrder.first.encodeKYRLinePoints()), "0,0;10,5");
  EXPECT_EQ(text(inOrder.second.encodeKYRLinePoints()), "10,5;20,9");
  const LineHalves outward = splitLine(points, HalfDirection::outward);
  EXPECT_EQ(text(outward.first.encodeKYRLinePoints()), "10,5;0,0");
  EXPECT_EQ(text(outward.second.encodeKYRLinePoints()), "10,5;20,9");
}

TEST(DiagramGeometry, MiddlesAreHalvedTowardZeroAndNeverOverflow) {
  const auto middle = [](const std::string& points) {
    return text(splitLine(pointsFrom(points), HalfDirection::fileOrder).middle);
  };
  EXPECT_EQ(middle("0,0;3,-3"), "1,-1");
  EXPECT_EQ(middle("2147483647,0;2147483647,-2147483648"), "1073741823,-1073741824");
  EXPECT_EQ(middle("2147483647,-2147483648;1,-1"), "1073741823,-1073741824");
}
