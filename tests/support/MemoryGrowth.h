// MemoryGrowth: leaks where functions of C fail, which sanitizers replace by their own.
#pragma once

#include "tests/support/FailingAllocation.h"

/// Whether the action leaves memory behind, however often it is done. What is left once is a cache.
template <class Action>
bool growsEachTime(const Action& action) {
  constexpr int rounds = 3;
  for (int round = 0; round < rounds; ++round) {
    const long before = FailingAllocation::getBlocks();
    action();
    if (FailingAllocation::getBlocks() <= before) return false;
  }
  return true;
}
