// What all containers have in common, whatever their kind.
#include "foundation/KYRContainer.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "foundation/KYRHashtable.h"
#include "foundation/KYRRBTree.h"
#include "foundation/KYRVector.h"

namespace {

struct Table : KYRHashtable {
  Table() : KYRHashtable(0) {}
};

template <class Container>
class KYRContainerTest : public testing::Test {
 protected:
  std::set<const void*> walk() const {
    std::set<const void*> seen;
    KYRContainer::Iterator* const iterator = container_.newIterator(true);
    while (iterator->get() != nullptr) {
      EXPECT_TRUE(seen.insert(iterator->get()).second);
      iterator->next();
    }
    container_.deleteIterator(iterator);
    return seen;
  }

  std::unique_ptr<Container> owner_ = std::make_unique<Container>();
  KYRContainer& container_ = *owner_;
  int objects_[3] = {};
};

using Containers = testing::Types<KYRVector, KYROrderedVector, Table, KYRRBTree>;
TYPED_TEST_SUITE(KYRContainerTest, Containers);

TYPED_TEST(KYRContainerTest, AnEmptyOneFindsAndWalksNothing) {
  EXPECT_EQ(this->container_.findFirst(&this->objects_[0], nullptr), nullptr);
  EXPECT_FALSE(this->container_.contains(&this->objects_[0], nullptr));
  EXPECT_TRUE(this->walk().empty());
  KYRContainer::Iterator* const iterator = this->container_.newIterator(true);
  EXPECT_FALSE(iterator->next());
  EXPECT_EQ(this->container_.remove(iterator), nullptr);
  this->container_.deleteIterator(iterator);
  EXPECT_EQ(this->container_.remove(nullptr), nullptr);
}

TYPED_TEST(KYRContainerTest, AUniqueAddRefusesWhatIsThere) {
  EXPECT_TRUE(this->container_.add(&this->objects_[0], true, nullptr));
  EXPECT_TRUE(this->container_.add(&this->objects_[1], true, nullptr));
  EXPECT_FALSE(this->container_.add(&this->objects_[0], true, nullptr));
  EXPECT_TRUE(this->container_.contains(&this->objects_[0], nullptr));
  EXPECT_EQ(this->container_.findFirst(&this->objects_[1], nullptr), &this->objects_[1]);
  EXPECT_FALSE(this->container_.contains(&this->objects_[2], nullptr));
  EXPECT_EQ(this->walk(), (std::set<const void*>{&this->objects_[0], &this->objects_[1]}));
}

TYPED_TEST(KYRContainerTest, RemovingThroughAnIteratorMovesItToTheNextObject) {
  for (const int& object : this->objects_) this->container_.add(&object, true, nullptr);
  KYRContainer::Iterator* const iterator = this->container_.newIterator(true);
  iterator->next();
  const void* const second = iterator->get();
  EXPECT_EQ(this->container_.remove(iterator), second);
  EXPECT_FALSE(this->container_.contains(second, nullptr));
  const void* const third = iterator->get();
  EXPECT_NE(third, nullptr);
  EXPECT_NE(third, second);
  EXPECT_EQ(this->container_.remove(iterator), third);
  EXPECT_EQ(iterator->get(), nullptr);
  EXPECT_FALSE(iterator->next());
  this->container_.deleteIterator(iterator);
  EXPECT_EQ(this->walk().size(), 1U);
}

TYPED_TEST(KYRContainerTest, AnIteratorOfAnotherContainerRemovesNothing) {
  TypeParam other;
  other.add(&this->objects_[0], true, nullptr);
  this->container_.add(&this->objects_[0], true, nullptr);
  KYRContainer::Iterator* const iterator = other.newIterator(true);
  EXPECT_EQ(this->container_.remove(iterator), nullptr);
  other.deleteIterator(iterator);
  EXPECT_TRUE(this->container_.contains(&this->objects_[0], nullptr));
}

TYPED_TEST(KYRContainerTest, EmptyRemovesAllAndItCanBeFilledAgain) {
  for (int round = 0; round < 2; ++round) {
    for (const int& object : this->objects_) EXPECT_TRUE(this->container_.add(&object, true, nullptr));
    this->container_.empty();
    EXPECT_TRUE(this->walk().empty());
    EXPECT_FALSE(this->container_.contains(&this->objects_[0], nullptr));
  }
}

}  // namespace
