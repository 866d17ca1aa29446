#include "repository/model/KYRNamespace.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"

namespace {

template <class T = KYRClass>
T* add(KYRNamespace& owner, const char* name, char separator = '/') {
  auto* made = new T();
  made->setName(name);
  owner.addNamespaceElementUniqueName(made, separator);
  return made;
}

TEST(KYRNamespace, AFreeNameStaysAndATakenOneGetsTheSmallestFreeNumber) {
  KYRDesignPackage package;
  EXPECT_EQ(add(package, "Order")->getName(), "Order");
  EXPECT_EQ(add(package, "Order")->getName(), "Order/1");
  EXPECT_EQ(add(package, "Order")->getName(), "Order/2");
  EXPECT_EQ(add(package, "order")->getName(), "order");
  EXPECT_EQ(add(package, "Order/1")->getName(), "Order/1/1");
  EXPECT_EQ(add(package, "Order", '_')->getName(), "Order_1");
}

TEST(KYRNamespace, IsOneNameSpaceForEverythingInIt) {
  KYRDesignPackage package;
  add(package, "Sales");
  EXPECT_EQ(add<KYRDesignPackage>(package, "Sales")->getName(), "Sales/1");
  EXPECT_EQ(add<KYRAssociation>(package, "Sales")->getName(), "Sales/2");
}

TEST(KYRNamespace, TheEmptyNameIsAlwaysFree) {
  KYRDesignPackage package;
  EXPECT_EQ(add<KYRAssociation>(package, "")->getName(), "");
  EXPECT_EQ(add<KYRAssociation>(package, "")->getName(), "");
}

TEST(KYRNamespace, ANameIsFreeAgainWhenItsBearerGoesOrIsRenamed) {
  for (const int others : {0, 50}) {
    KYRDesignPackage package;
    for (int i = 0; i < others; ++i) add(package, ("other" + std::to_string(i)).c_str());
    KYRClass* first = add(package, "X");
    KYRClass* second = add(package, "X");
    add(package, "X");
    second->setName("Y");
    EXPECT_EQ(add(package, "X")->getName(), "X/1");
    delete first;
    EXPECT_EQ(add(package, "X")->getName(), "X");
    EXPECT_EQ(add(package, "X")->getName(), "X/3");
  }
}

TEST(KYRNamespace, AnElementThatIsThereIsNotAddedAgain) {
  KYRDesignPackage package;
  KYRClass* element = add(package, "A");
  EXPECT_FALSE(package.addNamespaceElementUniqueName(element, '/'));
  EXPECT_EQ(element->getName(), "A");
  EXPECT_EQ(package.elements.count(), 1U);
}

TEST(KYRNamespace, AddNamespaceElementKeepsATakenName) {
  KYRDesignPackage package;
  add(package, "A");
  auto* second = new KYRClass();
  second->setName("A");
  EXPECT_TRUE(package.addNamespaceElement(second));
  EXPECT_EQ(second->getName(), "A");
  EXPECT_EQ(package.elements.get("A"), package.elements[0]);
}

TEST(KYRNamespace, NullIsRefused) {
  KYRDesignPackage package;
  EXPECT_THROW(package.addNamespaceElementUniqueName(nullptr, '/'), KYRException);
}

TEST(KYRNamespace, APackageCannotStandInItself) {
  auto outer = std::make_unique<KYRDesignPackage>();
  EXPECT_THROW(outer->addNamespaceElementUniqueName(outer.get(), '/'), KYRException);
  auto* inner = add<KYRDesignPackage>(*outer, "inner");
  auto* innermost = add<KYRDesignPackage>(*inner, "innermost");
  EXPECT_THROW(innermost->addNamespaceElementUniqueName(outer.get(), '/'), KYRException);
  EXPECT_THROW(innermost->addNamespaceElement(inner), KYRException);
  EXPECT_EQ(outer->getParent(), nullptr);
}

std::uint64_t costOf(int count, bool isOneName) {
  KYRDesignPackage package;
  for (int i = 0; i < count; ++i) add(package, isOneName ? "Same" : ("C" + std::to_string(i)).c_str());
  if (isOneName) {
    EXPECT_EQ(package.elements[static_cast<unsigned int>(count) - 1]->getName(),
              KYRString("Same/") + KYRString(count - 1));
  }
  return package.elements.getCollection()->getComparisonCount();
}

TEST(KYRNamespace, AHundredThousandElementsCostLinearTimeAlsoUnderOneName) {
  constexpr int count = 100000;
  EXPECT_LT(costOf(count, false), 20U * count);
  EXPECT_LT(costOf(count, true), 20U * count);
}

TEST(KYRNamespace, RemovingAndAddingAmongManyOfOneNameStaysLinear) {
  constexpr unsigned int count = 20000;
  KYRDesignPackage package;
  for (unsigned int i = 0; i < count; ++i) add(package, "Same");
  for (unsigned int i = 0; i < count; ++i) {
    delete package.elements[0];
    add(package, "Same");
  }
  EXPECT_EQ(package.elements.count(), count);
  EXPECT_LT(package.elements.getCollection()->getComparisonCount(), 100U * count);
}

}  // namespace
