// XmlDocument: walking it, finding names and attributes, and what it costs.
#include "foundation/xml/XmlDocument.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/foundation/XmlTestSupport.h"

namespace {

using Node = XmlDocument::Node;

TEST(XmlDocument, HoldsTheFileInDocumentOrder) {
  EXPECT_EQ(dumpDocument(*readDocument("<a x='1' y='2'>t<b/>\n<c z=''>u&amp;v</c></a>")),
            "a x=1 y=2 @1:1\n"
            "  't'\n"
            "  b @1:17\n"
            "  '\n'\n"
            "  c z= @2:1\n"
            "    'u&v'\n");
}

TEST(XmlDocument, ChildrenAndSiblingsAreElementsOnly) {
  const auto document = readDocument("<a> <b><d/></b>x<c/> </a>");
  const Node b = document->getFirstChild(0);
  EXPECT_EQ(document->getTag(b).view(), "b");
  const Node c = document->getNextSibling(b);
  EXPECT_EQ(document->getTag(c).view(), "c");
  EXPECT_EQ(document->getNextSibling(c), XmlDocument::noNode);
  EXPECT_EQ(document->getFirstChild(c), XmlDocument::noNode);
  const Node d = document->getFirstChild(b);
  EXPECT_EQ(document->getParent(d), b);
  EXPECT_EQ(document->getNextSibling(d), XmlDocument::noNode);
  EXPECT_EQ(document->getParent(0), XmlDocument::noNode);
  EXPECT_EQ(document->getNextSibling(0), XmlDocument::noNode);
  EXPECT_EQ(document->getEnd(0), document->getNodeCount());
}

TEST(XmlDocument, AttributesAreFoundByTheNumberOfTheirName) {
  const auto document = readDocument("<a x='1'><b y='2' x=''/></a>");
  const XmlDocument::Name x = document->findName("x");
  const XmlDocument::Name y = document->findName("y");
  const Node b = document->getFirstChild(0);
  EXPECT_EQ(document->findAttribute(0, x)->view(), "1");
  EXPECT_EQ(document->findAttribute(0, y), nullptr);
  EXPECT_EQ(document->findAttribute(b, y)->view(), "2");
  EXPECT_EQ(document->findAttribute(b, x)->view(), "");
  EXPECT_EQ(document->findName("z"), XmlDocument::textName);
  EXPECT_EQ(document->findAttribute(b, XmlDocument::textName), nullptr);
  EXPECT_EQ(document->getNameText(y).view(), "y");
  EXPECT_EQ(document->getNameCount(), 4U);
}

TEST(XmlDocument, RepeatedTextsShareTheirCharacters) {
  std::string xml = "<a>";
  for (int i = 0; i < 1000; ++i) xml += "\n\t\t<b kind='uml:Property'/>";
  const auto document = readDocument(xml + "</a>");
  ASSERT_EQ(document->getNodeCount(), 2001U);
  EXPECT_EQ(document->getText(1).getCharacters(), document->getText(1999).getCharacters());
  EXPECT_EQ(document->getAttributeValue(2, 0).getCharacters(),
            document->getAttributeValue(2000, 0).getCharacters());
}

TEST(XmlDocument, EveryTextEndsInAZeroAndIsBorrowed) {
  const auto document = readDocument("<abc def='ghi'>jkl</abc>");
  for (const KYRString* text :
       {&document->getTag(0), &document->getAttributeValue(0, 0), &document->getText(1)}) {
    EXPECT_TRUE(text->isBorrowed());
    EXPECT_EQ(text->getCharacters()[text->getLength()], '\0');
  }
}

TEST(XmlDocument, TakesLittleMoreMemoryThanTheFile) {
  std::string xml = "<xmi:XMI>\n";
  for (int i = 0; i < 50000; ++i) {
    const std::string id = std::to_string(1000000 + i);
    xml += "  <packagedElement xmi:type=\"uml:Class\" xmi:id=\"EAID_" + id + "\" name=\"Class" + id +
           "\" visibility=\"public\">\n    <ownedAttribute xmi:type=\"uml:Property\" xmi:id=\"EAID_A" + id +
           "\" name=\"name\" visibility=\"private\"/>\n  </packagedElement>\n";
  }
  xml += "</xmi:XMI>";
  const auto document = readDocument(xml);
  EXPECT_LT(static_cast<double>(document->getMemorySize()), 1.3 * static_cast<double>(xml.size()));
}

}  // namespace
