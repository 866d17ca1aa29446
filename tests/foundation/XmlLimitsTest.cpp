// XmlLimits: what hosts may set.
#include "foundation/xml/XmlLimits.h"

#include <gtest/gtest.h>

#include "tests/foundation/XmlTestSupport.h"

namespace {

TEST(XmlLimits, ValuesAreKeptAsSet) {
  XmlLimits limits;
  limits.maxDepth = 17;
  limits.maxItems = 18;
  const TemporaryLimits temporary(limits);
  EXPECT_EQ(XmlLimits::get().maxDepth, 17U);
  EXPECT_EQ(XmlLimits::get().maxItems, 18U);
  EXPECT_EQ(XmlLimits::get().maxNameBytes, 4096U);
}

TEST(XmlLimits, WhatTheReadersCannotCountIsCutToWhatTheyCan) {
  XmlLimits limits;
  limits.maxTextBytes = limits.maxNameBytes = limits.maxItems = std::size_t{1} << 40;
  const TemporaryLimits temporary(limits);
  EXPECT_EQ(XmlLimits::get().maxTextBytes, 0xFFFFFFFEU);
  EXPECT_EQ(XmlLimits::get().maxNameBytes, 0xFFFFFFFEU);
  EXPECT_EQ(XmlLimits::get().maxItems, 0xFFFFFFFEU);
}

}  // namespace
