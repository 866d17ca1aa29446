// XmlNameTable: the names of a document, each kept once and known by its number.
//
// The numbers follow the order of first occurrence. The hash has a seed that differs from run to run,
// so no file can be made to slow the table down; nothing walks it in the order of the hash.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/BlockArray.h"
#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "foundation/xml/XmlTextArena.h"

class KYR_EXPORT XmlNameTable {
 public:
  static constexpr std::uint32_t none = 0xFFFFFFFFU;

  XmlNameTable();
  /// The number of the name, which is entered if it is new; its characters then go into `arena`.
  std::uint32_t intern(std::string_view name, XmlTextArena& arena);
  /// The number of the name, or `none`.
  std::uint32_t find(std::string_view name) const noexcept;
  const KYRString& getText(std::uint32_t number) const noexcept { return names_[number]; }
  std::uint32_t getCount() const noexcept { return static_cast<std::uint32_t>(names_.size()); }
  std::size_t getMemorySize() const noexcept {
    return names_.getMemorySize() + slots_.capacity() * sizeof(Slot);
  }

 private:
  struct Slot {
    const char* characters = nullptr;
    std::uint32_t length = 0;
    std::uint32_t hash = 0;
    std::uint32_t number = none;
  };
  // The names met last. A file uses a few dozen, so most are found here for less than a hash costs.
  static constexpr std::size_t recentCount = 256;

  const Slot& findSlot(std::string_view name, std::uint32_t hash) const noexcept;
  std::uint32_t hashOf(std::string_view name) const noexcept;
  const Slot& findOrEnter(std::string_view name, XmlTextArena& arena);
  Slot& put(const Slot& slot) noexcept;

  BlockArray<KYRString> names_;
  std::vector<Slot> slots_;  // open addressing; a power of two, at most half full
  std::array<Slot, recentCount> recent_;
  std::uint64_t seed_;
};
