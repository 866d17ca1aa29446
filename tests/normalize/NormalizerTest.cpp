// The step as a whole: what it leaves alone, the order of its rules, positions, and what it costs.
#include "normalize/Normalizer.h"

#include <fstream>
#include <map>
#include <random>

#include "foundation/KYRDOM.h"
#include "normalize/AttributeOrderRule.h"
#include "normalize/DeclaredTypeRule.h"
#include "normalize/ScalarElementRule.h"
#include "tests/normalize/NormalizedFile.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "xmi/XMIParser.h"

namespace {

TEST(Normalizer, ADocumentThatNoRuleChangesIsHandedOnAsItIs) {
  const std::shared_ptr<const XmlDocument> document =
      documentOf(xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"))));
  Normalizer normalizer(fileName);
  EXPECT_EQ(normalizer.rewrite(document), document);
  EXPECT_FALSE(normalizer.getReport().hasFired());
}

TEST(Normalizer, AFileOfXmi1StaysAsItIs) {
  const std::string text =
      "<XMI xmi.version='1.1' xmlns:UML='http://www.omg.org/spec/UML/20131001'><XMI.content>"
      "<uml:Model><uml:Model/></uml:Model><uml:Package/></XMI.content></XMI>";
  NormalizeReport report;
  EXPECT_EQ(normalized(text, &report), plain(text));
  EXPECT_FALSE(report.hasFired());
}

TEST(Normalizer, WhatIsNoModelStaysAsItIs) {
  for (const char* text : {"<shop/>", "<a><b xmi:type='uml:Port' xmi:idref='x'/></a>", "<xmi:XMI/>"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(normalized(text), plain(text));
  }
}

TEST(Normalizer, AllTextsPrefixesAndAttributesThatNoRuleNamesAreKept) {
  const std::string text =
      xmi(element("Class", "xmi:id='c' name='C' tool:colour='a &amp; b' xmi:uuid='u'",
                  "\n text <!-- gone --> more <tool:note xmlns:tool='urn:t' tool:x='1'>\xC3\xA9</tool:note>"
                  "<ownedAttribute xmi:id='a'/>"));
  const std::string changed = normalized(text);
  std::string expected = plain(text);
  const std::string untyped = "<ownedAttribute xmi:id";
  expected.replace(expected.find(untyped), untyped.size(),
                   "<ownedAttribute xmi:type=\"uml:Property\" xmi:id");
  EXPECT_EQ(changed, expected);
}

TEST(Normalizer, ASecondStepFindsNothingMoreToDo) {
  const std::string once = normalized(
      "<x:XMI xmlns:x='http://www.omg.org/spec/XMI/20131001' xmlns:u='http://www.omg.org/spec/UML/20131001'>"
      "<u:Package><name>P</name><ownedType xsi:type='u:Class'><name>name</name><ownedPort x:id='q' "
      "name='xmi:id'>"
      "<type xsi:type='u:Class' href='#q'/></ownedPort></ownedType></u:Package><u:Model name='M'/></x:XMI>");
  NormalizeReport report;
  EXPECT_EQ(normalized(once, &report), once);
  EXPECT_FALSE(report.hasFired());
}

TEST(Normalizer, LaterRulesSeeWhatEarlierOnesHaveDone) {
  // The prefix, the type attribute, the root and the name as an element, all in one file.
  const std::string text =
      "<xmi:XMI xmlns:xmi='http://www.omg.org/XMI' xmlns:UML='http://www.eclipse.org/uml2/5.0.0/UML'>"
      "<UML:Package xmi:id='p'><name>P</name><packagedElement xsi:type='UML:Class' xmi:id='c'><name>C</name>"
      "</packagedElement></UML:Package><UML:Class xmi:id='d' name='D'/></xmi:XMI>";
  DispatchRows::resetForTests();
  const ImportedModel model(normalized(text));
  EXPECT_EQ(model.pathOf("c"), "Logical View/P/C");
  EXPECT_EQ(model.pathOf("d"), "Logical View/D");
  EXPECT_EQ(model.model.getName().view(), fileName);
}

// Reads a file as a host that has the step installed.
class Installed {
 public:
  explicit Installed(const std::string& text)
      : file(text), normalizer(fileName), rewriting(file.file(), normalizer) {}
  TemporaryFile file;
  Normalizer normalizer;
  XmlRewriting rewriting;
};

TEST(Normalizer, PositionsInMessagesAreThoseOfTheFileAsWritten) {
  DispatchRows::resetForTests();
  const Installed installed(
      "<xmi:XMI><uml:Package xmi:id='p'>\n  <oddity/></uml:Package>\n<uml:Model xmi:id='m'/></xmi:XMI>");
  RecordingLog log;
  XMIParser parser(&log);
  parser.parse(installed.file.file());
  EXPECT_EQ(installed.normalizer.getReport().of(NormalizeRule::roots).fired, 1U);
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0001 line 2, column 3 "), 1U);
}

TEST(Normalizer, StreamAndTreesReadTheSame) {
  DispatchRows::resetForTests();
  const Installed installed("<xmi:XMI><uml:Package xmi:id='p'/><uml:Package xmi:id='q'/></xmi:XMI>");
  RecordingLog log;
  XMIParser parser(&log);
  parser.parse(installed.file.file());
  KYRDOM dom(&log);
  const std::unique_ptr<KYRDOMElement> root(dom.parseFile(installed.file.file()));
  ASSERT_NE(root->getFirstElement("uml:Model"), nullptr);
  EXPECT_EQ(root->getFirstElement("uml:Model")->getElementCount("packagedElement"), 2);
  EXPECT_EQ(parser.getObjects().getCount(), 3U);
}

// The name of the type is an element there, which a step would turn into an attribute.
TEST(Normalizer, AModuleIsReadAsWrittenEvenWhenItIsTheInput) {
  const TemporaryFile file("");
  const std::string module = file.path.substr(file.path.rfind('/') + 1);
  std::ofstream(file.path) << xmi(
      element("Class", "xmi:id='c' name='C'",
              "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'><type href='" + module +
                  "#t'/></ownedAttribute><ownedAttribute xmi:type='uml:Property' xmi:id='b' name='b'><type "
                  "href='" +
                  module + "#u'/></ownedAttribute>") +
      element("PrimitiveType", "xmi:id='t'", "<name>Money</name>") +
      element("PrimitiveType", "xmi:id='u' name='Weight'"));
  DispatchRows::resetForTests();
  Normalizer normalizer(fileName);
  const XmlRewriting rewriting(file.file(), normalizer);
  RecordingLog log;
  XMIParser parser(&log);
  parser.parse(file.file());
  EXPECT_EQ(normalizer.getReport().of(NormalizeRule::scalarElement).fired, 1U);
  std::map<std::string, std::string> types;
  for (unsigned int i = 0; i < parser.getObjects().getSlotCount(); ++i) {
    const auto* const property = umlCast<UMLProperty>(parser.getObjects().at(i));
    if (property == nullptr) continue;
    types[std::string(property->id.view())] =
        property->type == nullptr ? "none" : std::string(property->type->name.view());
  }
  EXPECT_EQ(types["a"], "none");
  EXPECT_EQ(types["b"], "Weight");
}

// Random documents of the words that the reader knows, and some that it does not.
class RandomFile {
 public:
  explicit RandomFile(unsigned int seed) : random_(seed) {
    text = "<xmi:XMI xmlns:xmi='http://www.omg.org/XMI' xmlns:uml='http://www.omg.org/spec/UML/20131001'>";
    const std::size_t roots = 1 + pick(3);
    for (std::size_t i = 0; i < roots; ++i)
      addElement(one({"uml:Model", "uml:Package", "uml:Class", "S:Block", "uml:Profile"}), 0);
    text += "</xmi:XMI>";
  }
  std::string text;

 private:
  std::size_t pick(std::size_t count) { return random_() % count; }
  std::string one(std::initializer_list<const char*> words) { return *(words.begin() + pick(words.size())); }
  std::string id() { return "i" + std::to_string(pick(40)); }
  std::string type() {
    return pick(3) == 0 ? one({"uml:Model", "uml:Port", "uml:Component", "uml:Profile", "uml:StateMachine"})
                        : ReaderVocabulary::typeOfKind(static_cast<int>(pick(117)));
  }
  std::string tag() {
    const auto& rows = DispatchRows::get().context;
    if (pick(3) == 0) {
      return one({"packagedElement", "ownedMember", "nestedPackage", "ownedType", "ownedPort", "name",
                  "visibility", "unknown", "uml:Model", "xmi:Extension", "eAnnotations", "nestedClassifier"});
    }
    return rows[pick(rows.size() - 1)].tag;
  }
  void addElement(const std::string& tagName, int depth) {
    text += "<" + tagName;
    const bool isToolData = tagName == "xmi:Extension" || tagName == "eAnnotations";
    if (!isToolData && pick(2) == 0) text += (pick(6) == 0 ? " xsi:type='" : " xmi:type='") + type() + "'";
    if (pick(2) == 0) text += " name='" + one({"a", "visibility", "type", "name"}) + "'";
    if (pick(3) != 0) text += " xmi:id='" + (pick(9) == 0 ? "" : id()) + "'";
    const bool canRefer = !tagName.starts_with("uml:");
    if (canRefer && pick(6) == 0) text += " xmi:idref='" + id() + "'";
    if (canRefer && pick(9) == 0) text += " href='#" + id() + "'";
    if (pick(9) == 0) text += " type='" + id() + "'";
    if (pick(9) == 0) text += " memberEnd='" + id() + " " + id() + "'";
    if (pick(9) == 0) text += " visibility='name'";
    text += ">";
    if (pick(4) == 0) text += "text";
    const std::size_t children = depth > 3 ? 0 : pick(4);
    for (std::size_t i = 0; i < children; ++i) addElement(tag(), depth + 1);
    text += "</" + tagName + ">";
  }
  std::mt19937 random_;
};

TEST(Normalizer, OfAnyDocumentTheReaderMakesWhatTheRulesExpectAndPatchesNoRow) {
  for (unsigned int seed = 0; seed < 300; ++seed) {
    const RandomFile random(seed);
    SCOPED_TRACE(seed);
    for (const Normalizer::Extent extent : {Normalizer::Extent::usual, Normalizer::Extent::all}) {
      const std::string once = normalized(random.text, nullptr, extent);
      NormalizeReport report;
      ASSERT_EQ(normalized(once, &report, extent), once);
      ASSERT_FALSE(report.hasFired());
      NormalizedDocument document(documentOf(once), fileName, report);
      document.findRegions();
      if (document.getRoots().empty() || report.attributeRings != 0) continue;
      DispatchRows::resetForTests();
      const TemporaryFile file(once);
      RecordingLog log;
      XMIParser parser(&log);
      parser.parse(file.file());
      std::vector<std::string> expected;
      std::vector<std::string> found;
      for (const auto node : document.getObjects()) {
        expected.push_back(std::string(document.attribute(node, document.xmiId).view()) + ' ' +
                           ReaderVocabulary::typeOfKind(document.readingOf(node).kind));
      }
      for (unsigned int i = 0; i < parser.getObjects().getSlotCount(); ++i) {
        const UMLElement& object = *parser.getObjects().at(i);
        found.push_back(std::string(object.id.view()) + ' ' + ReaderVocabulary::typeOfKind(object.getKind()));
      }
      if (once.find("S:Block") == std::string::npos) {
        ASSERT_EQ(found, expected);
      }
      for (const TagHandler& row : DispatchRows::get().context) {
        ASSERT_NE(row.endAction.marker, EndAction::Marker::pop) << row.tag;
      }
    }
  }
}

// Visited elements, for files of a shape: n elements, or twice as many.
std::uint64_t stepsFor(const std::string& shape, int count) {
  std::string elements;
  for (int i = 0; i < count; ++i) elements += shape;
  NormalizeReport report;
  NormalizedDocument document(documentOf(xmi(elements)), fileName, report);
  document.findRegions();
  IdRule().apply(document);
  ScalarElementRule().apply(document);
  DeclaredTypeRule().apply(document);
  AttributeOrderRule().apply(document);
  return document.getStepCount();
}

TEST(Normalizer, TheCostIsLinear) {
  for (const char* shape :
       {"<packagedElement xmi:type='uml:Class'><name>C</name><ownedAttribute/></packagedElement>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c' name='visibility' visibility='name'/>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'><packagedElement xmi:type='uml:Class' xmi:id='c'/>"
        "</packagedElement>"}) {
    SCOPED_TRACE(shape);
    const std::uint64_t once = stepsFor(shape, 500);
    EXPECT_LE(stepsFor(shape, 1000), 2 * once + 10);
  }
}

}  // namespace
