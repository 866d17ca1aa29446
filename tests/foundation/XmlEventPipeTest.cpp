// XmlEventPipe and reading ahead: the same events as on one thread, and no way out that leaves a thread
// behind.
#include "foundation/xml/XmlEventPipe.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "foundation/KYRSAX2Parser.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

namespace {

// Writes the events down while the document grows; may raise at one of them.
class Follower : public XmlDocumentListener {
 public:
  void startDocument(const std::shared_ptr<const XmlDocument>& document) override { document_ = document; }
  void startElement(XmlDocument::Node node) override {
    count();
    lines += "+" + std::string(document_->getTag(node).view());
    for (std::uint32_t i = 0; i < document_->getAttributeCount(node); ++i) {
      lines += " " + std::string(document_->getNameText(document_->getAttributeName(node, i)).view());
      lines += "=" + std::string(document_->getAttributeValue(node, i).view());
    }
    lines += "@" + std::to_string(document_->getLine(node)) + "\n";
  }
  void endElement(XmlDocument::Node node) override {
    count();
    lines += "-" + std::string(document_->getTag(node).view()) + "\n";
  }
  void characters(XmlDocument::Node node) override {
    count();
    lines += "'" + std::string(document_->getText(node).view()) + "'\n";
  }
  void processingInstruction(const KYRString&, const KYRString&) override {}

  std::string lines;
  int eventsBeforeRaise = -1;  // -1: never

 private:
  void count() {
    if (eventsBeforeRaise >= 0 && eventsBeforeRaise-- == 0) throw std::runtime_error("enough");
  }
  std::shared_ptr<const XmlDocument> document_;
};

// So many events that the thread which reads ahead has to wait for room many times.
std::string manyElements(int count) {
  std::string xml = "<root>\n";
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    xml += "<e n" + std::to_string(i % 40) + "='" + number + "'><c>text " + number + "</c></e>\n";
  }
  return xml + "</root>";
}

constexpr int manyBatches = 60000;

TEST(XmlEventPipe, ReadingAheadTellsTheSameEvents) {
  for (const int count : {0, 1, 1000, manyBatches}) {
    const std::string xml = manyElements(count);
    Follower alone;
    Follower ahead;
    XmlMemoryInput first(memoryName, xml);
    XmlMemoryInput second(memoryName, xml);
    readXmlInput(first, &alone);
    const auto document = readXmlInputAhead(second, ahead);
    ASSERT_TRUE(alone.lines == ahead.lines) << count;  // too long to be shown
    EXPECT_EQ(dumpDocument(*document).size(), dumpDocument(*readDocument(xml)).size());
  }
}

TEST(XmlEventPipe, AnErrorOfTheFileComesBehindTheEventsBeforeIt) {
  for (const int count : {0, 10, manyBatches}) {
    std::string xml = manyElements(count);
    xml.replace(xml.size() - 7, 7, "</rood>");
    Follower alone;
    Follower ahead;
    XmlMemoryInput first(memoryName, xml);
    XmlMemoryInput second(memoryName, xml);
    const std::string error = messageOf([&] { readXmlInput(first, &alone); });
    EXPECT_EQ(messageOf([&] { readXmlInputAhead(second, ahead); }), error);
    EXPECT_NE(error.find("mismatched tag"), std::string::npos) << error;
    EXPECT_TRUE(alone.lines == ahead.lines) << count;
  }
}

TEST(XmlEventPipe, WhatTheListenerRaisesEndsBothThreads) {
  const std::string xml = manyElements(manyBatches);
  for (const int events : {0, 1, 100, 20000, 200000}) {
    Follower follower;
    follower.eventsBeforeRaise = events;
    XmlMemoryInput input(memoryName, xml);
    EXPECT_THROW(readXmlInputAhead(input, follower), std::runtime_error) << events;
  }
}

// Most elements, each once, in order, and never when it has started already.
TEST(XmlEventPipe, ElementsAreExpectedBeforeTheyStart) {
  class Expecting : public Follower {
   public:
    void expect(XmlDocument::Node element) override {
      ++expected;
      isInOrder = isInOrder && element > last && element > started;
      last = element;
    }
    void startElement(XmlDocument::Node node) override { started = node; }
    int expected = 0;
    bool isInOrder = true;
    XmlDocument::Node last = 0;
    XmlDocument::Node started = 0;
  } follower;
  const std::string xml = manyElements(manyBatches);
  XmlMemoryInput input(memoryName, xml);
  readXmlInputAhead(input, follower);
  EXPECT_TRUE(follower.isInOrder);
  EXPECT_GT(follower.expected, 2 * manyBatches * 9 / 10);
  EXPECT_LT(follower.expected, 2 * manyBatches);
}

TEST(XmlEventPipe, TheFillingThreadIsHeldUpUntilTheOtherGivesUp) {
  XmlEventPipe pipe;
  bool isAbandoned = false;
  std::thread filling([&] {
    try {
      for (;;) pipe.endElement(0);  // nobody takes any of it
    } catch (const XmlEventPipe::Abandoned&) {
      isAbandoned = true;
    }
  });
  pipe.abandon();
  filling.join();
  EXPECT_TRUE(isAbandoned);
}

TEST(XmlEventPipe, ALargeFileIsReadAheadAndPositionsFollowTheEvents) {
  constexpr int count = 60000;  // more than a megabyte
  const TemporaryFile file(manyElements(count));
  struct Reader {
    KYRSAX2Parser parser{this, nullptr, &start, nullptr, nullptr, nullptr};
    int elements = 0;
    static void start(void* self, const KYRString& tag, const KYRStringArray&) {
      auto& reader = *static_cast<Reader*>(self);
      if (tag.view() != "e") return;
      ++reader.elements;
      const std::string expected = "line " + std::to_string(reader.elements + 1) + ", column 1";
      if (reader.parser.getPosition().view() != expected) throw std::logic_error("not at " + expected);
    }
  } reader;
  reader.parser.parseFile(file.file());
  EXPECT_EQ(reader.elements, count);
}

}  // namespace
