// XmlTextBlocks: all of a text in blocks, on one thread or ahead on another; ends, errors, and giving up
// early.
#include "foundation/xml/XmlTextBlocks.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "tests/foundation/XmlTestSupport.h"

namespace {

constexpr XmlThreads bothWays[] = {XmlThreads::one, XmlThreads::several};

std::string largeText() {
  std::string text = "<?xml version='1.0' encoding='ISO-8859-1'?>\n<a>";
  for (int i = 0; i < 5000; ++i) text += "<b c='\xE4'/>\n";
  return text + "</a>";
}

TEST(XmlTextBlocks, GivesAllOfATextInUtf8AndThenAnEmptyBlock) {
  const std::string text = largeText();
  for (const XmlThreads threads : bothWays) {
    XmlMemoryInput input(memoryName, text);
    XmlTextBlocks blocks(input, 1000, threads);
    std::string all;
    std::size_t starts = 0;
    while (true) {
      const XmlTextBlocks::Block& block = blocks.next();
      ASSERT_TRUE(block.isPlain);
      if (block.length == 0) break;
      all.append(block.bytes.data(), block.length);
      starts += block.starts.size();
    }
    EXPECT_EQ(all.size(), text.size() + 5000);
    EXPECT_NE(all.find("<a><b c='\xC3\xA4'/>\n<b c="), std::string::npos);
    EXPECT_EQ(starts, 5001U);
  }
}

TEST(XmlTextBlocks, ABlockThatTheScanRefusesIsNotPlain) {
  for (const XmlThreads threads : bothWays) {
    XmlMemoryInput input(memoryName, "<a>\x01</a>");
    XmlTextBlocks blocks(input, 1000, threads);
    EXPECT_FALSE(blocks.next().isPlain);
  }
}

TEST(XmlTextBlocks, BytesThatTheEncodingDoesNotHaveAreNotPlain) {
  for (const XmlThreads threads : bothWays) {
    XmlMemoryInput input(memoryName, "<?xml version='1.0' encoding='Shift_JIS'?><a>\xFF</a>");
    XmlTextBlocks blocks(input, 1000, threads);
    while (true) {
      const XmlTextBlocks::Block& block = blocks.next();
      ASSERT_TRUE(block.length != 0 || !block.isPlain);
      if (!block.isPlain) break;
    }
  }
}

TEST(XmlTextBlocks, WhatTheInputRaisesComesBehindTheBlocksBefore) {
  class Failing final : public XmlInput {
   public:
    Failing() : XmlInput(memoryName) {}
    std::size_t read(char* buffer, std::size_t capacity) override {
      if (++reads_ > 3) throw std::runtime_error("broken");
      return std::string(" <a b='1' c='2'/>").copy(buffer, capacity);
    }

   private:
    int reads_ = 0;
  };
  for (const XmlThreads threads : bothWays) {
    Failing input;
    XmlTextBlocks blocks(input, 1000, threads);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(blocks.next().length, 17U);
    EXPECT_THROW(blocks.next(), std::runtime_error);
  }
}

TEST(XmlTextBlocks, MayBeGivenUpAtAnyTime) {
  const std::string text = largeText();
  for (int count = 0; count < 20; ++count) {
    XmlMemoryInput input(memoryName, text);
    XmlTextBlocks blocks(input, 1000, XmlThreads::several);
    for (int i = 0; i < count; ++i) blocks.next();
  }
}

}  // namespace
