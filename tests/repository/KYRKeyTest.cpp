#include "repository/model/KYRKey.h"

#include <gtest/gtest.h>

#include <memory>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRGeneralizationRole.h"

namespace {

TEST(KYRKey, HoldsEachAttributeOnce) {
  KYRCandidateKey key;
  KYRAttribute attribute;
  key.addAttribute(&attribute);
  key.addAttribute(&attribute);
  EXPECT_EQ(key.attributes.count(), 1U);
  EXPECT_EQ(attribute.keys.count(), 1U);
  EXPECT_TRUE(key.attributes.contains(&attribute));
  EXPECT_TRUE(attribute.keys[0]->isInstanceOf(KYRElementType::candidateKey));
  EXPECT_THROW(key.addAttribute(nullptr), KYRException);
}

TEST(KYRKey, ADroppedAttributeLeavesEveryKeyAndPositionsKeepTheGap) {
  KYRClass owner;
  for (const char* name : {"a", "b", "c"}) {
    auto* attribute = new KYRAttribute();
    attribute->setName(name);
    attribute->position = owner.getAttributeCount();
    owner.addFeatureUniqueName(attribute, '/');
  }
  auto* primary = new KYRCandidateKey();
  owner.addPrimaryCandidateKey(primary);
  auto* foreign = new KYRForeignKey();
  owner.addKey(foreign);
  for (KYRAttribute* attribute : owner.attributes) {
    primary->addAttribute(attribute);
    foreign->addAttribute(attribute);
  }
  delete owner.getAttribute("b");
  EXPECT_EQ(primary->attributes.count(), 2U);
  EXPECT_EQ(foreign->attributes.count(), 2U);
  EXPECT_EQ(foreign->attributes[1]->getName(), "c");
  EXPECT_EQ(owner.getAttribute("c")->position, 2);
  delete primary;
  EXPECT_EQ(owner.getAttribute("c")->keys.count(), 1U);
}

TEST(KYRKey, BelongsToItsClassFromEitherSide) {
  KYRClass owner;
  auto* key = new KYRForeignKey();
  key->addAssociatedClass(&owner);
  EXPECT_EQ(key->associatedClass, &owner);
  EXPECT_EQ(owner.keys[0], key);
  EXPECT_EQ(key->getParent(), &owner);
}

TEST(KYRForeignKey, StandsOnRolesAndRefersToACandidateKey) {
  auto target = std::make_unique<KYRCandidateKey>();
  auto role = std::make_unique<KYRAssociationRole>();
  auto subRole = std::make_unique<KYRGeneralizationRole>();
  auto key = std::make_unique<KYRForeignKey>();
  target->addForeignKey(key.get());
  role->addForeignKey(key.get());
  subRole->addForeignKey(key.get());
  EXPECT_EQ(key->candidateKey, target.get());
  EXPECT_EQ(key->associationRole, role.get());
  EXPECT_EQ(key->generalizationRole, subRole.get());
  EXPECT_EQ(target->foreignKeys[0], key.get());
  role.reset();
  EXPECT_EQ(key->associationRole, nullptr);
  key.reset();
  EXPECT_TRUE(target->foreignKeys.isEmpty());
  EXPECT_TRUE(subRole->foreignKeys.isEmpty());
}

TEST(KYRForeignKey, OutlivesTheKeyItRefersTo) {
  KYRForeignKey key;
  {
    KYRCandidateKey target;
    target.addForeignKey(&key);
  }
  EXPECT_EQ(key.candidateKey, nullptr);
}

}  // namespace
