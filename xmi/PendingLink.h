// PendingLink: a reference noted during the read, resolved when the whole file is known.
#pragma once

#include <cstdint>

#include "xmi/IdTable.h"

struct PendingLink {
  IdTable::Number first;
  IdTable::Number second;
  std::int32_t kind;  // relationship kind: row number of UMLMetamodel::linkRows
};
