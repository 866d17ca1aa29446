// ShortPointerList: a few pointers in order, in pieces of memory of three sizes.
#include "foundation/ShortPointerList.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <vector>

namespace {

struct Destroy {
  void operator()(ShortPointerList* list) const noexcept { ShortPointerList::destroy(list); }
};
using Owned = std::unique_ptr<ShortPointerList, Destroy>;

class ShortPointerListTest : public testing::Test {
 protected:
  const void* entry(std::size_t index) const { return &entries_[index]; }
  Owned filled(std::size_t count) const {
    Owned list(ShortPointerList::larger(nullptr));
    for (std::size_t i = 0; i < count; ++i) {
      if (list->isFull()) list.reset(ShortPointerList::larger(list.get()));
      list->append(entry(i));
    }
    return list;
  }

  std::array<int, ShortPointerList::highestCount + 1> entries_{};
};

TEST_F(ShortPointerListTest, KeepsTheOrderWhileItGrows) {
  for (std::uint32_t count = 0; count <= ShortPointerList::highestCount; ++count) {
    const Owned list = filled(count);
    ASSERT_EQ(list->getCount(), count);
    for (std::uint32_t i = 0; i < count; ++i) EXPECT_EQ(list->at(i), entry(i));
    EXPECT_EQ(list->at(count), nullptr);
    EXPECT_FALSE(list->contains(entry(count)));
    EXPECT_EQ(list->contains(entry(0)), count != 0);
  }
}

TEST_F(ShortPointerListTest, ALargerListHasRoomUpToTheMostThatOneHolds) {
  EXPECT_FALSE(Owned(ShortPointerList::larger(nullptr))->isFull());
  for (std::uint32_t count = 0; count < ShortPointerList::highestCount; ++count) {
    const Owned list = filled(count);
    EXPECT_FALSE(Owned(ShortPointerList::larger(list.get()))->isFull()) << count;
  }
  const Owned most = filled(ShortPointerList::highestCount);
  EXPECT_TRUE(most->isFull());
  EXPECT_TRUE(Owned(ShortPointerList::larger(most.get()))->isFull());
}

TEST_F(ShortPointerListTest, RemovalClosesTheGap) {
  const Owned list = filled(4);
  list->removeAt(1);
  list->removeAt(7);
  ASSERT_EQ(list->getCount(), 3U);
  EXPECT_EQ(list->at(0), entry(0));
  EXPECT_EQ(list->at(1), entry(2));
  EXPECT_EQ(list->at(2), entry(3));
  EXPECT_FALSE(list->contains(entry(1)));
}

}  // namespace
