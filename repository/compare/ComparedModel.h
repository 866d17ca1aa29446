// ComparedModel: one of two models that are compared, as a list of its objects in the order of the
// document, and for each its partner in the other model.
#pragma once

#include <vector>

#include "repository/storage/StoredNumbers.h"
#include "repository/storage/StoredWalk.h"

class ComparedModel {
 public:
  using Index = std::uint32_t;
  static constexpr Index none = 0xFFFFFFFF;

  struct Node {
    const KYRObject* object;
    const StoredClass* stored;
    Index parent;
    Index partner = none;
    Index firstChild = none;
    Index nextSibling = none;
  };

  explicit ComparedModel(const KYRStoreModel& model);

  std::vector<Node> nodes;
  /// The place of an object; `none` for null and for an object that the model does not hold.
  Index find(const KYRObject* object) const noexcept {
    const unsigned int number = numbers_.get(object);
    return number == 0 ? none : number - 1;
  }

 private:
  struct Listing;
  StoredNumbers numbers_;
};
