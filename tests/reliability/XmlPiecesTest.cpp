// XmlPieces: the mutations are only as good as the places that it finds.
#include "fuzz/XmlPieces.h"

#include <gtest/gtest.h>

namespace {

constexpr std::string_view text =
    "<?xml version='1.0'?><a x='1'\n y = \"<>\"><!-- <no/> --><b/>t<c z=''></c></a>";

TEST(XmlPieces, FindsElementsWithTheirNames) {
  const XmlPieces pieces(text);
  ASSERT_EQ(pieces.elements.size(), 3U);
  EXPECT_EQ(pieces.elements[0].whole.of(text), text.substr(text.find("<a")));
  EXPECT_EQ(pieces.elements[0].tag.of(text), "a");
  EXPECT_EQ(pieces.elements[1].whole.of(text), "<b/>");
  EXPECT_EQ(pieces.elements[2].whole.of(text), "<c z=''></c>");
}

TEST(XmlPieces, FindsAttributesWithTheirBlanks) {
  const XmlPieces pieces(text);
  ASSERT_EQ(pieces.attributes.size(), 3U);
  EXPECT_EQ(pieces.attributes[0].whole.of(text), " x='1'");
  EXPECT_EQ(pieces.attributes[0].value.of(text), "1");
  EXPECT_EQ(pieces.attributes[1].name.of(text), "y");
  EXPECT_EQ(pieces.attributes[1].value.of(text), "<>");
  EXPECT_EQ(pieces.attributes[2].value.of(text), "");
}

TEST(XmlPieces, AnyTextWillDo) {
  for (const char* const broken : {"", "<", "<a", "<a x", "<a x=", "<a x='", "<a x='1", "</a>", "<a><b></a>",
                                   "<!--", "<?", "<![CDATA[", "<>", "< / >", "<a =>", "<a/", "<a x='1'/"}) {
    const std::string_view whole(broken);
    for (const XmlPieces::Element& element : XmlPieces(whole).elements) {
      EXPECT_LE(element.whole.begin, element.tag.begin) << broken;
      EXPECT_LE(element.tag.begin, element.tag.end) << broken;
      EXPECT_LE(element.whole.end, whole.size()) << broken;
    }
    for (const XmlPieces::Attribute& attribute : XmlPieces(whole).attributes) {
      EXPECT_LE(attribute.value.begin, attribute.value.end) << broken;
      EXPECT_LE(attribute.whole.end, whole.size()) << broken;
    }
  }
}

TEST(XmlPieces, TextsAreCutAndJoined) {
  const TextSpan b{1, 2};
  EXPECT_EQ(withReplaced("abc", b, "xy"), "axyc");
  EXPECT_EQ(withCopyAt("abc", b, 3), "abcb");
  EXPECT_EQ(withMoved("abc", b, 0), "bac");
  EXPECT_EQ(withMoved("abc", b, 3), "acb");
}

}  // namespace
