// Numbers as letters: short ones for small numbers, and each to be found again.
#include "report/PackedNumbers.h"

#include <gtest/gtest.h>

#include "tests/report/PictureReader.h"

TEST(PackedNumbers, SmallNumbersAreOneLetter) {
  const std::pair<std::int64_t, const char*> rows[] = {{0, "A"},    {1, "C"},     {-1, "D"},
                                                       {15, "e"},   {-15, "f"},   {16, "gB"},
                                                       {511, "+f"}, {-511, "/f"}, {512, "ggB"}};
  for (const auto& [number, text] : rows) {
    PackedNumbers numbers;
    numbers.add(number);
    EXPECT_EQ(numbers.getText(), text) << number;
  }
}

TEST(PackedNumbers, EveryNumberIsFoundAgain) {
  const std::vector<std::int64_t> written = {0, -1, 31, 32, -33, 1023, -1024, 4000000000, -4000000000, 7};
  PackedNumbers numbers;
  for (const std::int64_t number : written) numbers.add(number);
  EXPECT_EQ(numbersIn(numbers.getText()), written);
}

TEST(PackedNumbers, StepsAreDifferences) {
  PackedNumbers numbers;
  for (const std::int64_t id : {5, 7, 3}) numbers.addStep(id);
  EXPECT_EQ(numbersIn(numbers.getText()), (std::vector<std::int64_t>{5, 2, -4}));
}
