// XmlTextHash: every byte counts, at every length, in hash and comparison alike.
#include "foundation/xml/XmlTextHash.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(XmlTextHash, EveryByteOfEveryLengthCounts) {
  for (std::size_t length = 0; length <= 70; ++length) {
    const std::string text(length, 'x');
    const std::uint64_t hash = XmlTextHash::of(text, 1);
    EXPECT_EQ(XmlTextHash::of(std::string(text), 1), hash);
    EXPECT_NE(XmlTextHash::of(text, 2), hash) << length;
    EXPECT_TRUE(XmlTextHash::areEqual(text.data(), std::string(text).data(), length));
    for (std::size_t at = 0; at < length; ++at) {
      std::string other = text;
      other[at] = 'y';
      EXPECT_NE(XmlTextHash::of(other, 1), hash) << length << ", " << at;
      EXPECT_FALSE(XmlTextHash::areEqual(text.data(), other.data(), length)) << length << ", " << at;
    }
  }
}

TEST(XmlTextHash, ManyTextsHaveManyHashes) {
  std::set<std::uint32_t> hashes;
  constexpr int count = 100000;
  for (int i = 0; i < count; ++i) {
    hashes.insert(static_cast<std::uint32_t>(XmlTextHash::of("EAID_" + std::to_string(i), 7)));
  }
  EXPECT_GT(hashes.size(), count - 20U);  // chance alone makes one or two meet in 32 bits
}

}  // namespace
