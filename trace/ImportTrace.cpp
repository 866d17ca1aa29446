// The records of a trace in their order, and their sum.
#include "trace/ImportTrace.h"

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/model/KYRStoreModel.h"
#include "trace/AbsorbedElements.h"
#include "trace/AppliedStereotypes.h"
#include "trace/ArrivedObjects.h"
#include "trace/LostElements.h"
#include "trace/VisitedElements.h"
#include "uml/UMLElement.h"
#include "uml/UMLMetamodel.h"
#include "xmi/XMIParser.h"

namespace {

const char* classOf(const UMLElement& element) {
  return UMLMetamodel::classRows[static_cast<unsigned int>(element.getKind())].name;
}

KYRString pathOf(const KYRObject& object) {
  const KYRString path = object.getPath(true);
  return path.isEmpty() ? object.getName() : path;
}

KYRString describe(const KYRTraceRecord& record) {
  KYRString text(record.objectKind);
  text += " '";
  text += record.objectPath;
  text += "'";
  return text;
}

}  // namespace

ImportTrace::ImportTrace(KYRImportTrace* receiver, XMIParser& parser) : receiver_(receiver), parser_(parser) {
  if (receiver_ != nullptr) parser.setObserver(&notes_);
}

void ImportTrace::tell(KYROmgUml2XmiImportBridge& bridge) {
  if (receiver_ == nullptr || bridge.umlModel == nullptr) return;
  tellElements(bridge);
}

void ImportTrace::tellElements(KYROmgUml2XmiImportBridge& bridge) {
  const UMLObjectTable& elements = parser_.getObjects();
  const ArrivedObjects arrived(bridge, elements);
  const VisitedElements visited(bridge, elements);
  const AbsorbedElements absorbed(bridge, elements, arrived, visited);
  const LostElements lost(elements, notes_, arrived, visited, absorbed);
  KYRTraceTotals totals;
  totals.read = elements.getCount();
  for (unsigned int i = 0; i < elements.getSlotCount(); ++i) {
    const UMLElement& element = *elements.at(i);
    if (const AbsorbedElements::Place* const place = absorbed.find(&element)) {
      ++totals.absorbed;
      KYRTraceRecord record = recordOf(place->reason, element);
      record.objectKind = KYRElementType::getClassName(place->object->getElementType());
      record.objectPath = pathOf(*place->object);
      hand(record, describe(record));
    } else if (arrived.find(&element) != nullptr) {
      ++totals.converted;
    } else {
      ++totals.lost;
      const LostElements::Loss loss = lost.explain(element);
      KYRTraceRecord record = recordOf(loss.reason, element);
      record.missingId = loss.missingId;
      hand(record, loss.other);
    }
  }
  tellReferences();
  tellNames(KYRTraceReason::typeUnknown, notes_.getSkippedTypes());
  tellNames(KYRTraceReason::tagIgnored, notes_.getUnknownTags());
  tellStereotypes(bridge);
  receiver_->finish(totals);
}

void ImportTrace::tellReferences() {
  for (const ReadNotes::Reference& reference : notes_.getReferences()) {
    const UMLElement* const from = parser_.getObjects().find(reference.from);
    if (from == nullptr) continue;  // neither end is there; nothing in the file can be pointed at
    const UMLElement* const to = reference.isFound ? parser_.getObjects().find(reference.to) : nullptr;
    const auto reason =
        reference.isFound ? KYRTraceReason::referenceWrongClass : KYRTraceReason::referenceNotFound;
    KYRTraceRecord record = recordOf(reason, *from);
    if (!reference.isFound) record.missingId = reference.to;
    hand(record, to != nullptr ? LostElements::describe(*to) : reference.to);
  }
}

void ImportTrace::tellNames(KYRTraceReason reason, const std::vector<ReadNotes::Met>& names) {
  for (const ReadNotes::Met& met : names) {
    KYRTraceRecord record;
    record.reason = reason;
    record.name = KYRString(met.name);
    record.count = met.count;
    record.line = met.firstLine;
    hand(record, KYRString());
  }
}

void ImportTrace::tellStereotypes(const KYROmgUml2XmiImportBridge& bridge) {
  for (const AppliedStereotypes::Application& application : AppliedStereotypes(bridge).findThoseOfNothing()) {
    KYRTraceRecord record;
    record.reason = KYRTraceReason::stereotypeNotFound;
    record.name = application.tag;
    record.missingId = application.id;
    record.line = application.line;
    hand(record, application.id);
  }
}

KYRTraceRecord ImportTrace::recordOf(KYRTraceReason reason, const UMLElement& element) const {
  KYRTraceRecord record;
  record.reason = reason;
  record.kind = classOf(element);
  record.id = element.id;
  record.name = element.elementName;
  record.line = notes_.lineOf(element);
  return record;
}

void ImportTrace::hand(KYRTraceRecord& record, const KYRString& other) {
  record.sentence = KYRTraceReasons::get(record.reason).tell(other);
  receiver_->record(record);
}
