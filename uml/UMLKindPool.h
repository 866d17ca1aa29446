// UMLKindPool: owner of the kind objects that the readers make. They live as long as the pool.
#pragma once

#include <deque>
#include <tuple>

#include "uml/UMLKinds.h"

class UMLKindPool {
 public:
  /// A new kind object of class `Kind`, made from the attribute's text.
  template <class Kind>
  Kind* make(const KYRString& text) {
    return &std::get<std::deque<Kind>>(kinds_).emplace_back(text);
  }

 private:
  std::tuple<std::deque<UMLVisibilityKind>, std::deque<UMLAggregationKind>,
             std::deque<UMLCallConcurrencyKind>, std::deque<UMLMessageKind>, std::deque<UMLMessageSort>,
             std::deque<UMLParameterDirectionKind>>
      kinds_;
};
