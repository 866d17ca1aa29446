// TextHash: every byte counts, at every length, in hash and comparison alike.
#include "foundation/TextHash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace {

TEST(TextHash, EveryByteOfEveryLengthCounts) {
  for (std::size_t length = 0; length <= 70; ++length) {
    const std::string text(length, 'x');
    const std::uint64_t hash = TextHash::of(text, 1);
    EXPECT_EQ(TextHash::of(std::string(text), 1), hash);
    EXPECT_NE(TextHash::of(text, 2), hash) << length;
    EXPECT_TRUE(TextHash::areEqual(text.data(), std::string(text).data(), length));
    for (std::size_t at = 0; at < length; ++at) {
      std::string other = text;
      other[at] = 'y';
      EXPECT_NE(TextHash::of(other, 1), hash) << length << ", " << at;
      EXPECT_FALSE(TextHash::areEqual(text.data(), other.data(), length)) << length << ", " << at;
    }
  }
}

TEST(TextHash, ManyTextsHaveManyHashes) {
  std::set<std::uint32_t> hashes;
  constexpr int count = 100000;
  for (int i = 0; i < count; ++i) {
    hashes.insert(static_cast<std::uint32_t>(TextHash::of("EAID_" + std::to_string(i), 7)));
  }
  EXPECT_GT(hashes.size(), count - 20U);  // chance alone makes one or two meet in 32 bits
}

// What a hostile file would do: ids of one code, found by trying.
TEST(TextHash, IdsThatMeetUnderOneSeedSpreadUnderAnother) {
  constexpr std::uint64_t firstSeed = 0x1F83D9ABFB41BD6BU;  // as chance would draw them
  constexpr std::uint64_t secondSeed = 0x5BE0CD19137E2179U;
  constexpr std::uint64_t buckets = 256;
  std::vector<std::string> meeting;
  for (int i = 0; meeting.size() < 1000; ++i) {
    const std::string id = "_" + std::to_string(i);
    if (TextHash::of(id, firstSeed) % buckets == 0) meeting.push_back(id);
  }
  std::array<int, buckets> counts{};
  for (const std::string& id : meeting) ++counts[TextHash::of(id, secondSeed) % buckets];
  EXPECT_LT(*std::max_element(counts.begin(), counts.end()), 20);  // 4 each on average
}

TEST(TextHash, TheSeedOfTheProcessIsDrawnOnce) { EXPECT_EQ(TextHash::seed(), TextHash::seed()); }

}  // namespace
