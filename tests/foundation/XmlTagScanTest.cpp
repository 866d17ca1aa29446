// XmlTagScan: places of start tags, however the text is cut, and what it lets nobody but expat read.
#include "foundation/xml/XmlTagScan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

using namespace std::string_literals;

namespace {

// "line:column" of each start tag; "refused" where the scan ends.
std::string startsOf(std::string_view text, std::size_t pieceSize = std::string_view::npos) {
  XmlTagScan scan;
  std::vector<XmlPosition> starts;
  for (std::size_t at = 0; at < text.size(); at += std::min(pieceSize, text.size())) {
    if (!scan.scan(text.substr(at, pieceSize), starts)) return "refused";
  }
  std::string places;
  for (const XmlPosition& start : starts) {
    places += std::to_string(start.line) + ":" + std::to_string(start.column) + " ";
  }
  return places;
}

TEST(XmlTagScan, FindsTheStartTagsAmongMarkupOfEveryKind) {
  const std::string text =
      "<?xml version='1.0'?>\r\n<a b='>/' c=\"&lt;\">\r<!-- <x> - -- <y> --><b/>\n\n"
      "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80<c><![CDATA[ <x> ]] ]> <y> ]]]><d/><?t <x> ? > <y> ?"
      "?></c\n></a>";
  for (const std::size_t size : {1, 2, 3, 7, 64, 4096}) {
    EXPECT_EQ(startsOf(text, size), "2:1 3:22 5:4 5:35 ") << size;
  }
}

TEST(XmlTagScan, BytesThatAreNoCharactersAreRefused) {
  const std::string refused[] = {
      "<a\0/>"s,
      "<a>\x01</a>",
      "<a b='\x1F'/>",
      "<!--\x0B-->",
      "<a>\x80</a>",
      "<a>\xC1\x81</a>",
      "<a>\xE0\x9F\xBF</a>",
      "<a>\xED\xA0\x80</a>",
      "<a>\xC3(</a>",
      "<a>\xF5</a>",
      "<a>\xF0\x8F\xBF\xBF</a>",
      "<a>\xF4\x90\x80\x80</a>",
      "<a>\xE2\x82<b/>",
      "<a>\xC3\xC3</a>",
      "<a>\xFF</a>",
  };
  for (const std::string& text : refused) {
    for (const std::size_t size : {1, 3, 4096}) EXPECT_EQ(startsOf(text, size), "refused") << text;
  }
  EXPECT_EQ(startsOf("<a>\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF\xF4\x8F\xBF\xBF\t\r\n</a>"),
            "1:1 ");
}

TEST(XmlTagScan, ADocumentTypeIsRefused) {
  EXPECT_EQ(startsOf("<!DOCTYPE a><a/>"), "refused");
  EXPECT_EQ(startsOf("<!-a><a/>"), "refused");
  EXPECT_EQ(startsOf("<![IGNORE["), "refused");
}

TEST(XmlTagScan, ATagThatMayHaveTooManyAttributesIsRefusedButNoLongText) {
  std::string attributes;
  for (int i = 0; i < 3000; ++i) attributes += " a" + std::to_string(i) + "= '1'";
  EXPECT_EQ(startsOf("<a" + attributes + "/>", 1000), "refused");
  EXPECT_EQ(startsOf("<a b='" + std::string(100000, '=') + "'/>"), "1:1 ");
  std::string markup;
  for (int i = 0; i < 5000; ++i) markup += "a href=&quot;x&quot; y = 1 ";
  EXPECT_EQ(startsOf("<a b='" + markup + "'/>"), "1:1 ");
}

TEST(XmlTagScan, SpansBeyondTheLimitAreRefusedWhateverTheyAre) {
  const std::string longest(XmlTagScan::longestSpan, 'x');
  EXPECT_EQ(startsOf("<a>" + longest), "refused");
  EXPECT_EQ(startsOf("<!--" + longest), "refused");
  EXPECT_EQ(startsOf("<a>" + longest.substr(100) + "<b/>" + longest.substr(100)).substr(0, 4), "1:1 ");
}

}  // namespace
