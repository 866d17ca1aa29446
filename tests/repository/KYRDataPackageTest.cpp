#include "repository/model/KYRDataPackage.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDatabaseSchema.h"

namespace {

TEST(KYRDataPackage, AnElementIsInOneSchemaAndMoves) {
  KYRDatabaseSchema first;
  KYRDatabaseSchema second;
  KYRClass element;
  element.addDataPackage(&first);
  EXPECT_EQ(element.getDataPackage(), &first);
  element.addDataPackage(&first);
  EXPECT_EQ(first.dataElements.count(), 1U);
  element.addDataPackage(&second);
  EXPECT_EQ(element.getDataPackage(), &second);
  EXPECT_TRUE(first.dataElements.isEmpty());
  EXPECT_EQ(second.dataElements[0], &element);
  EXPECT_EQ(element.getParent(), nullptr);
}

TEST(KYRDataPackage, RefusesASecondObjectOfExactlyOneNameAndLeavesItWhereItWas) {
  KYRDatabaseSchema schema;
  schema.setName("S");
  KYRDatabaseSchema other;
  KYRClass first;
  first.setName("Order");
  first.addDataPackage(&schema);
  KYRClass second;
  second.setName("Order");
  second.addDataPackage(&other);
  try {
    second.addDataPackage(&schema);
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(exception.getMessage(),
              "[KYRSTD_F0102] The schema 'S' already holds an object of the name 'Order'");
  }
  EXPECT_EQ(second.getDataPackage(), &other);
  KYRClass third;
  third.setName("ORDER");
  third.addDataPackage(&schema);
  EXPECT_EQ(schema.dataElements.count(), 2U);
}

TEST(KYRDataPackage, RenamedElementsAreFoundUnderTheirNewName) {
  constexpr int count = 40;
  KYRDatabaseSchema schema;
  KYRClass elements[count];
  for (int i = 0; i < count; ++i) {
    elements[i].setName(KYRString("C") + KYRString(i));
    elements[i].addDataPackage(&schema);
  }
  EXPECT_EQ(schema.dataElements.get("C7"), &elements[7]);
  elements[7].setName("renamed");
  EXPECT_EQ(schema.dataElements.get("C7"), nullptr);
  EXPECT_EQ(schema.dataElements.get("renamed"), &elements[7]);
  KYRClass reused;
  reused.setName("C7");
  reused.addDataPackage(&schema);
  EXPECT_EQ(schema.dataElements.get("C7"), &reused);
}

TEST(KYRDataPackage, TheTwoSidesGoOneByOne) {
  KYRClass element;
  {
    KYRDatabaseSchema schema;
    element.addDataPackage(&schema);
    {
      KYRClass shorter;
      shorter.setName("x");
      shorter.addDataPackage(&schema);
      EXPECT_EQ(schema.dataElements.count(), 2U);
    }
    EXPECT_EQ(schema.dataElements.count(), 1U);
  }
  EXPECT_EQ(element.getDataPackage(), nullptr);
  EXPECT_THROW(element.addDataPackage(nullptr), KYRException);
}

TEST(KYRDataPackage, AHundredThousandElementsCostLinearTime) {
  constexpr int count = 100000;
  KYRDatabaseSchema schema;
  std::vector<std::unique_ptr<KYRClass>> elements;
  for (int i = 0; i < count; ++i) {
    elements.push_back(std::make_unique<KYRClass>());
    elements.back()->setName(KYRString("C") + KYRString(i));
    elements.back()->addDataPackage(&schema);
  }
  EXPECT_LT(schema.dataElements.getCollection()->getComparisonCount(), 50U * count);
}

}  // namespace
