// The names are few and known, so a hash of length, first, middle and last letter tells nearly all
// other texts apart from them without reading those in full.
#include "xmi/ReaderNames.h"

#include <algorithm>

#include "foundation/KYRString.h"
#include "uml/UMLMetamodel.h"
#include "xmi/XMINames.h"

const ReaderNames& ReaderNames::get() {
  static const ReaderNames names;
  return names;
}

ReaderNames::ReaderNames() {
  std::fill(std::begin(buckets_), std::end(buckets_), std::int16_t{none});
  id = add(XMINames::id);
  type = add(XMINames::type);
  idref = add(XMINames::idref);
  name = add(XMINames::name);
  for (const auto& row : UMLMetamodel::scalarRows) add(row.name);
  for (const auto& row : UMLMetamodel::linkRows) {
    if (row.first.role != nullptr) markId(add(row.first.role));
    if (row.second.role != nullptr) markId(add(row.second.role));
  }
  markId(id);
  markId(idref);
}

int ReaderNames::add(std::string_view text) {
  const int known = find(text);
  if (known != none) return known;
  std::int16_t& bucket = buckets_[bucketOf(text)];
  nextInBucket_.push_back(bucket);
  bucket = static_cast<std::int16_t>(names_.size());
  names_.push_back(text);
  holdIds_.push_back(false);
  longest_ = std::max(longest_, text.size());
  return bucket;
}

unsigned int ReaderNames::bucketOf(std::string_view text) noexcept {
  const auto letter = [text](std::size_t at) -> std::size_t {
    return static_cast<unsigned char>(foldCase(text[at]));
  };
  const std::size_t size = text.size();
  const std::size_t hash = size * 29U + letter(0) * 37U + letter(size / 2) * 101U + letter(size - 1) * 7U;
  return static_cast<unsigned int>(hash % bucketCount);
}

int ReaderNames::findIgnoringCase(std::string_view text) const noexcept {
  if (text.empty() || text.size() > longest_) return none;
  int at = buckets_[bucketOf(text)];
  while (at != none && !equalsIgnoringCase(names_[static_cast<unsigned int>(at)], text)) {
    at = nextInBucket_[static_cast<unsigned int>(at)];
  }
  return at;
}

int ReaderNames::find(std::string_view text) const noexcept {
  const int at = findIgnoringCase(text);
  return at != none && names_[static_cast<unsigned int>(at)] == text ? at : none;
}
