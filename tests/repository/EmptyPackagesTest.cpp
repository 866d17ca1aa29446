#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRStoreModel.h"

namespace {

KYRDesignPackage* addInner(KYRDesignPackage* outer, const char* name) {
  auto* package = new KYRDesignPackage();
  package->setName(name);
  outer->addNamespaceElementUniqueName(package, '/');
  return package;
}

class EmptyPackages : public testing::Test {
 protected:
  KYRDesignPackage* addTop(const char* name) {
    auto* package = new KYRDesignPackage();
    package->setName(name);
    model.addDesignPackage(package);
    return package;
  }
  KYRStoreModel model;
};

TEST_F(EmptyPackages, GoFromTheInnermostOutwards) {
  KYRDesignPackage* nest = addTop("nest");
  addInner(addInner(nest, "a"), "b");
  addInner(nest, "c");
  KYRDesignPackage* kept = addTop("kept");
  addInner(kept, "empty");
  KYRDesignPackage* full = addInner(kept, "full");
  full->addNamespaceElementUniqueName(new KYRClass(), '/');
  deleteEmptyDesignPackages(&model);
  ASSERT_EQ(model.designPackages.count(), 1U);
  EXPECT_EQ(model.designPackages[0], kept);
  ASSERT_EQ(kept->elements.count(), 1U);
  EXPECT_EQ(kept->elements[0], full);
}

TEST_F(EmptyPackages, ADiagramIsContentAndANoteIsNot) {
  addTop("diagram")->addDiagramUniqueName(new KYRClassDiagram(), '/');
  addTop("note")->addNote(new KYRNote());
  deleteEmptyDesignPackages(&model);
  ASSERT_EQ(model.designPackages.count(), 1U);
  EXPECT_EQ(model.designPackages[0]->getName(), "diagram");
}

TEST_F(EmptyPackages, DataPackagesStay) {
  model.addDataPackage(new KYRDataPackage());
  deleteEmptyDesignPackages(&model);
  EXPECT_EQ(model.dataPackages.count(), 1U);
}

TEST_F(EmptyPackages, AModelWithoutAnyAndNoModelAreFine) {
  deleteEmptyDesignPackages(&model);
  deleteEmptyDesignPackages(nullptr);
  EXPECT_TRUE(model.designPackages.isEmpty());
}

TEST_F(EmptyPackages, DepthAndBreadthCostLinearTime) {
  constexpr int count = 100000;
  KYRDesignPackage* deep = addTop("deep");
  for (int i = 0; i < count; ++i) deep = addInner(deep, "d");
  KYRDesignPackage* wide = addTop("wide");
  for (int i = 0; i < count; ++i) {
    addInner(wide, "e");
    if (i % 2 == 0) wide->addNamespaceElementUniqueName(new KYRClass(), '/');
  }
  deleteEmptyDesignPackages(&model);
  ASSERT_EQ(model.designPackages.count(), 1U);
  EXPECT_EQ(wide->elements.count(), static_cast<unsigned int>(count / 2));
  EXPECT_LT(wide->elements.getCollection()->getComparisonCount(), 100U * count);
}

}  // namespace
