#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"

namespace {

TEST(GeneralizationRoles, AreFoundOrWithTrueCreated) {
  KYRClass super;
  KYRClass sub;
  KYRGeneralization generalization;
  EXPECT_EQ(getSupertypeGeneralizationRole(&generalization, &super, false), nullptr);
  KYRGeneralizationRole* superRole = getSupertypeGeneralizationRole(&generalization, &super, true);
  ASSERT_NE(superRole, nullptr);
  EXPECT_EQ(superRole->generalizationAsSupertype, &generalization);
  EXPECT_EQ(superRole->associatedClass, &super);
  EXPECT_EQ(getSupertypeGeneralizationRole(&generalization, &super, true), superRole);
  KYRGeneralizationRole* subRole = getSubtypeGeneralizationRole(&generalization, &sub, true);
  EXPECT_EQ(subRole->generalizationAsSubtype, &generalization);
  EXPECT_EQ(getSubtypeGeneralizationRole(&generalization, &sub, false), subRole);
  EXPECT_EQ(generalization.subtypeRoles.count(), 1U);
}

TEST(GeneralizationRoles, TheTwoSidesAreApart) {
  KYRClass both;
  KYRGeneralization generalization;
  KYRGeneralizationRole* superRole = getSupertypeGeneralizationRole(&generalization, &both, true);
  EXPECT_EQ(getSubtypeGeneralizationRole(&generalization, &both, false), nullptr);
  EXPECT_NE(getSubtypeGeneralizationRole(&generalization, &both, true), superRole);
  KYRGeneralization other;
  EXPECT_EQ(getSupertypeGeneralizationRole(&other, &both, false), nullptr);
  EXPECT_EQ(getSupertypeGeneralizationRole(nullptr, &both, true), nullptr);
  EXPECT_EQ(getSupertypeGeneralizationRole(&other, nullptr, true), nullptr);
}

TEST(FindReverseRole, IsTheFirstRoleThatIsNotTheGivenOne) {
  KYRAssociation association;
  KYRAssociationRole* roles[3] = {};
  for (KYRAssociationRole*& role : roles) {
    role = new KYRAssociationRole();
    association.addAssociationRole(role);
  }
  EXPECT_EQ(findReverseRole(roles[0]), roles[1]);
  EXPECT_EQ(findReverseRole(roles[1]), roles[0]);
  EXPECT_EQ(findReverseRole(roles[2]), roles[0]);
  const auto alone = std::make_unique<KYRAssociationRole>();
  EXPECT_EQ(findReverseRole(alone.get()), nullptr);
  EXPECT_EQ(findReverseRole(nullptr), nullptr);
}

TEST(SetSourceProperty, MarksTheFirstRole) {
  KYRAssociationRole source;
  KYRAssociationRole target;
  target.isSource = true;
  setSourceProperty(&source, &target);
  EXPECT_TRUE(source.isSource);
  EXPECT_FALSE(target.isSource);
}

}  // namespace
