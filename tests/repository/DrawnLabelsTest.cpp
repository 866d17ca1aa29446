// Labels beside lines: where they may stand, and which place they take.
#include "repository/drawing/DrawnLabels.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using Anchor = SvgDocument::Anchor;
using Places = DrawnLabels::Places;
using Side = DrawnLabels::Side;

constexpr double fontSize = 10;
const SvgDocument::Font font = {"Arial", fontSize};

// Where a label "label" ends up, of two places at x = 100 and x = 300 on one base line.
std::string chosen(const std::function<void(DrawnLabels&)>& prepare) {
  DrawnLabels labels;
  prepare(labels);
  labels.add("label", font, {{{100, 50}, Anchor::start}, {{300, 50}, Anchor::start}});
  SvgDocument document;
  labels.draw(document);
  const std::string svg = document.finish("");
  const std::size_t end = svg.find(">label<");
  const std::size_t start = svg.rfind("x=\"", end) + 3;
  return svg.substr(start, svg.find('"', start) - start);
}

std::string text(const DrawnLabels::Place& place) {
  constexpr const char* anchors[] = {"start", "middle", "end"};
  return std::to_string(static_cast<int>(place.point.x)) + "," +
         std::to_string(static_cast<int>(place.point.y)) + " " + anchors[static_cast<int>(place.anchor)];
}

}  // namespace

TEST(DrawnLabels, TakeTheirFirstPlaceWhenItIsFree) {
  EXPECT_EQ(chosen([](DrawnLabels&) {}), "100");
  EXPECT_EQ(chosen([](DrawnLabels& labels) { labels.avoid(DrawnBox{90, 55, 200, 90}); }), "100");
  EXPECT_EQ(chosen([](DrawnLabels& labels) { labels.avoid(DrawnPath{{90, 60}, {200, 60}}); }), "100");
}

TEST(DrawnLabels, KeepAwayFromBoxesLinesAndEarlierLabels) {
  EXPECT_EQ(chosen([](DrawnLabels& labels) { labels.avoid(DrawnBox{110, 30, 150, 60}); }), "300");
  EXPECT_EQ(chosen([](DrawnLabels& labels) { labels.avoid(DrawnPath{{110, 0}, {110, 100}}); }), "300");
  EXPECT_EQ(chosen([](DrawnLabels& labels) { labels.avoid(DrawnPath{{90, 0}, {150, 100}}); }), "300");
  EXPECT_EQ(chosen([](DrawnLabels& labels) {
              labels.add("first", font, {{{105, 55}, Anchor::start}});
            }),
            "300");
}

TEST(DrawnLabels, WithoutAFreePlaceTheyCoverAsLittleAsTheyCan) {
  EXPECT_EQ(chosen([](DrawnLabels& labels) {
              labels.avoid(DrawnBox{90, 30, 200, 60});
              labels.avoid(DrawnPath{{310, 0}, {310, 100}});
            }),
            "300");
  EXPECT_EQ(chosen([](DrawnLabels& labels) {
              labels.avoid(DrawnPath{{110, 0}, {110, 100}});
              labels.avoid(DrawnBox{290, 30, 400, 60});
            }),
            "100");
}

TEST(DrawnLabels, AtAnEndStandOnTheSideAskedForAndTurnToTheOther) {
  const Places right = DrawnLabels::atEnd({{0, 100}, {200, 100}}, Side::first, fontSize);
  EXPECT_EQ(text(right[0]), "196,93 end");
  EXPECT_EQ(text(right[1]), "196,114 end");
  const Places left = DrawnLabels::atEnd({{200, 100}, {0, 100}}, Side::second, fontSize);
  EXPECT_EQ(text(left[0]), "4,114 start");
  EXPECT_EQ(text(left[1]), "4,93 start");
  const Places down = DrawnLabels::atEnd({{100, 0}, {100, 200}}, Side::first, fontSize);
  EXPECT_EQ(text(down[0]), "108,196 start");
  EXPECT_EQ(text(down[1]), "91,196 end");
  const Places up = DrawnLabels::atEnd({{100, 200}, {100, 0}}, Side::second, fontSize);
  EXPECT_EQ(text(up[0]), "91,14 end");
  EXPECT_EQ(text(up[1]), "108,14 start");
}

TEST(DrawnLabels, OfALineStandAtItsMiddleUnlessThatIsACorner) {
  const Places straight = DrawnLabels::along({{{100, 50}, {0, 50}}, {{100, 50}, {300, 50}}}, fontSize);
  EXPECT_EQ(text(straight[0]), "100,46 middle");
  EXPECT_EQ(text(straight[1]), "100,62 middle");
  EXPECT_EQ(text(straight[2]), "200,46 middle");  // then half way along the longest part
  const Places corner = DrawnLabels::along({{{100, 50}, {0, 50}}, {{100, 50}, {100, 300}}}, fontSize);
  EXPECT_EQ(text(corner[0]), "104,177 start");
  EXPECT_EQ(text(corner[1]), "96,177 end");
}

TEST(DrawnLabels, OfALineWithoutLengthHaveAPlaceToo) {
  EXPECT_EQ(text(DrawnLabels::along({{{7, 8}}}, fontSize)[0]), "7,4 middle");
  EXPECT_EQ(text(DrawnLabels::along({{{7, 8}}, {{7, 8}}}, fontSize)[0]), "7,4 middle");
  EXPECT_EQ(text(DrawnLabels::along({}, fontSize)[0]), "0,-4 middle");
  EXPECT_FALSE(DrawnLabels::atEnd({{1, 1}, {1, 1}}, Side::first, fontSize).empty());
}

TEST(DrawnLabels, OfAHugePictureTakeTheirFirstPlaces) {
  constexpr unsigned int count = 20000;
  DrawnLabels labels;
  const DrawnPath path = {{0, 0}, {100, 0}};
  for (unsigned int i = 0; i < count; ++i) {
    labels.avoid(path);
    labels.add("label", font, DrawnLabels::atEnd(path, Side::first, fontSize));
  }
  SvgDocument document;
  labels.draw(document);
  EXPECT_LT(labels.getComparisonCount(), 30'000'000U);
}
