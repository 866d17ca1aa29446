// XmlQuickTokenizer and XmlExpatTokenizer: the same events of what is in order; what is not, the quick one
// leaves to the other, which goes on where it has stopped.
#include "foundation/xml/XmlQuickTokenizer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/KYRException.h"
#include "foundation/xml/XmlExpatTokenizer.h"
#include "tests/foundation/XmlTestSupport.h"

namespace {

constexpr std::size_t blockSize = XmlTokenizer::defaultBlockSize;

struct Quick {
  bool isWhole;
  std::string events;
};

Quick readQuickly(std::string_view xml, std::size_t block = blockSize, XmlThreads threads = XmlThreads::one) {
  XmlMemoryInput input(memoryName, xml);
  EventRecorder recorder;
  const bool isWhole = XmlQuickTokenizer(input, recorder, block, threads).run();
  return {isWhole, recorder.getText()};
}

// The events, or what is wrong.
template <class Tokenizer>
std::string readBy(std::string_view xml, std::size_t block = blockSize) {
  XmlMemoryInput input(memoryName, xml);
  EventRecorder recorder;
  const std::string error = messageOf([&] { Tokenizer(input, recorder, block).run(); });
  if (error != "nothing raised") recorder.dropText();
  return recorder.getText() + error;
}

std::vector<std::string> readSamples() {
  std::vector<std::string> texts;
  for (const auto& entry : std::filesystem::directory_iterator(KYR_SOURCE_DIR "/samples")) {
    if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
    std::ifstream file(entry.path(), std::ios::binary);
    texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return texts;
}

TEST(XmlQuickTokenizer, ReadsTheSamplesToTheirEndsAndTellsWhatExpatTells) {
  const std::vector<std::string> samples = readSamples();
  ASSERT_GE(samples.size(), 8U);
  for (const std::string& text : samples) {
    const std::string expected = readBy<XmlExpatTokenizer>(text);
    for (const std::size_t block : {std::size_t{100}, blockSize}) {
      for (const XmlThreads threads : {XmlThreads::one, XmlThreads::several}) {
        const Quick quick = readQuickly(text, block, threads);
        EXPECT_TRUE(quick.isWhole) << text.substr(0, 300);
        EXPECT_EQ(quick.events + "nothing raised", expected) << text.substr(0, 300);
      }
    }
  }
}

TEST(XmlQuickTokenizer, TellsValuesAndTextsAsExpatDoes) {
  const char* const texts[] = {
      "<a b=\"&lt;&amp;&gt;&apos;&quot;\" c='&#38;&#x26;&#10;&#xD;&#9;'/>",
      "<a b=' x \t y\n\nz\r\nw\r' c=''/>",
      "<a>\r\nx\ry\n\rz&#13;&amp;&lt;&#x1F600;</a>",
      "<a><![CDATA[<&]]]]><![CDATA[>\r\n]]></a>",
      "<a>]]&gt;</a>",
      "<a>]<![CDATA[]>]]></a>",
      "<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?><!-- c --><?p?><?p  d ?><a/><!-- c "
      "--><?q?>",
      "<?xml version=\"1.0\"?>\n<x:a xmlns:x='u' xmlns='v' x:b='1' b='1' y:c=''><z:d/></x:a>\n",
      "<?oasis-xml-catalog catalog=\"file:///nowhere\"?><a xml:lang='?' xml:space='x' xml:id='1'/>",
      "<\xC3\xA4 \xCE\xB1\xCC\x80='\xE6\x97\xA5'>\xEF\xBF\xBD\xF4\x8F\xBF\xBD</\xC3\xA4>",
      "<a\n  b='1'\n></a\n>",
      "\xEF\xBB\xBF<a/>",
  };
  for (const char* const text : texts) {
    EXPECT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << text;
    const Quick quick = readQuickly(text);
    if (quick.isWhole) {
      EXPECT_EQ(quick.events + "nothing raised", readBy<XmlExpatTokenizer>(text)) << text;
    }
  }
}

TEST(XmlQuickTokenizer, LeavesToExpatWhatIsNotInOrder) {
  const std::string longName(5000, 'n');
  const std::string texts[] = {
      "",
      " ",
      "x",
      "<a>",
      "<a></b>",
      "<a/><b/>",
      "<a/>x",
      "<a b='1' b='2'/>",
      "<a b=1/>",
      "<a b='<'/>",
      "<a b/>",
      "<a>&b;</a>",
      "<a b='&b;'/>",
      "<a>&#0;</a>",
      "<a>&#xD800;</a>",
      "<a>&#xFFFE;</a>",
      "<a>\xEF\xBF\xBE</a>",
      "<a>&</a>",
      "<a>x]]>y</a>",
      "<a><!-- -- --></a>",
      "<a><!-- ---></a>",
      "<a><?xml version='1.0'?></a>",
      " <?xml version='1.0'?><a/>",
      "<?xml version='1.1'?><a/>",
      "<?xml encoding='UTF-8'?><a/>",
      "<a><![CDATA[x]]</a>",
      "<!DOCTYPE a><a/>",
      "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>",
      "<1/>",
      "<a \xCC\x80='1'/>",
      "<\xF0\x90\x80\x80/>",
      "<a>\xFF</a>",
      "<" + longName + "/>",
      "<a " + longName + "='1'/>",
  };
  for (const std::string& text : texts) {
    EXPECT_FALSE(readQuickly(text).isWhole) << text.substr(0, 80);
    EXPECT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << text.substr(0, 80);
  }
}

// libxml2 has its text in buffers of some 4,000 bytes, and sees "]]>" only where one buffer holds all of it.
TEST(XmlQuickTokenizer, TheEndOfASectionInATextIsFoundWhereverBuffersMeet) {
  for (std::size_t length = 3900; length < 4200; ++length) {
    const std::string text = "<a>" + std::string(length, 'x') + "]]></a>";
    ASSERT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << length;
  }
}

// libxml2 loses its way when a read gives less than it has asked for.
TEST(XmlQuickTokenizer, SmallPiecesAndBlocksAreAllTheSame) {
  for (const std::string& text : readSamples()) {
    const Quick whole = readQuickly(text);
    for (const std::size_t size : {1, 2, 3, 37}) {
      XmlMemoryInput input(memoryName, text, size);
      EventRecorder recorder;
      ASSERT_TRUE(XmlQuickTokenizer(input, recorder, size, XmlThreads::one).run()) << size;
      ASSERT_EQ(recorder.getText(), whole.events) << size;
    }
  }
}

TEST(XmlQuickTokenizer, LineEndsAreOneWhereverBuffersMeet) {
  for (const std::size_t block : {std::size_t{1}, std::size_t{7}, blockSize}) {
    for (std::size_t length = 3950; length < 4050; ++length) {
      const std::string filling(length, 'x');
      const std::string text = "<a b='" + filling + "\r\n'>" + filling + "\r\n\r<b/></a>";
      ASSERT_EQ(readBy<XmlTokenizer>(text, block), readBy<XmlExpatTokenizer>(text)) << length;
    }
  }
}

TEST(XmlQuickTokenizer, TextsCutAnywhereEndWithTheSameEventsAndTheSameError) {
  for (const std::string& text : readSamples()) {
    for (std::size_t length = 0; length < text.size(); length += 1 + text.size() / 150) {
      const std::string_view cut = std::string_view(text).substr(0, length);
      ASSERT_EQ(readBy<XmlTokenizer>(cut), readBy<XmlExpatTokenizer>(cut)) << length;
    }
  }
}

TEST(XmlQuickTokenizer, LimitsAreThoseOfExpat) {
  XmlLimits limits;
  limits.maxDepth = 2;
  limits.maxAttributes = 2;
  limits.maxNameBytes = 3;
  limits.maxTextBytes = 4;
  const TemporaryLimits temporary(limits);
  const char* const texts[] = {
      "<a><b/></a>",
      "<a><b><c/></b></a>",
      "<a b='' c=''/>",
      "<a b='' c='' d=''/>",
      "<abc/>",
      "<abcd/>",
      "<a abc=''/>",
      "<a abcd=''/>",
      "<a b='1234'/>",
      "<a b='12345'/>",
      "<a>1234</a>",
      "<a>12345</a>",
      "<a>12<!-- -->345</a>",
      "<a>12<b/>345</a>",
      "<a>12<![CDATA[345]]></a>",
      "<a><b>1</b><b/><b>12345</b></a>",
  };
  for (const char* const text : texts) {
    EXPECT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << text;
  }
}

TEST(XmlQuickTokenizer, ManyAttributesAreLeftToExpat) {
  for (const int count : {200, 201, 9000}) {
    std::string text = "<a";
    for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "='1'";
    text += "/>";
    EXPECT_EQ(readQuickly(text).isWhole, count <= 200) << count;
    EXPECT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << count;
  }
}

TEST(XmlQuickTokenizer, WhatItHasToldIsNotToldAgain) {
  const std::string before = "<a x='1'>\n <?p d?><b>text</b>more";
  const std::string texts[] = {before + "&lt;<!DOCTYPE b><c/></a>", before + "\x01</a>",
                               before + "<c/></a></a>", before + "]]&gt;<c/></a>"};
  for (const std::string& text : texts) {
    const Quick quick = readQuickly(text);
    ASSERT_FALSE(quick.isWhole);
    EXPECT_EQ(readBy<XmlTokenizer>(text), readBy<XmlExpatTokenizer>(text)) << text;
  }
}

TEST(XmlQuickTokenizer, AnExceptionOfTheSinkPassesThroughAndNothingIsToldBehindIt) {
  class Raising final : public XmlEventSink {
   public:
    void startElement(std::string_view, const Attribute*, std::size_t, const XmlPosition&) override {
      ++calls;
    }
    void endElement() override { ++calls; }
    void characters(std::string_view) override { ++calls; }
    void processingInstruction(std::string_view, std::string_view) override {
      ++calls;
      throw std::runtime_error("raised");
    }
    int calls = 0;
  };
  XmlMemoryInput input(memoryName, "<a>x<?p?>y<b/></a>");
  Raising sink;
  XmlQuickTokenizer tokenizer(input, sink, blockSize, XmlThreads::several);
  EXPECT_THROW(tokenizer.run(), std::runtime_error);
  EXPECT_EQ(sink.calls, 3);
}

// An input that shows another text each time it is read.
class ChangingInput final : public XmlInput {
 public:
  ChangingInput(std::string_view first, std::string_view second)
      : XmlInput(memoryName), rest_(first), second_(second) {}
  std::size_t read(char* buffer, std::size_t capacity) override {
    const std::size_t length = rest_.copy(buffer, capacity);
    rest_.remove_prefix(length);
    return length;
  }
  bool canRewind() const noexcept override { return true; }
  void rewind() override { rest_ = second_; }

 private:
  std::string_view rest_;
  std::string_view second_;
};

TEST(XmlTokenizer, AFileThatBecomesAnotherWhileItIsReadIsAnError) {
  const char* const others[] = {"<a/>", "<a></a>", "<a><b/><b/><b/></a>", "<x>\n<a><b/></a></x>"};
  for (const char* const other : others) {
    ChangingInput input("<a><b><c/></b>&oops;", other);
    EventRecorder recorder;
    EXPECT_EQ(messageOf([&] { XmlTokenizer(input, recorder).run(); }),
              "[KYRSTD_F0019] The file 'memory.xmi' has changed while it was read")
        << other;
  }
}

TEST(XmlTokenizer, AnInputThatCannotBeReadTwiceIsReadByExpatAlone) {
  class Stream final : public XmlInput {
   public:
    explicit Stream(std::string_view text) : XmlInput(memoryName), rest_(text) {}
    std::size_t read(char* buffer, std::size_t capacity) override {
      const std::size_t length = rest_.copy(buffer, capacity);
      rest_.remove_prefix(length);
      return length;
    }

   private:
    std::string_view rest_;
  };
  Stream input("<a>x<b/></a>");
  EventRecorder recorder;
  XmlTokenizer(input, recorder).run();
  EXPECT_EQ(recorder.getText(), "+a @1:1\n'x'\n+b @1:5\n-\n-\n");
}

}  // namespace
