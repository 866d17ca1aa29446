// XmlTextArena: texts of every length side by side.
#include "foundation/xml/XmlTextArena.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(XmlTextArena, TextsOfEveryLengthKeepTheirCharactersAndEndInAZero) {
  XmlTextArena arena;
  std::vector<std::string> texts;
  std::vector<std::string_view> stored;
  std::size_t bytes = 0;
  for (std::size_t length = 0; length < 300000; length = length * 3 / 2 + 1) {
    for (int repeat = 0; repeat < 20; ++repeat) {
      texts.emplace_back(length, static_cast<char>('a' + repeat));
      stored.push_back(arena.store(texts.back()));
      bytes += length + 1;
    }
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_EQ(stored[i], texts[i]);
    ASSERT_EQ(stored[i].data()[stored[i].size()], '\0');
  }
  EXPECT_GE(arena.getMemorySize(), bytes);
  EXPECT_LT(arena.getMemorySize(), bytes * 5 / 4);
}

TEST(XmlTextArena, AnEmptyArenaHoldsNothing) { EXPECT_EQ(XmlTextArena().getMemorySize(), 0U); }

}  // namespace
