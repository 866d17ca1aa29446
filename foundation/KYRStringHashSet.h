// KYRStringHashSet: a set of texts, compared exactly.
#pragma once

#include <string>
#include <unordered_set>

#include "foundation/KYRString.h"

class KYR_EXPORT KYRStringHashSet {
 public:
  /// Room for about `capacity` texts.
  explicit KYRStringHashSet(int capacity);
  /// False when the text was present.
  bool add(const KYRString& text);
  bool contains(const KYRString& text) const;
  void clear();

 private:
  std::unordered_set<std::string> texts_;
};
