// XmlDocumentBuilder: what becomes one node, the limits of 32-bit numbers, and lack of memory.
#include "foundation/xml/XmlDocumentBuilder.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

#include "foundation/xml/XmlDocumentReader.h"
#include "tests/foundation/AllocationProbe.h"
#include "tests/foundation/XmlTestSupport.h"

namespace {

TEST(XmlDocumentBuilder, ARunOfCharacterDataIsOneNode) {
  EXPECT_EQ(dumpDocument(*readDocument("<a>\r\n x &lt; y<![CDATA[ & ]]>z<!-- - -->!</a>")),
            "a @1:1\n"
            "  '\n x < y & z!'\n");
}

TEST(XmlDocumentBuilder, AProcessingInstructionEndsARun) {
  EXPECT_EQ(dumpDocument(*readDocument("<a>x<?pi?>y</a>")), "a @1:1\n  'x'\n  'y'\n");
}

TEST(XmlDocumentBuilder, WhatDoesNotFitIntoTheNumbersIsRefused) {
  XmlLimits limits;
  limits.maxItems = 3;
  const TemporaryLimits temporary(limits);
  const char message[] =
      "[KYRSTD_F0018] File 'memory.xmi', line 1, column 4: the limit of 3 nodes, attributes or texts in one "
      "file is exceeded";
  EXPECT_EQ(messageOf([] { readDocument("<a><b/><c/></a>"); }), "nothing raised");
  EXPECT_EQ(messageOf([] { readDocument("<a><b><c/> <d/></b></a>"); }).substr(0, 14), "[KYRSTD_F0018]");
  EXPECT_EQ(messageOf([] { readDocument("<a><b x='' y='' z=''/></a>"); }), "nothing raised");
  EXPECT_EQ(messageOf([] { readDocument("<a><b x='' y='' z='' w=''/></a>"); }), message);
  EXPECT_EQ(messageOf([] { readDocument("<a><b x='1' y='2'/></a>"); }), "nothing raised");
  EXPECT_EQ(messageOf([] { readDocument("<a><b x='1' y='2' z='3'/></a>"); }), message);
}

TEST(XmlDocumentBuilder, LackOfMemoryAnywherePassesThroughAndLeaksNothing) {
  const std::string xml =
      "<?xml version='1.0' encoding='windows-1252'?><a x='1' y='\xE9'>text<b z='2'>more</b><?pi d?></a>";
  std::size_t failures = 0;
  for (std::size_t number = 0;; ++number) {
    bool failed = false;
    {
      const AllocationFailure failure(number);
      try {
        readDocument(xml);
      } catch (const std::bad_alloc&) {
        failed = true;
      }
    }
    if (!failed) break;
    ++failures;
  }
  EXPECT_GT(failures, 5U);
}

TEST(XmlDocumentBuilder, ElementsCostNoAllocationOfTheirOwn) {
  const auto allocationsOf = [](int elements) {
    std::string xml = "<a>";
    for (int i = 0; i < elements; ++i) xml += "\n <b name='value' id='" + std::to_string(i) + "'/>";
    xml += "</a>";
    const AllocationProbe probe;
    readDocument(xml);
    return probe.getCount();
  };
  EXPECT_LT(allocationsOf(20000), allocationsOf(200) + 100);
}

}  // namespace
