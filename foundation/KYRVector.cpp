// KYRVector: an array of pointers, and from some size on an index of them on the side.
//
// What is known of the pointers is made when a large list is first asked whether it holds one, and kept up
// to date from then on; lists that nobody asks never pay for it. At first that is the runs of their
// addresses, which serve while entries are new and come in the order of memory. The first question that they
// cannot answer turns them into an open-addressing table of pointers with the number of times each stands in
// the list (adding without `unique` may repeat one).
#include "foundation/KYRVector.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <new>
#include <utility>

#include "foundation/AddressRuns.h"

class KYRVector::PointerIndex {
 public:
  explicit PointerIndex(const std::vector<const void*>& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (!runs_.makeRoom(entries[i], i)) {
        hash(entries);
        return;
      }
      runs_.add(entries[i]);
    }
  }

  bool contains(const std::vector<const void*>& entries, const void* entry, std::uint64_t& probes) {
    if (slots_.empty()) {
      if (runs_.excludes(entry, probes)) return false;
      if (entries.back() == entry) return true;
      hash(entries);
    }
    for (std::size_t at = home(entry);; at = after(at)) {
      ++probes;
      if (slots_[at].count == 0) return false;
      if (slots_[at].entry == entry) return true;
    }
  }

  /// Makes room for one more pointer. The next `insert` then allocates nothing.
  void makeRoom(const std::vector<const void*>& entries, const void* entry) {
    if (slots_.empty()) {
      if (runs_.makeRoom(entry, entries.size())) return;
      hash(entries);
    }
    if ((used_ + 1) * 2 <= slots_.size()) return;  // half full: a search takes two or three probes
    std::vector<Slot> larger(slots_.size() * 2);
    larger.swap(slots_);
    shift_ = shiftFor(slots_.size());
    for (const Slot& slot : larger) {
      if (slot.count != 0) slots_[find(slot.entry)] = slot;
    }
  }

  void insert(const void* entry) noexcept {
    if (slots_.empty()) return runs_.add(entry);
    enter(entry);
  }

  /// One entry less, which still stands in `entries`.
  void remove(const std::vector<const void*>& entries, const void* entry) {
    if (slots_.empty()) hash(entries);
    std::size_t hole = find(entry);
    assert(slots_[hole].count != 0);
    if (--slots_[hole].count != 0) return;
    --used_;
    // What follows moves up into the hole unless that would put it before its home, so that no
    // search stops too early and no marks of removed entries pile up.
    for (std::size_t at = after(hole); slots_[at].count != 0; at = after(at)) {
      if (distance(home(slots_[at].entry), at) >= distance(hole, at)) {
        slots_[hole] = std::exchange(slots_[at], Slot{});
        hole = at;
      }
    }
  }

 private:
  struct Slot {
    const void* entry = nullptr;
    std::uint32_t count = 0;  // 0: free
  };

  // From runs to a table.
  void hash(const std::vector<const void*>& entries) {
    std::vector<Slot>(std::bit_ceil(entries.size() * 2)).swap(slots_);
    shift_ = shiftFor(slots_.size());
    for (const void* entry : entries) enter(entry);
    runs_ = AddressRuns();
  }

  void enter(const void* entry) noexcept {
    Slot& slot = slots_[find(entry)];
    if (slot.count == 0) ++used_;
    slot.entry = entry;
    ++slot.count;
  }

  // The top bits of the product spread addresses that lie at equal distances best.
  static int shiftFor(std::size_t slots) noexcept { return 64 - std::countr_zero(slots); }
  std::size_t home(const void* entry) const noexcept {
    const std::uint64_t spread = reinterpret_cast<std::uintptr_t>(entry) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(spread >> shift_);
  }
  std::size_t after(std::size_t at) const noexcept { return (at + 1) & (slots_.size() - 1); }
  std::size_t distance(std::size_t from, std::size_t to) const noexcept {
    return (to - from) & (slots_.size() - 1);
  }
  // The slot that holds the pointer, or the free one where it would go.
  std::size_t find(const void* entry) const noexcept {
    std::size_t at = home(entry);
    while (slots_[at].count != 0 && slots_[at].entry != entry) at = after(at);
    return at;
  }

  AddressRuns runs_;         // while there is no table
  std::vector<Slot> slots_;  // empty while the runs serve
  int shift_ = 0;
  std::size_t used_ = 0;
};

class KYRVector::VectorIterator : public KYRContainer::Iterator {
 public:
  explicit VectorIterator(const KYRVector& list) noexcept : list_(&list) {}
  const void* get() const override { return list_->getAt(index_); }
  bool next() override {
    if (index_ < list_->getCount()) ++index_;
    return index_ < list_->getCount();
  }

 private:
  friend class KYRVector;
  const KYRVector* list_;
  unsigned int index_ = 0;
};

KYRVector::KYRVector() = default;

KYRVector::KYRVector(int initialSize) {
  if (initialSize > 0) entries_.reserve(static_cast<std::size_t>(initialSize));
}

KYRVector::KYRVector(const KYRVector& other)
    : _KYRContainer(other), KYRContainer(other), entries_(other.entries_) {}

KYRVector::KYRVector(KYRVector&& other) noexcept
    : _KYRContainer(other),
      KYRContainer(other),
      entries_(std::exchange(other.entries_, {})),
      index_(std::move(other.index_)) {}

KYRVector& KYRVector::operator=(const KYRVector& other) {
  if (this != &other) {
    entries_ = other.entries_;
    index_.reset();
  }
  return *this;
}

KYRVector& KYRVector::operator=(KYRVector&& other) noexcept {
  if (this != &other) {
    entries_ = std::exchange(other.entries_, {});
    index_ = std::move(other.index_);
  }
  return *this;
}

KYRVector::~KYRVector() = default;

void KYRVector::empty() {
  entries_.clear();
  index_.reset();
}

KYRContainer::Iterator* KYRVector::newIterator(bool /*forward*/) const { return new VectorIterator(*this); }

void KYRVector::deleteIterator(Iterator* iterator) const { delete iterator; }

bool KYRVector::add(const void* object, bool unique, Iterator* position) {
  if (unique && contains(object, position)) return false;
  if (index_) index_->makeRoom(entries_, object);
  entries_.push_back(object);
  if (index_) index_->insert(object);
  return true;
}

bool KYRVector::contains(const void* object, Iterator* /*position*/) const {
  if (entries_.size() >= indexThreshold) {
    if (!index_) index_ = std::make_unique<PointerIndex>(entries_);
    return index_->contains(entries_, object, comparisons_);
  }
  const auto found = std::find(entries_.begin(), entries_.end(), object);
  comparisons_ += static_cast<std::uint64_t>(found - entries_.begin()) + (found != entries_.end() ? 1 : 0);
  return found != entries_.end();
}

const void* KYRVector::findFirst(const void* key, Iterator* position) const {
  return contains(key, position) ? key : nullptr;
}

const void* KYRVector::remove(Iterator* position) {
  const auto* const iterator = dynamic_cast<VectorIterator*>(position);
  if (iterator == nullptr || iterator->list_ != this) return nullptr;
  const void* const object = iterator->get();
  removeAt(iterator->index_);
  return object;
}

void KYRVector::removeAt(unsigned int index) {
  if (index >= entries_.size()) return;
  try {
    if (index_) index_->remove(entries_, entries_[index]);
  } catch (const std::bad_alloc&) {
    index_.reset();  // it is for speed only, and can be made again
  }
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
}
