// KYRHashtable: an array of entries in order of adding, and buckets of links into it.
//
// A bucket chains one entry for each key, the key's leader; further objects of the key form a list
// behind the leader. So looking up and adding never walk through equal keys, however many there are.
// Removal leaves a gap in the array, which keeps the positions of walks valid.
#include "foundation/KYRHashtable.h"

#include <algorithm>
#include <bit>
#include <new>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace {

constexpr std::size_t smallestTable = 8;

std::size_t bucketsFor(std::size_t count) noexcept { return std::bit_ceil(std::max(count, smallestTable)); }

std::uint32_t hashAddress(const void* object) noexcept {
  const auto bits = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(object));
  return static_cast<std::uint32_t>(bits ^ (bits >> 32));
}

}  // namespace

// Slots by address, for removals that the chains cannot serve quickly: an object somewhere among
// many of its key, or one without a findable key. Made when first needed. Slots are never used
// twice while it lives, so entries of removed objects may linger: their slot shows a gap.
class KYRHashtable::AddressIndex {
 public:
  explicit AddressIndex(const std::vector<Entry>& entries) {
    slots_.reserve(entries.size());
    for (std::size_t slot = 0; slot < entries.size(); ++slot) {
      if (entries[slot].object != nullptr) insert(entries[slot].object, static_cast<std::uint32_t>(slot));
    }
  }
  void insert(const void* object, std::uint32_t slot) { slots_.emplace(object, slot); }
  std::uint32_t take(const void* object, const std::vector<Entry>& entries) {
    for (auto found = slots_.find(object); found != slots_.end(); found = slots_.find(object)) {
      const std::uint32_t slot = found->second;
      slots_.erase(found);
      if (entries[slot].object == object) return slot;
    }
    return none;
  }

 private:
  std::unordered_multimap<const void*, std::uint32_t> slots_;
};

class KYRHashtable::TableIterator : public KYRContainer::Iterator {
 public:
  explicit TableIterator(const KYRHashtable& table) noexcept : table_(&table), slot_(table.firstSlot_) {
    skipGaps();
  }
  const void* get() const override { return table_->getAt(slot_); }
  bool next() override {
    if (slot_ < table_->getSlotCount()) ++slot_;
    skipGaps();
    return slot_ < table_->getSlotCount();
  }

 private:
  friend class KYRHashtable;
  void skipGaps() noexcept {
    while (slot_ < table_->getSlotCount() && table_->getAt(slot_) == nullptr) ++slot_;
  }
  const KYRHashtable* table_;
  unsigned int slot_;
};

KYRHashtable::KYRHashtable(int bucketCount, Hashing hashing)
    : wantedBuckets_(
          static_cast<std::uint32_t>(bucketsFor(static_cast<std::size_t>(std::max(bucketCount, 0))))),
      hashing_(hashing) {}

KYRHashtable::KYRHashtable(const KYRHashtable& other)
    : _KYRContainer(other),
      KYRContainer(other),
      entries_(other.entries_),
      buckets_(other.buckets_),
      wantedBuckets_(other.wantedBuckets_),
      count_(other.count_),
      firstSlot_(other.firstSlot_),
      hashing_(other.hashing_),
      waiting_(other.waiting_) {}

KYRHashtable::~KYRHashtable() = default;

void KYRHashtable::empty() {
  entries_.clear();
  buckets_.clear();
  count_ = 0;
  firstSlot_ = 0;
  addresses_.reset();
  waiting_.clear();
}

KYRContainer::Iterator* KYRHashtable::newIterator(bool /*forward*/) const { return new TableIterator(*this); }

void KYRHashtable::deleteIterator(Iterator* iterator) const { delete iterator; }

// Looking up hashes what waits, which adds it anew: once, since nothing waits any more by then.
// NOLINTBEGIN(misc-no-recursion)
bool KYRHashtable::add(const void* object, bool unique, Iterator* /*position*/) {
  if (object == nullptr) return false;
  if (!unique && hashing_ == Hashing::atFirstLookup && buckets_.empty()) {
    makeRoomForOne(waiting_);
    waiting_.push_back(object);
    ++count_;
    return true;
  }
  requireHashes();  // before the object's own hash, so that a failure is told in order
  const std::uint32_t hash = hashObject(object);
  const bool isChained = compare2Object(object, object) == 0;
  const std::uint32_t leader = isChained ? findEqual(object, hash) : none;
  if (unique && leader != none) return false;

  if (buckets_.empty()) {
    rebuildBuckets(wantedBuckets_);
  } else if (count_ >= buckets_.size()) {
    resize(static_cast<int>(std::min<std::size_t>(buckets_.size() * 2, std::size_t{1} << 30)));
  }
  makeRoomForOne(entries_);
  if (addresses_) addresses_->insert(object, static_cast<std::uint32_t>(entries_.size()));
  append(object, hash, isChained, leader);
  return true;
}

template <class List>
void KYRHashtable::makeRoomForOne(List& list) {
  if (list.size() >= none) throw std::length_error("KYRHashtable: too many entries");
  if (list.size() == list.capacity()) list.reserve(std::max(list.size() * 2, smallestTable));
}

// The objects keep their slots, since a walk may be under way.
void KYRHashtable::hashWaiting() {
  std::vector<const void*> waiting;
  waiting.swap(waiting_);
  const std::uint32_t count = std::exchange(count_, 0);
  try {
    rebuildBuckets(std::max<std::size_t>(wantedBuckets_, bucketsFor(count)));
    entries_.reserve(count);
    for (const void* object : waiting) KYRHashtable::add(object, false, nullptr);
  } catch (...) {
    buckets_.clear();
    entries_.clear();
    waiting.swap(waiting_);
    count_ = count;
    throw;
  }
}

// What can be observed of the table stays the same.
void KYRHashtable::requireHashes() const {
  if (!waiting_.empty()) const_cast<KYRHashtable*>(this)->hashWaiting();
}

bool KYRHashtable::contains(const void* object, Iterator* /*position*/) const {
  return object != nullptr && findEqual(object, hashObject(object)) != none;
}

const void* KYRHashtable::findFirst(const void* key, Iterator* /*position*/) const {
  const std::uint32_t slot = findKey(key);
  return slot == none ? nullptr : entries_[slot].object;
}

const void* KYRHashtable::remove(Iterator* position) {
  requireHashes();
  auto* const iterator = dynamic_cast<TableIterator*>(position);
  if (iterator == nullptr || iterator->table_ != this) return nullptr;
  const void* const object = iterator->get();
  if (object != nullptr) removeSlot(iterator->slot_);
  iterator->skipGaps();
  return object;
}

int KYRHashtable::compare2Object(const void* first, const void* second) const {
  return first == second ? 0 : 1;
}

int KYRHashtable::compare2Key(const void* object, const void* key) const { return object == key ? 0 : 1; }

unsigned int KYRHashtable::hashObject(const void* object) const { return hashAddress(object); }

unsigned int KYRHashtable::hashKey(const void* key) const { return hashAddress(key); }

// NOLINTNEXTLINE(misc-unconventional-assign-operator): see the header
KYRHashtable& KYRHashtable::operator=(const KYRHashtable& other) {
  if (this == &other) return *this;
  const auto exchange = [this](KYRHashtable& with) noexcept {
    entries_.swap(with.entries_);
    buckets_.swap(with.buckets_);
    std::swap(count_, with.count_);
    std::swap(firstSlot_, with.firstSlot_);
    addresses_.swap(with.addresses_);
    waiting_.swap(with.waiting_);
  };
  // The old content waits aside; whatever stands here at the end of an unfinished copy is dropped.
  KYRHashtable aside(static_cast<int>(smallestTable));
  exchange(aside);
  struct Restore {
    decltype(exchange)& undo;
    KYRHashtable* old;
    ~Restore() {
      if (old != nullptr) undo(*old);
    }
  } restore{exchange, &aside};
  entries_.reserve(other.count_);
  rebuildBuckets(std::max<std::size_t>(wantedBuckets_, bucketsFor(other.count_)));
  for (unsigned int slot = 0; slot < other.getSlotCount(); ++slot) {
    KYRHashtable::add(other.getAt(slot), false, nullptr);
  }
  restore.old = nullptr;
  return *this;
}

bool KYRHashtable::operator==(const KYRHashtable& other) const {
  if (count_ != other.count_) return false;
  TableIterator mine(*this);
  TableIterator theirs(other);
  while (mine.get() != nullptr && mine.get() == theirs.get()) {
    mine.next();
    theirs.next();
  }
  return mine.get() == theirs.get();
}

bool KYRHashtable::operator!=(const KYRHashtable& other) const { return !(*this == other); }

void KYRHashtable::resize(int bucketCount) {
  const auto wanted = static_cast<std::size_t>(std::max(bucketCount, 0));
  rebuildBuckets(bucketsFor(std::max<std::size_t>(wanted, count_)));
}

unsigned int KYRHashtable::getFirstSlot(const void* key) const {
  static_assert(noSlot == none);
  return findKey(key);
}

const void* KYRHashtable::removeKey(const void* key) {
  const std::uint32_t slot = findKey(key);
  if (slot == none) return nullptr;
  const void* const object = entries_[slot].object;
  removeAndCompact(slot);
  return object;
}

bool KYRHashtable::removeObject(const void* object) {
  const std::uint32_t slot = object == nullptr ? none : findObject(object);
  if (slot == none) return false;
  removeAndCompact(slot);
  return true;
}

// Keys with few distinct low bits are common, so the hash is multiplied and its upper bits count.
std::uint32_t* KYRHashtable::bucketOf(std::uint32_t hash) noexcept {
  const std::uint64_t spread = hash * std::uint64_t{0x9E3779B97F4A7C15U};
  return &buckets_[static_cast<std::size_t>(spread >> 32) & (buckets_.size() - 1)];
}

template <class IsEqual>
std::uint32_t KYRHashtable::findLeader(std::uint32_t hash, IsEqual isEqual) const {
  requireHashes();
  if (buckets_.empty()) return none;
  std::uint32_t slot = *const_cast<KYRHashtable*>(this)->bucketOf(hash);
  while (slot != none && !(entries_[slot].hash == hash && isEqual(entries_[slot].object))) {
    slot = entries_[slot].link;
  }
  return slot;
}

std::uint32_t KYRHashtable::findEqual(const void* object, std::uint32_t hash) const {
  return findLeader(hash, [&](const void* present) { return compare2Object(present, object) == 0; });
}

std::uint32_t KYRHashtable::findKey(const void* key) const {
  return findLeader(hashKey(key), [&](const void* present) { return compare2Key(present, key) == 0; });
}
// NOLINTEND(misc-no-recursion)

// The slot of this very object. A few steps from both ends of the list of its key find it nearly
// always; the rest is left to an index, so that no order of removals gets slow.
std::uint32_t KYRHashtable::findObject(const void* object) {
  constexpr int fewSteps = 4;
  const std::uint32_t leader = findEqual(object, hashObject(object));
  if (leader != none) {
    std::uint32_t front = leader;
    std::uint32_t back = entries_[leader].lastEqual;
    for (int step = 0; step < fewSteps && front != none; ++step) {
      if (entries_[front].object == object) return front;
      if (entries_[back].object == object) return back;
      front = entries_[front].nextEqual;
      if (back != leader) back = entries_[back].link;
    }
  }
  if (!addresses_) addresses_ = std::make_unique<AddressIndex>(entries_);
  return addresses_->take(object, entries_);
}

void KYRHashtable::rebuildBuckets(std::size_t bucketCount) {
  std::vector<std::uint32_t> buckets(bucketCount, none);
  buckets_.swap(buckets);
  for (std::size_t slot = 0; slot < entries_.size(); ++slot) {
    Entry& entry = entries_[slot];
    if (entry.lastEqual == none) continue;
    std::uint32_t* const bucket = bucketOf(entry.hash);
    entry.link = std::exchange(*bucket, static_cast<std::uint32_t>(slot));
  }
}

// Room for the entry has been made before.
void KYRHashtable::append(const void* object, std::uint32_t hash, bool isChained,
                          std::uint32_t leader) noexcept {
  const auto slot = static_cast<std::uint32_t>(entries_.size());
  Entry entry{object, hash, none, none, none};
  if (leader != none) {
    const std::uint32_t last = std::exchange(entries_[leader].lastEqual, slot);
    entries_[last].nextEqual = slot;
    entry.link = last;
  } else if (isChained) {
    entry.link = std::exchange(*bucketOf(hash), slot);
    entry.lastEqual = slot;
  }
  entries_.push_back(entry);
  ++count_;
}

void KYRHashtable::removeSlot(std::uint32_t slot) noexcept {
  const Entry removed = std::exchange(entries_[slot], Entry{nullptr, 0, none, none, none});
  const std::uint32_t next = removed.nextEqual;
  if (removed.lastEqual != none) {  // a leader: the next equal takes its place in the chain
    std::uint32_t* place = bucketOf(removed.hash);
    while (*place != slot) place = &entries_[*place].link;
    *place = next != none ? next : removed.link;
    if (next != none) {
      entries_[next].link = removed.link;
      entries_[next].lastEqual = removed.lastEqual;
    }
  } else if (removed.link != none) {  // behind a leader
    entries_[removed.link].nextEqual = next;
    if (next != none) {
      entries_[next].link = removed.link;
    } else {
      std::uint32_t leader = *bucketOf(removed.hash);
      while (entries_[leader].lastEqual != slot) leader = entries_[leader].link;
      entries_[leader].lastEqual = removed.link;
    }
  }
  --count_;
  while (firstSlot_ < entries_.size() && entries_[firstSlot_].object == nullptr) ++firstSlot_;
}

void KYRHashtable::removeAndCompact(std::uint32_t slot) noexcept {
  removeSlot(slot);
  if (entries_.size() - count_ > count_) compact();
}

// Closes the gaps; the order stays. When memory is short the gaps stay: they only cost room.
void KYRHashtable::compact() noexcept {
  const std::unique_ptr<std::uint32_t[]> moved(new (std::nothrow) std::uint32_t[entries_.size()]);
  if (!moved) return;
  std::uint32_t objects = 0;
  for (std::size_t slot = 0; slot < entries_.size(); ++slot) {
    moved[slot] = objects;
    if (entries_[slot].object != nullptr) entries_[objects++] = entries_[slot];
  }
  entries_.resize(objects);
  const auto follow = [&moved](std::uint32_t& link) {
    if (link != none) link = moved[link];
  };
  for (Entry& entry : entries_) {
    follow(entry.link);
    follow(entry.nextEqual);
    follow(entry.lastEqual);
  }
  std::for_each(buckets_.begin(), buckets_.end(), follow);
  firstSlot_ = 0;
  addresses_.reset();
}
