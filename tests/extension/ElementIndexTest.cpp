// Composite keys: equal exactly when their texts are, at a cost that does not grow with the depth.
#include "extension/ElementIndex.h"

#include "extension/DocumentReading.h"
#include "foundation/xml/XmlLimits.h"
#include "tests/xmi/Reading.h"

namespace {

TEST(CompositeKey, IsThatOfTheJoinedText) {
  const std::string text = "EAID_1234-5678_model root and more";
  for (std::size_t cut = 0; cut <= text.size(); ++cut) {
    EXPECT_TRUE(CompositeKey(text.substr(0, cut)).followedBy(CompositeKey(text.substr(cut))) ==
                CompositeKey(text))
        << cut;
  }
  EXPECT_FALSE(CompositeKey("ab") == CompositeKey("ba"));
  EXPECT_FALSE(CompositeKey("a") == CompositeKey(std::string_view("\0a", 2)));
}

// Reads a text with the parser and indexes the same document.
struct Indexed {
  explicit Indexed(const std::string& xml)
      : reading(xml), file(xml), dom(&reading.log), root(dom.parseFile(file.file())) {
    document.parse(dom, file.file());
    index = std::make_unique<ElementIndex>(document.document(), reading.parser.getObjects().getCount());
  }
  std::string tagFor(const char* id) {
    const DocumentElement element = index->find(*reading.find(id));
    return element ? std::string(element.tag().view()) : "none";
  }
  Reading reading;
  TemporaryFile file;
  KYRDOM dom;
  std::unique_ptr<KYRDOMElement> root;
  DocumentReading document;
  std::unique_ptr<ElementIndex> index;
};

TEST(ElementIndex, FindsTheElementUnderTheSameChainOfIds) {
  Indexed indexed(
      inModel("<packagedElement xmi:type='uml:Package' xmi:id='p'>"
              "<packagedElement xmi:type='uml:Class' xmi:id='c'/></packagedElement>"));
  EXPECT_EQ(indexed.tagFor("m"), "uml:Model");
  EXPECT_EQ(indexed.tagFor("p"), "packagedElement");
  EXPECT_EQ(indexed.tagFor("c"), "packagedElement");
}

TEST(ElementIndex, AnElementWithoutAnIdStandsAsABlankInTheChain) {
  Indexed indexed(inModel("<wrapper><packagedElement xmi:type='uml:Class' xmi:id='c'/></wrapper>"));
  EXPECT_EQ(indexed.tagFor("c"), "none");  // the object is owned by the model, the element is not
}

TEST(ElementIndex, AnObjectWithoutAnIdIsABlankToo) {
  const std::string xml = inModel(
      "<packagedElement xmi:type='uml:Class'><ownedAttribute xmi:type='uml:Property' xmi:id='a'/>"
      "</packagedElement>");
  Indexed indexed(xml);
  EXPECT_EQ(indexed.tagFor("a"), "none");  // not owned, so its key is its id alone
}

TEST(ElementIndex, KeysAreEqualWhenTheirTextsAreHoweverTheyAreCut) {
  // Object "ab" owned by "c" has the key "abcm", as has an element "a" inside "bc".
  Indexed indexed(
      inModel("<x xmi:type='uml:Class' xmi:id='ab'/><x xmi:type='uml:Class' xmi:id='c'>"
              "<ownedElement xmi:idref='ab'/></x>"
              "<strange xmi:id='bc'><other xmi:id='a'/></strange>"));
  EXPECT_EQ(indexed.reading.find("ab")->owner, indexed.reading.find("c"));
  EXPECT_EQ(indexed.tagFor("ab"), "other");
}

TEST(ElementIndex, TheModelsNameStandsForAMissingId) {
  Indexed indexed(
      "<uml:Model xmlns:uml='u' xmlns:xmi='x' name='Shop'>"
      "<packagedElement xmi:type='uml:Class' xmi:id='c'/></uml:Model>");
  EXPECT_EQ(indexed.tagFor("c"), "packagedElement");
  EXPECT_EQ(indexed.tagFor("Shop"), "none");  // the element itself has no id
}

TEST(ElementIndex, OfEqualKeysTheFirstElementStays) {
  Indexed indexed(inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'/><later xmi:id='c'/>"));
  EXPECT_EQ(indexed.tagFor("c"), "packagedElement");
}

TEST(ElementIndex, DeepNestingCostsOneComparisonAnElement) {
  constexpr unsigned int depth = 20000;
  XmlLimits limits = XmlLimits::get();
  const XmlLimits before = limits;
  limits.maxDepth = depth + 10;
  XmlLimits::set(limits);
  std::string open;
  std::string close;
  for (unsigned int i = 0; i < depth; ++i) {
    open += "<packagedElement xmi:type='uml:Package' xmi:id='p" + std::to_string(i) + "'>";
    close += "</packagedElement>";
  }
  {
    Indexed indexed(inModel(open + close));
    const UMLObjectTable& objects = indexed.reading.parser.getObjects();
    for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
      ASSERT_TRUE(indexed.index->find(*objects.at(i)));
    }
    EXPECT_LE(indexed.index->getComparisonCount(), objects.getCount() + 10U);
  }
  XmlLimits::set(before);
}

}  // namespace
