// StoredClasses: which members the objects of each class have in a saved model, in their order.
#pragma once

#include <string_view>
#include <vector>

#include "repository/storage/StoredField.h"

/// One class of which objects are saved.
struct StoredClass {
  int elementType;
  std::string_view name;
  /// Makes an object; null for the model, which is there before anything is loaded.
  KYRObject* (*make)();
  /// Whether the class is a KYRElement, which has property values.
  bool isElement;
  /// Texts, numbers, flags and references, those of base classes first.
  std::vector<const StoredField*> values;
  /// Those of them that refer to one object.
  std::vector<const StoredField*> references;
  /// The lists of children, in the same order.
  std::vector<const StoredField*> lists;
};

/// The tables. They are built at the first call and live as long as the process.
class KYR_EXPORT StoredClasses {
 public:
  /// The class of that element type, of which objects must be made; see `getAll`.
  static const StoredClass& get(int elementType);
  /// The class of that name; null when objects of none such are saved.
  static const StoredClass* find(std::string_view name);
  static const std::vector<StoredClass>& getAll();
};
