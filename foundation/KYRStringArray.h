// KYRStringArray: a list of texts. The attribute list of a start event is one, with names and
// values in turn, so its count is even.
#pragma once

#include <vector>

#include "foundation/KYRString.h"

class KYR_EXPORT KYRStringArray {
 public:
  KYRStringArray() = default;
  /// Appends an owning copy.
  void add(const KYRString& text) { texts_.push_back(text); }
  /// Appends a view of the characters of `text`, which must outlive their use here.
  void addBorrowed(const KYRString& text) { texts_.emplace_back().borrow(text); }
  /// The text at a position from 0; the empty text beyond the end.
  const KYRString& get(unsigned int index) const noexcept {
    return index < texts_.size() ? texts_[index] : KYRString::getEmptyString();
  }
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(texts_.size()); }
  /// Removes all texts and keeps the room for the next ones.
  void clear() noexcept { texts_.clear(); }

 private:
  std::vector<KYRString> texts_;
};
