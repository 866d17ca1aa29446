// XmlBlockArray: growth over block ends, and references that stay valid.
#include "foundation/xml/XmlBlockArray.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace {

TEST(XmlBlockArray, GrowsOverBlocksAndMovesNothing) {
  XmlBlockArray<std::size_t> array;
  const std::size_t* const first = &array.emplaceBack(std::size_t{0});
  const std::size_t count = 3 * XmlBlockArray<std::size_t>::blockSize + 1;
  for (std::size_t i = 1; i < count; ++i) array.appendMade([i] { return i; });
  ASSERT_EQ(array.size(), count);
  for (std::size_t i = 0; i < count; ++i) ASSERT_EQ(array[i], i);
  EXPECT_EQ(&array[0], first);
  EXPECT_EQ(array.getMemorySize(), 4 * XmlBlockArray<std::size_t>::blockSize * sizeof(std::size_t));
}

}  // namespace
