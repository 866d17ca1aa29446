#include "repository/model/KYRRelationship.h"

#include <gtest/gtest.h>

#include <memory>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRealization.h"

namespace {

TEST(KYRAssociation, OwnsItsRolesAndARoleIsInTheRolesOfItsClass) {
  KYRClass end;
  {
    KYRAssociation association;
    auto* role = new KYRAssociationRole();
    role->addAssociatedClass(&end);
    association.addAssociationRole(role);
    EXPECT_EQ(role->getAssociation(), &association);
    EXPECT_EQ(role->associatedClass, &end);
    EXPECT_EQ(end.associationRoles[0], role);
    EXPECT_THROW(association.addAssociationRole(nullptr), KYRException);
  }
  EXPECT_TRUE(end.associationRoles.isEmpty());
}

TEST(KYRAssociation, ARoleWhoseClassGoesStaysWithoutOne) {
  KYRAssociation association;
  auto* role = new KYRAssociationRole();
  association.addAssociationRole(role);
  {
    KYRClass end;
    role->addAssociatedClass(&end);
  }
  EXPECT_EQ(role->associatedClass, nullptr);
  EXPECT_EQ(association.roles.count(), 1U);
}

TEST(KYRAssociationRole, TheClassOfARoleCanChange) {
  KYRClass first;
  KYRClass second;
  KYRAssociationRole role;
  role.addAssociatedClass(&first);
  role.addAssociatedClass(&second);
  EXPECT_TRUE(first.associationRoles.isEmpty());
  EXPECT_EQ(second.associationRoles.count(), 1U);
}

TEST(KYRGeneralization, KnowsTheSideOfEachRole) {
  KYRGeneralization generalization;
  auto* super = new KYRGeneralizationRole();
  auto* sub = new KYRGeneralizationRole();
  generalization.addSupertypeRole(super);
  generalization.addSubtypeRole(sub);
  EXPECT_EQ(super->generalizationAsSupertype, &generalization);
  EXPECT_EQ(super->generalizationAsSubtype, nullptr);
  EXPECT_EQ(sub->generalizationAsSubtype, &generalization);
  EXPECT_EQ(sub->generalizationAsSupertype, nullptr);
  generalization.addSupertypeRole(sub);
  EXPECT_EQ(sub->generalizationAsSubtype, nullptr);
  EXPECT_EQ(sub->generalizationAsSupertype, &generalization);
  EXPECT_TRUE(generalization.subtypeRoles.isEmpty());
}

TEST(KYRGeneralization, ItsRolesLeaveTheClassesWithIt) {
  KYRClass end;
  {
    KYRGeneralization generalization;
    auto* role = new KYRGeneralizationRole();
    generalization.addSubtypeRole(role);
    role->addAssociatedClass(&end);
    EXPECT_EQ(end.generalizationRoles[0], role);
  }
  EXPECT_TRUE(end.generalizationRoles.isEmpty());
}

TEST(KYRDependency, TiesClientAndSupplierOnBothSides) {
  auto client = std::make_unique<KYRClass>();
  KYRClass supplier;
  auto dependency = std::make_unique<KYRDependency>();
  dependency->addClientClass(client.get());
  dependency->addSupplierClass(&supplier);
  EXPECT_EQ(client->clientDependencies[0], dependency.get());
  EXPECT_EQ(supplier.supplierDependencies[0], dependency.get());
  client.reset();
  EXPECT_EQ(dependency->clientClass, nullptr);
  dependency.reset();
  EXPECT_TRUE(supplier.supplierDependencies.isEmpty());
}

TEST(KYRDependency, OneClassCanBeBothEnds) {
  KYRClass end;
  KYRDependency dependency;
  dependency.addClientClass(&end);
  dependency.addSupplierClass(&end);
  EXPECT_EQ(end.clientDependencies.count(), 1U);
  EXPECT_EQ(end.supplierDependencies.count(), 1U);
}

TEST(KYRRealization, TiesRealizationAndSpecificationOnBothSides) {
  KYRClass interface;
  auto client = std::make_unique<KYRClass>();
  auto realization = std::make_unique<KYRRealization>();
  realization->addRealizationClass(&interface);
  realization->addSpecificationClass(client.get());
  EXPECT_EQ(interface.realizations[0], realization.get());
  EXPECT_EQ(client->specifications[0], realization.get());
  client.reset();
  EXPECT_EQ(realization->specificationClass, nullptr);
  realization.reset();
  EXPECT_TRUE(interface.realizations.isEmpty());
}

}  // namespace
