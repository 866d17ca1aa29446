// KYRNameIndex: objects by their names, by hash.
//
// Objects that share a name stand in a list of their own behind it, in the order in which they were
// added here; neither lookups nor changes slow down when many do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/Export.h"
#include "repository/model/KYRModelForward.h"

class KYRObjectList;

/// Internal to the repository. An object must leave the index before its name changes.
class KYR_EXPORT KYRNameIndex {
 public:
  KYRNameIndex() noexcept;
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
  std::uint64_t getProbeCount() const noexcept { return probes_; }

 private:
  // In `holder` the only object of the name, or the list of several with the lowest bit set.
  struct Slot {
    std::uint32_t hash = 0;
    std::uintptr_t holder = 0;  // 0 in a free slot

    bool isFree() const noexcept { return holder == 0; }
    KYRObjectList* getGroup() const noexcept;  // null while one object has the name
    KYRObject* getFirst() const noexcept;      // null in a free slot
    void set(KYRObject* only) noexcept;
    void set(KYRObjectList* group) noexcept;
  };
  std::size_t seek(std::string_view name, std::uint32_t hash) const noexcept;
  void rehash(std::size_t slotCount);
  void free(std::size_t hole) noexcept;

  std::vector<Slot> slots_;  // a power of two, at most 2/3 used
  std::size_t count_ = 0;    // names
  mutable std::uint64_t probes_ = 0;
};
