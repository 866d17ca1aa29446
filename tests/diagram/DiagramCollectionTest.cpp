// Diagrams, frames and shapes as they are gathered from a file.
#include <gtest/gtest.h>

#include "diagram/ShapeParts.h"
#include "foundation/xml/XmlLimits.h"
#include "tests/diagram/DrawnModel.h"

namespace {

using Bridge = KYROmgUml2XmiImportBridge;

// The records that a bridge gathers from a root with a model and what stands behind it.
class Gathered {
 public:
  Gathered(const std::string& model, const std::string& behind)
      : file_("<root><uml:Model xmi:id='m'>" + model + "</uml:Model>" + behind + "</root>"), bridge_(&log_) {
    KYRDOM dom(&log_);
    bridge_.domRoot.reset(dom.parseFile(file_.file()));
    bridge_.domModel = bridge_.domRoot->getFirstElement("uml:Model");
    bridge_.collectDiagrams(bridge_.domModel, "m");
    bridge_.collectFrames(bridge_.domRoot.get());
  }
  Gathered(const Gathered&) = delete;
  Gathered& operator=(const Gathered&) = delete;
  ~Gathered() { bridge_.release(); }

  unsigned int count() const { return bridge_.mdObjects.getCount(); }
  const Bridge::MDDiagram& diagram(const std::string& id) const {
    const auto* const found = dynamic_cast<Bridge::MDDiagram*>(bridge_.mdObjects.find(id.c_str()));
    if (found == nullptr) throw std::runtime_error("no diagram " + id);
    return *found;
  }
  std::string packageOf(const std::string& id) const { return text(diagram(id).packageId); }
  /// The shapes of the diagram "d" as "id>reference", in order; "no frame" without one.
  std::string shapes() const {
    return diagram("d").frame == nullptr ? "no frame" : list(diagram("d").frame->elements);
  }
  std::string branchesOf(const std::string& treeId) const {
    const auto* const tree =
        dynamic_cast<Bridge::MDDiagramFrameElement*>(diagram("d").frame->elements.find(treeId.c_str()));
    return tree == nullptr ? "no tree" : list(tree->children);
  }

 private:
  static std::string list(const Bridge::MDHashtable& table) {
    std::string result;
    for (unsigned int slot = 0; slot < table.getSlotCount(); ++slot) {
      const auto* const record = table.recordAt<Bridge::MDDiagramFrameElement>(slot);
      result += (slot == 0 ? "" : " ") + text(record->id) + ">" + text(record->umlRef);
    }
    return result;
  }

  TemporaryFile file_;
  RecordingLog log_;
  Bridge bridge_;
};

std::string package(const std::string& id, const std::string& content) {
  return "<nested xmi:type='UML:package' xmi:id='" + id + "'>" + content + "</nested>";
}

std::string shapesOf(const std::string& shapes) {
  return Gathered(diagramElement("d", "D"), frame("d", shapes)).shapes();
}

std::string branch(const std::string& id, const std::string& reference, const std::string& tree) {
  return shape("Generalization", id, reference, "<treeID xmi:idref='" + tree + "'/>");
}

}  // namespace

TEST(DiagramCollection, ADiagramBelongsToTheInnermostPackage) {
  const Gathered gathered(
      diagramElement("d", "D") + package("p", "<other>" + diagramElement("d1", "D1") +
                                                  package("q", "<other xmi:type='uml:Class' xmi:id='k'>" +
                                                                   diagramElement("d2", "D2") + "</other>") +
                                                  "</other>" + diagramElement("d3", "D3")),
      "");
  EXPECT_EQ(gathered.count(), 4U);
  EXPECT_EQ(gathered.packageOf("d"), "m");
  EXPECT_EQ(gathered.packageOf("d1"), "p");
  EXPECT_EQ(gathered.packageOf("d2"), "q");
  EXPECT_EQ(gathered.packageOf("d3"), "p");
  EXPECT_EQ(text(gathered.diagram("d3").element->getAttribute("name")), "D3");
}

TEST(DiagramCollection, OnlyClassDiagramsWithAnIdAreTaken) {
  const std::string start = "<x xmi:type='uml:Diagram' xmi:id='z'>";
  for (const std::string& element :
       {diagramElement("", "D"), diagramElement("z", "D", "Use Case Diagram"), diagramElement("z", "D", ""),
        start + "</x>", start + "<xmi:Extension/></x>",
        start + "<xmi:Extension><diagramRepresentation/></xmi:Extension></x>",
        start + "<xmi:Extension><diagramRepresentation><diagram:DiagramRepresentationObject/>"
                "</diagramRepresentation></xmi:Extension></x>",
        // Only the first of each counts.
        start + "<xmi:Extension/><xmi:Extension><diagramRepresentation>"
                "<diagram:DiagramRepresentationObject umlType='Class Diagram'/>"
                "</diagramRepresentation></xmi:Extension></x>"}) {
    EXPECT_EQ(Gathered(element, "").count(), 0U) << element;
  }
  EXPECT_EQ(Gathered(diagramElement("d", "D", "CLASS diagram"), "").count(), 1U);
}

TEST(DiagramCollection, InsideADiagramNothingIsSearched) {
  const Gathered gathered("<x xmi:type='uml:Diagram' xmi:id='z'>" + diagramElement("inner", "I") + "</x>",
                          "");
  EXPECT_EQ(gathered.count(), 0U);
}

TEST(DiagramCollection, FramesAreFoundThroughNestedExtensions) {
  const std::string inner = frame("d", shape("Class", "A", "a"));
  const std::string model = diagramElement("d", "D");
  const std::string expected = "framed>d A>a";
  EXPECT_EQ(Gathered(model, inner).shapes(), expected);
  EXPECT_EQ(
      Gathered(model, "<xmi:Extension><xmi:Extension>" + inner + "</xmi:Extension></xmi:Extension>").shapes(),
      expected);
  EXPECT_EQ(Gathered(model, "<other>" + inner + "</other>").shapes(), "no frame");
  EXPECT_EQ(Gathered(model, "<xmi:Extension><filePart/>" + inner + "</xmi:Extension>").shapes(), expected);
  EXPECT_EQ(Gathered(model, "<xmi:Extension><filePart/><filePart>" + views(shape("DiagramFrame", "f", "d")) +
                                "</filePart></xmi:Extension>")
                .shapes(),
            "no frame");
}

TEST(DiagramCollection, TheFirstFrameOfAKnownDiagramNamesIt) {
  const auto shapesWith = [](const std::string& shapes) {
    return Gathered(diagramElement("d", "D"),
                    "<xmi:Extension><filePart>" + views(shapes) + "</filePart></xmi:Extension>")
        .shapes();
  };
  EXPECT_EQ(shapesWith(shape("Class", "A", "a") + shape("DiagramFrame", "f", "unknown") +
                       "<mdElement elementClass='DiagramFrame'/>" + shape("DiagramFrame", "e", "") +
                       shape("diagramFRAME", "g", "d")),
            "A>a f>unknown g>d");
  EXPECT_EQ(shapesWith(shape("Class", "A", "a")), "no frame");
  EXPECT_EQ(shapesWith(shape("Class", "f", "d")), "no frame");
  EXPECT_EQ(shapesWith(""), "no frame");
}

TEST(DiagramCollection, ALaterFrameOfADiagramReplacesTheEarlier) {
  const Gathered gathered(diagramElement("d", "D"),
                          frame("d", shape("Class", "A", "a")) + frame("d", shape("Class", "B", "b")));
  EXPECT_EQ(gathered.shapes(), "framed>d B>b");
}

TEST(DiagramCollection, ShapesOfTheKnownClassesAreTaken) {
  for (const std::string name : {"Class", "Interface", "Association", "Generalization", "Dependency",
                                 "Realization", "cLASS", "DiagramFrame"}) {
    EXPECT_EQ(shapesOf(shape(name, "X", "x")), "framed>d X>x") << name;
  }
  for (const std::string name : {"", "Package", "Note", "Role", "Classes"}) {
    EXPECT_EQ(shapesOf(shape(name, "X", "x", views(shape("Class", "A", "a")))), "framed>d") << name;
  }
}

TEST(DiagramCollection, AShapeNeedsAnIdAndWhatItShows) {
  EXPECT_EQ(shapesOf(shape("Class", "", "x") + shape("Class", "X", "") +
                     "<mdElement elementClass='Class' xmi:id='Y'/>"
                     "<mdElement elementClass='Class' xmi:id='Z'><elementID/></mdElement>"
                     "<mdElement/>" +
                     shape("AssociationClass", "", "x") + shape("AssociationClass", "X", "")),
            "framed>d");
  EXPECT_EQ(shapesOf(shape("Class", "X", "x") + shape("Class", "X", "y")), "framed>d X>x X>y");
}

TEST(DiagramCollection, TheBoxOfAnAssociationClassComesBeforeItsLine) {
  EXPECT_EQ(shapesOf(shape("AssociationClass", "L", "ac",
                           views(shape("Class", "X", "ac") + shape("Role", "R", "r") +
                                 shape("AssociationClass", "L2", "ad", views(shape("Class", "Y", "ad"))) +
                                 shape("Class", "Z", "z")))),
            "framed>d X>ac Y>ad L2>ad_ASSOCIATION Z>z L>ac_ASSOCIATION");
  EXPECT_EQ(shapesOf(shape("associationCLASS", "L", "ac")), "framed>d L>ac_ASSOCIATION");
}

TEST(DiagramCollection, GeneralizationsOfATreeBelongToItWhereverItStands) {
  const Gathered gathered(
      diagramElement("d", "D"),
      frame("d",
            branch("G1", "gb", "T") + "<mdElement elementClass='tree' xmi:id='T'/>" +
                branch("G2", "gc", "T") + branch("G3", "gi", "none") + branch("", "gi", "T") +
                branch("G4", "", "T") + "<mdElement elementClass='Tree'/>" +
                "<mdElement elementClass='Generalization' xmi:id='G5'><treeID xmi:idref='T'/></mdElement>" +
                shape("Generalization", "G6", "gi", "<treeID/>")));
  EXPECT_EQ(gathered.shapes(), "framed>d T>-1");
  EXPECT_EQ(gathered.branchesOf("T"), "G1>gb G2>gc");
}

TEST(DiagramCollection, AnyElementCanBeADiagram) {
  const std::string content =
      "<xmi:Extension><diagramRepresentation><diagram:DiagramRepresentationObject umlType='Class Diagram'/>"
      "</diagramRepresentation></xmi:Extension>";
  const Gathered gathered("<packagedElement xmi:type='UML:diagram' xmi:id='d'>" + content +
                              "</packagedElement><uml:Diagram xmi:id='e'>" + content + "</uml:Diagram>",
                          frame("d", shape("Class", "A", "a")));
  EXPECT_EQ(gathered.count(), 1U);
  EXPECT_EQ(gathered.shapes(), "framed>d A>a");
}

TEST(DiagramCollection, AFrameAsDeepAsAFileMayBeNeedsNoStack) {
  constexpr unsigned int depth = 100000;
  const XmlLimits before = XmlLimits::get();
  XmlLimits limits = before;
  limits.maxDepth = 2 * depth;
  XmlLimits::set(limits);
  const auto nested = [](const std::string& tag, const std::string& content) {
    std::string open;
    std::string close;
    for (unsigned int i = 0; i < depth; ++i) {
      open += "<" + tag + ">";
      close += "</" + tag + ">";
    }
    return open + content + close;
  };
  EXPECT_EQ(Gathered(nested("e", diagramElement("d", "D")), frame("d", shape("Class", "A", "a"))).shapes(),
            "framed>d A>a");
  EXPECT_EQ(Gathered(diagramElement("d", "D"), nested("xmi:Extension", frame("d", shape("Class", "A", "a"))))
                .shapes(),
            "framed>d A>a");
  XmlLimits::set(before);
}

TEST(DiagramCollection, ManyShapesNestedDeeplyNeedNoStack) {
  std::string nested = shape("Class", "X", "x");
  for (int depth = 0; depth < 300; ++depth) nested = shape("AssociationClass", "L", "ac", views(nested));
  const Gathered gathered(diagramElement("d", "D"), frame("d", nested));
  EXPECT_EQ(gathered.diagram("d").frame->elements.getCount(), 302U);
}
