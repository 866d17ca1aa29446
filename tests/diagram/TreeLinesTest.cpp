// Trees of generalizations: a trunk, a marker and branches.
#include <gtest/gtest.h>

#include "tests/diagram/DrawnModel.h"

namespace {

std::string bars(const std::string& verticalX, const std::string& verticalY, const std::string& horizontalY) {
  return valued("verticalBarX", verticalX) + valued("verticalBarY", verticalY) +
         valued("horizontalBarY", horizontalY);
}

std::string tree(const std::string& content, const std::string& base = "<baseShape xmi:idref='A'/>") {
  return "<mdElement elementClass='Tree' xmi:id='T'>" + base + content + "</mdElement>";
}

std::string branch(const std::string& id, const std::string& reference, const std::string& content) {
  return shape("Generalization", id, reference, "<treeID xmi:idref='T'/>" + content);
}

const std::string branches = branch("G1", "gb", ends("A", "B") + geometry("1, 2; 3, 4; ")) +
                             branch("G2", "gc", ends("A", "C") + geometry("5, 6; 7, 8; "));

// A tree below "a" whose box is at 100, 100 and 50 wide: 162 and 65 in the repository, 124 and 50 when
// taken back, so that the bar at 25 is at 124 - 25 + 25.
DrawnModel drawn(const std::string& content) { return DrawnModel(boxes + tree(content) + branches); }

}  // namespace

TEST(TreeLines, TheTrunkRunsFromTheVerticalToTheHorizontalBar) {
  const DrawnModel model(drawn(bars("25", "140", "200")));
  // 124 becomes 161 and is taken back as 123, so the second point is at 159: each step rounds.
  EXPECT_EQ(text(model.superLine("gb").linePoints), "161,161;159,229");
  EXPECT_EQ(model.marker("gb").x, 159);
  EXPECT_EQ(model.marker("gb").y, 229);
  EXPECT_EQ(model.marker("gb").width, 20);
  EXPECT_EQ(model.marker("gb").height, 20);
}

TEST(TreeLines, EqualBarsGiveATrunkOfOnePointOnWhichTheMarkerStands) {
  const DrawnModel model(drawn(bars("25", "140", "140")));
  EXPECT_EQ(text(model.superLine("gb").linePoints), "161,161");
  EXPECT_EQ(model.marker("gb").x, 161);
  EXPECT_EQ(model.marker("gb").y, 161);
}

TEST(TreeLines, BarsAreComparedAsTexts) {
  EXPECT_EQ(text(drawn(bars("25", "140", " 140")).superLine("gb").linePoints), "161,161;159,161");
  EXPECT_EQ(text(drawn(bars("x", "y", "Y")).superLine("gb").linePoints), "128,0");
}

TEST(TreeLines, EveryBranchBeginsAtTheMarker) {
  const DrawnModel model(drawn(bars("25", "140", "200")));
  // 159, 229 is taken back as 122, 199 and becomes 158, 228 again.
  EXPECT_EQ(model.pointsOf("gb"), "158,228;1,2;3,4");
  EXPECT_EQ(model.pointsOf("gc"), "158,228;6,6;9,9");
}

TEST(TreeLines, ABranchThatStartsAtTheMarkerIsNotLedThereAgain) {
  const DrawnModel model(boxes + tree(bars("25", "140", "200")) +
                         branch("G1", "gb", ends("A", "B") + geometry("122, 199; 3, 4; ")) +
                         branch("G2", "gc", ends("A", "C") + geometry(" 122, 199; 3, 4; ")));
  EXPECT_EQ(model.pointsOf("gb"), "158,228;3,4");
  EXPECT_EQ(model.pointsOf("gc"), "158,228;158,228;3,4");  // the texts are compared as they stand
}

TEST(TreeLines, AMarkerOnAnAxisLeadsNoBranch) {
  const DrawnModel left(drawn(bars("-99", "140", "140")));
  EXPECT_EQ(left.marker("gb").x, 0);
  EXPECT_EQ(left.pointsOf("gb"), "1,2;3,4");
  const DrawnModel top(drawn(bars("25", "0", "0")));
  EXPECT_EQ(top.marker("gb").y, 0);
  EXPECT_EQ(top.pointsOf("gb"), "1,2;3,4");
}

TEST(TreeLines, ABranchNeedsTwoPointsToBeALine) {
  const DrawnModel model(boxes + tree(bars("25", "140", "200")) +
                         branch("G1", "gb", ends("A", "B") + geometry("3, 4")) +
                         branch("G2", "gc", ends("A", "C")));
  EXPECT_EQ(model.pointsOf("gb"), "");
  EXPECT_EQ(model.pointsOf("gc"), "");
}

TEST(TreeLines, StandOnTheDiagramInOrderAndAreListed) {
  const DrawnModel model(drawn(bars("25", "140", "200")));
  const auto& shapes = model.diagram().diagramElements;
  ASSERT_EQ(shapes.count(), 7U);
  EXPECT_EQ(shapes[3], &model.superLine("gb"));
  EXPECT_EQ(shapes[4], &model.marker("gb"));
  EXPECT_EQ(shapes[5], &model.line("gb"));
  EXPECT_EQ(shapes[6], &model.line("gc"));
  EXPECT_TRUE(model.lists(model.generalizationOf("gb")));
}

TEST(TreeLines, TrunkAndMarkerHaveThePenOfTheTreeAndBranchesTheirOwn) {
  const DrawnModel model(
      boxes + tree(bars("25", "140", "200") + properties(color("PEN_COLOR", "255") + lineWidth("2"))) +
      branch("G1", "gb", ends("A", "B") + properties(color("PEN_COLOR", "65280") + lineWidth("3"))) +
      branch("G2", "gc", ends("A", "C")));
  EXPECT_EQ(model.superLine("gb").lineColor, 0xFF0000);
  EXPECT_EQ(model.marker("gb").lineWidth, 2);
  EXPECT_EQ(model.line("gb").lineColor, 0xFF00);
  EXPECT_EQ(model.line("gb").lineWidth, 3);
  EXPECT_EQ(model.line("gc").lineColor, 0);
}

TEST(TreeLines, ABranchWithoutBothEndsIsLeftOut) {
  const DrawnModel model(boxes + tree(bars("25", "140", "200")) + branch("G1", "gb", ends("A", "none")) +
                         branch("G2", "gc", ends("A", "C")) + branch("G3", "unknown", ends("A", "C")));
  EXPECT_TRUE(model.drawn<KYRRelationshipProjection>("gb").empty());
  EXPECT_EQ(model.drawn<KYRRelationshipProjection>("gc").size(), 1U);
  EXPECT_EQ(model.drawingCount(), 6U);
}

TEST(TreeLines, WithoutABarOrABaseThereIsNoTreeButAnEntry) {
  const std::string all = bars("25", "140", "200");
  for (const std::string& shapes :
       {tree(bars("", "140", "200")), tree(bars("25", "", "200")), tree(bars("25", "140", "")),
        tree(valued("verticalBarX", "25")), tree(all, ""), tree(all, "<baseShape/>"),
        tree(all, "<baseShape xmi:idref='none'/>"), tree(all, "<baseShape xmi:idref='T'/>"),
        tree(all, "<baseShape xmi:idref='I'/>") + shape("Realization", "I", "i"), tree("", "")}) {
    const DrawnModel model(boxes + shapes + branches);
    EXPECT_EQ(model.drawingCount(), 3U) << shapes;
    EXPECT_TRUE(model.lists(model.generalizationOf("gb"))) << shapes;
  }
}

TEST(TreeLines, TheFirstBranchTellsTheGeneralization) {
  const std::string all = tree(bars("25", "140", "200"));
  for (const std::string& reference : {std::string("unknown"), std::string("ab")}) {
    const DrawnModel model(boxes + all + branch("G0", reference, ends("A", "B")) + branches);
    EXPECT_EQ(model.drawingCount(), 3U) << reference;
    EXPECT_FALSE(model.lists(model.generalizationOf("gb"))) << reference;
  }
  EXPECT_EQ(DrawnModel(boxes + all).drawingCount(), 3U);
}

TEST(TreeLines, HugeNumbersSaturate) {
  const std::string huge = "99999999999";
  const DrawnModel model(shape("Class", "A", "a", geometry(huge + ", 1, -" + huge + ", 1")) +
                         shape("Class", "B", "b") + shape("Class", "C", "c") +
                         tree(bars(huge, huge, "-" + huge)) + branches);
  EXPECT_EQ(text(model.superLine("gb").linePoints), "2147483647,2147483647;2147483646,-2147483648");
}
