// PendingLink: a reference noted during the read that waits for the rest of the file.
#pragma once

#include <cstdint>

#include "xmi/IdTable.h"

struct PendingLink {
  IdTable::Number first;
  IdTable::Number second;
  std::int32_t kind;  // relationship kind: row number of UMLMetamodel::linkRows
};
