// Composite keys: equal exactly when their texts are, at a cost that does not grow with the depth.
#include "extension/ElementIndex.h"

#include "extension/DocumentReading.h"
#include "tests/extension/ExtensionReading.h"

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
  constexpr unsigned int depth = 100000;
  const DeeperFiles deeper(depth + 10);
  std::string open;
  std::string close;
  for (unsigned int i = 0; i < depth; ++i) {
    open += "<packagedElement xmi:type='uml:Package' xmi:id='p" + std::to_string(i) + "'>";
    close += "</packagedElement>";
  }
  Indexed indexed(inModel(open + close));
  const UMLObjectTable& objects = indexed.reading.parser.getObjects();
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    ASSERT_TRUE(indexed.index->find(*objects.at(i)));
  }
  EXPECT_LE(indexed.index->getComparisonCount(), objects.getCount() + 10U);
}

// The ids differ at the top alone, so the keys of a level are told apart by their last characters.
TEST(ElementIndex, AMillionElementsTwentyDeepCostNoMoreThanTheirNumber) {
  constexpr unsigned int chains = 50000;
  constexpr unsigned int depth = 20;
  std::string xml = "<r>";
  for (unsigned int i = 0; i < chains; ++i) {
    xml += "<e xmi:id='c" + std::to_string(i) + "'>";
    for (unsigned int level = 1; level < depth; ++level) xml += "<e xmi:id='e'>";
    for (unsigned int level = 0; level < depth; ++level) xml += "</e>";
  }
  const TemporaryFile file(xml + "</r>");
  RecordingLog log;
  KYRDOM dom(&log);
  DocumentReading reading;
  reading.parse(dom, file.file());
  ElementIndex index(reading.document(), depth);

  std::vector<std::unique_ptr<UMLPackage>> objects;  // those of the last chain, the outermost first
  for (unsigned int level = 0; level < depth; ++level) {
    const std::string id = level == 0 ? "c" + std::to_string(chains - 1) : "e";
    objects.push_back(std::make_unique<UMLPackage>(KYRString(std::string_view(id)), KYRString()));
    objects.back()->readingNumber = level;
    if (level > 0) objects.back()->owner = objects[level - 1].get();
  }
  const DocumentElement innermost = index.find(*objects.back());
  ASSERT_TRUE(innermost);
  EXPECT_EQ(innermost.node(), reading.document().getNodeCount() - 1);
  EXPECT_LE(index.getComparisonCount(), 2U * chains * depth);
}

}  // namespace
