// IdTable: the ids of one file, each text kept once under a number.
//
// References are noted while the file is read and resolved afterwards. Each mention of an id is
// looked up once, when it is noted; resolving is then an array access. A number knows the first
// object that bears the id, since links for an id that several objects bear go to the first of them.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/KYRString.h"

class UMLElement;

class IdTable {
 public:
  using Number = std::uint32_t;
  /// The number of the empty id, which never finds an object.
  static constexpr Number emptyId = 0;

  IdTable();
  /// The number of that id. A borrowed text must live as long as this table.
  Number intern(const KYRString& id);
  /// Enters an object under its id, unless one is there already or the id is empty.
  void enter(Number id, UMLElement* object) noexcept;
  /// Asks the processor for what `find` will read of that id.
  void prefetch(Number id) const noexcept { __builtin_prefetch(&entries_[id]); }
  /// The first object entered under the id, or null.
  UMLElement* find(Number id) const noexcept { return entries_[id].object; }
  const KYRString& getText(Number id) const noexcept { return entries_[id].text; }
  /// Forgets all ids and gives their memory back.
  void empty();

 private:
  struct Entry {
    KYRString text;
    UMLElement* object = nullptr;
  };
  // The hash stands beside the number, so that walking over other ids reads no entry.
  struct Slot {
    std::uint32_t hash = 0;
    Number number = emptyId;  // emptyId: free
  };
  Slot& findFree(std::uint32_t hash) noexcept;
  void grow();

  std::vector<Entry> entries_;
  std::vector<Slot> slots_;  // open addressing; a power of two, at most half full
};
