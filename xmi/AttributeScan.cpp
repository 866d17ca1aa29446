// The scan over names and values, and its answers.
#include "xmi/AttributeScan.h"

#include "xmi/ReaderNames.h"

AttributeScan::AttributeScan() : places_(static_cast<std::size_t>(ReaderNames::get().getCount())) {}

void AttributeScan::scan(const KYRStringArray& attributes) {
  attributes_ = &attributes;
  found_.clear();
  if (++stamp_ == 0) {
    // The stamps have come round: forget all, so that none of an earlier round counts.
    places_.assign(places_.size(), Place());
    stamp_ = 1;
  }
  const ReaderNames& names = ReaderNames::get();
  for (unsigned int i = 0; i < attributes.getCount(); ++i) {
    const int name = names.findIgnoringCase(attributes.get(i).view());
    if (name == ReaderNames::none) continue;
    Place& place = places_[static_cast<unsigned int>(name)];
    if (place.stamp == stamp_) continue;
    place = {stamp_, i};
    found_.push_back(name);
  }
}

const KYRString& AttributeScan::get(int name) const noexcept {
  const Place& place = places_[static_cast<unsigned int>(name)];
  if (place.stamp != stamp_) return KYRString::getEmptyString();
  return attributes_->get(place.position + 1);
}
