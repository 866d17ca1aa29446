// XmlDocumentCache: finds living documents of the very same file, and keeps none alive.
#include "foundation/xml/XmlDocumentCache.h"

#include <gtest/gtest.h>

#include "tests/foundation/XmlTestSupport.h"

namespace {

TEST(XmlDocumentCache, FindsADocumentWhileSomebodyHoldsIt) {
  XmlDocumentCache cache;
  const XmlFileIdentity identity{1, 2, 3, 4, 5};
  auto document = readDocument("<a/>");
  EXPECT_EQ(cache.find(identity, ""), nullptr);
  cache.add(identity, "", document);
  EXPECT_EQ(cache.find(identity, ""), document);
  document.reset();
  EXPECT_EQ(cache.find(identity, ""), nullptr);
}

TEST(XmlDocumentCache, EveryPartOfTheIdentityCounts) {
  XmlDocumentCache cache;
  const auto document = readDocument("<a/>");
  cache.add({1, 2, 3, 4, 5}, "", document);
  const XmlFileIdentity others[] = {
      {9, 2, 3, 4, 5}, {1, 9, 3, 4, 5}, {1, 2, 9, 4, 5}, {1, 2, 3, 9, 5}, {1, 2, 3, 4, 9}};
  for (const XmlFileIdentity& other : others) EXPECT_EQ(cache.find(other, ""), nullptr);
  EXPECT_EQ(cache.find({1, 2, 3, 4, 5}, "KOI8-R"), nullptr);
  EXPECT_EQ(cache.find({1, 2, 3, 4, 5}, ""), document);
}

TEST(XmlDocumentCache, HoldsSeveralDocumentsAtATime) {
  XmlDocumentCache cache;
  const auto first = readDocument("<a/>");
  const auto second = readDocument("<b/>");
  cache.add({1, 1, 1, 1, 1}, "", first);
  cache.add({2, 2, 2, 2, 2}, "", second);
  EXPECT_EQ(cache.find({1, 1, 1, 1, 1}, ""), first);
  EXPECT_EQ(cache.find({2, 2, 2, 2, 2}, ""), second);
}

TEST(XmlDocumentCache, KnowsAFileAsWrittenAndAsRewritten) {
  using Form = XmlDocumentCache::Form;
  XmlDocumentCache cache;
  const XmlFileIdentity identity{1, 2, 3, 4, 5};
  const auto written = readDocument("<a/>");
  const auto rewritten = readDocument("<b/>");
  cache.add(identity, "", written);
  EXPECT_EQ(cache.find(identity, "", Form::rewritten), nullptr);
  cache.add(identity, "", rewritten, Form::rewritten);
  EXPECT_EQ(cache.find(identity, "", Form::rewritten), rewritten);
  EXPECT_EQ(cache.find(identity, ""), written);
  cache.forgetRewritten();
  EXPECT_EQ(cache.find(identity, "", Form::rewritten), nullptr);
  EXPECT_EQ(cache.find(identity, ""), written);
}

}  // namespace
