// XmlBlockArray: growth over block ends, and references that stay valid.
#include "foundation/xml/XmlBlockArray.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

TEST(XmlBlockArray, GrowsOverBlocksAndMovesNothing) {
  XmlBlockArray<std::size_t> array;
  const std::size_t count = 40 * XmlBlockArray<std::size_t>::firstBlockSize + 1;
  std::vector<const std::size_t*> places;
  for (std::size_t i = 0; i < count; ++i) places.push_back(&array.appendMade([i] { return i; }));
  ASSERT_EQ(array.size(), count);
  for (std::size_t i = 0; i < count; ++i) {
    ASSERT_EQ(array[i], i);
    ASSERT_EQ(&array[i], places[i]);
  }
  EXPECT_EQ(array.getMemorySize(), count * sizeof(std::size_t));
}

}  // namespace
