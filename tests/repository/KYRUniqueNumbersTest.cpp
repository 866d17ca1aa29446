#include "repository/model/KYRUniqueNumbers.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

class KYRUniqueNumbersOf : public testing::Test {
 protected:
  std::string take(const char* name, char separator = '/') {
    const KYRString made = numbers_.makeName(name, separator, [&](std::string_view candidate) {
      ++questions_;
      return taken_.count(std::string(candidate)) != 0;
    });
    taken_.insert(made.getCharacters());
    return made.getCharacters();
  }
  void release(const std::string& name) {
    taken_.erase(name);
    numbers_.release(name);
  }

  std::set<std::string> taken_;
  KYRUniqueNumbers numbers_;
  std::size_t questions_ = 0;
};

TEST_F(KYRUniqueNumbersOf, TheSmallestFreeNumberFrom1IsTaken) {
  EXPECT_EQ(take("Order"), "Order/1");
  EXPECT_EQ(take("Order"), "Order/2");
  taken_.insert("Order/3");
  EXPECT_EQ(take("Order"), "Order/4");
  EXPECT_EQ(take("Item"), "Item/1");
  EXPECT_EQ(take("Order", '_'), "Order_1");
}

TEST_F(KYRUniqueNumbersOf, NumbersThatBecomeFreeAreTakenAgainSmallestFirst) {
  for (int i = 0; i < 30; ++i) take("a");
  release("a/20");
  release("a/7");
  release("a/11");
  taken_.insert("a/11");  // by somebody who bears that very name
  EXPECT_EQ(take("a"), "a/7");
  EXPECT_EQ(take("a"), "a/20");
  EXPECT_EQ(take("a"), "a/31");
}

TEST_F(KYRUniqueNumbersOf, ANameIsReleasedUnderEveryReadingOfItsDigits) {
  for (int i = 0; i < 12; ++i) take("x");
  for (int i = 0; i < 3; ++i) take("x/1");
  EXPECT_EQ(take("x/1", '0'), "x/101");
  release("x/1/2");
  EXPECT_EQ(take("x/1"), "x/1/2");
  release("x/12");
  EXPECT_EQ(take("x"), "x/12");
  release("x/101");
  EXPECT_EQ(take("x/1", '0'), "x/101");
}

TEST_F(KYRUniqueNumbersOf, NamesWithoutANumberOfOursAreReleasedWithoutEffect) {
  take("a");
  for (const char* name : {"", "a", "a/", "a/0", "a/01", "b/1", "/1", "a/99999999999999999999"})
    release(name);
  EXPECT_EQ(take("a"), "a/2");
}

TEST_F(KYRUniqueNumbersOf, AgreesWithASearchFrom1) {
  std::mt19937 random(9);
  for (int step = 0; step < 3000; ++step) {
    if (random() % 2 == 0 && !taken_.empty()) {
      auto at = taken_.begin();
      std::advance(at, static_cast<std::ptrdiff_t>(random() % taken_.size()));
      release(std::string(*at));
      continue;
    }
    int expected = 1;
    while (taken_.count("n/" + std::to_string(expected)) != 0) ++expected;
    ASSERT_EQ(take("n"), "n/" + std::to_string(expected));
  }
}

TEST_F(KYRUniqueNumbersOf, ManyEqualNamesCostTwoQuestionsEach) {
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i) take("same");
  EXPECT_LE(questions_, 2 * count);
}

}  // namespace
