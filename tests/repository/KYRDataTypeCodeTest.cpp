#include "repository/datatypes/KYRDataTypeCode.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

/// The closed list, written out once more and in no order of ours.
const std::set<std::string> closedList = {"SQL_ARRAY",     "SQL_BIGINT",   "SQL_BINARY",
                                          "SQL_BIT",       "SQL_BLOB",     "SQL_BOOLEAN",
                                          "SQL_CHAR",      "SQL_CLOB",     "SQL_DATE",
                                          "SQL_DECFLOAT",  "SQL_DECIMAL",  "SQL_DOUBLE",
                                          "SQL_FLOAT",     "SQL_GUID",     "SQL_INTEGER",
                                          "SQL_INTERVAL",  "SQL_JSON",     "SQL_LONGVARBINARY",
                                          "SQL_NCLOB",     "SQL_NUMERIC",  "SQL_LONGVARCHAR",
                                          "SQL_OTHER",     "SQL_REAL",     "SQL_ROWID",
                                          "SQL_SMALLINT",  "SQL_SPATIAL",  "SQL_TIME",
                                          "SQL_TIMESTAMP", "SQL_TINYINT",  "SQL_TIME_WITH_TIMEZONE",
                                          "SQL_VARBINARY", "SQL_VARCHAR",  "SQL_TIMESTAMP_WITH_TIMEZONE",
                                          "SQL_WCHAR",     "SQL_WVARCHAR", "SQL_WLONGVARCHAR",
                                          "SQL_XML"};

TEST(KYRDataTypeCode, TheTextsAreExactlyTheClosedList) {
  std::set<std::string> texts;
  for (int i = 0; i < dataTypeCodeCount; ++i) {
    texts.insert(getDataTypeText(static_cast<KYRDataTypeCode>(i)).getCharacters());
  }
  EXPECT_EQ(texts, closedList);
  EXPECT_EQ(dataTypeCodeCount, 37);
}

TEST(KYRDataTypeCode, EachCodeHasTheTextOfItsName) {
  const struct {
    KYRDataTypeCode code;
    const char* text;
  } rows[] = {{KYRDataTypeCode::Char, "SQL_CHAR"},
              {KYRDataTypeCode::LongVarchar, "SQL_LONGVARCHAR"},
              {KYRDataTypeCode::WLongVarchar, "SQL_WLONGVARCHAR"},
              {KYRDataTypeCode::NClob, "SQL_NCLOB"},
              {KYRDataTypeCode::Blob, "SQL_BLOB"},
              {KYRDataTypeCode::Boolean, "SQL_BOOLEAN"},
              {KYRDataTypeCode::BigInt, "SQL_BIGINT"},
              {KYRDataTypeCode::DecFloat, "SQL_DECFLOAT"},
              {KYRDataTypeCode::TimeWithTimeZone, "SQL_TIME_WITH_TIMEZONE"},
              {KYRDataTypeCode::TimestampWithTimeZone, "SQL_TIMESTAMP_WITH_TIMEZONE"},
              {KYRDataTypeCode::Interval, "SQL_INTERVAL"},
              {KYRDataTypeCode::RowId, "SQL_ROWID"},
              {KYRDataTypeCode::Other, "SQL_OTHER"}};
  for (const auto& row : rows) EXPECT_STREQ(getDataTypeText(row.code).getCharacters(), row.text);
}

TEST(KYRDataTypeCode, EveryTextOfTheListIsDefinedAndItsLogicalNameLacksThePrefix) {
  for (const std::string& text : closedList) {
    EXPECT_FALSE(isUndefined(KYRString(text))) << text;
    EXPECT_EQ("SQL_" + std::string(getDefaultLogicalName(KYRString(text)).getCharacters()), text);
  }
  EXPECT_STREQ(getDefaultLogicalName("SQL_VARCHAR").getCharacters(), "VARCHAR");
}

TEST(KYRDataTypeCode, WhatStandsForNoTypeIsUndefinedAndSoIsItsLogicalName) {
  EXPECT_STREQ(getUndefinedDataType().getCharacters(), "undefined");
  for (const char* text :
       {"undefined", "", "UNDEFINED", "VARCHAR", "SQL_", "SQL_VARCHAR2", "sql_varchar", " SQL_VARCHAR"}) {
    EXPECT_TRUE(isUndefined(text)) << text;
    EXPECT_STREQ(getDefaultLogicalName(text).getCharacters(), "undefined") << text;
  }
}

TEST(KYRDataTypeCode, ALogicalNameMayBeKeptByReference) {
  const KYRString& first = getDefaultLogicalName("SQL_INTEGER");
  EXPECT_EQ(&first, &getDefaultLogicalName("SQL_INTEGER"));
  EXPECT_STREQ(first.getCharacters(), "INTEGER");
}

}  // namespace
