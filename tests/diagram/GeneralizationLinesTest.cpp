// Generalizations drawn by themselves: two lines and the marker between them.
#include <gtest/gtest.h>

#include "tests/diagram/DrawnModel.h"

namespace {

// "b" below "a", drawn with these parts.
DrawnModel drawn(const std::string& content) {
  return DrawnModel(boxes + shape("Generalization", "G", "gb", ends("A", "B") + content));
}

}  // namespace

TEST(GeneralizationLines, FourPointsAreCutBetweenTheSecondAndTheThird) {
  const DrawnModel model(drawn(geometry("0, 0; 10, 10; 20, 10; 30, 20; ")));
  EXPECT_EQ(text(model.superLine("gb").linePoints), "0,0;13,11;19,11");
  EXPECT_EQ(model.pointsOf("gb"), "19,11;26,11;39,23");
  EXPECT_EQ(model.marker("gb").x, 19);
  EXPECT_EQ(model.marker("gb").y, 11);
}

TEST(GeneralizationLines, ThreePointsShareTheOneInTheMiddle) {
  const DrawnModel model(drawn(geometry("0, 0; 10, 10; 20, 10;")));
  EXPECT_EQ(text(model.superLine("gb").linePoints), "0,0;13,11");
  EXPECT_EQ(model.pointsOf("gb"), "13,11;26,11");
}

TEST(GeneralizationLines, OnePointOrNoneLeavesTheMarkerAtTheOrigin) {
  for (const std::string& content :
       {geometry("10, 10; "), geometry("10, 10; 20, 20"), geometry(""), std::string()}) {
    const DrawnModel model(drawn(content));
    EXPECT_TRUE(model.superLine("gb").linePoints.isEmpty()) << content;
    EXPECT_TRUE(model.line("gb").linePoints.isEmpty()) << content;
    EXPECT_EQ(model.marker("gb").x, 0);
    EXPECT_EQ(model.marker("gb").y, 0);
    EXPECT_EQ(model.marker("gb").width, 20);
    EXPECT_EQ(model.marker("gb").height, 20);
  }
}

TEST(GeneralizationLines, StandOnTheDiagramInOrderAndAreListed) {
  const DrawnModel model(drawn(geometry("0, 0; 10, 10; ")));
  ASSERT_EQ(model.drawingCount(), 6U);
  const auto& shapes = model.diagram().diagramElements;
  EXPECT_EQ(shapes[3], &model.superLine("gb"));
  EXPECT_EQ(shapes[4], &model.line("gb"));
  EXPECT_EQ(shapes[5], &model.marker("gb"));
  EXPECT_TRUE(model.lists(model.generalizationOf("gb")));
  EXPECT_EQ(model.line("gb").subject, &model.get<KYRGeneralizationRole>("gb"));
}

TEST(GeneralizationLines, ThePenIsThatOfAllThree) {
  const DrawnModel model(drawn(properties(color("PEN_COLOR", "255") + lineWidth("2"))));
  for (const KYRPresentationElement* shape : {static_cast<KYRPresentationElement*>(&model.superLine("gb")),
                                              static_cast<KYRPresentationElement*>(&model.line("gb")),
                                              static_cast<KYRPresentationElement*>(&model.marker("gb"))}) {
    EXPECT_EQ(shape->lineColor, 0xFF0000);
    EXPECT_EQ(shape->lineWidth, 2);
  }
  const DrawnModel plain(drawn(properties(color("PEN_COLOR", "") + lineWidth(""))));
  EXPECT_EQ(plain.line("gb").lineColor, 0);
  EXPECT_EQ(plain.line("gb").lineWidth, 0);
}

TEST(GeneralizationLines, AreNotDrawnUnlessBothEndsAreClassesOnTheDiagram) {
  const std::string points = geometry("0, 0; 10, 10; ");
  const std::string others = shape("Association", "L", "ab");
  for (const std::string& content :
       {std::string(), ends("A", ""), ends("", "B"), ends("A", "I"), ends("unknown", "B"), ends("A", "L"),
        std::string("<linkFirstEndID xmi:idref='A'/>"), std::string("<linkSecondEndID xmi:idref='B'/>"),
        std::string("<linkFirstEndID/><linkSecondEndID/>")}) {
    const DrawnModel model(boxes + others + shape("Generalization", "G", "gb", content + points));
    EXPECT_EQ(model.drawingCount(), 3U) << content;
    EXPECT_TRUE(model.lists(model.generalizationOf("gb"))) << content;
  }
}

TEST(GeneralizationLines, AnInterfaceCanBeAnEnd) {
  const DrawnModel model(boxes + shape("Interface", "I", "i") +
                         shape("Generalization", "G", "gi", ends("A", "I") + geometry("0, 0; 10, 10; ")));
  EXPECT_EQ(model.pointsOf("gi"), "6,5;13,11");
  EXPECT_EQ(model.drawingCount(), 7U);
}

TEST(GeneralizationLines, AShapeOfAnotherObjectIsNeitherDrawnNorListed) {
  const DrawnModel model(boxes + shape("Generalization", "G", "ab", ends("A", "B")));
  EXPECT_EQ(model.drawingCount(), 3U);
  EXPECT_EQ(model.diagram().modelElements.count(), 3U);
}

TEST(GeneralizationLines, OneThatNamesAMissingTreeIsNotDrawn) {
  const DrawnModel model(drawn("<treeID xmi:idref='none'/>" + geometry("0, 0; 10, 10; ")));
  EXPECT_EQ(model.drawingCount(), 3U);
  EXPECT_FALSE(model.lists(model.generalizationOf("gb")));
}
