#include "repository/model/KYRCollection.h"

#include <gtest/gtest.h>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRNote.h"

namespace {

TEST(KYRCollection, CostsOnePointerThatIsEmptyUntilTheFirstEntryArrives) {
  EXPECT_EQ(sizeof(KYRCollection<KYRNote>), sizeof(void*));
  KYRClass made;
  EXPECT_EQ(made.notes.getCollection(), nullptr);
  EXPECT_EQ(made.notes.count(), 0U);
  EXPECT_TRUE(made.notes.isEmpty());
  EXPECT_EQ(made.notes[0], nullptr);
  EXPECT_EQ(made.notes.get("x"), nullptr);
  EXPECT_FALSE(made.notes.contains(nullptr));
  made.addNote(new KYRNote());
  ASSERT_NE(made.notes.getCollection(), nullptr);
  EXPECT_EQ(made.notes.getCollection()->getOwner(), &made);
}

TEST(KYRCollection, IsReadByIndexPointerAndName) {
  KYRDesignPackage package;
  for (const char* name : {"a", "b", "c"}) {
    auto* element = new KYRClass();
    element->setName(name);
    package.addNamespaceElementUniqueName(element, '/');
  }
  const KYRCollection<KYRNamespaceElement>& elements = package.elements;
  EXPECT_EQ(elements.count(), 3U);
  EXPECT_EQ(elements[1]->getName(), "b");
  EXPECT_EQ(elements[3], nullptr);
  EXPECT_TRUE(elements.contains(elements[2]));
  const KYRClass other;
  EXPECT_FALSE(elements.contains(&other));
  EXPECT_EQ(elements.get("c"), elements[2]);
  EXPECT_EQ(elements.get("C"), nullptr);
  const KYRSdkCollection& untyped = *elements.getCollection();
  EXPECT_EQ(untyped[0], elements[0]);
  EXPECT_EQ(untyped.get("b"), elements[1]);
  std::string names;
  for (const KYRNamespaceElement* element : elements) names += element->getName().getCharacters();
  EXPECT_EQ(names, "abc");
}

TEST(KYRCollection, LookupsByNameAndPointerStayLinear) {
  constexpr int count = 50000;
  KYRDesignPackage package;
  for (int i = 0; i < count; ++i) {
    auto* element = new KYRClass();
    element->setName(KYRString("C") + KYRString(i));
    package.addNamespaceElementUniqueName(element, '/');
  }
  for (unsigned int i = 0; i < count; ++i) {
    KYRNamespaceElement* element = package.elements[i];
    ASSERT_TRUE(package.elements.contains(element));
    ASSERT_EQ(package.elements.get(element->getName()), element);
  }
  EXPECT_LT(package.elements.getCollection()->getComparisonCount(), 100U * count);
}

}  // namespace
