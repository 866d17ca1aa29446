// Counting a model by the classes of its objects.
#include "host/SavedModelCounts.h"

#include <gtest/gtest.h>

#include <memory>

#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRStoreModel.h"

namespace {

TEST(SavedModelCounts, CountsTheObjectsThatAreSaved) {
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  auto* plain = new KYRClass();
  package->addNamespaceElementUniqueName(plain, '/');
  auto* other = new KYRClass();
  other->classCategory = KYRClassCategoryType::interface_;
  package->addNamespaceElementUniqueName(other, '/');
  plain->addFeatureUniqueName(new KYRAttribute(), '/');
  auto* operation = new KYROperation();
  other->addOperation(operation);
  operation->addArgument(new KYRArgument());
  operation->addArgument(new KYRArgument());
  package->addDiagram(new KYRClassDiagram());
  const SavedModelCounts counts = SavedModelCounts::of(model);
  EXPECT_EQ(counts.packages, 1U);
  EXPECT_EQ(counts.classes, 1U);
  EXPECT_EQ(counts.interfaces, 1U);
  EXPECT_EQ(counts.attributes, 1U);
  EXPECT_EQ(counts.operations, 1U);
  EXPECT_EQ(counts.arguments, 2U);
  EXPECT_EQ(counts.diagrams, 1U);
}

TEST(SavedModelCounts, AnEmptyModelHasNothingToCount) {
  EXPECT_EQ(SavedModelCounts::of(KYRStoreModel()).packages, 0U);
}

}  // namespace
