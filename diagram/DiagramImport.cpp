// Class diagrams of MagicDraw files, the last phase of the conversion: everything that a diagram can show
// is there by now.
//
// On each diagram classes come first, then lines, then trees of generalizations: a line may only join
// classes that stand on the diagram, and a tree hangs from one of them.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/ShapeParts.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"

namespace {

// A diagram lists classes and relations only; what else a shape may name is not listed.
void listOn(KYRClassDiagram& diagram, KYRModelObject* object) {
  if (auto* const element = dynamic_cast<KYRModelElement*>(object)) diagram.addModelElement(element);
}

// The subtype role, which stands for a generalization of the file, when the object is one.
KYRGeneralizationRole* asSubtypeRole(KYRModelObject* object) {
  if (object == nullptr || object->getElementType() != KYRElementType::generalizationRole) return nullptr;
  auto* const role = dynamic_cast<KYRGeneralizationRole*>(object);
  return role != nullptr && role->generalizationAsSubtype != nullptr ? role : nullptr;
}

}  // namespace

void KYROmgUml2XmiImportBridge::importDiagrams() {
  if (domModel == nullptr) return;
  collectDiagrams(domModel, domModel->getAttribute("xmi:id"));
  if (mdObjects.getCount() == 0) return;
  collectFrames(domRoot.get());
  for (unsigned int slot = 0; slot < mdObjects.getSlotCount(); ++slot) {
    importDiagram(mdObjects.recordAt<MDDiagram>(slot));
  }
}

// A diagram without a frame stays empty.
void KYROmgUml2XmiImportBridge::importDiagram(MDDiagram* diagram) {
  KYRObject* owner = objects.find(diagram->packageId);
  if (owner != nullptr && owner->getElementType() == KYRElementType::model) owner = rootOwner;
  if (owner == nullptr || owner->getElementType() != KYRElementType::designPackage) return;
  auto* const package = dynamic_cast<KYRDesignPackage*>(owner);
  if (package == nullptr) return;
  auto made = std::make_unique<KYRClassDiagram>();
  KYRClassDiagram* const target = made.get();
  target->setName(diagram->element->getAttribute("name"));
  target->sourceId = diagram->id;
  package->addDiagramUniqueName(target, '/');
  made.release();  // ownership: the package
  diagrams.add(target, false);
  if (diagram->frame == nullptr) return;
  MDHashtable& shapes = diagram->frame->elements;
  importShapes(target, shapes);
  importLines(target, shapes);
  importTrees(target, shapes);
}

void KYROmgUml2XmiImportBridge::importShapes(KYRClassDiagram* diagram, const MDHashtable& shapes) {
  for (unsigned int slot = 0; slot < shapes.getSlotCount(); ++slot) {
    const auto* const shape = shapes.recordAt<MDDiagramFrameElement>(slot);
    if (!isOfClass(shape->element, "Class") && !isOfClass(shape->element, "Interface")) continue;
    KYRModelObject* const object = findModelObject(shape->umlRef);
    if (object == nullptr) continue;
    createClassProjection(diagram, shape->element, object);
    listOn(*diagram, object);
  }
}

// Relations are listed also where their line cannot be drawn. Dependencies and realizations have none.
void KYROmgUml2XmiImportBridge::importLines(KYRClassDiagram* diagram, MDHashtable& shapes) {
  for (unsigned int slot = 0; slot < shapes.getSlotCount(); ++slot) {
    const auto* const shape = shapes.recordAt<MDDiagramFrameElement>(slot);
    KYRModelObject* const object = findModelObject(shape->umlRef);
    if (object == nullptr) continue;
    if (isOfClass(shape->element, "Generalization")) {
      KYRGeneralizationRole* const role = asSubtypeRole(object);
      if (role == nullptr) continue;
      createGeneralizationProjections(diagram, shape->element, role, role->generalizationAsSubtype, shapes);
      listOn(*diagram, role->generalizationAsSubtype);
    } else if (isOfClass(shape->element, "Association") || isOfClass(shape->element, "AssociationClass")) {
      createAssociationProjections(diagram, shape->element, object, shapes);
      listOn(*diagram, object);
    }
  }
}

// The first branch tells which generalization the tree is.
void KYROmgUml2XmiImportBridge::importTrees(KYRClassDiagram* diagram, MDHashtable& shapes) {
  for (unsigned int slot = 0; slot < shapes.getSlotCount(); ++slot) {
    auto* const tree = shapes.recordAt<MDDiagramFrameElement>(slot);
    if (!isOfClass(tree->element, "Tree")) continue;
    const auto* const branch = tree->children.recordAt<MDDiagramFrameElement>(0);
    if (branch == nullptr) continue;
    const KYRGeneralizationRole* const role = asSubtypeRole(findModelObject(branch->umlRef));
    if (role == nullptr) continue;
    createTreeProjections(diagram, tree->element, tree, role->generalizationAsSubtype, shapes);
    listOn(*diagram, role->generalizationAsSubtype);
  }
}

KYRModelObject* KYROmgUml2XmiImportBridge::findModelObject(const KYRString& id) const {
  return dynamic_cast<KYRModelObject*>(objects.find(id));
}

KYRClass* KYROmgUml2XmiImportBridge::findLineEnd(const KYRClassDiagram* diagram, const KYRString& shapeId,
                                                 const MDHashtable& shapes) const {
  const auto* const shape = dynamic_cast<MDDiagramFrameElement*>(shapes.find(shapeId));
  if (shape == nullptr) return nullptr;
  KYRModelObject* const object = findModelObject(shape->umlRef);
  if (object == nullptr || object->getElementType() != KYRElementType::class_) return nullptr;
  auto* const end = dynamic_cast<KYRClass*>(object);
  return end != nullptr && diagram->modelElements.contains(end) ? end : nullptr;
}

KYROmgUml2XmiImportBridge::LineEnds KYROmgUml2XmiImportBridge::findLineEnds(const KYRClassDiagram* diagram,
                                                                            const KYRDOMElement* element,
                                                                            const MDHashtable& shapes) const {
  return {findLineEnd(diagram, shapeReference(element, "linkFirstEndID"), shapes),
          findLineEnd(diagram, shapeReference(element, "linkSecondEndID"), shapes)};
}
