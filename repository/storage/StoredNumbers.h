// StoredNumbers: the id of each object of a model that is being saved: its place in the document.
#pragma once

#include <cstdint>

#include "foundation/BlockArray.h"
#include "repository/model/KYRStoreModel.h"

class KYR_EXPORT StoredNumbers {
 public:
  enum class Use { alone, shared };
  /// Numbers all that the model holds, from 1. The model must not change while the numbers are used, and
  /// unless their use is `shared`, which makes `get` slower, nobody else may number it meanwhile.
  StoredNumbers(const KYRStoreModel& model, Use use);
  /// 0 for null and for an object that the model does not hold.
  unsigned int get(const KYRObject* object) const noexcept;
  /// Asks memory for what `get` will read of an object, or of null.
  void prefetch(const KYRObject* object) const noexcept { __builtin_prefetch(scratchOf(object)); }
  /// The object of a number from 1 to `getCount()`.
  const KYRObject* at(unsigned int number) const { return objects_[number - 1]; }
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(objects_.size()); }

 private:
  struct Numbering;
  static const void* scratchOf(const KYRObject* object) noexcept {
    return object == nullptr ? nullptr : &object->scratch_;
  }
  // An object keeps its number itself, below the mark of the numbering it stems from. No mark is used
  // twice in a process but after two thousand million others, and none looks like a pointer, which may
  // stand in the same place. Where their use is shared the list tells them from those of others.
  std::uint64_t mark_;
  bool isShared_;
  BlockArray<const KYRObject*> objects_;
};
