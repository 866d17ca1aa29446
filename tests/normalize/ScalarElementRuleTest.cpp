// Scalars written as elements become attributes.
#include "normalize/ScalarElementRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

TEST(ScalarElementRule, OnlyScalarsThatTheReaderWouldMissMove) {
  const auto cls = [](const std::string& attributes, const std::string& content) {
    return element("Class", attributes, content);
  };
  expectCases<ScalarElementRule>(
      NormalizeRule::scalarElement,
      {{"a name", cls("xmi:id='c'", "<name>C</name>"), cls("xmi:id='c' name='C'", "")},
       {"several, in their order",
        cls("xmi:id='c'", "<visibility>public</visibility><isAbstract>true</isAbstract>"),
        cls("xmi:id='c' visibility='public' isAbstract='true'", "")},
       {"the first of two", cls("xmi:id='c'", "<name>C</name><name>D</name>"),
        cls("xmi:id='c' name='C'", "<name>D</name>")},
       {"characters that need care", cls("xmi:id='c'", "<name>a &lt; &quot;b&quot;\n</name>"),
        cls("xmi:id='c' name='a &lt; &quot;b&quot;&#10;'", "")},
       {"there already", cls("xmi:id='c' name='D'", "<name>C</name>"), ""},
       {"there in other letters", cls("xmi:id='c' Name='D'", "<name>C</name>"), ""},
       {"no scalar of the class", cls("xmi:id='c'", "<aggregation>none</aggregation>"), ""},
       {"no scalar at all", cls("xmi:id='c'", "<contact>me</contact>"), ""},
       {"nothing in it", cls("xmi:id='c'", "<name/>"), ""},
       {"with elements in it", cls("xmi:id='c'", "<name>C<b/></name>"), ""},
       {"with attributes", cls("xmi:id='c'", "<name lang='en'>C</name>"), ""},
       {"a text that the reader stores itself", element("Comment", "xmi:id='k'", "<body>text</body>"), ""},
       {"inside something unknown", cls("xmi:id='c'", "<unknown><name>C</name></unknown>"), ""},
       {"in the data of a tool", cls("xmi:id='c'", "<xmi:Extension><name>C</name></xmi:Extension>"), ""}});
}

TEST(ScalarElementRule, EveryScalarOfEveryClassArrivesAsIfItWereAnAttribute) {
  const ReaderVocabulary& vocabulary = ReaderVocabulary::get();
  for (const char* name : {"isStatic", "isReadOnly", "upper", "lower", "aggregation", "isDerived"}) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(
        vocabulary.hasScalar(vocabulary.kindOfType("uml:Property"), vocabulary.find(name).readerName));
    const std::string open = "<packagedElement xmi:type='uml:Property' xmi:id='a'";
    ScalarElementRule rule;
    EXPECT_EQ(changedBy(rule, xmi(open + "><" + name + ">1</" + name + "></packagedElement>")).text,
              plain(xmi(open + " " + name + "='1'></packagedElement>")));
  }
}

TEST(ScalarElementRule, TheImportedModelIsThatOfAttributes) {
  const std::string elements = xmi(element(
      "Package", "xmi:id='p'",
      "<name>P</name>" +
          element("Class", "xmi:id='c'",
                  "<isAbstract>true</isAbstract><name>C</name><ownedAttribute xmi:type='uml:Property' "
                  "xmi:id='a'><visibility>private</visibility><name>a</name></ownedAttribute>")));
  const std::string attributes = xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Class", "xmi:id='c' name='C' isAbstract='true'",
                      "<ownedAttribute xmi:type='uml:Property' xmi:id='a' visibility='private' name='a'/>")));
  EXPECT_NE(imported(elements), imported(attributes));
  EXPECT_EQ(imported(normalized(elements)), imported(attributes));
}

}  // namespace
