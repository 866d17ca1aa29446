// StoredRows: what each class declares to be saved. A row stands with the class that declares the
// member; the classes that derive from it take it over.
#pragma once

#include <cstddef>

#include "repository/storage/StoredField.h"

struct StoredRows {
  int elementType;
  const StoredField* rows;
  std::size_t count;
};

/// The rows that the class of this element type declares itself; null when it declares none.
const StoredRows* findStoredRows(int elementType);
