// StoredWalk: the order of a saved model: each object, then its lists of children one after the other.
// It needs memory for the objects above the present one only, and no recursion.
#pragma once

#include <vector>

#include "repository/storage/StoredClasses.h"

/// The visitor has `enter(object, class)`, `leave()`, `beginList(field)` and `endList()`. A list without
/// entries is passed over.
template <class Visitor>
void walkStored(const KYRObject& root, Visitor& visitor) {
  struct Level {
    const KYRObject* object;
    const StoredClass* stored;
    std::size_t list = 0;
    unsigned int entry = 0;
  };
  std::vector<Level> way;
  const auto enter = [&](const KYRObject& object) {
    const StoredClass& stored = StoredClasses::get(object.getElementType());
    visitor.enter(object, stored);
    way.push_back({&object, &stored});
  };
  enter(root);
  while (!way.empty()) {
    Level& level = way.back();
    if (level.list == level.stored->lists.size()) {
      visitor.leave();
      way.pop_back();
      continue;
    }
    const StoredField& field = *level.stored->lists[level.list];
    const KYRSdkCollection* const list = field.getList(*level.object);
    const unsigned int count = list == nullptr ? 0 : list->getCount();
    if (level.entry < count) {
      if (level.entry == 0) visitor.beginList(field);
      enter(*(*list)[level.entry++]);
    } else {
      if (count != 0) visitor.endList();
      ++level.list;
      level.entry = 0;
    }
  }
}
