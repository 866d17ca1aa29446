// Composite keys: equal exactly when their texts are, at a cost that does not grow with the depth.
#include "extension/ElementIndex.h"

#include <map>
#include <random>

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

// Two chains that spell one text with other pieces: "xy" again and again, and "x" on top of "yx" again and
// again. No two of their elements begin at the same character, so only the text itself tells that the
// leaves of the second are elements of the first.
TEST(ElementIndex, KeysThatSpellOneTextWithOtherPiecesAreComparedOnce) {
  constexpr unsigned int depth = 900;
  constexpr unsigned int leaves = 50;
  const auto chain = [](const std::string& id, const std::string& inside) {
    std::string open;
    std::string close;
    for (unsigned int i = 0; i < depth; ++i) {
      open += "<e xmi:id='" + id + "'>" + inside;
      close += "</e>";
    }
    return open + close;
  };
  std::string leaf;
  for (unsigned int i = 0; i < leaves; ++i) leaf += "<e xmi:id='x'/>";
  const std::string second = "<e xmi:id='y'>" + leaf + chain("yx", leaf) + "</e>";
  const TemporaryFile file("<r>" + chain("xy", "") + second + second + "</r>");
  RecordingLog log;
  KYRDOM dom(&log);
  DocumentReading reading;
  reading.parse(dom, file.file());
  const ElementIndex index(reading.document(), 0);
  EXPECT_LE(index.getComparisonCount(), 40U * reading.document().getNodeCount());
}

using Ids = std::vector<std::string>;
using Random = std::minstd_rand;

const std::string& pick(const Ids& ids, Random& random) { return ids[random() % ids.size()]; }
std::string pieceOf(const std::string& id) { return id.empty() ? " " : id; }

// A tree below a root without id and name, and the first element of each key, which is written out.
struct WrittenOutTree {
  WrittenOutTree(const Ids& ids, Random& random) {
    std::vector<std::string> open = {""};
    for (XmlDocument::Node node = 1; node < 600; ++node) {
      const std::string& id = pick(ids, random);
      xml += "<e xmi:id='" + id + "'>";
      open.push_back(pieceOf(id) + open.back());
      if (!id.empty()) firstOfKey.emplace(open.back(), node);
      std::size_t closed = random() % 100 == 0 ? open.size() / 2 : random() % 2;
      for (; closed > 0 && open.size() > 1; --closed) {
        open.pop_back();
        xml += "</e>";
      }
    }
    for (std::size_t left = 1; left < open.size(); ++left) xml += "</e>";
    xml = "<r>" + xml + "</r>";
  }
  std::string xml;
  std::map<std::string, XmlDocument::Node> firstOfKey;
};

// Objects in chains of owners, and their keys.
struct WrittenOutObjects {
  WrittenOutObjects(unsigned int count, const Ids& ids, Random& random) {
    for (unsigned int i = 0; i < count; ++i) {
      const std::string& id = pick(ids, random);
      objects.push_back(std::make_unique<UMLPackage>(KYRString(std::string_view(id)), KYRString()));
      objects.back()->readingNumber = i;
      keys.push_back(pieceOf(id));
      if (i == 0 || random() % 20 == 0) continue;
      const std::size_t owner = i - 1 - random() % std::min(i, 3U);
      objects.back()->owner = objects[owner].get();
      keys.back() += keys[owner];
    }
  }
  std::vector<std::unique_ptr<UMLPackage>> objects;
  std::vector<std::string> keys;
};

// The number of objects that find an element, which must be the one that their written out key finds.
unsigned int countFound(const Ids& ids, Random& random) {
  constexpr unsigned int objectCount = 400;
  const WrittenOutTree tree(ids, random);
  const WrittenOutObjects made(objectCount, ids, random);
  const TemporaryFile file(tree.xml);
  RecordingLog log;
  KYRDOM dom(&log);
  DocumentReading reading;
  reading.parse(dom, file.file());
  ElementIndex index(reading.document(), objectCount);
  unsigned int found = 0;
  for (unsigned int i = 0; i < objectCount; ++i) {
    const DocumentElement element = index.find(*made.objects[i]);
    const auto expected = tree.firstOfKey.find(made.keys[i]);
    EXPECT_EQ(static_cast<bool>(element), expected != tree.firstOfKey.end()) << made.keys[i];
    if (!element || expected == tree.firstOfKey.end()) continue;
    EXPECT_EQ(element.node(), expected->second) << made.keys[i];
    ++found;
  }
  return found;
}

TEST(ElementIndex, FindsWhatWrittenOutKeysFind) {
  const Ids ofOneLetter = {"x", "xx", "xxx", "xxxxxxx"};  // all keys of one length are equal
  const Ids ofTwo = {"x", "y", "xy", "yx", "xyx", " ", ""};
  Random random(7);
  unsigned int found = 0;
  for (int round = 0; round < 30; ++round) {
    found += countFound(ofOneLetter, random);
    countFound(ofTwo, random);
  }
  EXPECT_GT(found, 3000U);
}

}  // namespace
