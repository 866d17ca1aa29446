// Diagrams at the end of an import: what they cannot show goes, and on request they move.
#include <gtest/gtest.h>

#include <limits>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRRelationshipProjection.h"

namespace {

template <class Shape = KYRProjection>
Shape* show(KYRClassDiagram& diagram, KYRModelObject* subject) {
  auto* const shape = new Shape();
  shape->addDiagram(&diagram);
  if (subject != nullptr) shape->addSubjectModelObject(subject);
  return shape;
}

void place(KYRPresentationElement& shape, int x, int y, int width, int height) {
  shape.x = x;
  shape.y = y;
  shape.width = width;
  shape.height = height;
}

std::string placeOf(const KYRPresentationElement& shape) {
  return std::to_string(shape.x) + "," + std::to_string(shape.y) + " " + std::to_string(shape.width) + "x" +
         std::to_string(shape.height);
}

std::vector<KYRPresentationElement*> shapesOf(const KYRClassDiagram& diagram) {
  std::vector<KYRPresentationElement*> shapes;
  for (KYRPresentationElement* shape : diagram.diagramElements) shapes.push_back(shape);
  return shapes;
}

using Shapes = std::vector<KYRPresentationElement*>;

}  // namespace

TEST(DiagramFinishing, ShapesOfListedElementsAndOfTheirRolesStayInOrder) {
  KYRClass element;
  KYRAssociation association;
  auto* const end = new KYRAssociationRole();
  association.addAssociationRole(end);
  KYRGeneralization generalization;
  auto* const super = new KYRGeneralizationRole();
  auto* const sub = new KYRGeneralizationRole();
  generalization.addSupertypeRole(super);
  generalization.addSubtypeRole(sub);
  KYRClassDiagram diagram;
  diagram.addModelElement(&element);
  diagram.addModelElement(&association);
  diagram.addModelElement(&generalization);
  Shapes expected;
  for (KYRModelObject* subject :
       {static_cast<KYRModelObject*>(sub), static_cast<KYRModelObject*>(&element),
        static_cast<KYRModelObject*>(end), static_cast<KYRModelObject*>(&generalization),
        static_cast<KYRModelObject*>(super), static_cast<KYRModelObject*>(&association)}) {
    expected.push_back(show(diagram, subject));
  }
  verifyDiagram(&diagram);
  EXPECT_EQ(shapesOf(diagram), expected);
}

TEST(DiagramFinishing, ShapesOfAnythingElseGo) {
  KYRClass listed;
  KYRClass other;
  auto* const attribute = new KYRAttribute();
  listed.addFeatureUniqueName(attribute, '/');
  KYRAssociation association;
  auto* const end = new KYRAssociationRole();
  association.addAssociationRole(end);
  KYRAssociationRole loose;
  KYRGeneralizationRole looseRole;
  KYRClassDiagram diagram;
  diagram.addModelElement(&listed);
  show(diagram, &other);
  auto* const first = show(diagram, &listed);
  show(diagram, attribute);
  show(diagram, end);
  show(diagram, &association);
  show(diagram, &loose);
  show(diagram, &looseRole);
  show(diagram, nullptr);
  auto* const second = show(diagram, &listed);
  verifyDiagram(&diagram);
  EXPECT_EQ(shapesOf(diagram), (Shapes{first, second}));
  EXPECT_EQ(other.presentationElements.count(), 0U);
}

TEST(DiagramFinishing, AShapeWhoseObjectIsGoneGoes) {
  KYRClassDiagram diagram;
  KYRClass kept;
  diagram.addModelElement(&kept);
  auto* const shape = show(diagram, &kept);
  {
    KYRClass gone;
    diagram.addModelElement(&gone);
    show(diagram, &gone);
  }
  ASSERT_EQ(diagram.diagramElements.count(), 2U);
  verifyDiagram(&diagram);
  EXPECT_EQ(shapesOf(diagram), Shapes{shape});
}

TEST(DiagramFinishing, WithoutTheFlagThePictureStaysAsItIs) {
  KYRClassDiagram diagram;
  auto* const box = show(diagram, nullptr);
  auto* const line = show<KYRRelationshipProjection>(diagram, nullptr);
  place(*box, -10, -10, -5, 20);
  line->linePoints = "-3,4;5,-6";
  processPresentationElements(&diagram, false);
  EXPECT_EQ(placeOf(*box), "-10,-10 -5x20");
  EXPECT_EQ(line->linePoints, KYRString("-3,4;5,-6"));
}

TEST(DiagramFinishing, WithTheFlagAllOfItMovesUntilNothingIsNegative) {
  KYRClassDiagram diagram;
  auto* const box = show(diagram, nullptr);
  auto* const nowhere = show(diagram, nullptr);
  auto* const line = show<KYRRelationshipProjection>(diagram, nullptr);
  auto* const odd = show<KYRRelationshipProjection>(diagram, nullptr);
  place(*box, 10, 20, 40, -7);
  line->linePoints = "-3,4;5,-6";
  odd->linePoints = "somewhere";
  processPresentationElements(&diagram, true);
  EXPECT_EQ(placeOf(*box), "20,26 40x0");
  EXPECT_EQ(placeOf(*nowhere), "0,0 0x0");
  EXPECT_EQ(placeOf(*line), "0,0 0x0");
  EXPECT_EQ(line->linePoints, KYRString("7,10;15,0"));
  EXPECT_EQ(odd->linePoints, KYRString("somewhere"));
  processPresentationElements(&diagram, true);
  EXPECT_EQ(placeOf(*box), "20,26 40x0");
  EXPECT_EQ(line->linePoints, KYRString("7,10;15,0"));
}

TEST(DiagramFinishing, HugeNumbersSaturate) {
  constexpr int largest = std::numeric_limits<int>::max();
  constexpr int smallest = std::numeric_limits<int>::min();
  KYRClassDiagram diagram;
  auto* const box = show(diagram, nullptr);
  auto* const line = show<KYRRelationshipProjection>(diagram, nullptr);
  place(*box, smallest, largest, largest, smallest);
  line->linePoints = "-2147483648,-2147483648;2147483647,2147483647";
  processPresentationElements(&diagram, true);
  EXPECT_EQ(placeOf(*box), "1073741823,2147483647 2147483647x0");
  EXPECT_EQ(line->linePoints, KYRString("1073741823,0;2147483647,2147483647"));
}

TEST(DiagramFinishing, NoDiagramIsPassedOver) {
  verifyDiagram(nullptr);
  processPresentationElements(nullptr, true);
  KYRClassDiagram empty;
  verifyDiagram(&empty);
  processPresentationElements(&empty, true);
  EXPECT_EQ(empty.diagramElements.count(), 0U);
}

TEST(DiagramFinishing, DroppingManyShapesCostsNoMoreThanTheirNumber) {
  KYRClassDiagram diagram;
  KYRClass other;
  KYRClass listed;
  diagram.addModelElement(&listed);
  constexpr int count = 20000;
  for (int i = 0; i < count; ++i) {
    show(diagram, &other);
    show(diagram, &listed);
  }
  const auto steps = [&] {
    return diagram.diagramElements.getCollection()->getComparisonCount() +
           other.presentationElements.getCollection()->getComparisonCount();
  };
  const std::uint64_t before = steps();
  verifyDiagram(&diagram);
  EXPECT_EQ(diagram.diagramElements.count(), static_cast<unsigned int>(count));
  EXPECT_LT(steps() - before, 100U * count);
}
