// The table is searched from the top.
#include "extension/StandardTypes.h"

namespace {

struct Row {
  const char* id;
  const char* name;
};

constexpr Row rows[] = {
    {"_m8qbBa86EdiEh75YJ_3n8g", "Integer"},  {"_m8qbBq86EdiEh75YJ_3n8g", "Boolean"},
    {"_m8qbB686EdiEh75YJ_3n8g", "String"},   {"_m8qbCK86EdiEh75YJ_3n8g", "UnlimitedNatural"},
    {"_m8qbCa86EdiEh75YJ_3n8g", "Sequence"}, {"_m8qbCq86EdiEh75YJ_3n8g", "Set"},
};

}  // namespace

const char* StandardTypes::nameOf(const KYRString& id) noexcept {
  for (const Row& row : rows) {
    if (id.view() == row.id) return row.name;
  }
  return nullptr;
}

const char* StandardTypes::idOf(const KYRString& name) noexcept {
  for (const Row& row : rows) {
    if (name.view() == row.name) return row.id;
  }
  return nullptr;
}
