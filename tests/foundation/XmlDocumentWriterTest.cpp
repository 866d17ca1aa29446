// The text of a document gives the same document again.
#include "foundation/xml/XmlDocumentWriter.h"

#include <gtest/gtest.h>

#include "tests/foundation/XmlTestSupport.h"

namespace {

std::string textOf(const XmlDocument& document) {
  std::string text;
  writeXmlDocument(document, [&text](std::string_view piece) { text += piece; });
  return text;
}

constexpr char head[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

TEST(XmlDocumentWriter, WritesElementsAttributesAndTexts) {
  const struct {
    const char* xml;
    const char* text;
  } cases[] = {
      {"<a/>", "<a/>"},
      {"<a></a>", "<a/>"},
      {"<a b='1' c:d='2'>x<e/>y</a>", "<a b=\"1\" c:d=\"2\">x<e/>y</a>"},
      {"<a><b><c/></b></a>", "<a><b><c/></b></a>"},
      {"<a b='&lt;&amp;&quot;\"&gt;'>&lt;&amp;\"'&gt;</a>",
       "<a b=\"&lt;&amp;&quot;&quot;&gt;\">&lt;&amp;\"'&gt;</a>"},
      {"<a b='&#10;&#9;&#13;'>\n\t&#13;</a>", "<a b=\"&#10;&#9;&#13;\">\n\t&#13;</a>"},
      {"<a><!-- gone --><?gone too?><![CDATA[<b>]]></a>", "<a>&lt;b&gt;</a>"},
      {"<a>\xC3\xA9</a>", "<a>\xC3\xA9</a>"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.xml);
    EXPECT_EQ(textOf(*readDocument(each.xml)), std::string(head) + each.text + "\n");
  }
}

TEST(XmlDocumentWriter, TheTextReadAgainGivesTheSameText) {
  const std::string text = textOf(*readDocument("<a b=' x&#10;y '>\r\n<c>&amp;amp;</c>]]&gt;</a>"));
  EXPECT_EQ(textOf(*readDocument(text)), text);
}

TEST(XmlDocumentWriter, LargeDocumentsComeInPieces) {
  std::string xml = "<a>";
  for (int i = 0; i < 20000; ++i) xml += "<b c='12345'/>";
  const auto document = readDocument(xml + "</a>");
  std::size_t pieces = 0;
  std::size_t largest = 0;
  writeXmlDocument(*document, [&](std::string_view piece) {
    ++pieces;
    largest = std::max(largest, piece.size());
  });
  EXPECT_GT(pieces, 3U);
  EXPECT_LT(largest, 70000U);
}

}  // namespace
