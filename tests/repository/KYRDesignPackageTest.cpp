#include "repository/model/KYRDesignPackage.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"

namespace {

TEST(KYRDesignPackage, DiagramsAreANameSpaceOfTheirOwn) {
  KYRDesignPackage package;
  auto* element = new KYRClass();
  element->setName("Overview");
  package.addNamespaceElementUniqueName(element, '/');
  for (const char* expected : {"Overview", "Overview/1", "Overview/2"}) {
    auto* diagram = new KYRClassDiagram();
    diagram->setName("Overview");
    EXPECT_TRUE(package.addDiagramUniqueName(diagram, '/'));
    EXPECT_EQ(diagram->getName(), expected);
    EXPECT_FALSE(package.addDiagramUniqueName(diagram, '/'));
  }
  EXPECT_THROW(package.addDiagramUniqueName(nullptr, '/'), KYRException);
}

TEST(KYRDesignPackage, IsThePackageOfTheModelElementsInIt) {
  KYRDesignPackage package;
  auto* element = new KYRClass();
  EXPECT_EQ(element->getDesignPackage(), nullptr);
  package.addNamespaceElementUniqueName(element, '/');
  EXPECT_EQ(element->getDesignPackage(), &package);
  EXPECT_FALSE(package.isModelPackage);
}

}  // namespace
