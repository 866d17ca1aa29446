// ModelMatching: finds for each object of one model its partner in another.
#pragma once

#include <cstdint>

#include "repository/compare/ComparedModel.h"

class ModelMatching {
 public:
  /// Sets the partners in both. The models themselves are partners.
  static ModelMatching match(ComparedModel& before, ComparedModel& after);
  std::uint64_t steps = 0;

 private:
  ModelMatching(ComparedModel& before, ComparedModel& after) : before_(before), after_(after) {}
  using Index = ComparedModel::Index;
  void join(Index before, Index after);
  void matchIds(bool isSameOwner);
  void matchNames(Index before, bool isAlike);

  ComparedModel& before_;
  ComparedModel& after_;
};
