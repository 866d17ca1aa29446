// Notes taken while a file is read.
#include "trace/ReadNotes.h"

#include <cstdlib>

#include "uml/UMLElement.h"

namespace {

// The number in "line L, column C".
std::uint64_t lineIn(const KYRString& position) {
  const std::size_t digit = position.view().find_first_of("0123456789");
  return digit == std::string_view::npos ? 0 : std::strtoull(position.getCharacters() + digit, nullptr, 10);
}

}  // namespace

void ReadNotes::Counter::count(const KYRString& name, const KYRString& position) {
  const auto [known, isNew] = positions.try_emplace(std::string(name.view()), entries.size());
  if (isNew) entries.push_back({known->first, 0, lineIn(position)});
  ++entries[known->second].count;
}

void ReadNotes::element(const UMLElement& object, std::uint64_t line) {
  if (object.readingNumber >= lines_.size()) lines_.resize(object.readingNumber + 1);
  lines_[object.readingNumber] = static_cast<std::uint32_t>(line);
}

void ReadNotes::skippedType(const KYRString& type, const KYRString& position) {
  skippedTypes_.count(type, position);
}

void ReadNotes::unknownTag(const KYRString& tag, const KYRString& position) {
  unknownTags_.count(tag, position);
}

void ReadNotes::link(const KYRString& first, const KYRString& second, int, LinkResult result) {
  if (result == LinkResult::linked || first.isEmpty() || second.isEmpty()) return;
  // Of two ids the one that is there refers to the other; where both are, the later one is written in the
  // element of the first as often as the other way round, and either tells where to look.
  const bool isFirstMissing = result == LinkResult::firstMissing;
  const KYRString& from = isFirstMissing ? second : first;
  const KYRString& to = isFirstMissing ? first : second;
  const bool isFound = result == LinkResult::wrongClass;
  if (!isFound) firstMissing_.try_emplace(std::string(from.view()), references_.size());
  references_.push_back({from, to, isFound});
}

std::uint64_t ReadNotes::lineOf(const UMLElement& object) const noexcept {
  return object.readingNumber < lines_.size() ? lines_[object.readingNumber] : 0;
}

const KYRString& ReadNotes::missingIdOf(const KYRString& id) const {
  const auto known = firstMissing_.find(id.view());
  return known == firstMissing_.end() ? KYRString::getEmptyString() : references_[known->second].to;
}
