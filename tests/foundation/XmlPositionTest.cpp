// XmlPosition: lines and columns over line ends of every kind and characters of several bytes.
#include "foundation/xml/XmlPosition.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

TEST(XmlPosition, LinesAndColumnsFollowTheText) {
  const struct {
    std::string_view text;
    std::uint64_t line;
    std::uint64_t column;
  } rows[] = {
      {"", 1, 1},
      {"abc", 1, 4},
      {"a\nbc", 2, 3},
      {"a\rb", 2, 2},
      {"a\r\nb", 2, 2},
      {"\n\n\n", 4, 1},
      {"\r\r\n\n", 4, 1},
      {"\n\r", 3, 1},
      {"\xC3\xA9", 1, 2},
      {"\xE2\x82\xAC", 1, 2},
      {"\n\xF0\x9F\x98\x80x", 2, 3},
  };
  for (const auto& row : rows) {
    for (std::size_t cut = 0; cut <= row.text.size(); ++cut) {  // wherever the text is cut in two
      XmlPosition position;
      position.advance(row.text.substr(0, cut));
      position.advance(row.text.substr(cut));
      EXPECT_EQ(position.line, row.line) << row.text << " cut at " << cut;
      EXPECT_EQ(position.column, row.column) << row.text << " cut at " << cut;
    }
  }
}

}  // namespace
