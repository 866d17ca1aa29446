#include "repository/model/KYRStoreModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDatabaseSchema.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/repository/FullModel.h"

namespace {

TEST(KYRStoreModel, HasANameAndNoParentAndTheElementType2) {
  KYRStoreModel model;
  model.setName("Shop");
  EXPECT_EQ(model.getName(), "Shop");
  EXPECT_EQ(model.getParent(), nullptr);
  EXPECT_EQ(model.getElementType(), 2);
  EXPECT_EQ(model.designLevel, 0);
  EXPECT_EQ(model.storeType, 0);
}

TEST(KYRStoreModel, TextsThatOnlyShowCharactersAreKeptAliveByTheModel) {
  std::weak_ptr<const void> watched;
  {
    KYRStoreModel model;
    const auto characters = std::make_shared<const std::string>("a name that is long enough for the heap");
    watched = characters;
    auto* const package = new KYRDesignPackage();
    package->takeName(KYRString::borrowed(*characters));
    model.addDesignPackage(package);
    model.keepTexts(characters);
    model.keepTexts(std::make_shared<const std::string>("more"));
    EXPECT_TRUE(package->getName().isBorrowed());
    EXPECT_EQ(package->getName().getCharacters(), characters->data());
    EXPECT_EQ(model.designPackages.get(characters->c_str()), package);
    package->setName(package->getName() + "!");
    EXPECT_FALSE(package->getName().isBorrowed());
    EXPECT_EQ(model.designPackages.get(characters->c_str()), nullptr);
  }
  EXPECT_TRUE(watched.expired());
}

TEST(KYRStoreModel, TopPackagesKeepANameThatIsTaken) {
  KYRStoreModel model;
  for (int i = 0; i < 2; ++i) {
    auto* package = new KYRDesignPackage();
    package->setName("P");
    model.addDesignPackage(package);
    EXPECT_EQ(package->getName(), "P");
    EXPECT_EQ(package->getParent(), &model);
  }
  EXPECT_EQ(model.designPackages.get("P"), model.designPackages[0]);
  EXPECT_THROW(model.addDesignPackage(nullptr), KYRException);
}

TEST(KYRStoreModel, RefusesASecondDataPackageOfOneNameWhichStaysWithTheCaller) {
  KYRStoreModel model;
  auto* schema = new KYRDatabaseSchema();
  model.addDataPackage(schema);
  model.addDataPackage(schema);
  EXPECT_EQ(model.dataPackages.count(), 1U);
  const auto second = std::make_unique<KYRDatabaseSchema>();
  EXPECT_THROW(model.addDataPackage(second.get()), KYRException);
  EXPECT_EQ(second->getParent(), nullptr);
}

TEST(KYRStoreModel, FreesAllThatItHolds) { EXPECT_NE(makeFullModel(), nullptr); }

TEST(KYRStoreModel, WhatIsOutsideIsUnlinkedWhenTheModelGoes) {
  KYRClass outside;
  KYRAssociationRole role;
  auto* attribute = new KYRAttribute();
  outside.addFeatureUniqueName(attribute, '/');
  {
    KYRStoreModel model;
    auto* package = new KYRDesignPackage();
    model.addDesignPackage(package);
    auto* inside = new KYRClass();
    package->addNamespaceElementUniqueName(inside, '/');
    role.addAssociatedClass(inside);
    auto* type = new KYRDerivedType();
    model.addType(type);
    attribute->addType(type);
    auto* schema = new KYRDatabaseSchema();
    model.addDataPackage(schema);
    outside.addDataPackage(schema);
  }
  EXPECT_EQ(role.associatedClass, nullptr);
  EXPECT_EQ(attribute->type, nullptr);
  EXPECT_EQ(outside.getDataPackage(), nullptr);
}

// Every attribute has one type and every role one class, so both lists are as long as the model is big.
TEST(KYRStoreModel, TakingDownAModelOfManyTiesStaysLinear) {
  constexpr int count = 100000;
  KYRAttribute observer;
  KYRDerivedType keptType;
  auto model = std::make_unique<KYRStoreModel>();
  auto* package = new KYRDesignPackage();
  model->addDesignPackage(package);
  auto* hub = new KYRClass();
  package->addNamespaceElementUniqueName(hub, '/');
  for (int i = 0; i < count; ++i) {
    auto* attribute = new KYRAttribute();
    hub->addFeatureUniqueName(attribute, '/');
    attribute->addType(&keptType);
    auto* association = new KYRAssociation();
    package->addNamespaceElementUniqueName(association, '/');
    for (int end = 0; end < 2; ++end) {
      auto* role = new KYRAssociationRole();
      association->addAssociationRole(role);
      role->addAssociatedClass(hub);
    }
  }
  observer.addType(&keptType);
  model.reset();
  ASSERT_EQ(keptType.typedObjects.count(), 1U);
  EXPECT_EQ(keptType.typedObjects[0], &observer);
  EXPECT_LT(keptType.typedObjects.getCollection()->getComparisonCount(), 50U * count);
}

}  // namespace
