// XmlEncoding: the evidence by which an encoding is told, and its order.
#include "foundation/xml/XmlEncoding.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "foundation/xml/XmlLimits.h"
#include "tests/foundation/XmlTestSupport.h"

using namespace std::string_view_literals;

namespace {

TEST(XmlEncoding, MarksThenFirstBytesThenTheDeclarationTellTheEncoding) {
  const struct {
    std::string_view head;
    const char* converterName;
    std::size_t markLength;
  } rows[] = {
      {""sv, "UTF-8", 0},
      {"<"sv, "UTF-8", 0},
      {"<a/>"sv, "UTF-8", 0},
      {"\xEF\xBB\xBF<a/>"sv, "UTF-8", 3},
      {"\xFE\xFF\0<"sv, "UTF-16BE", 2},
      {"\xFF\xFE<\0"sv, "UTF-16LE", 2},
      {"\0\0\xFE\xFF\0\0\0<"sv, "UTF-32BE", 4},
      {"\xFF\xFE\0\0<\0\0\0"sv, "UTF-32LE", 4},
      {"\0<\0?"sv, "UTF-16BE", 0},
      {"<\0?\0"sv, "UTF-16LE", 0},
      {"\0<\0a"sv, "UTF-16BE", 0},
      {"<\0a\0"sv, "UTF-16LE", 0},
      {"\0\0\0<"sv, "UTF-32BE", 0},
      {"<\0\0\0"sv, "UTF-32LE", 0},
      {"<?xml version=\"1.0\"?><a/>"sv, "UTF-8", 0},
      {"<?xml version='1.0' encoding='koi8-r'?><a/>"sv, "KOI8-R", 0},
      {"<?xml\tversion = \"1.0\"\n encoding = \"ISO-8859-1\" ?><a/>"sv, "ISO-8859-1", 0},
      {"<?xml encoding='EUC-JP'?><a/>"sv, "EUC-JP", 0},  // as text declarations have it
      {"<?xml version='encoding=\"KOI8-R\"'?><a/>"sv, "UTF-8", 0},
      {"<?xml-stylesheet encoding='KOI8-R'?><a/>"sv, "UTF-8", 0},
      {"<!-- <?xml encoding='KOI8-R'?> --><a/>"sv, "UTF-8", 0},
      {"\xEF\xBB\xBF<?xml version='1.0' encoding='KOI8-R'?><a/>"sv, "UTF-8", 3},
  };
  for (const auto& row : rows) {
    const XmlEncoding encoding = XmlEncoding::detect(row.head, "");
    EXPECT_EQ(encoding.converterName, row.converterName) << row.head;
    EXPECT_EQ(encoding.markLength, row.markLength) << row.head;
  }
}

TEST(XmlEncoding, NamesThatToolsUseForLargerSetsMeanThose) {
  const struct {
    const char* name;
    const char* converterName;
  } rows[] = {
      {"utf-8", "UTF-8"},     {"UTF8", "UTF-8"},
      {"Shift_JIS", "CP932"}, {"SHIFT-JIS", "CP932"},
      {"x-sjis", "CP932"},    {"windows-31j", "CP932"},
      {"gb2312", "GBK"},      {"GB_2312-80", "GBK"},
      {"EUC-CN", "GBK"},      {"KS_C_5601-1987", "CP949"},
      {"ks_c_5601", "CP949"}, {"Windows-1252", "CP1252"},
      {"Cp1252", "CP1252"},   {"windows-1251", "WINDOWS-1251"},
      {"euc-kr", "EUC-KR"},   {"x-euc-jp", "EUC-JP"},
  };
  for (const auto& row : rows) {
    const std::string head = std::string("<?xml version='1.0' encoding='") + row.name + "'?>";
    const XmlEncoding encoding = XmlEncoding::detect(head, "");
    EXPECT_EQ(encoding.converterName, row.converterName) << row.name;
    EXPECT_EQ(encoding.name, row.name);
    EXPECT_TRUE(encoding.isDeclared);
    EXPECT_EQ(encoding.position.column, 31U);
  }
}

TEST(XmlEncoding, WhatIsNoNameOfAnEncodingHasNoConverter) {
  for (const char* name : {"", "8859-1", "UTF-16//IGNORE", "a b", "wchar_t", "INTERNAL", "b\xC3\xA9"}) {
    const std::string head = std::string("<?xml version='1.0' encoding='") + name + "'?>";
    EXPECT_EQ(XmlEncoding::detect(head, "").converterName, "") << name;
  }
}

TEST(XmlEncoding, AForcedEncodingOverridesEverythingButAMarkOfItsOwnIsSkipped) {
  const struct {
    std::string_view head;
    const char* forced;
    const char* converterName;
    std::size_t markLength;
  } rows[] = {
      {"<?xml version='1.0' encoding='UTF-8'?>"sv, "windows-1252", "CP1252", 0},
      {"\xEF\xBB\xBF<a/>"sv, "utf-8", "UTF-8", 3},
      {"\xEF\xBB\xBF<a/>"sv, "KOI8-R", "KOI8-R", 0},
      {"\xFF\xFE<\0"sv, "UTF-16", "UTF-16LE", 2},
      {"\xFE\xFF\0<"sv, "UTF-16", "UTF-16BE", 2},
      {"<\0a\0"sv, "UTF-16", "UTF-16LE", 0},
      {"\0<\0a"sv, "UTF-16", "UTF-16BE", 0},
      {"<a/>"sv, "UTF-16", "UTF-16BE", 0},
  };
  for (const auto& row : rows) {
    const XmlEncoding encoding = XmlEncoding::detect(row.head, row.forced);
    EXPECT_EQ(encoding.converterName, row.converterName) << row.forced;
    EXPECT_EQ(encoding.markLength, row.markLength) << row.forced;
  }
}

TEST(XmlEncoding, AHeadIsCompleteOnceItTellsTheEncoding) {
  const struct {
    std::string_view head;
    bool isComplete;
  } rows[] = {
      {""sv, false},        {"<a"sv, false},         {"<a/>"sv, true},
      {"<?xm"sv, false},    {"<?xml"sv, false},      {"<?xml "sv, false},
      {"<?xml ?"sv, false}, {"<?xml ?>"sv, true},    {"<?xml-s"sv, true},
      {"<?xmx"sv, true},    {"\xFF\xFE<\0"sv, true}, {"\x4C\x6F\xA7\x94\x93\x40"sv, false},
      {"L<?x"sv, true},
  };
  for (const auto& row : rows) EXPECT_EQ(XmlEncoding::isHeadComplete(row.head), row.isComplete) << row.head;
}

TEST(XmlEncoding, TheForcedNameIsKeptUntilItIsLifted) {
  {
    const TemporaryEncoding forced("KOI8-R");
    EXPECT_EQ(getForcedXmlEncoding(), "KOI8-R");
  }
  EXPECT_EQ(getForcedXmlEncoding(), "");
}

}  // namespace
