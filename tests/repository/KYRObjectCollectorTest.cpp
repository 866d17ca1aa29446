#include "repository/model/KYRObjectCollector.h"

#include <gtest/gtest.h>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRStoreModel.h"

namespace {

TEST(KYRObjectCollector, GathersTheObjectsOfOneElementTypeInOrder) {
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  auto* inner = new KYRDesignPackage();
  package->addNamespaceElementUniqueName(inner, '/');
  auto* deep = new KYRClass();
  auto* flat = new KYRClass();
  package->addNamespaceElementUniqueName(flat, '/');
  inner->addNamespaceElementUniqueName(deep, '/');
  KYRObjectCollector collector(KYRElementType::class_);
  model.depthTraversal(collector);
  ASSERT_EQ(collector.getCount(), 2U);
  EXPECT_EQ(collector[0], deep);
  EXPECT_EQ(collector[1], flat);
  EXPECT_EQ(collector[2], nullptr);
  KYRObjectCollector below(KYRElementType::class_);
  inner->depthTraversal(below);
  EXPECT_EQ(below.getCount(), 1U);
}

TEST(KYRObjectCollector, ADerivedClassIsAnotherType) {
  KYRStoreModel model;
  model.addType(new KYRDerivedType());
  model.addType(new KYRConcreteType());
  KYRObjectCollector collector(KYRElementType::baseType);
  model.depthTraversal(collector);
  EXPECT_EQ(collector.getCount(), 1U);
}

}  // namespace
