// KYROwnedLists: the collections of one object that own other objects, in the order of a traversal.
#pragma once

#include <array>

#include "repository/model/KYRModelForward.h"

/// Room for all lists that any class has, so that taking a model down allocates nothing.
class KYROwnedLists {
 public:
  static constexpr unsigned int capacity = 6;
  /// Passes over a list that does not exist yet.
  void add(KYRSdkCollection* list) noexcept {
    if (list != nullptr) lists_[count_++] = list;
  }
  KYRSdkCollection* const* begin() const noexcept { return lists_.data(); }
  KYRSdkCollection* const* end() const noexcept { return lists_.data() + count_; }
  unsigned int getCount() const noexcept { return count_; }
  KYRSdkCollection* operator[](unsigned int index) const noexcept { return lists_[index]; }

 private:
  std::array<KYRSdkCollection*, capacity> lists_;
  unsigned int count_ = 0;
};
