// KYRNameIndex: objects by their names, by hash.
//
// Objects that share a name stand in a list of their own behind it, in the order in which they were
// added here; neither lookups nor changes slow down when many do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/Export.h"
#include "foundation/TextSlots.h"
#include "repository/model/KYRModelForward.h"

class KYRObjectList;

/// Internal to the repository. An object must leave the index before its name changes.
class KYR_EXPORT KYRNameIndex {
 public:
  KYRNameIndex();
  KYRNameIndex(const KYRNameIndex&) = delete;
  KYRNameIndex& operator=(const KYRNameIndex&) = delete;
  ~KYRNameIndex();

  /// What a caller asks of an object beyond its name.
  using Condition = bool (*)(const KYRObject& object, int argument);
  /// The first object of that name; null when there is none.
  KYRObject* find(std::string_view name) const noexcept;
  /// The first object of that name that fulfils the condition; null when there is none.
  KYRObject* find(std::string_view name, Condition condition, int argument) const;
  void add(KYRObject* object);
  void remove(const KYRObject* object) noexcept;
  /// Groups of slots, and entries of lists of one name, looked at so far.
  std::uint64_t getProbeCount() const noexcept { return probes_ + slots_.getProbeCount(); }

 private:
  // In `holder` the only object of the name, or the list of several with the lowest bit set.
  struct Slot {
    std::uint32_t hash = 0;
    std::uintptr_t holder = 0;

    bool isFree() const noexcept { return holder == 0; }
    bool isGone() const noexcept;
    KYRObjectList* getGroup() const noexcept;  // null while one object has the name
    KYRObject* getFirst() const noexcept;      // null when there is none
    void set(KYRObject* only) noexcept;
    void set(KYRObjectList* group) noexcept;
  };
  Slot& seek(std::string_view name, std::uint32_t hash) noexcept;
  const Slot& seek(std::string_view name) const noexcept;

  TextSlots<Slot> slots_;
  mutable std::uint64_t probes_ = 0;  // those in lists of one name
};
