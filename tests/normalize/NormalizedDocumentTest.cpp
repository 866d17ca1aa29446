// Regions and readings follow what the reader does with the document.
#include "normalize/NormalizedDocument.h"

#include <map>

#include "tests/normalize/NormalizedFile.h"
#include "xmi/XMIParser.h"

namespace {

using Role = NormalizedDocument::Role;

struct Read {
  explicit Read(const std::string& text) : document(documentOf(text), fileName, report) {
    document.findRegions();
  }
  NormalizedDocument::Node find(const std::string& id) {
    for (NormalizedDocument::Node node = 0; node < document.editor.getNodeCount(); ++node) {
      if (document.editor.isElement(node) && document.attribute(node, document.xmiId).view() == id)
        return node;
    }
    return NormalizedDocument::noNode;
  }
  NormalizeReport report;
  NormalizedDocument document;
};

TEST(NormalizedDocument, TheModelIsWhatStandsInItsRootsWithoutTheDataOfTools) {
  Read read(
      "<xmi:XMI><S:A xmi:id='1'/><uml:Model xmi:id='2'><a xmi:id='3'/><xmi:Extension xmi:id='4'><b "
      "xmi:id='5'/>"
      "</xmi:Extension><eAnnotations xmi:id='6'/></uml:Model><xmi:Documentation xmi:id='7'/>"
      "<packagedElement xmi:id='8'/><uml:Comment xmi:id='9'/></xmi:XMI>");
  std::string inside;
  for (char id = '1'; id <= '9'; ++id) {
    if (read.document.isModel(read.find(std::string(1, id)))) inside += id;
  }
  EXPECT_EQ(inside, "238");
  EXPECT_EQ(read.document.getRoots().size(), 2U);
  EXPECT_EQ(read.document.getModelElements().size(), 3U);
}

TEST(NormalizedDocument, ADocumentThatIsAModelIsItsOwnRoot) {
  Read read("<uml:Model xmi:id='1'><uml:Package xmi:id='2'/></uml:Model>");
  EXPECT_EQ(read.document.getRoots(), std::vector<NormalizedDocument::Node>{0});
  EXPECT_FALSE(read.document.isXmiRoot());
}

TEST(NormalizedDocument, EachElementHasARole) {
  Read read(xmi(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'><name xmi:id='n'/><ownedAttribute xmi:id='a'/>"
      "<ownedAttribute xmi:id='r' xmi:idref='a'/><unknown xmi:id='u'><ownedAttribute xmi:id='b'/></unknown>"
      "<profileApplication xmi:id='s'><ownedAttribute xmi:id='t'/></profileApplication></packagedElement>"
      "<packagedElement xmi:type='uml:StateMachine' xmi:id='m'/>"));
  const std::map<std::string, Role> expected = {
      {"c", Role::object},    {"n", Role::text},    {"a", Role::object},
      {"r", Role::reference}, {"u", Role::passed},  {"b", Role::object},
      {"s", Role::skipped},   {"t", Role::skipped}, {"m", Role::skipped}};
  for (const auto& [id, role] : expected) {
    SCOPED_TRACE(id);
    EXPECT_EQ(read.document.readingOf(read.find(id)).role, role);
  }
  EXPECT_EQ(read.document.readingOf(read.find("b")).object, read.find("c"));
}

// Every object that the reader makes of a sample is one here, of the same class, and there are no others.
TEST(NormalizedDocument, ReadingsAreThoseOfTheReader) {
  for (const char* sample : {"plain.xmi", "enterprise-architect.xmi", "magicdraw.xmi"}) {
    const std::string path = std::string(KYR_SOURCE_DIR "/samples/") + sample;
    if (!KYRFile(path.c_str()).exists()) continue;
    SCOPED_TRACE(sample);
    // The rows of the reader are patched by untyped elements, so that it is compared behind the step.
    const TemporaryFile file(normalized(textOf(*readXmlFile(KYRFile(path.c_str()), nullptr, false))));
    DispatchRows::resetForTests();
    RecordingLog log;
    XMIParser parser(&log);
    parser.parse(file.file());
    NormalizeReport report;
    NormalizedDocument document(readXmlFile(file.file(), nullptr, false), fileName, report);
    document.findRegions();
    const auto& objects = document.getObjects();
    ASSERT_EQ(objects.size(), parser.getObjects().getCount());
    for (unsigned int i = 0; i < objects.size(); ++i) {
      EXPECT_EQ(document.readingOf(objects[i]).kind, parser.getObjects().at(i)->getKind());
      EXPECT_EQ(document.attribute(objects[i], document.xmiId), parser.getObjects().at(i)->id);
    }
  }
}

}  // namespace
