// XmlDocumentListener: a walk of a finished document tells what the reading of the file told.
#include "foundation/xml/XmlDocumentListener.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundation/xml/XmlDocumentReader.h"
#include "tests/foundation/XmlTestSupport.h"

namespace {

class Follower : public XmlDocumentListener {
 public:
  void startDocument(const std::shared_ptr<const XmlDocument>& document) override {
    document_ = document;
    text += "document\n";
  }
  void startElement(XmlDocument::Node node) override {
    text += "+" + std::string(document_->getTag(node).view());
    for (std::uint32_t i = 0; i < document_->getAttributeCount(node); ++i) {
      text += " " + std::string(document_->getAttributeValue(node, i).view());
    }
    text += " in " + std::to_string(document_->getParent(node)) + "\n";
  }
  void endElement(XmlDocument::Node node) override {
    text += "-" + std::string(document_->getTag(node).view()) + "\n";
  }
  void characters(XmlDocument::Node node) override {
    text += "'" + std::string(document_->getText(node).view()) + "'\n";
  }
  void processingInstruction(const KYRString& target, const KYRString& data) override {
    text += "?" + std::string(target.view()) + " " + std::string(data.view()) + "\n";
  }
  std::string text;

 private:
  std::shared_ptr<const XmlDocument> document_;
};

TEST(XmlDocumentListener, TheWalkOfADocumentEqualsItsReading) {
  const char xml[] = "<a x='1'>t<b><c y='2'/></b>u<d>&lt;<e><f/></e></d></a>";
  XmlMemoryInput input(memoryName, xml);
  Follower reading;
  const auto document = readXmlInput(input, &reading);
  Follower walk;
  replayDocument(document, walk);
  EXPECT_EQ(reading.text, walk.text);
  EXPECT_EQ(walk.text,
            "document\n+a 1 in 4294967295\n't'\n+b in 0\n+c 2 in 2\n-c\n-b\n'u'\n+d in 0\n'<'\n+e in 5\n"
            "+f in 7\n-f\n-e\n-d\n-a\n");
}

TEST(XmlDocumentListener, AWalkTellsOfElementsBeforeTheyStart) {
  class Expecting : public Follower {
   public:
    void expect(XmlDocument::Node element) override { expected.push_back(element); }
    void startElement(XmlDocument::Node node) override {
      started.push_back(node);
      if (!expected.empty() && node == expected.front()) firstAhead = expected.back() - node;
    }
    std::vector<XmlDocument::Node> expected;
    std::vector<XmlDocument::Node> started;
    XmlDocument::Node firstAhead = 0;
  } walk;
  std::string xml = "<a>";
  for (int i = 0; i < 40; ++i) xml += "<b/>text";
  xml += "</a>";
  XmlMemoryInput input(memoryName, xml);
  replayDocument(readXmlInput(input, nullptr), walk);
  ASSERT_EQ(walk.started.size(), 41U);
  ASSERT_GT(walk.expected.size(), 30U);
  EXPECT_GT(walk.firstAhead, 5U);
  const std::vector<XmlDocument::Node> last(walk.started.end() - static_cast<int>(walk.expected.size()),
                                            walk.started.end());
  EXPECT_EQ(walk.expected, last);
}

TEST(XmlDocumentListener, ReadingsTellProcessingInstructionsWhereTheyStand) {
  XmlMemoryInput input(memoryName, "<?p 1?><a>x<?q 2?>y</a>");
  Follower reading;
  readXmlInput(input, &reading);
  EXPECT_EQ(reading.text, "document\n?p 1\n+a in 4294967295\n'x'\n?q 2\n'y'\n-a\n");
}

}  // namespace
