// XmlInput: bytes in memory, given in pieces.
#include "foundation/xml/XmlInput.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(XmlMemoryInput, GivesAllBytesInOrderAndThenNone) {
  XmlMemoryInput input("name", "abcdefgh", 3);
  EXPECT_EQ(input.getName().view(), "name");
  char buffer[8];
  std::string pieces;
  for (std::size_t length = 0; (length = input.read(buffer, 2)) != 0;) pieces.append(buffer, length) += '|';
  EXPECT_EQ(pieces, "ab|cd|ef|gh|");
  EXPECT_EQ(input.read(buffer, sizeof buffer), 0U);
}

TEST(XmlMemoryInput, APieceIsNeverLongerThanItsSize) {
  XmlMemoryInput input("name", "abcdefgh", 3);
  char buffer[8];
  EXPECT_EQ(input.read(buffer, sizeof buffer), 3U);
}

}  // namespace
