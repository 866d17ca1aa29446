// Who bears an id: the first one entered.
#include "normalize/IdIndex.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(IdIndex, KeepsTheFirstBearer) {
  IdIndex ids;
  const std::string id = "a";
  EXPECT_EQ(ids.enter(id, 7), IdIndex::none);
  EXPECT_EQ(ids.enter(id, 8), 7U);
  EXPECT_EQ(ids.find("a"), 7U);
  EXPECT_EQ(ids.find("b"), IdIndex::none);
}

TEST(IdIndex, TellsAnIdFromItsBeginning) {
  IdIndex ids;
  const std::string text = "abc";
  ids.enter(text, 1);
  EXPECT_EQ(ids.find("ab"), IdIndex::none);
  EXPECT_EQ(ids.find(std::string_view(text).substr(0, 2)), IdIndex::none);
  EXPECT_EQ(ids.find("abcd"), IdIndex::none);
  EXPECT_EQ(ids.find("abc"), 1U);
}

TEST(IdIndex, GrowsBeyondWhatWasExpected) {
  IdIndex ids(1);
  std::vector<std::string> texts;
  for (std::uint32_t number = 0; number < 5000; ++number) texts.push_back("id" + std::to_string(number));
  for (std::uint32_t number = 0; number < 5000; ++number)
    EXPECT_EQ(ids.enter(texts[number], number), IdIndex::none);
  for (std::uint32_t number = 0; number < 5000; ++number) EXPECT_EQ(ids.find(texts[number]), number);
}

}  // namespace
