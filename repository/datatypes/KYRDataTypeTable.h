// KYRDataTypeTable: what the type names of one data store mean.
//
// The names stand as constexpr rows in one file for each store (OracleTypes.cpp and so on). A table
// is made of such rows when its store is first asked for: it hashes them by folded name, so that a
// lookup costs the length of the name and nothing else.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "repository/datatypes/KYRDataTypeCode.h"

/// One type name, written as its manual writes it; lookups ignore case. A "()" inside the name marks
/// the place where the dialect lets a length or precision stand between the words: the row
/// "TIMESTAMP() WITH TIME ZONE" also answers for "timestamp with time zone" and
/// "timestamp(6) with time zone". Parentheses at the end need no mark, lookups drop them.
struct KYRTypeNameRow {
  const char* name;
  KYRDataTypeCode code;
  /// Bit n set: the name also exists with the n-th prefix of its list in front.
  unsigned int prefixes = 0;
};

/// The rows of one data store, with where they come from.
struct KYRTypeNameList {
  /// Title and version of the reference manuals.
  const char* source;
  std::span<const KYRTypeNameRow> rows;
  std::span<const char* const> prefixes = {};
};

class KYR_EXPORT KYRDataTypeTable {
 public:
  /// A type name as listed: one for each row, and one for each prefix of a row.
  struct Entry {
    KYRString name;
    KYRDataTypeCode code;
  };

  explicit KYRDataTypeTable(const KYRTypeNameList& list);

  /// Title and version of the reference manuals behind the rows.
  const char* getSource() const noexcept { return source_; }
  /// All names in the order of the rows.
  const std::vector<Entry>& getEntries() const noexcept { return entries_; }
  /// What a type name stands for; nothing when the store has no such type. White space around the
  /// name and the case of ASCII letters do not count, and a suffix in parentheses at the end is
  /// dropped from the first "(" on: "NUMBER(10,2)" is found as "number".
  std::optional<KYRDataTypeCode> find(std::string_view typeName) const;

 private:
  void addEntry(KYRString name, KYRDataTypeCode code);
  void addKey(std::string key, KYRDataTypeCode code);

  const char* source_;
  std::vector<Entry> entries_;
  std::unordered_map<std::string, KYRDataTypeCode> codes_;  // by folded name; never walked
  std::size_t longestKey_ = 0;
};
