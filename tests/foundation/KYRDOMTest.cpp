// KYRDOM, KYRDOMElement: the tree reading as its callers see it.
#include "foundation/KYRDOM.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "foundation/KYRSAX2Parser.h"
#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

namespace {

std::unique_ptr<KYRDOMElement> parse(const TemporaryFile& file) {
  return std::unique_ptr<KYRDOMElement>(KYRDOM(nullptr).parseFile(file.file()));
}

std::unique_ptr<KYRDOMElement> parse(const std::string& xml) { return parse(TemporaryFile(xml)); }

TEST(KYRDOM, ElementsGiveTagAttributesAndChildren) {
  const auto root = parse(
      "<?xml version='1.0'?>\n<xmi:XMI xmi:version='2.1' empty=''>\n  <uml:Model name='m'/><b/><uml:Model/>"
      "<c><b/></c></xmi:XMI>");
  EXPECT_EQ(root->getTagName().view(), "xmi:XMI");
  EXPECT_EQ(root->getAttribute("xmi:version").view(), "2.1");
  EXPECT_EQ(root->getAttribute("XMI:version").view(), "");  // exact, unlike the scan of the stream reader
  EXPECT_EQ(root->getAttribute("missing").view(), "");
  EXPECT_EQ(root->getAttribute("2.1").view(), "");
  EXPECT_TRUE(root->hasAttribute("empty"));
  EXPECT_FALSE(root->hasAttribute("missing"));
  EXPECT_EQ(root->getParent(), nullptr);
  EXPECT_EQ(root->getElementCount(), 4);
  EXPECT_EQ(root->getElementCount("uml:Model"), 2);
  EXPECT_EQ(root->getElementCount("b"), 1);  // children, not descendants
  EXPECT_EQ(root->getElementCount("missing"), 0);
  EXPECT_EQ(root->getElement(1)->getTagName().view(), "b");
  EXPECT_EQ(root->getElement("uml:Model", 1), root->getElement(2));
  EXPECT_EQ(root->getFirstElement("uml:Model"), root->getElement(0));
  EXPECT_EQ(root->getFirstElement("missing"), nullptr);
  EXPECT_EQ(root->getElement(3)->getElement(0)->getParent(), root->getElement(3));
}

TEST(KYRDOM, PositionsOutOfRangeHaveNoElement) {
  const auto root = parse("<a><b/></a>");
  for (const int index : {-1, 1, 1000}) {
    EXPECT_EQ(root->getElement(index), nullptr) << index;
    EXPECT_EQ(root->getElement("b", index), nullptr) << index;
  }
  EXPECT_EQ(root->getElement(0)->getElementCount(), 0);
  EXPECT_EQ(root->getElement(0)->getElementCount("b"), 0);
  EXPECT_EQ(root->getElement(0)->getElement(0), nullptr);
  EXPECT_EQ(root->getElement(0)->getElement("b", 0), nullptr);
}

TEST(KYRDOM, TheValueIsTheCharacterDataDirectlyInsideJoinedAndUntrimmed) {
  const auto root = parse("<a>\n one <b>inner</b>&amp; two<![CDATA[<3>]]> <c/></a>");
  EXPECT_EQ(root->getValue().view(), "\n one & two<3> ");
  EXPECT_EQ(root->getValue().view(), "\n one & two<3> ");
  EXPECT_EQ(root->getElement(0)->getValue().view(), "inner");
  EXPECT_EQ(root->getElement(1)->getValue().view(), "");
}

TEST(KYRDOM, PositionsAreThoseOfTheTags) {
  const auto root = parse("<?xml version='1.0'?>\n <a>\xC3\xA9<b/></a>");
  EXPECT_EQ(root->getPosition().view(), "line 2, column 2");
  EXPECT_EQ(root->getElement(0)->getPosition().view(), "line 2, column 6");
}

TEST(KYRDOM, WhatCannotBeReadRaises) {
  EXPECT_EQ(messageOf([] { KYRDOM(nullptr).parseFile(KYRFile("/no/such/file.xmi")); }),
            "[KYRSTD_F0001] The file '/no/such/file.xmi' cannot be opened: No such file or directory");
  const TemporaryFile file("<a></b>");
  EXPECT_EQ(messageOf([&] { parse(file); }),
            "[KYRSTD_F0007] File '" + file.path + "', line 1, column 6: mismatched tag");
}

TEST(KYRDOM, ReadsTheFileOnceWhileItsTreeOrAStreamReaderLives) {
  const TemporaryFile file("<a><b/></a>");
  const std::uint64_t before = XmlTokenizer::getRunCount();
  KYRSAX2Parser parser(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  parser.parseFile(file.file());
  auto first = parse(file);
  const auto second = parse(file);
  EXPECT_NE(first, second);  // two trees over one document
  first.reset();
  EXPECT_EQ(second->getElement(0)->getTagName().view(), "b");
  EXPECT_EQ(XmlTokenizer::getRunCount() - before, 1U);
}

TEST(KYRDOM, ADeepTreeIsReadWalkedAndFreedWithoutRecursion) {
  constexpr int depth = 200000;
  XmlLimits limits;
  limits.maxDepth = depth;
  const TemporaryLimits temporary(limits);
  std::string xml;
  for (int i = 0; i < depth; ++i) xml += "<a>";
  for (int i = 0; i < depth; ++i) xml += "</a>";
  const auto root = parse(xml);
  int reached = 1;
  const KYRDOMElement* element = root.get();
  while (element->getElementCount("a") > 0) {
    element = element->getElement("a", 0);
    ++reached;
  }
  EXPECT_EQ(reached, depth);
  while (element->getParent() != nullptr) {
    element = element->getParent();
    --reached;
  }
  EXPECT_EQ(reached, 1);
  EXPECT_EQ(element, root.get());
}

}  // namespace
