// The texts of the data type codes. The logical names are kept beside them, because callers get
// references; both are made at first use.
#include "repository/datatypes/KYRDataTypeCode.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::string_view prefix = "SQL_";

/// In the order of the enumeration.
constexpr std::array texts = {"SQL_CHAR",
                              "SQL_VARCHAR",
                              "SQL_LONGVARCHAR",
                              "SQL_WCHAR",
                              "SQL_WVARCHAR",
                              "SQL_WLONGVARCHAR",
                              "SQL_CLOB",
                              "SQL_NCLOB",
                              "SQL_BINARY",
                              "SQL_VARBINARY",
                              "SQL_LONGVARBINARY",
                              "SQL_BLOB",
                              "SQL_BOOLEAN",
                              "SQL_BIT",
                              "SQL_TINYINT",
                              "SQL_SMALLINT",
                              "SQL_INTEGER",
                              "SQL_BIGINT",
                              "SQL_DECIMAL",
                              "SQL_NUMERIC",
                              "SQL_REAL",
                              "SQL_FLOAT",
                              "SQL_DOUBLE",
                              "SQL_DECFLOAT",
                              "SQL_DATE",
                              "SQL_TIME",
                              "SQL_TIME_WITH_TIMEZONE",
                              "SQL_TIMESTAMP",
                              "SQL_TIMESTAMP_WITH_TIMEZONE",
                              "SQL_INTERVAL",
                              "SQL_GUID",
                              "SQL_XML",
                              "SQL_JSON",
                              "SQL_ARRAY",
                              "SQL_ROWID",
                              "SQL_SPATIAL",
                              "SQL_OTHER"};
static_assert(texts.size() == dataTypeCodeCount);

struct CodeNames {
  KYRString text;
  KYRString logicalName;
};

const std::array<CodeNames, texts.size()>& codeNames() {
  static const auto names = [] {
    std::array<CodeNames, texts.size()> made;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      made[i].text = texts[i];
      made[i].logicalName = KYRString(std::string_view(texts[i]).substr(prefix.size()));
    }
    return made;
  }();
  return names;
}

/// A walk over the few texts of the list is as good as a hash of the key.
const CodeNames* findCode(const KYRString& dataType) {
  for (const CodeNames& names : codeNames()) {
    if (names.text == dataType) return &names;
  }
  return nullptr;
}

}  // namespace

const KYRString& getDataTypeText(KYRDataTypeCode code) {
  return codeNames().at(static_cast<std::size_t>(code)).text;
}

const KYRString& getUndefinedDataType() {
  static const KYRString undefined("undefined");
  return undefined;
}

bool isUndefined(const KYRString& dataType) { return findCode(dataType) == nullptr; }

const KYRString& getDefaultLogicalName(const KYRString& dataType) {
  const CodeNames* names = findCode(dataType);
  return names == nullptr ? getUndefinedDataType() : names->logicalName;
}
