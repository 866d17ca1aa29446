// KYRUniqueNumbers: the smallest free number for each name that was taken and had to be numbered.
//
// Next to the numbers handed out it keeps those that became free again, so that neither many equal
// names nor removals and renamings among them cost a search from 1.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "foundation/KYRString.h"

/// Internal to the repository.
class KYR_EXPORT KYRUniqueNumbers {
 public:
  /// `name`, the separator, and the smallest number from 1 of which the name is not taken.
  KYRString makeName(const KYRString& name, char separator,
                     const std::function<bool(std::string_view)>& isTaken);
  /// To be told of every name that is given up.
  void release(std::string_view name) noexcept;

 private:
  using Number = std::uint64_t;
  struct Numbers {
    Number next = 1;        // every smaller one is taken or among the free ones
    std::set<Number> free;  // may hold some that are taken again
  };
  std::unordered_map<std::string, Numbers> byStem_;  // the name and its separator
};
