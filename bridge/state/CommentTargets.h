// CommentTargets: which elements a comment speaks of.
//
// Ids are compared without regard to case. A comment with many annotated elements gets an index of
// their ids at the first question, so that asking for each of them stays linear.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "uml/UMLForward.h"

class CommentTargets {
 public:
  /// True for a comment that annotates nothing, else when it annotates an element of that id.
  bool appliesTo(const UMLComment& comment, const UMLElement& element);
  /// Ids compared or hashed so far. Tests count them to show that the cost stays linear.
  std::uint64_t getComparisonCount() const noexcept { return comparisons_; }

  /// Annotated elements from which on a comment has an index.
  static constexpr unsigned int indexThreshold = 8;

 private:
  using FoldedIds = std::unordered_set<std::string>;
  const FoldedIds& indexOf(const UMLComment& comment);

  std::unordered_map<const UMLComment*, FoldedIds> indexes_;
  std::uint64_t comparisons_ = 0;
};
