// Which diagrams are made, where they stand, and what they list.
#include <gtest/gtest.h>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/diagram/DrawnModel.h"

namespace {

std::vector<std::string> diagramNames(const KYRDesignPackage& package) {
  std::vector<std::string> names;
  for (const KYRDiagram* diagram : package.diagrams) names.push_back(text(diagram->getName()));
  return names;
}

using Names = std::vector<std::string>;

std::size_t diagramCount(const std::string& exporter) {
  const ImportedModel imported(
      drawnFile(drawnElements + diagramElement("d", "D"), frame("d", boxes), exporter));
  return imported.all<KYRClassDiagram>().size();
}

}  // namespace

TEST(DiagramImport, ADiagramTakesNameAndIdAndStandsInItsPackage) {
  const DrawnModel model(boxes);
  EXPECT_EQ(text(model.diagram().getName()), "D");
  EXPECT_EQ(model.diagram().getParent(), &model.get<KYRDesignPackage>("p"));
  EXPECT_EQ(model.drawingCount(), 3U);
  EXPECT_EQ(model.diagram().modelElements.count(), 3U);
}

TEST(DiagramImport, OnlyFilesOfOneToolHaveDiagrams) {
  EXPECT_EQ(diagramCount("MagicDraw UML"), 1U);
  EXPECT_EQ(diagramCount("magicdraw uml"), 1U);
  EXPECT_EQ(diagramCount("MagicDraw UML 17"), 0U);
  EXPECT_EQ(diagramCount("Some Tool"), 0U);
  EXPECT_EQ(diagramCount("Enterprise Architect"), 0U);
}

TEST(DiagramImport, DiagramsOfEnterpriseArchitectLeaveOnlyTheMessageOfThePhase) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='a' name='A'") + diagramElement("d", "D")) +
              "<xmi:Extension><diagrams><diagram xmi:id='x'/></diagrams></xmi:Extension>"
              "<diagrams><diagram xmi:id='y' xmi:type='uml:Class'/></diagrams>",
          "Model", "<xmi:Documentation exporter='Enterprise Architect' exporterVersion='6.5'/>"));
  EXPECT_TRUE(imported.all<KYRClassDiagram>().empty());
  EXPECT_FALSE(imported.has("y"));
  EXPECT_EQ(imported.log.countOf("KBI_UML2XMI_S0018"), 1U);
  EXPECT_EQ(imported.log.lines.back().substr(0, 17), "KBI_UML2XMI_S0018");
}

TEST(DiagramImport, OtherKindsOfDiagramsAreNotMade) {
  const ImportedModel imported(
      drawnFile(drawnElements + diagramElement("d", "D", "Use Case Diagram"), frame("d", boxes)));
  EXPECT_TRUE(imported.all<KYRClassDiagram>().empty());
}

TEST(DiagramImport, TakenNamesBecomeUniqueInTheirPackage) {
  const ImportedModel imported(
      drawnFile(drawnElements + diagramElement("d1", "D") + diagramElement("d2", "D") +
                    diagramElement("d3", "") + diagramElement("d4", "") +
                    element("Package", "xmi:id='q' name='Q'",
                            element("Class", "xmi:id='k' name='K'") + diagramElement("d5", "D")),
                ""));
  EXPECT_EQ(diagramNames(imported.get<KYRDesignPackage>("p")), (Names{"D", "D/1", "", ""}));
  EXPECT_EQ(diagramNames(imported.get<KYRDesignPackage>("q")), Names{"D"});
}

TEST(DiagramImport, ADiagramOfTheModelStandsInTheRootPackageOrNowhere) {
  const std::string documentation = "<xmi:Documentation exporter='MagicDraw UML' exporterVersion='17.0'/>";
  const std::string package =
      element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='a' name='A'"));
  const ImportedModel without(xmi(package + diagramElement("d", "D"), "Model", documentation));
  EXPECT_TRUE(without.all<KYRClassDiagram>().empty());
  const ImportedModel with(xmi(package + diagramElement("d", "D"), "Model", documentation), "Root");
  EXPECT_EQ(with.pathOf("d"), "Root/D");
}

TEST(DiagramImport, ADiagramOfAnUnknownOrOtherOwnerIsNotMade) {
  // The ids are those of no object, of a class, and none at all.
  for (const std::string id : {"unknown", "a", ""}) {
    const ImportedModel imported(drawnFile(drawnElements + "<other xmi:type='uml:Package' xmi:id='" + id +
                                               "'>" + diagramElement("d", "D") + "</other>",
                                           frame("d", boxes)));
    EXPECT_TRUE(imported.all<KYRClassDiagram>().empty()) << id;
  }
}

TEST(DiagramImport, ADiagramWithoutAFrameIsEmpty) {
  const ImportedModel imported(drawnFile(drawnElements + diagramElement("d", "D"), ""));
  EXPECT_EQ(imported.get<KYRClassDiagram>("d").diagramElements.count(), 0U);
  EXPECT_EQ(imported.get<KYRClassDiagram>("d").modelElements.count(), 0U);
}

TEST(DiagramImport, OfTwoDiagramsWithOneIdTheFirstHasTheShapes) {
  const ImportedModel imported(
      drawnFile(drawnElements + diagramElement("d", "One") + diagramElement("d", "Two"), frame("d", boxes)));
  const auto diagrams = imported.all<KYRClassDiagram>();
  ASSERT_EQ(diagrams.size(), 2U);
  EXPECT_EQ(diagrams[0]->diagramElements.count(), 3U);
  EXPECT_EQ(diagrams[1]->diagramElements.count(), 0U);
}

TEST(DiagramImport, APackageThatOnlyHoldsADiagramIsKept) {
  const ImportedModel imported(drawnFile(diagramElement("d", "D"), ""));
  EXPECT_EQ(imported.pathOf("d"), "P/D");
}

TEST(DiagramImport, EachDiagramHasItsOwnShapes) {
  const ImportedModel imported(
      drawnFile(drawnElements + diagramElement("d1", "One") + diagramElement("d2", "Two"),
                frame("d1", boxes) +
                    frame("d2", shape("Class", "A", "a") + shape("Association", "L", "ab", ends("A", "B")))));
  EXPECT_EQ(imported.get<KYRClassDiagram>("d1").diagramElements.count(), 3U);
  EXPECT_EQ(imported.get<KYRClassDiagram>("d2").diagramElements.count(), 1U);
  EXPECT_EQ(imported.get<KYRClass>("a").presentationElements.count(), 2U);
  EXPECT_EQ(imported.get<KYRClass>("a").diagrams.count(), 2U);
}

TEST(DiagramImport, ShapesOfDependenciesAndRealizationsDrawNothing) {
  const DrawnModel model(boxes + shape("Dependency", "L1", "gb", ends("A", "B") + geometry("1, 1; 2, 2; ")) +
                         shape("Realization", "L2", "ab", ends("A", "B") + geometry("1, 1; 2, 2; ")));
  EXPECT_EQ(model.drawingCount(), 3U);
  EXPECT_EQ(model.diagram().modelElements.count(), 3U);
}

TEST(DiagramImport, ShapesThatShowNothingKnownAreLeftOut) {
  const DrawnModel model(shape("Class", "X", "unknown") + shape("Association", "Y", "unknown") +
                         shape("Generalization", "Z", "unknown") + shape("AssociationClass", "W", "ab"));
  EXPECT_EQ(model.drawingCount(), 0U);
  EXPECT_EQ(model.diagram().modelElements.count(), 0U);
}

TEST(DiagramImport, AFileWhoseRootIsTheModelHasNoDiagrams) {
  const ImportedModel imported(
      "<uml:Model xmi:version='2.1' xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'"
      " xmlns:uml='http://schema.omg.org/spec/UML/2.1' xmi:type='uml:Model' xmi:id='model' name='M'>"
      "<xmi:Documentation exporter='MagicDraw UML' exporterVersion='17.0'/>" +
      element("Package", "xmi:id='p' name='P'", drawnElements + diagramElement("d", "D")) + "</uml:Model>");
  EXPECT_TRUE(imported.all<KYRClassDiagram>().empty());
}

TEST(DiagramImport, ManyShapesCostNoMoreThanTheirNumber) {
  constexpr int count = 3000;
  std::string elements = drawnElements;
  std::string shapes = boxes;
  for (int i = 0; i < count; ++i) {
    const std::string id = "n" + std::to_string(i);
    elements += element("Class", "xmi:id='" + id + "' name='" + id + "'");
    shapes += shape("Class", "N" + id, id) + shape("Class", "M" + id, "a") +
              shape("Association", "L" + id, "ab", ends("A", "B"));
  }
  const DrawnModel model(
      DrawnModel::ofFile(drawnFile(elements + diagramElement("d", "D"), frame("d", shapes))));
  EXPECT_EQ(model.drawingCount(), 3U + 5U * count);
  EXPECT_EQ(model.diagram().modelElements.count(), 4U + count);
  EXPECT_LT(model.diagram().modelElements.getCollection()->getComparisonCount(), 100U * count);
  EXPECT_LT(model.get<KYRClass>("a").diagrams.getCollection()->getComparisonCount(), 100U * count);
}
