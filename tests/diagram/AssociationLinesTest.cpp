// Associations on a diagram: their own line with flags, pen and font, and the lines of their two roles.
#include <gtest/gtest.h>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "tests/diagram/DrawnModel.h"

namespace {

DrawnModel drawn(const std::string& content, const std::string& lineEnds = ends("A", "B")) {
  return DrawnModel(boxes + shape("Association", "L", "ab", lineEnds + content));
}

std::string role(const std::string& reference, const std::string& content = "<roleNameID/>",
                 const std::string& elementClass = "Role") {
  return shape(elementClass, "r", reference, content);
}

std::int32_t flagsOf(const std::string& content, const std::string& lineEnds = ends("A", "B")) {
  return drawn(content, lineEnds).line("ab").displayFlags;
}

// A relation of a class that only a host has.
class HostRelation : public KYRRelationship {
 public:
  HostRelation() = default;
  HostRelation(const HostRelation&) = delete;
  HostRelation& operator=(const HostRelation&) = delete;
  ~HostRelation() override { dissolve(); }
  int getElementType() const override { return 40; }
};

}  // namespace

TEST(AssociationLines, BothHalvesRunOutwardFromTheMiddle) {
  const DrawnModel four(drawn(geometry("0, 0; 10, 10; 20, 10; 30, 20; ")));
  EXPECT_EQ(four.pointsOf("ea"), "19,11;13,11;0,0");
  EXPECT_EQ(four.pointsOf("eb"), "19,11;26,11;39,23");
  EXPECT_EQ(four.pointsOf("ab"), "");
  const DrawnModel three(drawn(geometry("0, 0; 10, 10; 20, 10; ")));
  EXPECT_EQ(three.pointsOf("ea"), "13,11;0,0");
  EXPECT_EQ(three.pointsOf("eb"), "13,11;26,11");
}

TEST(AssociationLines, OnePointOrNoneGivesNoPoints) {
  for (const std::string& content : {geometry("10, 10; "), geometry(""), std::string()}) {
    const DrawnModel model(drawn(content));
    EXPECT_EQ(model.pointsOf("ea"), "");
    EXPECT_EQ(model.pointsOf("eb"), "");
    EXPECT_EQ(model.drawingCount(), 6U);
  }
}

TEST(AssociationLines, TheFirstRoleIsTheOneAtTheFirstEnd) {
  const DrawnModel model(drawn(geometry("0, 0; 10, 10; 20, 10; "), ends("B", "A")));
  EXPECT_EQ(model.pointsOf("eb"), "13,11;0,0");
  EXPECT_EQ(model.pointsOf("ea"), "13,11;26,11");
  const auto& shapes = model.diagram().diagramElements;
  ASSERT_EQ(shapes.count(), 6U);
  EXPECT_EQ(shapes[3], &model.line("ab"));
  EXPECT_EQ(shapes[4], &model.line("eb"));
  EXPECT_EQ(shapes[5], &model.line("ea"));
  EXPECT_TRUE(model.lists(model.get<KYRAssociation>("ab")));
}

TEST(AssociationLines, OfMoreThanTwoRolesTheFirstTwoAreDrawn) {
  const std::string association =
      element("Association", "xmi:id='abc'", ownedEnd("na", "a") + ownedEnd("nb", "b") + ownedEnd("nc", "c"));
  const DrawnModel model(DrawnModel::ofFile(drawnFile(
      drawnElements + association + diagramElement("d", "D"),
      frame("d",
            boxes + shape("Association", "L", "abc", ends("B", "C") + geometry("0, 0; 10, 10; 20, 10; "))))));
  EXPECT_EQ(model.pointsOf("nb"), "13,11;0,0");  // the first role is not that of the first end
  EXPECT_EQ(model.pointsOf("na"), "13,11;26,11");
  EXPECT_TRUE(model.drawn<KYRRelationshipProjection>("nc").empty());
}

TEST(AssociationLines, BothEndsCanBeOneBox) {
  const std::string association =
      element("Association", "xmi:id='aa'", ownedEnd("s", "a") + ownedEnd("t", "a"));
  const DrawnModel model(DrawnModel::ofFile(drawnFile(
      drawnElements + association + diagramElement("d", "D"),
      frame("d",
            boxes + shape("Association", "L", "aa", ends("A", "A") + geometry("0, 0; 10, 10; 20, 10; "))))));
  EXPECT_EQ(model.pointsOf("s"), "13,11;0,0");
  EXPECT_EQ(model.pointsOf("t"), "13,11;26,11");
}

TEST(AssociationLines, FlagsTellWhichNamesShow) {
  EXPECT_EQ(flagsOf(""), 0);
  EXPECT_EQ(flagsOf(valued("nameVisible", "TRUE")), 0x2);
  EXPECT_EQ(flagsOf(valued("nameVisible", "false")), 0);
  EXPECT_EQ(flagsOf("<nameVisible/>"), 0);
  EXPECT_EQ(flagsOf(views(role("ea"))), 0x28);
  EXPECT_EQ(flagsOf(views(role("eb"))), 0x50);
  EXPECT_EQ(flagsOf(views(role("eb")), ends("B", "A")), 0x28);
  EXPECT_EQ(flagsOf(valued("nameVisible", "true") + views(role("EB", "<roleNameID/>", "role") + role("EA"))),
            0x7A);
}

TEST(AssociationLines, RolesWithoutANameOrOfAnotherAssociationShowNothing) {
  EXPECT_EQ(flagsOf(views(role("ea", "") + role("eb", "<roleNameID/>", "Class") + role("aca") + role("") +
                          "<mdElement elementClass='Role'><roleNameID/></mdElement>")),
            0);
}

TEST(AssociationLines, PenAndFontAreThoseOfTheAssociationAlone) {
  const DrawnModel model(drawn(
      properties(color("PEN_COLOR", "255") + lineWidth("2") + color("TEXT_COLOR", "65280") +
                 property("FontProperty", "FONT",
                          "<fontName>Courier</fontName>" + valued("size", "9") + valued("style", "1")))));
  const KYRRelationshipProjection& line = model.line("ab");
  EXPECT_EQ(line.lineColor, 0xFF0000);
  EXPECT_EQ(line.lineWidth, 2);
  EXPECT_EQ(line.fontColor, 0xFF00);
  EXPECT_EQ(text(line.fontName), "Courier");
  EXPECT_EQ(line.fontSize, 9);
  EXPECT_TRUE(line.isBold);
  EXPECT_EQ(model.line("ea").lineColor, 0);
  EXPECT_EQ(model.line("eb").lineWidth, 0);
  EXPECT_TRUE(model.line("ea").fontName.isEmpty());
}

TEST(AssociationLines, WithoutPropertiesOnlyTheFontHasADefault) {
  const DrawnModel model(drawn(""));
  const KYRRelationshipProjection& line = model.line("ab");
  EXPECT_EQ(text(line.fontName), "Arial");
  EXPECT_EQ(line.fontSize, 11);
  EXPECT_EQ(line.lineColor, 0);
  EXPECT_EQ(line.fontColor, 0);
}

TEST(AssociationLines, WithAClassThatIsNotOnTheDiagramThereIsNoLineButAnEntry) {
  const DrawnModel model(shape("Class", "A", "a") +
                         shape("Association", "L", "ab", ends("A", "B") + geometry("0, 0; 10, 10; ")));
  EXPECT_EQ(model.drawingCount(), 1U);
  EXPECT_TRUE(model.drawn<KYRRelationshipProjection>("ab").empty());
  EXPECT_TRUE(model.lists(model.get<KYRAssociation>("ab")));
}

TEST(AssociationLines, AnAssociationClassHasABoxAndALine) {
  const DrawnModel model(boxes + shape("AssociationClass", "L", "ac",
                                       ends("A", "C") + geometry("0, 0; 10, 10; 20, 10; ") +
                                           views(shape("Class", "X", "ac", geometry("1, 1, 10, 10")))));
  EXPECT_EQ(model.box("ac").width, 13);
  EXPECT_EQ(model.pointsOf("aca"), "13,11;0,0");
  EXPECT_EQ(model.pointsOf("acc"), "13,11;26,11");
  EXPECT_EQ(model.line("ac_ASSOCIATION").subject, &model.get<KYRAssociation>("ac_ASSOCIATION"));
  EXPECT_TRUE(model.lists(model.get<KYRAssociation>("ac_ASSOCIATION")));
  EXPECT_TRUE(model.lists(model.get<KYRClass>("ac")));
}

TEST(AssociationLines, AnyOtherObjectIsListedIfItCanBeButNotDrawn) {
  const DrawnModel model(boxes + shape("Association", "L1", "i", ends("A", "B")) +
                         shape("Association", "L2", "ea", ends("A", "B")));
  EXPECT_EQ(model.drawingCount(), 3U);
  EXPECT_TRUE(model.lists(model.get<KYRClass>("i")));
  EXPECT_EQ(model.diagram().modelElements.count(), 4U);
}

TEST(AssociationLines, ARelationOfTheHostIsOnePlainLine) {
  const TemporaryFile file("<mdElement>" + ends("A", "A") + geometry("0, 0; 10, 10; 20, 10; ") +
                           valued("nameVisible", "true") + "<short>" + ends("A", "A") + geometry("0, 0; ") +
                           "</short></mdElement>");
  RecordingLog log;
  KYROmgUml2XmiImportBridge bridge(&log);
  KYRDOM dom(&log);
  const std::unique_ptr<KYRDOMElement> element(dom.parseFile(file.file()));
  KYRClass end;
  end.sourceId = "a";
  bridge.objects.addRecord(&end);
  HostRelation relation;
  KYRClassDiagram diagram;
  diagram.addModelElement(&end);
  KYROmgUml2XmiImportBridge::MDHashtable shapes(8);
  KYROmgUml2XmiImportBridge::MDDiagramFrameElement box;
  box.id = "A";
  box.umlRef = "a";
  shapes.addRecord(&box);

  bridge.createAssociationProjections(&diagram, element.get(), &relation, shapes);
  bridge.createAssociationProjections(&diagram, element->getFirstElement("short"), &relation, shapes);
  ASSERT_EQ(diagram.diagramElements.count(), 2U);
  const auto& line = dynamic_cast<KYRRelationshipProjection&>(*diagram.diagramElements[0]);
  EXPECT_EQ(text(line.linePoints), "0,0;13,11;26,11");
  EXPECT_EQ(line.displayFlags, 0);
  EXPECT_TRUE(line.fontName.isEmpty());
  EXPECT_EQ(line.subject, &relation);
  EXPECT_TRUE(dynamic_cast<KYRRelationshipProjection&>(*diagram.diagramElements[1]).linePoints.isEmpty());
}
