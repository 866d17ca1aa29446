// TypeIndex: the types of a model by name, length and scale.
//
// Names are told apart without regard to case, and what counts are the values that a type has, not
// those that were asked for when it was made. Of equal types the first in the model is found. Types
// that join the model are indexed at the next question, so nobody has to tell the index of them; a
// type that is indexed must not be renamed.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "foundation/KYRString.h"
#include "repository/model/KYRModelForward.h"

class TypeIndex {
 public:
  TypeIndex() = default;
  TypeIndex(const TypeIndex&) = delete;
  TypeIndex& operator=(const TypeIndex&) = delete;
  /// The first such type of the model, or null. Class types have no length and are never found.
  KYRConcreteType* find(const KYRModel& model, const KYRString& name, int length, int scale, int elementType);
  /// Types indexed and keys compared so far. Tests count them to show that the cost stays linear.
  std::uint64_t getComparisonCount() const noexcept { return comparisons_; }

 private:
  struct Key {
    std::string foldedName;
    int length;
    int scale;
    int elementType;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const noexcept;
  };
  struct Equal {
    std::uint64_t* comparisons;
    bool operator()(const Key& first, const Key& second) const noexcept;
  };
  using Types = std::unordered_map<Key, KYRConcreteType*, Hash, Equal>;

  void catchUp();

  const KYRModel* model_ = nullptr;
  unsigned int indexed_ = 0;  // types at the front of the model that are in the index
  std::uint64_t comparisons_ = 0;
  Types types_{0, Hash{}, Equal{&comparisons_}};
};
