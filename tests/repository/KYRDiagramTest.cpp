#include "repository/model/KYRDiagram.h"

#include <gtest/gtest.h>

#include <memory>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRRelationshipProjection.h"

namespace {

KYRProjection* addShape(KYRDiagram& diagram, KYRModelObject* subject) {
  auto* shape = new KYRProjection();
  shape->addDiagram(&diagram);
  if (subject != nullptr) shape->addSubjectModelObject(subject);
  return shape;
}

TEST(KYRDiagram, ListsEachModelElementOnce) {
  KYRClassDiagram diagram;
  KYRClass element;
  diagram.addModelElement(&element);
  diagram.addModelElement(&element);
  EXPECT_EQ(diagram.modelElements.count(), 1U);
  EXPECT_TRUE(diagram.modelElements.contains(&element));
  EXPECT_EQ(element.diagrams[0], &diagram);
  EXPECT_THROW(diagram.addModelElement(nullptr), KYRException);
}

TEST(KYRDiagram, OwnsItsShapesFromEitherSide) {
  KYRClassDiagram diagram;
  KYRClass element;
  auto* shape = addShape(diagram, &element);
  auto* line = new KYRRelationshipProjection();
  diagram.addPresentationElement(line);
  element.addPresentationPresentationElement(line);
  EXPECT_EQ(shape->getDiagram(), &diagram);
  EXPECT_EQ(line->getParent(), &diagram);
  EXPECT_EQ(line->subject, &element);
  EXPECT_EQ(element.presentationElements.count(), 2U);
  EXPECT_EQ(diagram.diagramElements.count(), 2U);
}

TEST(KYRDiagram, TheFirstShapeMadeOfAnObjectIsItsPresentationElement) {
  KYRClassDiagram diagram;
  KYRClass first;
  KYRClass second;
  KYRProjection* shape = addShape(diagram, &first);
  EXPECT_EQ(diagram.getPresentationElement(&first), shape);
  EXPECT_EQ(diagram.getPresentationElement(&second), nullptr);
  EXPECT_EQ(diagram.getPresentationElement(nullptr), nullptr);
  addShape(diagram, &first);
  EXPECT_EQ(diagram.getPresentationElement(&first), shape);
  KYRProjection* later = addShape(diagram, nullptr);
  KYRProjection* last = addShape(diagram, &second);
  EXPECT_EQ(diagram.getPresentationElement(&second), last);
  later->addSubjectModelObject(&second);
  EXPECT_EQ(diagram.getPresentationElement(&second), later);
  delete later;
  EXPECT_EQ(diagram.getPresentationElement(&second), last);
  last->addSubjectModelObject(&first);
  EXPECT_EQ(diagram.getPresentationElement(&second), nullptr);
}

TEST(KYRDiagram, AShapeOutlivesWhatItShows) {
  KYRClassDiagram diagram;
  KYRProjection* shape = nullptr;
  {
    KYRClass element;
    shape = addShape(diagram, &element);
    diagram.addModelElement(&element);
    EXPECT_EQ(diagram.getPresentationElement(&element), shape);
  }
  EXPECT_EQ(shape->subject, nullptr);
  EXPECT_TRUE(diagram.modelElements.isEmpty());
  KYRClass other;
  EXPECT_EQ(diagram.getPresentationElement(&other), nullptr);
}

TEST(KYRDiagram, WhatIsShownOutlivesTheDiagram) {
  KYRClass element;
  {
    KYRClassDiagram diagram;
    addShape(diagram, &element);
    diagram.addModelElement(&element);
  }
  EXPECT_TRUE(element.presentationElements.isEmpty());
  EXPECT_TRUE(element.diagrams.isEmpty());
}

TEST(KYRDiagram, AShapeMovesToAnotherDiagram) {
  KYRClassDiagram first;
  KYRClassDiagram second;
  KYRClass element;
  KYRProjection* shape = addShape(first, &element);
  EXPECT_EQ(first.getPresentationElement(&element), shape);
  EXPECT_EQ(second.getPresentationElement(&element), nullptr);
  shape->addDiagram(&second);
  EXPECT_EQ(first.getPresentationElement(&element), nullptr);
  EXPECT_EQ(second.getPresentationElement(&element), shape);
}

TEST(KYRDiagram, FieldsOfShapesStartAt0) {
  const KYRProjection shape;
  EXPECT_EQ(shape.backgroundColor, 0);
  EXPECT_EQ(shape.lineWidth, 0);
  EXPECT_FALSE(shape.autoSize);
  EXPECT_EQ(shape.getDiagram(), nullptr);
}

TEST(KYRDiagram, ShapesCanBeDestroyedOneByOneFromTheFront) {
  constexpr int count = 50000;
  KYRClassDiagram diagram;
  KYRClass element;
  for (int i = 0; i < count; ++i) addShape(diagram, &element);
  while (!element.presentationElements.isEmpty()) delete element.presentationElements[0];
  EXPECT_TRUE(diagram.diagramElements.isEmpty());
}

}  // namespace
