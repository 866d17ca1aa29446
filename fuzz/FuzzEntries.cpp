// The list of entries.
#include "fuzz/FuzzEntries.h"

std::span<const FuzzEntry> getFuzzEntries() noexcept {
  static constexpr FuzzEntry entries[] = {
      {"xml", fuzzXml},          {"import", fuzzImport},   {"normalized", fuzzNormalizedImport},
      {"href", fuzzHref},        {"numbers", fuzzNumbers}, {"types", fuzzTypeNames},
      {"saved", fuzzSavedModel},
  };
  return entries;
}
