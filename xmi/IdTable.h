// IdTable: the ids of one file, each text kept once under a number.
//
// Each mention of an id is looked up once, when a reference to it is noted; finding its object is then an
// array access. A number knows the first object that bears the id, since links for an id that several
// objects bear go to the first of them, and which kinds of links to the id wait for an object to be read.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "foundation/KYRString.h"
#include "foundation/TextSlots.h"

class UMLElement;

class IdTable {
 public:
  using Number = std::uint32_t;
  /// The number of the empty id, which never finds an object.
  static constexpr Number emptyId = 0;

  IdTable();
  /// The number of an id, of which the hash is known. A borrowed text must live as long as this table.
  Number intern(const KYRString& id, std::uint32_t hash);
  static std::uint32_t hashOf(const KYRString& id) noexcept {
    return TextSlots<Slot>::hashOf(id.view(), TextHash::seed());
  }
  /// Asks the processor for what `intern` and `find` will read for the id of that hash. Each reads what the
  /// one before it has asked for.
  void prefetchSlot(std::uint32_t hash) const noexcept { slots_.prefetch(hash); }
  void prefetchEntry(std::uint32_t hash) const noexcept {
    const Slot* const slot = slots_.guess(hash);
    if (slot != nullptr) __builtin_prefetch(&entry(slot->number));
  }
  void prefetchText(std::uint32_t hash) const noexcept {
    const Slot* const slot = slots_.guess(hash);
    if (slot != nullptr) __builtin_prefetch(entry(slot->number).text.getCharacters());
  }
  void prefetchBearer(std::uint32_t hash) const noexcept {
    const Slot* const slot = slots_.guess(hash);
    if (slot != nullptr) __builtin_prefetch(entry(slot->number).object);
  }
  /// An object and the number of its own class; null for an id that nobody bears.
  struct Bearer {
    UMLElement* object;
    int kind;
  };
  /// Enters an object under its id, unless one is there already or the id is empty.
  void enter(Number id, const Bearer& bearer) noexcept;
  /// Asks the processor for what `find` will read of that id.
  void prefetch(Number id) const noexcept { __builtin_prefetch(&entry(id)); }
  /// The first object entered under the id.
  Bearer find(Number id) const noexcept {
    return {entry(id).object, static_cast<int>(entry(id).kindAndMarks >> markCount)};
  }
  /// Marks that a link of that relationship kind to the id waits.
  void wait(Number id, int kind) noexcept { entry(id).kindAndMarks |= markOf(kind); }
  /// Whether a link of that kind waits; may be true of a kind that shares its mark with another one.
  bool isWaiting(Number id, int kind) const noexcept { return (entry(id).kindAndMarks & markOf(kind)) != 0; }
  const KYRString& getText(Number id) const noexcept { return entry(id).text; }
  /// Forgets all ids and gives their memory back.
  void empty();

 private:
  static constexpr int markCount = 56;
  struct Entry {
    KYRString text;
    UMLElement* object = nullptr;
    std::uint64_t kindAndMarks = 0;  // the kind of the object above the marks
  };
  // Ownership, kind 0, is noted for nearly every object and never waits but for foul files, so it has a
  // mark of its own.
  static std::uint64_t markOf(int kind) noexcept {
    return std::uint64_t{1} << (kind == 0 ? 0 : 1 + (kind - 1) % (markCount - 1));
  }
  // The hash stands beside the number, so that walking over other ids reads no entry.
  struct Slot {
    std::uint32_t hash = 0;
    Number number = emptyId;
    bool isFree() const noexcept { return number == emptyId; }
    static constexpr bool isGone() noexcept { return false; }
  };
  void addBlock();
  Entry& entry(Number id) const noexcept { return blocks_[id / blockSize][id % blockSize]; }

  // By blocks, so that a large table grows without moving.
  static constexpr Number blockSize = 1024;
  std::vector<std::unique_ptr<Entry[]>> blocks_;
  Number count_ = 1;
  TextSlots<Slot> slots_;
};
