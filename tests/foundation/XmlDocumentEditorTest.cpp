// A document is changed over its numbers, and what comes out is a document like any other.
#include "foundation/xml/XmlDocumentEditor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "foundation/xml/XmlDocumentWriter.h"
#include "tests/foundation/AllocationProbe.h"
#include "tests/foundation/XmlTestSupport.h"

namespace {

using Node = XmlDocumentEditor::Node;
constexpr Node noNode = XmlDocumentEditor::noNode;

std::string dumpOf(XmlDocumentEditor& editor) { return dumpDocument(*editor.build()); }

// What remains of a dump without the places in the file.
std::string withoutPlaces(std::string dump) {
  for (std::size_t at = dump.find(" @"); at != std::string::npos; at = dump.find(" @", at)) {
    dump.erase(at, dump.find('\n', at) - at);
  }
  return dump;
}

constexpr char small[] = "<a x='1' y='2'>t<b/>u<c z='3'><d/></c></a>";

TEST(XmlDocumentEditor, WithoutAChangeTheSourceComesBack) {
  const auto source = readDocument(small);
  XmlDocumentEditor editor(source);
  editor.intern("a name that is not used");
  editor.setName(0, editor.intern("a"));
  editor.removeAttribute(0, editor.intern("none"));
  editor.setAttribute(0, editor.intern("x"), "1");
  EXPECT_FALSE(editor.isChanged());
  EXPECT_EQ(editor.build(), source);
}

TEST(XmlDocumentEditor, LookingAtADocumentTakesNoMemory) {
  const auto source = readDocument(small);
  XmlDocumentEditor editor(source);
  const XmlDocument::Name x = editor.intern("x");
  const AllocationProbe probe;
  for (Node node = 0; node < editor.getNodeCount(); ++node) {
    EXPECT_EQ(editor.isElement(node), source->isElement(node));
    EXPECT_EQ(editor.getName(node), source->getName(node));
    EXPECT_EQ(editor.getAttributeCount(node), source->getAttributeCount(node));
    EXPECT_EQ(editor.findAttribute(node, x) == nullptr, node != 0);
  }
  EXPECT_EQ(probe.getCount(), 0U);
}

TEST(XmlDocumentEditor, ShowsTheTreeOfTheSourceBeforeAndBehindAChangeOfIt) {
  XmlDocumentEditor editor(readDocument(small));
  for (int round = 0; round < 2; ++round) {
    // a, 't', b, 'u', c, d
    EXPECT_EQ(editor.getFirst(0), 1U);
    EXPECT_EQ(editor.getNext(1), 2U);
    EXPECT_EQ(editor.getNext(4), noNode);
    EXPECT_EQ(editor.getNext(0), noNode);
    EXPECT_EQ(editor.getFirst(2), noNode);
    EXPECT_EQ(editor.getFollowing(2), 3U);
    EXPECT_EQ(editor.getFollowing(4), 5U);
    EXPECT_EQ(editor.getFollowing(5), noNode);
    EXPECT_EQ(editor.getBehind(4), noNode);
    EXPECT_EQ(editor.getBehind(1), 2U);
    EXPECT_EQ(editor.getParent(5), 4U);
    EXPECT_EQ(editor.getParent(0), noNode);
    EXPECT_EQ(editor.getContent(0).view(), "tu");
    editor.append(4, editor.addElement(editor.intern("e"), 0));
    editor.remove(6);
  }
}

TEST(XmlDocumentEditor, NamesAndAttributesChange) {
  XmlDocumentEditor editor(readDocument(small));
  editor.setName(2, editor.intern("B"));
  editor.setAttribute(0, editor.intern("x"), "one");
  editor.setAttribute(0, editor.intern("w"), "0", 0);
  editor.setAttribute(0, editor.intern("v"), "9");
  editor.renameAttribute(4, 0, editor.intern("Z"));
  editor.removeAttribute(0, editor.intern("y"));
  EXPECT_EQ(withoutPlaces(dumpOf(editor)),
            withoutPlaces(dumpDocument(*readDocument("<a w='0' x='one' v='9'>t<B/>u<c Z='3'><d/></c></a>"))));
}

// Names that no attribute bears are not looked for.
TEST(XmlDocumentEditor, AttributesAreFoundByNamesThatWereNoneOfAnAttributeBefore) {
  XmlDocumentEditor editor(readDocument("<a x='1'><b/></a>"));
  const auto given = editor.intern("b");  // the name of an element alone
  const auto renamed = editor.intern("new");
  EXPECT_EQ(editor.findAttribute(1, given), nullptr);
  EXPECT_EQ(editor.findAttribute(0, renamed), nullptr);
  editor.setAttribute(1, given, "2");
  editor.renameAttribute(0, 0, renamed);
  ASSERT_NE(editor.findAttribute(1, given), nullptr);
  EXPECT_EQ(editor.findAttribute(1, given)->view(), "2");
  ASSERT_NE(editor.findAttribute(0, renamed), nullptr);
  EXPECT_EQ(editor.findAttribute(0, renamed)->view(), "1");
  EXPECT_EQ(editor.findAttribute(0, editor.intern("x")), nullptr);
}

TEST(XmlDocumentEditor, AttributesAreReordered) {
  XmlDocumentEditor editor(readDocument("<a p='1' q='2' r='3'/>"));
  editor.orderAttributes(0, {2, 0, 1});
  EXPECT_EQ(withoutPlaces(dumpOf(editor)), "a r=3 p=1 q=2\n");
}

TEST(XmlDocumentEditor, ElementsMoveWithAllBelowThem) {
  XmlDocumentEditor editor(readDocument("<a><b><c/>t</b><d/><e/></a>"));
  editor.append(5, 1);        // b into e
  editor.insertBefore(4, 5);  // e before d
  EXPECT_EQ(withoutPlaces(dumpOf(editor)),
            withoutPlaces(dumpDocument(*readDocument("<a><e><b><c/>t</b></e><d/></a>"))));
}

TEST(XmlDocumentEditor, AddedElementsStandAtThePlaceOfTheirOrigin) {
  XmlDocumentEditor editor(readDocument("<a>\n <b/></a>"));
  const Node added = editor.addElement(editor.intern("n"), 2);
  editor.setAttribute(added, editor.intern("k"), "v");
  editor.append(2, added);
  const Node second = editor.addElement(editor.intern("o"), added);
  editor.append(added, second);
  EXPECT_EQ(editor.getLine(second), 2U);
  const auto document = editor.build();
  EXPECT_EQ(document->getNodeCount(), 5U);
  EXPECT_EQ(document->getLine(3), 2U);
  EXPECT_EQ(document->getColumn(4), 2U);
}

TEST(XmlDocumentEditor, MovedElementsKeepTheirPlaces) {
  XmlDocumentEditor editor(readDocument("<a>\n<b/>\n  <c/></a>"));
  editor.append(2, 4);
  EXPECT_EQ(dumpOf(editor).find("c @3:3") != std::string::npos, true) << dumpOf(editor);
}

TEST(XmlDocumentEditor, RemovedElementsAreNone) {
  XmlDocumentEditor editor(readDocument("<a><b><c/></b><d/></a>"));
  editor.remove(1);
  EXPECT_FALSE(editor.isElement(1));
  EXPECT_FALSE(editor.isElement(2));
  EXPECT_EQ(editor.getFirst(0), 3U);
  EXPECT_EQ(withoutPlaces(dumpOf(editor)), withoutPlaces(dumpDocument(*readDocument("<a><d/></a>"))));
}

TEST(XmlDocumentEditor, TheResultKeepsItsTextsWhenTheSourceIsLetGo) {
  auto source = readDocument("<a>" + std::string(300, 't') +
                             "<b k='long enough to stand by itself in the arena'/></a>");
  const std::string before = withoutPlaces(dumpDocument(*source));
  std::shared_ptr<const XmlDocument> result;
  {
    XmlDocumentEditor editor(source);
    editor.setName(0, editor.intern("A"));
    result = editor.build();
  }
  source.reset();
  EXPECT_EQ(withoutPlaces(dumpDocument(*result)), "A" + before.substr(1));
  EXPECT_GT(result->getMemorySize(), 0U);
}

TEST(XmlDocumentEditor, AResultCanBeEditedOnceMore) {
  XmlDocumentEditor first(readDocument(small));
  first.setAttribute(2, first.intern("k"), "1");
  XmlDocumentEditor second(first.build());
  second.setAttribute(2, second.intern("l"), "2");
  second.append(5, 2);
  std::string text;
  writeXmlDocument(*second.build(), [&text](std::string_view piece) { text += piece; });
  EXPECT_NE(text.find("<a x=\"1\" y=\"2\">tu<c z=\"3\"><d><b k=\"1\" l=\"2\"/></d></c></a>"),
            std::string::npos)
      << text;
}

// A tree of plain nodes, to compare with.
struct Model {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::vector<Model*> children;
  Model* parent = nullptr;
};

void writeModel(const Model& model, std::string& text) {
  text += "<" + model.name;
  for (const auto& [name, value] : model.attributes) text += " " + name + "=\"" + value + "\"";
  text += model.children.empty() ? "/>" : ">";
  for (const Model* child : model.children) writeModel(*child, text);
  if (!model.children.empty()) text += "</" + model.name + ">";
}

void detach(Model& node) {
  auto& siblings = node.parent->children;
  siblings.erase(std::find(siblings.begin(), siblings.end(), &node));
}

TEST(XmlDocumentEditor, AnyMixtureOfChangesGivesTheExpectedDocument) {
  std::mt19937 random(7);
  const auto pick = [&random](std::size_t count) { return random() % count; };
  for (int round = 0; round < 200; ++round) {
    std::vector<std::unique_ptr<Model>> nodes;
    std::string xml;
    nodes.push_back(std::make_unique<Model>(Model{"r", {}, {}, nullptr}));
    for (int i = 1; i < 12; ++i) {
      Model* const parent = nodes[pick(nodes.size())].get();
      nodes.push_back(
          std::make_unique<Model>(Model{"n" + std::to_string(i), {{"a", "1"}, {"b", "2"}}, {}, parent}));
      parent->children.push_back(nodes.back().get());
    }
    writeModel(*nodes[0], xml);
    XmlDocumentEditor editor(readDocument(xml));
    std::vector<Node> numbers(nodes.size());
    for (Node node = 0; node < editor.getNodeCount(); ++node) {
      const std::string tag(editor.getTag(node).view());
      numbers[tag == "r" ? 0 : std::stoul(tag.substr(1))] = node;
    }
    for (int step = 0; step < 20; ++step) {
      const std::size_t which = 1 + pick(nodes.size() - 1);
      const std::size_t where = pick(nodes.size());
      Model& node = *nodes[which];
      Model& target = *nodes[where];
      bool isBelow = false;
      for (const Model* up = &target; up != nullptr; up = up->parent) isBelow = isBelow || up == &node;
      switch (pick(5)) {
        case 0:
          if (isBelow) break;
          detach(node);
          target.children.push_back(&node);
          node.parent = &target;
          editor.append(numbers[where], numbers[which]);
          break;
        case 1:
          if (isBelow || where == 0) break;
          detach(node);
          target.parent->children.insert(
              std::find(target.parent->children.begin(), target.parent->children.end(), &target), &node);
          node.parent = target.parent;
          editor.insertBefore(numbers[where], numbers[which]);
          break;
        case 2:
          node.attributes.insert(node.attributes.begin(), {"k" + std::to_string(step), "v"});
          editor.setAttribute(numbers[which], editor.intern("k" + std::to_string(step)), "v", 0);
          break;
        case 3:
          if (node.attributes.empty()) break;
          editor.removeAttribute(numbers[which], editor.intern(node.attributes.back().first));
          node.attributes.pop_back();
          break;
        default:
          nodes.push_back(
              std::make_unique<Model>(Model{"m" + std::to_string(nodes.size()), {}, {}, &target}));
          target.children.push_back(nodes.back().get());
          numbers.push_back(editor.addElement(editor.intern(nodes.back()->name), numbers[where]));
          editor.append(numbers[where], numbers.back());
      }
    }
    std::string expected;
    writeModel(*nodes[0], expected);
    std::string text;
    writeXmlDocument(*editor.build(), [&text](std::string_view piece) { text += piece; });
    ASSERT_EQ(text, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + expected + "\n");
  }
}

}  // namespace
