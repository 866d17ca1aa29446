// KYRSAX2Parser: callbacks, positions, and the document that stays behind.
#include "foundation/KYRSAX2Parser.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/KYRDOM.h"
#include "foundation/xml/XmlDocument.h"
#include "tests/foundation/AllocationProbe.h"
#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

namespace {

// Writes down what the callbacks receive.
struct Recorder {
  Recorder() : parser(this, nullptr, &start, &end, &characters, nullptr) {}
  static Recorder& from(void* userData) { return *static_cast<Recorder*>(userData); }
  static void start(void* userData, const KYRString& tag, const KYRStringArray& attributes) {
    Recorder& self = from(userData);
    self.finishText();
    self.text += "+" + std::string(tag.view());
    for (unsigned int i = 0; i < attributes.getCount(); ++i) {
      self.text += (i % 2 == 0 ? " " : "=") + std::string(attributes.get(i).view());
    }
    self.text += " at " + std::string(self.parser.getPosition().view()) + "\n";
    self.evenCounts = self.evenCounts && attributes.getCount() % 2 == 0;
  }
  static void end(void* userData, const KYRString& tag) {
    from(userData).finishText();
    from(userData).text += "-" + std::string(tag.view()) + "\n";
  }
  static void characters(void* userData, const KYRString& text) { from(userData).pending += text.view(); }
  void finishText() {
    if (!pending.empty()) text += "'" + pending + "'\n";
    pending.clear();
  }

  KYRSAX2Parser parser;
  std::string text;
  std::string pending;
  bool evenCounts = true;
};

TEST(KYRSAX2Parser, CallsBackWithNamesAsWrittenAndTheirPositions) {
  const TemporaryFile file(
      "<?xml version='1.0'?>\n<xmi:XMI xmlns:uml='http://u' xmi:version='2.1'>\n"
      "  <uml:Model xmi:id='1' xmi:type='uml:Model'>a&amp;b</uml:Model></xmi:XMI>\n");
  Recorder recorder;
  EXPECT_EQ(recorder.parser.getPosition().view(), "");
  EXPECT_EQ(recorder.parser.getDocument(), nullptr);
  recorder.parser.parseFile(file.file());
  EXPECT_EQ(recorder.text,
            "+xmi:XMI xmlns:uml=http://u xmi:version=2.1 at line 2, column 1\n"
            "'\n  '\n"
            "+uml:Model xmi:id=1 xmi:type=uml:Model at line 3, column 3\n"
            "'a&b'\n"
            "-uml:Model\n"
            "-xmi:XMI\n");
  EXPECT_TRUE(recorder.evenCounts);
  EXPECT_EQ(recorder.parser.getPosition().view(), "line 3, column 3");
  ASSERT_NE(recorder.parser.getDocument(), nullptr);
  EXPECT_EQ(recorder.parser.getDocument()->getNodeCount(), 4U);
}

TEST(KYRSAX2Parser, AReadingOfALivingDocumentCallsBackTheSameWithoutTokenising) {
  const TemporaryFile file("<a x='1'>\n<b>t</b>\xC3\xA9<c/></a>");
  Recorder first;
  first.parser.parseFile(file.file());
  const std::uint64_t before = XmlTokenizer::getRunCount();
  Recorder second;
  second.parser.parseFile(file.file());
  EXPECT_EQ(second.text, first.text);
  EXPECT_EQ(second.parser.getDocument(), first.parser.getDocument());
  EXPECT_EQ(XmlTokenizer::getRunCount(), before);
}

TEST(KYRSAX2Parser, FollowsATreeReadingWithoutTokenising) {
  const TemporaryFile file("<a><b/></a>");
  const std::unique_ptr<KYRDOMElement> root(KYRDOM(nullptr).parseFile(file.file()));
  const std::uint64_t before = XmlTokenizer::getRunCount();
  Recorder recorder;
  recorder.parser.parseFile(file.file());
  EXPECT_EQ(recorder.text, "+a at line 1, column 1\n+b at line 1, column 4\n-b\n-a\n");
  EXPECT_EQ(XmlTokenizer::getRunCount(), before);
}

TEST(KYRSAX2Parser, MayReadAgainAndThenAnotherFile) {
  Recorder recorder;
  recorder.parser.parseFile(TemporaryFile("<a/>").file());
  recorder.parser.parseFile(TemporaryFile("\n<b/>").file());
  EXPECT_EQ(recorder.text, "+a at line 1, column 1\n-a\n+b at line 2, column 1\n-b\n");
}

TEST(KYRSAX2Parser, TellsOfWantedValuesThatCome) {
  std::string xml = "<a>";
  for (int i = 0; i < 40; ++i)
    xml += "<b x='" + std::to_string(i) + "' y='no' z='" + std::to_string(i) + "z'/>";
  const TemporaryFile file(xml + "</a>");
  struct Reader {
    KYRSAX2Parser parser{this, nullptr, &start, nullptr, nullptr, nullptr};
    std::vector<std::string> asked;
    std::vector<std::string> coming;
    std::vector<std::string> started;
    std::size_t farthest = 0;  // values told of that no element had yet
    static Reader& from(void* self) { return *static_cast<Reader*>(self); }
    static bool isWanted(void* self, const KYRString& attribute) {
      from(self).asked.emplace_back(attribute.view());
      return attribute.view() != "y";
    }
    static void come(void* self, const KYRString& value) { from(self).coming.emplace_back(value.view()); }
    static void start(void* self, const KYRString&, const KYRStringArray& attributes) {
      Reader& reader = from(self);
      for (unsigned int i = 0; i < attributes.getCount(); i += 2) {
        if (attributes.get(i).view() != "y") reader.started.emplace_back(attributes.get(i + 1).view());
      }
      if (reader.started.size() == 40) reader.farthest = reader.coming.size();
    }
  };
  Reader small;
  small.parser.lookAhead(&Reader::isWanted, &Reader::come);
  small.parser.parseFile(file.file());
  EXPECT_TRUE(small.coming.empty());  // read at once, on one thread
  Reader walk;
  walk.parser.lookAhead(&Reader::isWanted, &Reader::come);
  walk.parser.parseFile(file.file());
  EXPECT_EQ(walk.asked, (std::vector<std::string>{"x", "y", "z"}));
  EXPECT_EQ(walk.started, small.started);
  ASSERT_GT(walk.coming.size(), 50U);
  const std::vector<std::string> last(walk.started.end() - static_cast<int>(walk.coming.size()),
                                      walk.started.end());
  EXPECT_EQ(walk.coming, last);
  EXPECT_GT(walk.farthest + (80 - walk.coming.size()), 50U);
}

TEST(KYRSAX2Parser, EveryCallbackMayBeMissing) {
  const TemporaryFile file("<a x=''>t<?pi?></a>");
  KYRSAX2Parser parser(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  parser.parseFile(file.file());
  EXPECT_EQ(parser.getDocument()->getNodeCount(), 2U);
}

void recordInstruction(void* userData, const KYRString& target, const KYRString& data) {
  static_cast<std::vector<std::string>*>(userData)->push_back(std::string(target.view()) + ":" +
                                                              std::string(data.view()));
}

TEST(KYRSAX2Parser, TheFourthCallbackReceivesProcessingInstructionsAtEveryReading) {
  const TemporaryFile file("<?one 1?><a><?two 2?></a>");
  std::vector<std::string> instructions;
  KYRSAX2Parser first(&instructions, nullptr, nullptr, nullptr, nullptr, &recordInstruction);
  first.parseFile(file.file());
  KYRSAX2Parser second(&instructions, nullptr, nullptr, nullptr, nullptr, &recordInstruction);
  second.parseFile(file.file());
  EXPECT_EQ(instructions, (std::vector<std::string>{"one:1", "two:2", "one:1", "two:2"}));
}

struct Failure {
  int code;
};

TEST(KYRSAX2Parser, ExceptionsOfCallbacksPassThrough) {
  const TemporaryFile file("<a>t<b/></a>");
  const auto failStart = [](void*, const KYRString&, const KYRStringArray&) { throw Failure{1}; };
  const auto failEnd = [](void*, const KYRString&) { throw std::runtime_error("end"); };
  const auto failCharacters = [](void*, const KYRString&) { throw std::bad_alloc(); };
  KYRSAX2Parser start(nullptr, nullptr, failStart, nullptr, nullptr, nullptr);
  EXPECT_THROW(start.parseFile(file.file()), Failure);
  KYRSAX2Parser end(nullptr, nullptr, nullptr, failEnd, nullptr, nullptr);
  EXPECT_THROW(end.parseFile(file.file()), std::runtime_error);
  KYRSAX2Parser characters(nullptr, nullptr, nullptr, nullptr, failCharacters, nullptr);
  EXPECT_THROW(characters.parseFile(file.file()), std::bad_alloc);
  EXPECT_THROW(characters.parseFile(file.file()), std::bad_alloc);  // it may be used again
}

TEST(KYRSAX2Parser, ExceptionsOfCallbacksPassThroughTheWalkOfADocumentToo) {
  const TemporaryFile file("<a>t<b/></a>");
  const std::unique_ptr<KYRDOMElement> root(KYRDOM(nullptr).parseFile(file.file()));
  KYRSAX2Parser parser(
      nullptr, nullptr, [](void*, const KYRString&, const KYRStringArray&) { throw Failure{1}; }, nullptr,
      nullptr, nullptr);
  EXPECT_THROW(parser.parseFile(file.file()), Failure);
}

struct Keeper {
  std::vector<const char*> tags;
  std::vector<const char*> values;
};

void keep(void* userData, const KYRString& tag, const KYRStringArray& attributes) {
  auto& keeper = *static_cast<Keeper*>(userData);
  keeper.tags.push_back(tag.getCharacters());
  if (attributes.getCount() > 1) keeper.values.push_back(attributes.get(1).getCharacters());
}

TEST(KYRSAX2Parser, TagsAndAttributesLiveAsLongAsTheParserAlsoAfterAFailure) {
  const TemporaryFile file("<a x='long enough to be a value'><b/><a/>&undefined;</a>");
  Keeper keeper;
  KYRSAX2Parser parser(&keeper, nullptr, &keep, nullptr, nullptr, nullptr);
  EXPECT_THROW(parser.parseFile(file.file()), KYRException);
  ASSERT_EQ(keeper.tags.size(), 3U);
  EXPECT_STREQ(keeper.tags[1], "b");
  EXPECT_EQ(keeper.tags[0], keeper.tags[2]);  // one name, one text
  EXPECT_STREQ(keeper.values[0], "long enough to be a value");
}

TEST(KYRSAX2Parser, TheLineIsThatOfThePosition) {
  struct Lines {
    KYRSAX2Parser* parser = nullptr;
    std::vector<std::uint32_t> lines;
  } lines;
  const auto note = [](void* data, const KYRString&, const KYRStringArray&) {
    static_cast<Lines*>(data)->lines.push_back(static_cast<Lines*>(data)->parser->getLine());
  };
  const TemporaryFile file("<a>\n<b/>\r\n\n<c/></a>");
  KYRSAX2Parser parser(&lines, nullptr, note, nullptr, nullptr, nullptr);
  EXPECT_EQ(parser.getLine(), 0U);
  lines.parser = &parser;
  parser.parseFile(file.file());
  EXPECT_EQ(lines.lines, (std::vector<std::uint32_t>{1, 2, 4}));
}

TEST(KYRSAX2Parser, EventsCostNoAllocationOfTheirOwn) {
  const auto allocationsOf = [](int elements) {
    std::string xml = "<a>";
    for (int i = 0; i < elements; ++i) xml += "\n <b name='value' id='" + std::to_string(i) + "'/>";
    const TemporaryFile file(xml + "</a>");
    Keeper keeper;
    keeper.tags.reserve(30000);
    keeper.values.reserve(30000);
    KYRSAX2Parser parser(&keeper, nullptr, &keep, nullptr, nullptr, nullptr);
    const AllocationProbe probe;
    parser.parseFile(file.file());
    return probe.getCount();
  };
  EXPECT_LT(allocationsOf(20000), allocationsOf(200) + 100);
}

}  // namespace
