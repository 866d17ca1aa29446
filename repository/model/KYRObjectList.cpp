// Removal comes mostly from the ends, where lists are filled and emptied in order; a few entries at
// either end are looked at before an index is made.
#include "repository/model/KYRObjectList.h"

#include <algorithm>
#include <new>

KYRObjectList::KYRObjectList() noexcept = default;
KYRObjectList::~KYRObjectList() = default;

KYRObject* KYRObjectList::getAmongGaps(std::uint32_t index) const noexcept {
  const std::uint32_t count = getCount();
  if (index >= count) return nullptr;
  // There are no gaps at the ends.
  if (index == 0) return entries_[first_];
  if (index == count - 1) return entries_.back();
  closeGaps();
  return entries_[static_cast<std::size_t>(first_) + index];
}

bool KYRObjectList::contains(const KYRObject* object) const noexcept {
  return object != nullptr && find(object) != none;
}

void KYRObjectList::add(KYRObject* object) {
  const std::uint32_t gone = first_ + gaps_;
  if (gone > indexThreshold && gone > entries_.size() / 2) closeGaps();
  entries_.push_back(object);
  if (!positions_) return;
  try {
    positions_->set(object, static_cast<std::uint32_t>(entries_.size() - 1));
  } catch (const std::bad_alloc&) {
    positions_.reset();  // the index is for speed only and can be made again
  }
}

bool KYRObjectList::remove(const KYRObject* object) noexcept {
  const std::uint32_t place = object == nullptr ? none : find(object);
  if (place == none) return false;
  if (positions_) positions_->erase(object);
  entries_[place] = nullptr;
  ++gaps_;
  dropEnds();
  return true;
}

void KYRObjectList::clear() noexcept {
  entries_.clear();
  positions_.reset();
  first_ = 0;
  gaps_ = 0;
}

std::uint32_t KYRObjectList::getComparisonCount() const noexcept {
  return comparisons_ + (positions_ ? static_cast<std::uint32_t>(positions_->getProbeCount()) : 0);
}

std::uint32_t KYRObjectList::find(const KYRObject* object) const noexcept {
  const auto size = static_cast<std::uint32_t>(entries_.size());
  const bool isShort = size - first_ <= 2 * indexThreshold;
  const std::uint32_t frontEnd = isShort ? size : first_ + indexThreshold;
  for (std::uint32_t at = first_; at < frontEnd; ++at) {
    ++comparisons_;
    if (entries_[at] == object) return at;
  }
  if (isShort) return none;
  for (std::uint32_t at = size; at > size - indexThreshold; --at) {
    ++comparisons_;
    if (entries_[at - 1] == object) return at - 1;
  }
  if (index()) return positions_->find(object);
  const auto found = std::find(entries_.begin() + first_, entries_.end(), object);
  return found == entries_.end() ? none : static_cast<std::uint32_t>(found - entries_.begin());
}

bool KYRObjectList::index() const noexcept {
  if (positions_) return true;
  try {
    auto positions = std::make_unique<KYRPointerIndex>();
    positions->reserve(entries_.size());
    for (std::uint32_t at = first_; at < entries_.size(); ++at) {
      ++comparisons_;
      if (entries_[at] != nullptr) positions->set(entries_[at], at);
    }
    positions_ = std::move(positions);
    return true;
  } catch (const std::bad_alloc&) {
    return false;  // objects are also removed while memory is short: a scan does the same
  }
}

void KYRObjectList::closeGaps() const noexcept {
  const auto behind = std::remove(entries_.begin() + first_, entries_.end(), nullptr);
  entries_.erase(behind, entries_.end());
  entries_.erase(entries_.begin(), entries_.begin() + first_);
  positions_.reset();
  first_ = 0;
  gaps_ = 0;
}

void KYRObjectList::dropEnds() noexcept {
  while (entries_.size() > first_ && entries_.back() == nullptr) {
    entries_.pop_back();
    --gaps_;
  }
  while (first_ < entries_.size() && entries_[first_] == nullptr) {
    ++first_;
    --gaps_;
  }
  if (first_ == entries_.size()) clear();
}
