// What the file tells of class diagrams, gathered before anything is made of it: the diagrams stand in
// the model, their shapes in frames behind it.
#include <array>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/ShapeParts.h"

namespace {

using Bridge = KYROmgUml2XmiImportBridge;

constexpr const char* referenceTag = "elementID";

// What a tree refers to: no object has this id.
constexpr const char* noElement = "-1";

// An element whose children are being visited.
struct OpenElement {
  const KYRDOMElement* element;
  const KYRString* packageId;
  int next = 0;
};

// A shape whose nested shapes are being added.
struct OpenShape {
  const KYRDOMElement* element;
  const KYRDOMElement* views;
  int next = 0;
};

bool isTreeBranch(const KYRDOMElement* shape) {
  return isOfClass(shape, "Generalization") && shape->getFirstElement("treeID") != nullptr;
}

bool isKnownShape(const KYRDOMElement* shape) {
  constexpr std::array<std::string_view, 7> classes = {
      "DiagramFrame", "Class", "Interface", "Association", "Generalization", "Dependency", "Realization"};
  for (const std::string_view name : classes) {
    if (isOfClass(shape, name)) return true;
  }
  return false;
}

// A shape that has no id of its own or shows nothing is passed over.
void addRecord(Bridge::MDHashtable& table, const KYRDOMElement* element, KYRString umlRef) {
  const KYRString& id = element->getAttribute("xmi:id");
  if (id.isEmpty() || umlRef.isEmpty()) return;
  auto record = std::make_unique<Bridge::MDDiagramFrameElement>();
  record->id = id;
  record->umlRef = std::move(umlRef);
  record->element = element;
  table.addRecord(record.get());
  record.release();  // ownership: the frame or the tree
}

// A shape without those that are nested in it.
void addShape(Bridge::MDHashtable& table, const KYRDOMElement* shape) {
  if (isTreeBranch(shape)) return;  // it belongs to its tree
  if (isOfClass(shape, "Tree")) {
    addRecord(table, shape, noElement);
  } else if (isOfClass(shape, "AssociationClass")) {
    const KYRString& reference = shapeReference(shape, referenceTag);
    if (!reference.isEmpty()) addRecord(table, shape, reference + Bridge::associationSuffix);
  } else if (isKnownShape(shape)) {
    addRecord(table, shape, shapeReference(shape, referenceTag));
  }
}

const KYRDOMElement* findViews(const KYRDOMElement* extension) {
  const KYRDOMElement* const part = extension->getFirstElement("filePart");
  return part == nullptr ? nullptr : part->getFirstElement("mdOwnedViews");
}

}  // namespace

void KYROmgUml2XmiImportBridge::MDHashtable::deleteRecords() noexcept {
  for (unsigned int slot = 0; slot < getSlotCount(); ++slot) delete at(slot);
  empty();
}

KYROmgUml2XmiImportBridge::MDDiagramFrameElement::~MDDiagramFrameElement() { children.deleteRecords(); }

KYROmgUml2XmiImportBridge::MDDiagramFrame::~MDDiagramFrame() { elements.deleteRecords(); }

void KYROmgUml2XmiImportBridge::collectDiagrams(const KYRDOMElement* element, const KYRString& packageId) {
  static const KYRString typeName("xmi:type");
  static const KYRString idName("xmi:id");
  std::vector<OpenElement> open;
  const auto visit = [&](const KYRDOMElement* visited, const KYRString& package) {
    const std::string_view type = visited->getAttribute(typeName).view();
    if (equalsIgnoringCase(type, "uml:Diagram")) {
      collectDiagram(visited, package);
    } else if (equalsIgnoringCase(type, "uml:Package")) {
      open.push_back({visited, &visited->getAttribute(idName)});
    } else {
      open.push_back({visited, &package});
    }
  };
  visit(element, packageId);
  while (!open.empty()) {
    OpenElement& last = open.back();
    if (const KYRDOMElement* child = last.element->getElement(last.next++)) {
      visit(child, *last.packageId);
    } else {
      open.pop_back();
    }
  }
}

void KYROmgUml2XmiImportBridge::collectDiagram(const KYRDOMElement* element, const KYRString& packageId) {
  const KYRString& id = element->getAttribute("xmi:id");
  if (id.isEmpty()) return;
  const KYRDOMElement* step = element;
  for (const char* tag : {"xmi:Extension", "diagramRepresentation", "diagram:DiagramRepresentationObject"}) {
    step = step->getFirstElement(tag);
    if (step == nullptr) return;
  }
  if (!step->getAttribute("umlType").equals("Class Diagram", false)) return;
  auto diagram = std::make_unique<MDDiagram>();
  diagram->id = id;
  diagram->packageId = packageId;
  diagram->element = element;
  mdObjects.addRecord(diagram.get());
  diagram.release();  // ownership: mdObjects
}

void KYROmgUml2XmiImportBridge::collectFrames(const KYRDOMElement* element) {
  std::vector<OpenElement> open;
  const auto visit = [&](const KYRDOMElement* visited) {
    if (visited->getTagName().equals("xmi:Extension", false)) collectFrame(visited);
    open.push_back({visited, nullptr});
  };
  visit(element);
  while (!open.empty()) {
    OpenElement& last = open.back();
    if (const KYRDOMElement* child = last.element->getElement("xmi:Extension", last.next++)) {
      visit(child);
    } else {
      open.pop_back();
    }
  }
}

// Views without a frame of a known diagram are of other kinds of diagrams. A second frame of a diagram
// takes the place of the first.
void KYROmgUml2XmiImportBridge::collectFrame(const KYRDOMElement* extension) {
  const KYRDOMElement* const views = findViews(extension);
  if (views == nullptr) return;
  MDDiagram* const diagram = findFramedDiagram(views);
  if (diagram == nullptr) return;
  diagram->frame = std::make_unique<MDDiagramFrame>();
  MDDiagramFrame& frame = *diagram->frame;
  frame.id = diagram->id;
  const int count = views->getElementCount("mdElement");
  for (int i = 0; i < count; ++i) addFrameElement(views->getElement("mdElement", i), &frame);
  for (int i = 0; i < count; ++i) addTreeBranch(views->getElement("mdElement", i), frame);
}

KYROmgUml2XmiImportBridge::MDDiagram* KYROmgUml2XmiImportBridge::findFramedDiagram(
    const KYRDOMElement* views) const {
  const int count = views->getElementCount("mdElement");
  for (int i = 0; i < count; ++i) {
    const KYRDOMElement* const shape = views->getElement("mdElement", i);
    if (!isOfClass(shape, "DiagramFrame")) continue;
    MD* const record = mdObjects.find(shapeReference(shape, referenceTag));
    if (record != nullptr) return dynamic_cast<MDDiagram*>(record);
  }
  return nullptr;
}

// Trees are known by now, wherever they stand among the shapes.
void KYROmgUml2XmiImportBridge::addTreeBranch(const KYRDOMElement* shape, MDDiagramFrame& frame) {
  if (!isTreeBranch(shape)) return;
  auto* const tree =
      dynamic_cast<MDDiagramFrameElement*>(frame.elements.find(shapeReference(shape, "treeID")));
  if (tree != nullptr) addRecord(tree->children, shape, shapeReference(shape, referenceTag));
}

// The class box of an association class is nested in its line, and comes in before it.
void KYROmgUml2XmiImportBridge::addFrameElement(const KYRDOMElement* element, MDDiagramFrame* frame) {
  std::vector<OpenShape> open;
  const auto visit = [&](const KYRDOMElement* shape) {
    const KYRDOMElement* const views =
        isOfClass(shape, "AssociationClass") ? shape->getFirstElement("mdOwnedViews") : nullptr;
    if (views == nullptr) {
      addShape(frame->elements, shape);
    } else {
      open.push_back({shape, views});
    }
  };
  visit(element);
  while (!open.empty()) {
    OpenShape& last = open.back();
    if (const KYRDOMElement* nested = last.views->getElement("mdElement", last.next++)) {
      visit(nested);
    } else {
      addShape(frame->elements, last.element);
      open.pop_back();
    }
  }
}
