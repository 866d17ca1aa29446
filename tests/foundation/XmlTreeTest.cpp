// XmlTree: elements are made on demand, once each, and asking for children costs linear time in all.
#include "foundation/xml/XmlTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/foundation/AllocationProbe.h"
#include "tests/foundation/XmlTestSupport.h"

namespace {

std::unique_ptr<KYRDOMElement> makeTree(std::string_view xml) {
  return std::unique_ptr<KYRDOMElement>(XmlTree::makeRoot(readDocument(xml)));
}

std::string manyChildren(int count) {
  std::string xml = "<a>";
  for (int i = 0; i < count; ++i) {
    const std::string tag = i % 3 == 0 ? "even" : "t" + std::to_string(i % 7);
    xml += "\n <" + tag + " n='" + std::to_string(i) + "'><leaf/></" + tag + ">";
  }
  return xml + "</a>";
}

TEST(XmlTree, ALoopOverTheChildrenVisitsEachNodeAFewTimesOnly) {
  constexpr int count = 20000;
  const auto root = makeTree(manyChildren(count));
  const XmlTree& tree = XmlTree::of(*root);
  for (int i = 0; i < root->getElementCount(); ++i) {
    ASSERT_EQ(root->getElement(i)->getAttribute("n").getInt(), i);
  }
  for (int i = 0; i < root->getElementCount("even"); ++i) {
    ASSERT_EQ(root->getElement("even", i)->getAttribute("n").getInt(), 3 * i);
  }
  for (int i = root->getElementCount() - 1; i >= 0; --i) ASSERT_NE(root->getElement(i), nullptr);
  for (int i = 0; i < count; ++i) {  // several tags by turns, and one that is not there
    root->getElement(i % 2 == 0 ? "t1" : "t2", i / 10);
    root->getFirstElement("missing");
  }
  EXPECT_LE(tree.getStepCount(), 3U * count + 3);
}

TEST(XmlTree, AskingEachChildForItsOwnChildrenVisitsEachNodeOnce) {
  constexpr int count = 20000;
  const auto root = makeTree(manyChildren(count));
  for (int i = 0; i < root->getElementCount(); ++i) {
    ASSERT_NE(root->getElement(i)->getFirstElement("leaf"), nullptr);
  }
  EXPECT_LE(XmlTree::of(*root).getStepCount(), 4U * count + 4);
}

TEST(XmlTree, ElementsOfOneNodeAreOneObject) {
  const auto root = makeTree("<a><b/><c/></a>");
  KYRDOMElement* const b = root->getElement(0);
  EXPECT_EQ(root->getFirstElement("b"), b);
  EXPECT_EQ(root->getElement("b", 0), b);
  EXPECT_EQ(b->getParent(), root.get());
  EXPECT_EQ(XmlTree::of(*b).getElement(1), b);
}

TEST(XmlTree, OnlyElementsThatAreAskedForAreMade) {
  const auto root = makeTree(manyChildren(10000));
  root->getElementCount();
  const AllocationProbe probe;
  root->getElement(9999);
  EXPECT_LE(probe.getCount(), 4U);
}

TEST(XmlTree, TheTreeKeepsTheDocumentAndItsRootLetsGoOfIt) {
  auto document = readDocument("<a><b/></a>");
  const std::weak_ptr<const XmlDocument> watched = document;
  std::unique_ptr<KYRDOMElement> root(XmlTree::makeRoot(std::move(document)));
  root->getElement(0);
  EXPECT_FALSE(watched.expired());
  root.reset();
  EXPECT_TRUE(watched.expired());
}

}  // namespace
