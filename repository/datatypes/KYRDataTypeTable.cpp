// Keys. A row and a looked-up name are brought to the same key: folded, trimmed, and, where a length
// stands between the words, with "()" in its place and no blanks around it.
#include "repository/datatypes/KYRDataTypeTable.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view whiteSpace = " \t\n\r\f\v";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(whiteSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

/// The part of a name that counts, as up to three pieces that make up the key when joined.
struct KeyParts {
  std::string_view head;
  std::string_view mark;
  std::string_view tail;
  std::size_t size() const { return head.size() + mark.size() + tail.size(); }
};

KeyParts splitName(std::string_view typeName) {
  const std::string_view name = trimmed(typeName);
  const std::size_t open = name.find('(');
  if (open == std::string_view::npos) return {name, {}, {}};
  const std::string_view head = trimmed(name.substr(0, open));
  const std::size_t close = name.rfind(')');
  if (close == name.size() - 1) return {head, {}, {}};
  if (close == std::string_view::npos || close < open) return {name, {}, {}};
  return {head, "()", trimmed(name.substr(close + 1))};
}

std::string joinKey(const KeyParts& parts) {
  std::string key;
  key.reserve(parts.size());
  for (const std::string_view part : {parts.head, parts.mark, parts.tail}) key += part;
  std::transform(key.begin(), key.end(), key.begin(), foldCase);
  return key;
}

/// The name of a row without the mark for a length between its words.
std::string withoutMark(std::string_view name) {
  std::string plain(name);
  plain.erase(plain.find("()"), 2);
  return plain;
}

}  // namespace

KYRDataTypeTable::KYRDataTypeTable(const KYRTypeNameList& list) : source_(list.source) {
  entries_.reserve(list.rows.size());
  codes_.reserve(list.rows.size());
  for (const KYRTypeNameRow& row : list.rows) {
    addEntry(row.name, row.code);
    for (std::size_t i = 0; i < list.prefixes.size(); ++i) {
      if (((row.prefixes >> i) & 1U) != 0) addEntry(KYRString(list.prefixes[i]) + row.name, row.code);
    }
  }
}

void KYRDataTypeTable::addEntry(KYRString name, KYRDataTypeCode code) {
  const KeyParts parts = splitName(name.view());
  addKey(joinKey(parts), code);
  if (!parts.mark.empty()) addKey(joinKey(splitName(withoutMark(name.view()))), code);
  entries_.push_back({std::move(name), code});
}

void KYRDataTypeTable::addKey(std::string key, KYRDataTypeCode code) {
  longestKey_ = std::max(longestKey_, key.size());
  codes_.emplace(std::move(key), code);
}

std::optional<KYRDataTypeCode> KYRDataTypeTable::find(std::string_view typeName) const {
  const KeyParts parts = splitName(typeName);
  // Names come from files and may be of any length; what no row can equal is not even copied.
  if (parts.size() > longestKey_) return std::nullopt;
  const auto found = codes_.find(joinKey(parts));
  if (found == codes_.end()) return std::nullopt;
  return found->second;
}
