// BackgroundSink: the target gets the blocks in order, and what it raises comes out.
#include "repository/storage/BackgroundSink.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

class Collector : public BlockSink {
 public:
  void write(std::string_view block) override {
    if (blocksBeforeRaise == 0) throw std::runtime_error("full");
    --blocksBeforeRaise;
    text += block;
  }
  std::string text;
  int blocksBeforeRaise = -1;  // never
};

std::string blockNumber(int number) { return std::string(1000, static_cast<char>('a' + number % 26)); }

TEST(BackgroundSink, BlocksArriveInOrder) {
  for (const int count : {0, 1, 2, 3, 500}) {
    Collector target;
    std::string expected;
    BackgroundSink sink(target);
    for (int i = 0; i < count; ++i) {
      sink.write(blockNumber(i));
      expected += blockNumber(i);
    }
    sink.finish();
    EXPECT_TRUE(target.text == expected) << count;
  }
}

TEST(BackgroundSink, WhatTheTargetRaisesComesOutOfALaterBlockOrOfTheEnd) {
  for (const int good : {0, 1, 2, 10, 99}) {
    Collector target;
    target.blocksBeforeRaise = good;
    BackgroundSink sink(target);
    EXPECT_THROW(
        {
          for (int i = 0; i < 100; ++i) sink.write(blockNumber(i));
          sink.finish();
        },
        std::runtime_error)
        << good;
    EXPECT_EQ(target.text.size(), 1000U * static_cast<unsigned int>(good));
  }
}

TEST(BackgroundSink, EndsWithoutBeingFinished) {
  Collector target;
  {
    BackgroundSink sink(target);
    for (int i = 0; i < 5; ++i) sink.write(blockNumber(i));
  }
  EXPECT_GE(target.text.size(), 1000U);
}

}  // namespace
