// BackgroundQueue: what is given is taken in order, and what goes wrong comes out. BackgroundSinkTest tries
// the ways in which it ends.
#include "repository/storage/BackgroundQueue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using Numbers = std::vector<int>;

TEST(BackgroundQueue, ItemsAreTakenInOrderAndUsedAgain) {
  for (const std::size_t places : {1U, 2U, 7U}) {
    Numbers taken;
    std::size_t filledBefore = 0;
    {
      BackgroundQueue<Numbers> queue(places, Numbers(), [&taken](const Numbers& item) {
        taken.insert(taken.end(), item.begin(), item.end());
      });
      for (int i = 0; i < 100; ++i) {
        queue.give([&](Numbers& item) {
          filledBefore += item.empty() ? 0 : 1;
          item = {2 * i, 2 * i + 1};
        });
      }
      queue.wait();
      EXPECT_EQ(taken.size(), 200U);
      queue.give([](Numbers& item) { item = {200}; });
      queue.wait();
    }
    Numbers expected(201);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(taken, expected);
    EXPECT_EQ(filledBefore, 100 - places);
  }
}

TEST(BackgroundQueue, NothingGivenIsNothingToWaitFor) {
  BackgroundQueue<int> queue(2, 0, [](int) { FAIL(); });
  queue.wait();
}

TEST(BackgroundQueue, WhatWaitsAtTheEndIsDropped) {
  std::promise<void> isTaking;
  std::promise<void> mayGoOn;
  int taken = 0;
  std::thread other;
  {
    BackgroundQueue<int> queue(8, 0, [&](int) {
      if (++taken == 1) isTaking.set_value();
      mayGoOn.get_future().wait();
    });
    for (int i = 0; i < 8; ++i) queue.give([i](int& item) { item = i; });
    isTaking.get_future().wait();
    other = std::thread([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      mayGoOn.set_value();
    });
  }
  other.join();
  EXPECT_EQ(taken, 1);
}

TEST(BackgroundQueue, WhatIsNotFilledIsNotGiven) {
  Numbers taken;
  BackgroundQueue<int> queue(2, 0, [&taken](int item) { taken.push_back(item); });
  for (int i = 0; i < 6; ++i) {
    const auto fill = [i](int& item) {
      if (i % 2 == 0) throw std::runtime_error("even");
      item = i;
    };
    if (i % 2 == 0) {
      EXPECT_THROW(queue.give(fill), std::runtime_error);
    } else {
      queue.give(fill);
    }
  }
  queue.wait();
  EXPECT_EQ(taken, (Numbers{1, 3, 5}));
}

TEST(BackgroundQueue, AFailureComesOutOfTheWait) {
  int taken = 0;
  BackgroundQueue<int> queue(4, 0, [&taken](int item) {
    if (item == 2) throw std::runtime_error("two");
    ++taken;
  });
  for (const int number : {1, 2}) queue.give([number](int& item) { item = number; });
  EXPECT_THROW(queue.wait(), std::runtime_error);
  EXPECT_THROW(queue.give([](int& item) { item = 3; }), std::runtime_error);
  EXPECT_EQ(taken, 1);
}

}  // namespace
