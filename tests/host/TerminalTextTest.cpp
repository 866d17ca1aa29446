// Texts from files on their way to a terminal, hostile ones above all.
#include "host/TerminalText.h"

#include <gtest/gtest.h>

namespace {

TEST(TerminalText, EscapesWhatATerminalObeysAndLeavesTheRest) {
  struct Case {
    std::string text;
    std::string expected;
  };
  const Case cases[] = {
      {"", ""},
      {"plain, with 'quotes' and \\", "plain, with 'quotes' and \\"},
      {"Größe 注文 😀", "Größe 注文 😀"},
      {"a\nb\tc\rd", "a\\nb\\tc\\rd"},
      {std::string("a\0b", 3), "a\\x00b"},
      {"\x1b[31mred\x7f", "\\x1b[31mred\\x7f"},
      {"\xC2\x80 \xC2\x9B \xC2\x9F \xC2\xA0", "\\u0080 \\u009b \\u009f \xC2\xA0"},
      {"\xE2\x80\xA8 \xE2\x80\xA9", "\\u2028 \\u2029"},
      {"\xE2\x80\xAA \xE2\x80\xAE \xE2\x81\xA6 \xE2\x81\xA9", "\\u202a \\u202e \\u2066 \\u2069"},
      {"\xD8\x9C \xE2\x80\x8E \xE2\x80\x8F", "\\u061c \\u200e \\u200f"},  // marks of direction
  };
  for (const Case& test : cases) EXPECT_EQ(TerminalText::escape(test.text), test.expected) << test.text;
}

TEST(TerminalText, EscapesEachByteThatIsNoUtf8) {
  struct Case {
    const char* text;
    const char* expected;
  };
  const Case cases[] = {
      {"caf\xE9", "caf\\xe9"},
      {"\x80 \xBF", "\\x80 \\xbf"},
      {"\xC3", "\\xc3"},
      {"\xE2\x82 x", "\\xe2\\x82 x"},
      {"\xF0\x9F\x98", "\\xf0\\x9f\\x98"},
      {"\xC0\x80", "\\xc0\\x80"},                    // overlong
      {"\xE0\x80\x80", "\\xe0\\x80\\x80"},           // overlong
      {"\xF0\x80\x80\x80", "\\xf0\\x80\\x80\\x80"},  // overlong
      {"\xED\xA0\x80", "\\xed\\xa0\\x80"},           // a surrogate
      {"\xF4\x90\x80\x80", "\\xf4\\x90\\x80\\x80"},  // above U+10FFFF
      {"\xFF\xFE", "\\xff\\xfe"},
      {"\xF4\x8F\xBF\xBF \xED\x9F\xBF", "\xF4\x8F\xBF\xBF \xED\x9F\xBF"},  // the last valid ones
  };
  for (const Case& test : cases) EXPECT_EQ(TerminalText::escape(test.text), test.expected) << test.expected;
}

TEST(TerminalText, ShortensByCharactersNotBytes) {
  EXPECT_EQ(TerminalText::shorten("abc", 3), "abc");
  EXPECT_EQ(TerminalText::shorten("abcd", 3), "abc...");
  EXPECT_EQ(TerminalText::shorten("äöü", 3), "äöü");
  EXPECT_EQ(TerminalText::shorten("äöüß", 3), "äöü...");
  EXPECT_EQ(TerminalText::shorten("", 0), "");
}

}  // namespace
