// The readers: one body serves all 117 classes, driven by their plans. The three that differ, those
// of the model and of two literals, stand beside it.
#include <algorithm>

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/ShownText.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "uml/read/ClassPlan.h"
#include "xmi/ReadObserver.h"
#include "xmi/ReaderNames.h"
#include "xmi/XMINames.h"
#include "xmi/XMIParser.h"

namespace {

void keepIn(KYRString& field, const KYRString& text) {
  if (!text.isEmpty()) field = shownText(text);
}

}  // namespace

const KYRString& XMIParser::getAttribute(const KYRStringArray& attributes, const KYRString& name) {
  // Steps by one, not two: a value equal to `name` is a match as well. Kept on purpose, see
  // "AValueThatEqualsTheNameIsTakenAsAMatch" in AttributeScanTest.
  for (unsigned int i = 0; i < attributes.getCount(); ++i) {
    if (attributes.get(i).equals(name, false)) return attributes.get(i + 1);
  }
  return KYRString::getEmptyString();
}

bool XMIParser::isTrue(const KYRString& value) { return equalsIgnoringCase(value.view(), "TRUE"); }

void XMIParser::readElement(const TagHandler& row, const KYRString& tag, const KYRStringArray&) {
  readPlan(*row.plan, tag);
}

// A default value keeps its text, so "true" and "5" survive; elsewhere the literal has its value.
void XMIParser::readLiteral(const TagHandler& row, const KYRString& tag, const KYRStringArray&) {
  const bool isDefault = tag.view() == XMINames::defaultValue;
  readPlan(isDefault ? ClassPlan::of(UMLLiteralString::kind) : *row.plan, tag);
}

void XMIParser::readModel(const TagHandler& row, const KYRString& tag, const KYRStringArray& attributes) {
  modelSeen = true;
  const ReaderNames& names = ReaderNames::get();
  const KYRString& name = attribute(names.name);
  if (!exporter.isEmpty() && !exporterVersion.isEmpty()) {
    KBI_UML2XMI::UML2_I_TARGET_TOOL.log(*log, exporter, exporterVersion);
  }
  captureNamespaces(row, tag, attributes);
  detectVersions();
  const KYRString& xmiId = attribute(names.id);
  const KYRString& id = xmiId.isEmpty() ? name : xmiId;
  findReferences(*row.plan);
  MadeObject object = makeObject(*row.plan, id, name);
  patchRow();
  // A second model element takes the place of the first as the result.
  model = umlCast<UMLModel>(object.get());
  keepIn(model->exporter, exporter);
  keepIn(model->exporterVersion, exporterVersion);
  keepIn(model->umlVersion, umlVersion);
  completeObject(*row.plan, tag, std::move(object), numberOf(id));
}

// A child row: with an xmi:idref the element is a mere reference, and nothing is made or pushed;
// without one it is an element of the class that the reference declares.
void XMIParser::readChild(const TagHandler& row, const KYRString& tag, const KYRStringArray&) {
  const KYRString& idref = attribute(ReaderNames::get().idref);
  if (idref.isEmpty()) {
    readPlan(*row.plan, tag);
  } else if (elementStack.back().id != IdTable::emptyId) {
    noteLink(elementStack.back().id, numberOf(idref), row.linkKind);
  }
}

// A text row matches every object of its class, and those of derived classes; the text is stored
// only in an object of exactly that class. The difference between the two tests is kept.
void XMIParser::storeText(const TagHandler& row, const KYRString&) {
  UMLElement* const current = getElement(0);
  if (current == nullptr || current->getKind() != row.kind) return;
  row.field->set(umlCastTo(current, row.kind), text, kinds);
}

void XMIParser::readPlan(const ClassPlan& plan, const KYRString& tag) {
  const ReaderNames& names = ReaderNames::get();
  const KYRString& id = attribute(names.id);
  findReferences(plan);
  MadeObject object = makeObject(plan, id, attribute(names.name));
  patchRow();
  completeObject(plan, tag, std::move(object), numberOf(id));
}

XMIParser::MadeObject XMIParser::makeObject(const ClassPlan& plan, const KYRString& id,
                                            const KYRString& name) {
  const UMLMetamodel::ClassRow& row = UMLMetamodel::classRows[static_cast<unsigned int>(plan.kind)];
  return MadeObject(row.makeAt(objectMemory.allocate(row.size), shownText(id), shownText(name)));
}

void XMIParser::completeObject(const ClassPlan& plan, const KYRString& tag, MadeObject object,
                               IdTable::Number id) {
  readScalars(plan, *object);
  UMLElement* const element = object.get();
  element->readingNumber = objects.getCount();
  objects.add(element, false, nullptr);
  object.release();  // owned by `objects` from here on
  if (observer != nullptr) observer->element(*element, parser->getLine());
  ids.enter(id, {element, plan.kind});
  pushElement(element, id);
  noteReferences(id);
  tieToParent(plan, tag, id);
}

// A missing attribute leaves the field as constructed, which is what its empty text would give.
void XMIParser::readScalars(const ClassPlan& plan, UMLElement& element) {
  for (const int name : scan.getFoundNames()) {
    const int position = plan.meanings[static_cast<std::size_t>(name)].scalar;
    if (position == ClassPlan::none) continue;
    const UMLMetamodel::ScalarRow& row = *plan.scalars[static_cast<std::size_t>(position)].row;
    const KYRString& value = attribute(name);
    if (!value.isEmpty()) row.set(umlCastTo(&element, row.owner), value, kinds);
  }
}

// The value is taken whole: one that lists several ids is a key that no object has. References are noted
// in the order of the plan, whatever the order of the attributes.
void XMIParser::findReferences(const ClassPlan& plan) {
  references.clear();
  for (const int name : scan.getFoundNames()) {
    int position = plan.meanings[static_cast<std::size_t>(name)].firstReference;
    if (position == ClassPlan::none || attribute(name).isEmpty()) continue;
    const KYRString& value = attribute(name);
    while (position != ClassPlan::none) {
      const ClassPlan::Reference& reference = plan.references[static_cast<std::size_t>(position)];
      references.push_back({&value, position, reference.linkKind});
      position = reference.nextOfName;
    }
  }
  if (references.size() < 2) return;
  std::sort(references.begin(), references.end(),
            [](const Reference& one, const Reference& other) { return one.position < other.position; });
}

void XMIParser::noteReferences(IdTable::Number id) {
  for (const Reference& reference : references) {
    noteLink(numberOf(*reference.id), id, reference.linkKind);
  }
}

void XMIParser::tieToParent(const ClassPlan& plan, const KYRString& tag, IdTable::Number id) {
  if (elementStack.size() < 2) return;
  const OpenElement& parent = elementStack[elementStack.size() - 2];
  if (parent.id == IdTable::emptyId || id == IdTable::emptyId) return;
  noteLink(parent.id, id, UMLMetamodel::ownedElementLink);
  const int tagNumber = ReaderNames::get().find(tag.view());
  if (tagNumber == ReaderNames::none) return;
  const int parentKind = parent.element->getKind();
  for (const ClassPlan::NestedRow& row : plan.nestedRows) {
    if (row.tag == tagNumber && UMLLineage::isKindOf(parentKind, row.parentKind)) {
      noteLink(parent.id, id, row.linkKind);
    }
  }
}

// Both ends of a link are filled in at once when their objects are known, while they are at hand. A link
// that has to wait keeps those of its kind to either of its ids waiting behind it: each field is filled by
// links of one kind, so every list gets its entries in the order in which they were noted.
void XMIParser::noteLink(IdTable::Number first, IdTable::Number second, int kind) {
  if (observer == nullptr && !ids.isWaiting(first, kind) && !ids.isWaiting(second, kind)) {
    const IdTable::Bearer firstBearer = ids.find(first);
    const IdTable::Bearer secondBearer = ids.find(second);
    if (firstBearer.object != nullptr && secondBearer.object != nullptr) {
      link(firstBearer, secondBearer, kind);
      return;
    }
  }
  ids.wait(first, kind);
  ids.wait(second, kind);
  pendingLinks.push_back({first, second, kind});
}
