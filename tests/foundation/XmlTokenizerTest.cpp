// XmlTokenizer: events, positions, errors and limits, the same however the text is cut; exceptions out
// of the sink; hostile documents.
#include "foundation/xml/XmlTokenizer.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

using namespace std::string_literals;

namespace {

constexpr std::size_t pieceSizes[] = {1, 2, 3, 7, std::string_view::npos};

// Every kind of event, markup of every kind between them, and characters of one to four bytes.
const std::string sample =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
    "<!DOCTYPE xmi:XMI [<!ENTITY who \"M\xC3\xBCller &amp; S\xC3\xB6hne\">\n"
    "  <!ATTLIST uml:Class isAbstract CDATA \"false\">]>\n"
    "<?target some data?>\n"
    "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' xmi:version=\"2.1\">\n"
    "\t<!-- a comment -->\n"
    "  \xE6\x97\xA5\xE6\x9C\xAC<uml:Class xmi:id=\"a&#10;b\" name='&lt;&who;&gt;'>\r\n"
    "    text &who; &#x20AC;<![CDATA[<raw> & ]] ]]>\xF0\x9F\x98\x80<?pi?>more\r"
    "  </uml:Class><empty/></xmi:XMI>";

const char sampleEvents[] =
    "?target some data\n"
    "+xmi:XMI xmlns:uml=http://schema.omg.org/spec/UML/2.1 xmi:version=2.1 @5:1\n"
    "'\n\t\n  日本'\n"
    "+uml:Class xmi:id=a\nb name=<Müller & Söhne> isAbstract=false @7:5\n"
    "'\n    text Müller & Söhne €<raw> & ]] 😀'\n"
    "?pi \n"
    "'more\n  '\n"
    "-\n"
    "+empty @9:15\n"
    "-\n"
    "-\n";

TEST(XmlTokenizer, TheEventsAreThoseOfTheTextHoweverItIsCut) {
  for (const std::size_t size : pieceSizes) {
    EXPECT_EQ(readEvents(sample, size), sampleEvents) << "pieces of " << size;
    if (size == std::string_view::npos) continue;
    EXPECT_EQ(readEvents(sample, std::string_view::npos, size), sampleEvents) << "blocks of " << size;
    EXPECT_EQ(readEvents(sample, size, size), sampleEvents) << "pieces and blocks of " << size;
  }
}

TEST(XmlTokenizer, ATextThatEndsTooEarlyIsAnErrorAtEveryByteAndTheSameHoweverItIsCut) {
  for (std::size_t length = 0; length < sample.size(); ++length) {
    const std::string_view text = std::string_view(sample).substr(0, length);
    const std::string error = errorOf(text);
    EXPECT_TRUE(error.starts_with("[KYRSTD_F0007] File 'memory.xmi', line ")) << length << ": " << error;
    for (const std::size_t size : {1U, 2U, 3U, 7U}) EXPECT_EQ(errorOf(text, size, size), error) << length;
  }
}

TEST(XmlTokenizer, WhatIsNotWellFormedIsToldWithItsPlaceAndReason) {
  const struct {
    std::string_view xml;
    const char* placeAndReason;
  } rows[] = {
      {"", "line 1, column 1: no element found"},
      {"\n\n", "line 3, column 1: no element found"},
      {"<a>\n  <b></c></a>", "line 2, column 8: mismatched tag"},
      {"<a>\n <b x='1' y='2'\n x='3'/></a>", "line 3, column 2: duplicate attribute"},
      {"<a>ab&#2;</a>", "line 1, column 6: reference to invalid character number"},
      {"<a>\xC3\xA9&#xFFFF;</a>", "line 1, column 5: reference to invalid character number"},
      {"<a>&nothing;</a>", "line 1, column 4: undefined entity"},
      {"<a/>\n<b/>", "line 2, column 1: junk after document element"},
      {"<a>\x01</a>", "line 1, column 4: not well-formed (invalid token)"},
      {"<a>\n<b", "line 2, column 1: unclosed token"},
      {"<a x=1/>", "line 1, column 6: not well-formed (invalid token)"},
      {"<a x='<'/>", "line 1, column 7: not well-formed (invalid token)"},
      {"<!DOCTYPE a [<!EN\xEF\xBB\xBF>]><a/>", "line 1, column 18: not well-formed (invalid token)"},
      {"<a><![CDATA[ </a>", "line 1, column 18: unclosed CDATA section"},
      {" <?xml version='1.0'?><a/>", "line 1, column 2: XML or text declaration not at start of entity"},
      {"<?xml version='1.0' standalone='maybe'?><a/>", "line 1, column 33: XML declaration not well-formed"},
  };
  for (const auto& row : rows) {
    const std::string expected = "[KYRSTD_F0007] File 'memory.xmi', "s + row.placeAndReason;
    EXPECT_EQ(errorOf(row.xml), expected);
    EXPECT_EQ(errorOf(row.xml, 1, 1), expected);
  }
}

TEST(XmlTokenizer, BytesOutsideUtf8AreToldWithTheirPlaceAndAWayOut) {
  const std::string head = "<?xml version='1.0' encoding='UTF-8'?>\n";
  const struct {
    std::string xml;
    const char* place;
    const char* byte;
  } rows[] = {
      {head + "<a name='\xC3\xA9t\xE9'/>", "line 2, column 12", "0xE9"},
      {head + "<a>caf\xE9</a>", "line 2, column 7", "0xE9"},
      {"<a>\n\n\x81</a>", "line 3, column 1", "0x81"},
      {"<a>\xC0\x80 </a>", "line 1, column 4", "0xC0"},          // overlong
      {"<a>\xED\xA0\x80 </a>", "line 1, column 4", "0xED"},      // half of a surrogate pair
      {"<a>\xF4\x90\x80\x80 </a>", "line 1, column 4", "0xF4"},  // beyond U+10FFFF
      {"<a><!-- \xFC -- --></a>", "line 1, column 9", "0xFC"},
  };
  for (const auto& row : rows) {
    const std::string expected =
        "[KYRSTD_F0008] File 'memory.xmi', "s + row.place + ": the byte " + row.byte +
        " is not valid UTF-8. Some tools write windows-1252 in files that say UTF-8; "
        "'--encoding windows-1252' reads the file so";
    EXPECT_EQ(errorOf(row.xml), expected);
    EXPECT_EQ(errorOf(row.xml, 1, 1), expected);
  }
}

TEST(XmlTokenizer, AForcedEncodingReadsWhatWouldBeInvalid) {
  const TemporaryEncoding forced("windows-1252");
  EXPECT_EQ(readEvents("<?xml version='1.0' encoding='UTF-8'?><a>caf\xE9</a>"), "+a @1:39\n'café'\n-\n");
}

TEST(XmlTokenizer, ColumnsCountTheCharactersOfTheFileAsWritten) {
  const struct {
    const char* what;
    std::string xml;
    const char* events;
  } rows[] = {
      {"UTF-8", "<a>\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80<b/></a>", "+a @1:1\n'é€😀'\n+b @1:7\n-\n-\n"},
      {"UTF-8 with mark", "\xEF\xBB\xBF<a><b/></a>", "+a @1:1\n+b @1:4\n-\n-\n"},
      {"references", "<a>&amp;<b/></a>", "+a @1:1\n'&'\n+b @1:9\n-\n-\n"},
      {"CR LF", "<a>\r\n\r\n<b/></a>", "+a @1:1\n'\n\n'\n+b @3:1\n-\n-\n"},
      {"CR", "<a>\r\r<b/></a>", "+a @1:1\n'\n\n'\n+b @3:1\n-\n-\n"},
      {"windows-1252", "<?xml version='1.0' encoding='windows-1252'?>\n<a>\x80\x80<b/></a>",
       "+a @2:1\n'€€'\n+b @2:6\n-\n-\n"},
      {"Shift_JIS", "<?xml version='1.0' encoding='Shift_JIS'?>\n<a>\x93\xFA\x96{<b/></a>",
       "+a @2:1\n'日本'\n+b @2:6\n-\n-\n"},
      {"UTF-16 with mark", "\xFF\xFE<\0a\0>\0\r\0\n\0\x3D\xD8\x00\xDE<\0b\0/\0>\0<\0/\0a\0>\0"s,
       "+a @1:1\n'\n😀'\n+b @2:2\n-\n-\n"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(readEvents(row.xml), row.events) << row.what;
    EXPECT_EQ(readEvents(row.xml, 1, 1), row.events) << row.what;
  }
}

TEST(XmlTokenizer, NamesArriveAsWritten) {
  EXPECT_EQ(readEvents("<uml:Model xmi:id='1' xmlns:uml='u' :x='' a:b:c='2'/>"),
            "+uml:Model xmi:id=1 xmlns:uml=u :x= a:b:c=2 @1:1\n-\n");
}

std::string nest(std::size_t depth) {
  std::string xml;
  for (std::size_t i = 0; i < depth; ++i) xml += "<a>";
  for (std::size_t i = 0; i < depth; ++i) xml += "</a>";
  return xml;
}

TEST(XmlTokenizer, ExactlyTheLimitPassesAndOneMoreIsTold) {
  XmlLimits limits;
  limits.maxDepth = 4;
  limits.maxAttributes = 3;
  limits.maxTextBytes = 6;
  limits.maxNameBytes = 5;
  const TemporaryLimits temporary(limits);
  const struct {
    std::string good;
    std::string bad;
    const char* message;
  } rows[] = {
      {nest(4), nest(5),
       "[KYRSTD_F0012] File 'memory.xmi', line 1, column 13: the limit of 4 nested elements is exceeded"},
      {"<a>\n<b x='' y='' z=''/></a>", "<a>\n<b w='' x='' y='' z=''/></a>",
       "[KYRSTD_F0013] File 'memory.xmi', line 2, column 1: the limit of 3 attributes on one element is "
       "exceeded"},
      {"<a>\n<b x='1234\xC3\xA9'/></a>", "<a>\n<b x='12345\xC3\xA9'/></a>",
       "[KYRSTD_F0014] File 'memory.xmi', line 2, column 1: the limit of 6 bytes for one attribute value is "
       "exceeded"},
      {"<a>\n123&lt;4<b/>123456</a>", "<a>\n123&lt;45<b/></a>",
       "[KYRSTD_F0015] File 'memory.xmi', line 2, column 9: the limit of 6 bytes for one text is exceeded"},
      {"<a>1<!-- -->23456</a>", "<a>1<!-- -->234567</a>",
       "[KYRSTD_F0015] File 'memory.xmi', line 1, column 18: the limit of 6 bytes for one text is exceeded"},
      {"<a>\n<b2345/></a>", "<a><b_2345/></a>",
       "[KYRSTD_F0016] File 'memory.xmi', line 1, column 4: the limit of 5 bytes for the name of an element "
       "or attribute is exceeded"},
      {"<a \303\251345=''/>", "<a \303\2513456=''/>",
       "[KYRSTD_F0016] File 'memory.xmi', line 1, column 1: the limit of 5 bytes for the name of an element "
       "or attribute is exceeded"},
  };
  for (const auto& row : rows) {
    for (const std::size_t size : pieceSizes) {
      const std::size_t block = std::min(size, XmlTokenizer::defaultBlockSize);
      EXPECT_EQ(errorOf(row.good, size, block), "nothing raised") << row.good;
      EXPECT_EQ(errorOf(row.bad, size, block), row.message);
    }
  }
}

TEST(XmlTokenizer, TheLimitsOfAFreshProcessAreTheDefaults) {
  const XmlLimits limits;
  EXPECT_EQ(limits.maxDepth, 1000U);
  EXPECT_EQ(limits.maxAttributes, 10000U);
  EXPECT_EQ(limits.maxTextBytes, 64U * 1024 * 1024);
  EXPECT_EQ(limits.maxNameBytes, 4096U);
  EXPECT_EQ(errorOf(nest(1000)), "nothing raised");
  EXPECT_EQ(errorOf(nest(1001)),
            "[KYRSTD_F0012] File 'memory.xmi', line 1, column 3001: the limit of 1000 nested elements is "
            "exceeded");
}

TEST(XmlTokenizer, MarkupThatNeverEndsIsRefusedWithoutReadingOn) {
  XmlLimits limits;
  limits.maxMarkupBytes = 100000;
  const TemporaryLimits temporary(limits);
  const std::string longComment = "<!--" + std::string(99000, 'x') + "-->";
  EXPECT_EQ(errorOf("<a>" + longComment + longComment + "</a>", 1000, 1000), "nothing raised");
  for (const char* start : {"<a>\n<!-- ", "<a>\n<b x='", "<a>\n<?pi ", "<a>\n<b", "<a>\n</a"}) {
    EXPECT_EQ(errorOf(start + std::string(300000, 'x'), 1000, 1000),
              "[KYRSTD_F0017] File 'memory.xmi', line 2, column 1: the limit of 100000 bytes for one tag, "
              "comment or declaration is exceeded")
        << start;
  }
}

// Counts how often it is asked.
class CountingInput : public XmlInput {
 public:
  explicit CountingInput(std::string_view bytes) : XmlInput(KYRString(memoryName)), memory_("", bytes) {}
  std::size_t read(char* buffer, std::size_t capacity) override {
    ++reads;
    return memory_.read(buffer, capacity);
  }
  int reads = 0;

 private:
  XmlMemoryInput memory_;
};

TEST(XmlTokenizer, BlocksGrowWithUnfinishedMarkupSoThatItsCostStaysLinear) {
  // Expat looks at unfinished markup anew with each block: what must not grow is the number of blocks.
  const std::string xml = "<a x='" + std::string(std::size_t{32} << 20, 'x') + "'/>";
  CountingInput input(xml);
  EventRecorder recorder;
  XmlTokenizer(input, recorder, 1024).run();
  EXPECT_LT(input.reads, 64 + 10 + 3);  // 64 to the threshold, a doubling each from there on
}

TEST(XmlTokenizer, AnEntityBombIsRefused) {
  std::string xml = "<!DOCTYPE a [<!ENTITY e0 'ha ha ha ha'>";
  for (int i = 1; i < 30; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    xml += "<!ENTITY e" + std::to_string(i) + " '" + inner + inner + "'>";
  }
  const std::string reason = "limit on input amplification factor (from DTD and entities) breached";
  const std::string inText = errorOf(xml + "]><a>&e29;</a>");
  EXPECT_TRUE(inText.starts_with("[KYRSTD_F0007] File 'memory.xmi', line 1, column ")) << inText;
  EXPECT_TRUE(inText.ends_with(reason)) << inText;
  EXPECT_TRUE(errorOf(xml + "]><a x='&e29;'/>").ends_with(reason));
}

TEST(XmlTokenizer, AnEntityThatHoldsItselfIsAnError) {
  EXPECT_TRUE(errorOf("<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>&e;</a>")
                  .ends_with("recursive entity reference"));
}

TEST(XmlTokenizer, NothingOutsideTheFileIsEverFetched) {
  const TemporaryFile secret("<b>secret</b>");
  const std::string xml = "<!DOCTYPE a SYSTEM '" + secret.path + "' [<!ENTITY in SYSTEM '" + secret.path +
                          "'><!ENTITY % p SYSTEM '" + secret.path + "'>%p;]><a>[&in;]</a>";
  EXPECT_EQ(readEvents(xml).find("secret"), std::string::npos);
  EXPECT_EQ(errorOf("<!DOCTYPE a SYSTEM 'file:///no/such/file.dtd'><a/>"), "nothing raised");
  EXPECT_EQ(errorOf("<!DOCTYPE a PUBLIC '-//X//Y' 'http://192.0.2.1/x.dtd'><a/>"), "nothing raised");
}

struct CallbackFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Raises at the event of a number, and notices when events go on behind that.
class FailingSink : public XmlEventSink {
 public:
  explicit FailingSink(int failAt) : failAt_(failAt) {}
  void startElement(std::string_view, const Attribute*, std::size_t, const XmlPosition&) override { count(); }
  void endElement() override { count(); }
  void characters(std::string_view) override { count(); }
  void processingInstruction(std::string_view, std::string_view) override { count(); }
  int events = 0;

 private:
  void count() {
    if (++events == failAt_) throw CallbackFailure("event " + std::to_string(failAt_));
  }
  int failAt_;
};

TEST(XmlTokenizer, AnExceptionOfTheSinkPassesThroughAndNothingIsReportedBehindIt) {
  const std::string xml = "<a>x<b/><c>yyy</c><?pi?>z<![CDATA[w]]><d e=''/></a>";
  int failures = 0;
  for (int failAt = 1;; ++failAt) {
    FailingSink sink(failAt);
    XmlMemoryInput input(memoryName, xml);
    try {
      XmlTokenizer(input, sink).run();
      break;  // there are fewer events
    } catch (const CallbackFailure& failure) {
      EXPECT_EQ(failure.what(), "event " + std::to_string(failAt));
      EXPECT_EQ(sink.events, failAt);
      ++failures;
    }
  }
  EXPECT_GT(failures, 10);
}

class StarvingSink : public FailingSink {
 public:
  StarvingSink() : FailingSink(0) {}
  void characters(std::string_view) override { throw std::bad_alloc(); }
};

TEST(XmlTokenizer, LackOfMemoryInTheSinkPassesThrough) {
  StarvingSink sink;
  XmlMemoryInput input(memoryName, "<a>x</a>");
  EXPECT_THROW(XmlTokenizer(input, sink).run(), std::bad_alloc);
}

// The first bytes read well, then the input fails.
class FailingInput : public XmlInput {
 public:
  FailingInput() : XmlInput(KYRString(memoryName)) {}
  std::size_t read(char* buffer, std::size_t capacity) override {
    if (reads_++ > 0) throw CallbackFailure("no more");
    return std::string_view("<a><b/>").copy(buffer, capacity);
  }

 private:
  int reads_ = 0;
};

TEST(XmlTokenizer, AnExceptionOfTheInputPassesThrough) {
  FailingInput input;
  EventRecorder recorder;
  EXPECT_THROW(XmlTokenizer(input, recorder).run(), CallbackFailure);
  EXPECT_EQ(recorder.getText(), "+a @1:1\n+b @1:4\n-\n");
}

TEST(XmlTokenizer, AnInvalidByteIsToldUnlessTheTextBeforeItIsWrongAlready) {
  const std::string head = "<?xml version='1.0' encoding='US-ASCII'?>\n";
  const struct {
    std::string body;
    const char* codeAndPlace;
  } rows[] = {
      {"<a></b>\x80", "[KYRSTD_F0007] File 'memory.xmi', line 2, column 6: mismatched tag"},
      {"<a>text\x80", "[KYRSTD_F0009] File 'memory.xmi', line 2, column 8: "},
      {"<a x='\x80", "[KYRSTD_F0009] File 'memory.xmi', line 2, column 7: "},
      {"<a><![CDATA[\x80", "[KYRSTD_F0009] File 'memory.xmi', line 2, column 13: "},
      {"\x80", "[KYRSTD_F0009] File 'memory.xmi', line 2, column 1: "},
      {"<a/>\x80", "[KYRSTD_F0009] File 'memory.xmi', line 2, column 5: "},
  };
  for (const auto& row : rows) {
    const std::string error = errorOf(head + row.body);
    EXPECT_TRUE(error.starts_with(row.codeAndPlace)) << error;
    for (const std::size_t size : {1U, 2U, 3U, 7U}) EXPECT_EQ(errorOf(head + row.body, size, size), error);
  }
  // Expat puts the beginning of a token off; its error must be found before that of the byte.
  EXPECT_EQ(errorOf("\0r\202\0a\0/\0>"s, 3, 2), errorOf("\0r\202\0a\0/\0>"s));
}

TEST(XmlTokenizer, EntitiesNestedVeryDeeplyDoNotExhaustTheStack) {
  std::string xml = "<!DOCTYPE a [<!ENTITY e0 'x'>";
  for (int i = 1; i < 20000; ++i) {
    xml += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
  }
  EXPECT_EQ(readEvents(xml + "]><a b='&e19999;'/>").substr(0, 6), "+a b=x");
}

}  // namespace
