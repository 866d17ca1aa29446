// KYRRBTree: an ordered set of addresses.
#include "foundation/KYRRBTree.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(KYRRBTree, WalksInTheOrderOfItsComparisonWhateverTheOrderOfAdding) {
  const int objects[4] = {};
  KYRRBTree tree;
  for (const int index : {2, 0, 3, 1}) EXPECT_TRUE(tree.add(&objects[index], true, nullptr));
  std::vector<const void*> walked;
  for (KYRRBTree::Iterator iterator(tree, true); iterator.get() != nullptr; iterator.next()) {
    walked.push_back(iterator.get());
  }
  EXPECT_EQ(walked, (std::vector<const void*>{&objects[0], &objects[1], &objects[2], &objects[3]}));
}

TEST(KYRRBTree, NextTellsWhetherThereIsAnother) {
  const int objects[2] = {};
  KYRRBTree tree;
  for (const int& object : objects) tree.add(&object, true, nullptr);
  KYRRBTree::Iterator iterator(tree, true);
  EXPECT_TRUE(iterator.next());
  EXPECT_FALSE(iterator.next());
  EXPECT_EQ(iterator.get(), nullptr);
  EXPECT_FALSE(iterator.next());
}

TEST(KYRRBTree, HoldsEachObjectOnceEvenWithoutUnique) {
  const int object = 0;
  KYRRBTree tree;
  EXPECT_TRUE(tree.add(&object, false, nullptr));
  EXPECT_FALSE(tree.add(&object, false, nullptr));
  EXPECT_EQ(tree.getCount(), 1U);
  EXPECT_TRUE(tree.contains(&object, nullptr));
}

}  // namespace
