#include "repository/model/KYRClass.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYROperation.h"

namespace {

KYRAttribute* addAttribute(KYRClass& owner, const char* name) {
  auto* made = new KYRAttribute();
  made->setName(name);
  owner.addFeatureUniqueName(made, '/');
  return made;
}

TEST(KYRClass, FieldsThatNothingSetsAre0FalseOrEmpty) {
  const KYRClass made;
  EXPECT_FALSE(made.isAbstract);
  EXPECT_FALSE(made.isPhysicalClass);
  EXPECT_EQ(made.classCategory, 0);
  EXPECT_EQ(made.visibility, 0);
  EXPECT_EQ(made.primaryKey, nullptr);
  EXPECT_EQ(made.classType, nullptr);
  EXPECT_EQ(made.getAttributeCount(), 0);
}

TEST(KYRClass, AttributesAreANameSpaceAndKnowTheirOwner) {
  KYRClass owner;
  KYRAttribute* first = addAttribute(owner, "id");
  KYRAttribute* second = addAttribute(owner, "id");
  EXPECT_EQ(second->getName(), "id/1");
  EXPECT_EQ(first->owner, &owner);
  EXPECT_EQ(first->getParent(), &owner);
  EXPECT_EQ(owner.getAttributeCount(), 2);
  EXPECT_FALSE(owner.addFeatureUniqueName(first, '/'));
  EXPECT_THROW(owner.addFeatureUniqueName(nullptr, '/'), KYRException);
}

TEST(KYRClass, AttributesAreFoundByExactName) {
  KYRClass owner;
  KYRAttribute* id = addAttribute(owner, "id");
  EXPECT_EQ(owner.getAttribute("id"), id);
  EXPECT_EQ(owner.getAttribute("ID"), nullptr);
  EXPECT_EQ(owner.getAttribute(""), nullptr);
  EXPECT_EQ(owner.getAttribute(0), id);
  EXPECT_EQ(owner.getAttribute(1), nullptr);
  EXPECT_EQ(owner.getAttribute(-1), nullptr);
}

TEST(KYRClass, OperationsMayShareANameWithEachOtherAndWithAttributes) {
  KYRClass owner;
  addAttribute(owner, "x");
  for (int i = 0; i < 2; ++i) {
    auto* operation = new KYROperation();
    operation->setName("x");
    owner.addOperation(operation);
    EXPECT_EQ(operation->getOwner(), &owner);
  }
  EXPECT_EQ(owner.getOperationCount(), 2);
  EXPECT_EQ(owner.operations[1]->getName(), "x");
}

TEST(KYRClass, ThePrimaryKeyJoinsTheKeysAndKnowsItsClass) {
  KYRClass owner;
  auto* first = new KYRCandidateKey();
  owner.addKey(first);
  EXPECT_EQ(first->associatedClass, &owner);
  EXPECT_EQ(owner.primaryKey, nullptr);
  owner.addPrimaryCandidateKey(first);
  EXPECT_EQ(owner.primaryKey, first);
  EXPECT_EQ(first->primaryKeyClass, &owner);
  EXPECT_EQ(owner.keys.count(), 1U);
  auto* second = new KYRCandidateKey();
  owner.addPrimaryCandidateKey(second);
  EXPECT_EQ(owner.primaryKey, second);
  EXPECT_EQ(first->primaryKeyClass, nullptr);
  EXPECT_EQ(owner.keys.count(), 2U);
  delete second;
  EXPECT_EQ(owner.primaryKey, nullptr);
}

TEST(KYRClass, AKeyThatMovesIsNoLongerPrimary) {
  KYRClass first;
  KYRClass second;
  auto* key = new KYRCandidateKey();
  first.addPrimaryCandidateKey(key);
  key->addAssociatedClass(&second);
  EXPECT_EQ(first.primaryKey, nullptr);
  EXPECT_EQ(key->primaryKeyClass, nullptr);
  EXPECT_EQ(key->associatedClass, &second);
  EXPECT_TRUE(first.keys.isEmpty());
}

TEST(KYRClass, AClassAndItsAssociationAreTiedOneToOne) {
  KYRClass first;
  KYRClass second;
  {
    KYRAssociation association;
    first.addAssociation(&association);
    EXPECT_EQ(association.associationClass, &first);
    second.addAssociation(&association);
    EXPECT_EQ(first.association, nullptr);
    EXPECT_EQ(association.associationClass, &second);
  }
  EXPECT_EQ(second.association, nullptr);
}

TEST(KYRClass, VeryManyAttributesOfOneNameCostLinearTime) {
  constexpr int count = 200000;
  KYRClass owner;
  for (int i = 0; i < count; ++i) addAttribute(owner, "same");
  EXPECT_EQ(owner.getAttributeCount(), count);
  EXPECT_EQ(owner.getAttribute("same/199999"), owner.getAttribute(count - 1));
  EXPECT_LT(owner.attributes.getCollection()->getComparisonCount(), 20U * count);
}

}  // namespace
