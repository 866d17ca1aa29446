#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRProjection.h"

namespace {

struct Multiplicity {
  int lower;
  int upper;
  const char* text;
};

TEST(BuildMultiplicity, TellsBothBoundsUnlessTheyAreEqual) {
  const Multiplicity rows[] = {
      {0, manyMultiplicity, "0..*"},
      {1, manyMultiplicity, "1..*"},
      {1, 1, "1"},
      {0, 1, "0..1"},
      {3, 3, "3"},
      {0, 0, "0"},
      {2, 5, "2..5"},
      {manyMultiplicity, manyMultiplicity, "*"},
  };
  for (const Multiplicity& row : rows) EXPECT_EQ(buildMultiplicity(row.lower, row.upper), row.text);
}

TEST(BuildMultiplicity, ManyIsItsOwnNumber) { EXPECT_EQ(manyMultiplicity, 2147483645); }

TEST(GetPhysicalName, IsThePhysicalNameElseTheName) {
  KYRClass element;
  element.setName("Order");
  EXPECT_EQ(getPhysicalName(&element), "Order");
  element.setPhysicalName("T_ORDER");
  EXPECT_EQ(getPhysicalName(&element), "T_ORDER");
  EXPECT_TRUE(getPhysicalName(nullptr).isEmpty());
}

TEST(GetPresentationElement, AsksTheDiagram) {
  KYRClassDiagram diagram;
  KYRClass element;
  EXPECT_EQ(getPresentationElement(&element, &diagram), nullptr);
  auto* shape = new KYRProjection();
  shape->addDiagram(&diagram);
  shape->addSubjectModelObject(&element);
  EXPECT_EQ(getPresentationElement(&element, &diagram), shape);
  EXPECT_EQ(getPresentationElement(&element, nullptr), nullptr);
}

}  // namespace
