#include "repository/storage/Utf8.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* replacement = "\xEF\xBF\xBD";

TEST(Utf8, PlainTextsAreToldFromThoseThatJsonEscapes) {
  for (const std::string& padding :
       {std::string(), std::string("0123456"), std::string("0123456789abcdef")}) {
    for (const char* plain : {"", "a", "~", "\x7F", "caf\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "/"}) {
      EXPECT_EQ(examineUtf8(padding + plain + padding), Utf8Shape::plain) << plain;
    }
    for (const char* escaped : {"\"", "\\", "\n", "\x1F", "\x01", "\xC3\xA9\t"}) {
      EXPECT_EQ(examineUtf8(padding + escaped + padding), Utf8Shape::escaped) << escaped;
    }
    EXPECT_EQ(examineUtf8(padding + std::string(1, '\0') + padding), Utf8Shape::escaped);
  }
}

struct Damaged {
  const char* text;
  int replacements;
};

TEST(Utf8, EachRunThatIsNoCharacterBecomesOneReplacement) {
  const Damaged rows[] = {
      {"\x80", 1},
      {"\xFF", 1},
      {"\xC0\x80", 2},          // overlong
      {"\xC3", 1},              // cut
      {"\xE2\x82", 1},          // cut
      {"\xF0\x9F\x98", 1},      // cut
      {"\xE0\x80\x80", 3},      // overlong
      {"\xED\xA0\x80", 3},      // a surrogate
      {"\xF4\x90\x80\x80", 4},  // beyond U+10FFFF
      {"\xF5\x80", 2},
      {"\xE2\x28\xA1", 2},  // the "(" in it stays
  };
  for (const Damaged& row : rows) {
    const std::string text = std::string("before ") + row.text + " behind";
    EXPECT_EQ(examineUtf8(text), Utf8Shape::damaged);
    const std::string repaired = repairUtf8(text);
    EXPECT_NE(examineUtf8(repaired), Utf8Shape::damaged);
    int count = 0;
    for (std::size_t at = repaired.find(replacement); at != std::string::npos;
         at = repaired.find(replacement, at + 1)) {
      ++count;
    }
    EXPECT_EQ(count, row.replacements) << row.text;
    EXPECT_EQ(repaired.find("before "), 0U);
    EXPECT_NE(repaired.find(" behind"), std::string::npos);
  }
}

TEST(Utf8, AValidTextIsNotChangedByRepair) {
  const std::string text = "a\"\n\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xEF\xBF\xBD";
  EXPECT_EQ(repairUtf8(text), text);
}

}  // namespace
