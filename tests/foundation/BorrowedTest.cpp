// Borrowed: the typed face of a list, also for objects whose bases lie at addresses of their own.
#include "foundation/Borrowed.h"

#include <gtest/gtest.h>

#include <deque>
#include <utility>
#include <vector>

#include "tests/foundation/AllocationProbe.h"

namespace {

struct Element {
  virtual ~Element() = default;
  int number = 0;
};
struct Named : virtual Element {
  int more = 1;
};
struct Typed : virtual Element {
  int other = 2;
};
struct Property : Named, Typed {};

using Elements = Borrowed<Element>;
using Properties = Borrowed<Property, KYROrderedVector>;

template <class List>
std::vector<typename List::Entry*> contentOf(const List& list) {
  std::vector<typename List::Entry*> content;
  for (auto* entry : list) content.push_back(entry);
  EXPECT_EQ(content.size(), list.count());
  return content;
}

class BorrowedTest : public testing::Test {
 protected:
  Property* object(std::size_t index) { return &objects_[index]; }
  std::deque<Property> objects_ = std::deque<Property>(100);
};

TEST_F(BorrowedTest, IsOnePointerWideAndOneEntryAllocatesNothing) {
  static_assert(sizeof(Properties) == sizeof(void*));
  const AllocationProbe probe;
  Properties list;
  EXPECT_TRUE(list.isEmpty());
  EXPECT_TRUE(list.add(object(0)));
  EXPECT_FALSE(list.add(object(0)));
  Properties copy(list);
  EXPECT_EQ(copy.at(0), object(0));
  EXPECT_EQ(probe.getCount(), 0U);
}

TEST_F(BorrowedTest, HoldsNoneOneOrManyInOrderOfAdding) {
  std::vector<Property*> expected;
  Properties list;
  for (std::size_t i = 0; i < 40; ++i) {
    EXPECT_EQ(contentOf(list), expected);
    EXPECT_EQ(list.at(list.count()), nullptr);
    EXPECT_FALSE(list.contains(object(i)));
    EXPECT_TRUE(list.add(object(i)));
    EXPECT_FALSE(list.add(object(i)));
    EXPECT_TRUE(list.contains(object(i)));
    expected.push_back(object(i));
  }
  EXPECT_EQ(contentOf(list), expected);
}

TEST_F(BorrowedTest, AnEntryComesOutAsTheTypeItWentInAs) {
  Property* const property = object(0);
  Element* const base = property;
  ASSERT_NE(static_cast<void*>(base), static_cast<void*>(property));  // else this shows nothing
  property->number = 42;
  for (const bool isFilled : {false, true}) {
    Elements elements;
    Borrowed<Typed> typed;
    elements.add(property);
    typed.add(property);
    if (isFilled) {
      elements.add(object(1));
      typed.add(object(1));
    }
    EXPECT_EQ(elements.at(0), base);
    EXPECT_EQ(elements.at(0)->number, 42);
    EXPECT_EQ(dynamic_cast<Property*>(typed.at(0)), property);
    EXPECT_EQ(typed.at(0)->other, 2);
    EXPECT_TRUE(elements.contains(property));
    EXPECT_FALSE(elements.add(base));  // the same object by another of its addresses
  }
}

TEST_F(BorrowedTest, WithoutUniqueAnEntryMayStandTwice) {
  Properties list;
  EXPECT_TRUE(list.add(object(0), false));
  EXPECT_TRUE(list.add(object(0), false));
  EXPECT_EQ(contentOf(list), (std::vector<Property*>{object(0), object(0)}));
}

TEST_F(BorrowedTest, NullIsAnEntry) {
  Properties alone;
  EXPECT_TRUE(alone.add(nullptr));
  EXPECT_FALSE(alone.add(nullptr));
  EXPECT_TRUE(alone.add(object(0)));
  EXPECT_EQ(contentOf(alone), (std::vector<Property*>{nullptr, object(0)}));
  Properties second;
  second.add(object(0));
  EXPECT_TRUE(second.add(nullptr));
  EXPECT_EQ(contentOf(second), (std::vector<Property*>{object(0), nullptr}));
}

TEST_F(BorrowedTest, CopiesAreIndependent) {
  for (const std::size_t count : {0U, 1U, 5U, 40U}) {
    Properties list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i));
    const auto expected = contentOf(list);
    Properties copy(list);
    Properties assigned;
    assigned.add(object(90));
    assigned.add(object(91));
    assigned = list;
    const Properties& self = assigned;
    assigned = self;
    list.add(object(99));
    EXPECT_EQ(contentOf(copy), expected);
    EXPECT_EQ(contentOf(assigned), expected);
    EXPECT_EQ(list.count(), count + 1);
  }
}

TEST_F(BorrowedTest, AMoveTakesTheEntries) {
  for (const std::size_t count : {0U, 1U, 5U}) {
    Properties list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i));
    const auto expected = contentOf(list);
    Properties moved(std::move(list));
    EXPECT_TRUE(list.isEmpty());  // NOLINT(bugprone-use-after-move): that is what is tested
    EXPECT_EQ(contentOf(moved), expected);
    Properties target;
    target.add(object(90));
    target.add(object(91));
    target = std::move(moved);
    EXPECT_EQ(contentOf(target), expected);
  }
}

TEST_F(BorrowedTest, RemovalTakesOutOneEntry) {
  Properties list;
  EXPECT_FALSE(list.remove(object(0)));
  list.removeAt(0);
  list.add(object(0));
  list.removeAt(1);
  EXPECT_EQ(list.count(), 1U);
  EXPECT_FALSE(list.remove(object(1)));
  EXPECT_TRUE(list.remove(object(0)));
  EXPECT_TRUE(list.isEmpty());
  for (std::size_t i = 0; i < 4; ++i) list.add(object(i));
  EXPECT_TRUE(list.remove(object(2)));
  list.removeAt(0);
  EXPECT_EQ(contentOf(list), (std::vector<Property*>{object(1), object(3)}));
  list.removeAt(1);
  list.removeAt(0);
  EXPECT_TRUE(list.isEmpty());
  EXPECT_TRUE(list.add(object(7)));
  EXPECT_EQ(contentOf(list), (std::vector<Property*>{object(7)}));
  list.clear();
  EXPECT_TRUE(list.isEmpty());
}

TEST_F(BorrowedTest, AFailedAddOrCopyLeavesTheList) {
  for (const std::size_t count : {0U, 1U, 2U, 16U}) {
    Properties list;
    for (std::size_t i = 0; i < count; ++i) list.add(object(i));
    const auto expected = contentOf(list);
    Properties target;
    target.add(object(50));
    for (std::size_t failure = 0; failure < 20; ++failure) {
      try {
        const AllocationFailure failing(failure);
        Properties copy(list);
        target = list;
        list.add(object(99));
        break;
      } catch (const std::bad_alloc&) {
      }
      ASSERT_EQ(contentOf(list), expected);
    }
    EXPECT_EQ(list.at(static_cast<unsigned int>(count)), object(99));
    EXPECT_EQ(contentOf(target), expected);
  }
}

TEST_F(BorrowedTest, ManyUniqueAddsCostLinearComparisons) {
  constexpr std::size_t count = 100000;
  objects_.resize(count);
  Properties list;
  for (Property& each : objects_) ASSERT_TRUE(list.add(&each));
  EXPECT_EQ(list.count(), count);
  EXPECT_LT(list.getComparisonCount(), 4 * count);
}

}  // namespace
