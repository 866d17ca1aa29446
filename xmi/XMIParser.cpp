// The parse as a whole, its stacks and its end.
#include "xmi/XMIParser.h"

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRPhaseTimes.h"
#include "foundation/xml/XmlDocument.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "xmi/DispatchRows.h"
#include "xmi/ReadObserver.h"

namespace {

constexpr int unknownTagBuckets = 15;
constexpr int handlerBuckets = 256;
constexpr int objectBuckets = 16384;  // sized for large models

void load(TagHandlerHashtable& table, std::vector<TagHandler>& rows) {
  for (TagHandler& row : rows) {
    if (row.tag == nullptr) break;
    table.add(&row, false, nullptr);
  }
}

}  // namespace

XMIParser::XMIParser(KYRLog* messageLog)
    : unknownTags(unknownTagBuckets),
      contextHandlers(handlerBuckets),
      typeHandlers(handlerBuckets),
      generalHandlers(handlerBuckets),
      objects(objectBuckets),
      log(messageLog) {
  DispatchRows& rows = DispatchRows::get();
  load(contextHandlers, rows.context);
  load(typeHandlers, rows.type);
  load(generalHandlers, rows.general);
}

XMIParser::~XMIParser() { cleanUp(); }

UMLModel* XMIParser::parse(const KYRFile& input) {
  file = input;
  skipDepth = 0;
  umlVersion.empty();
  xmiVersion.empty();
  // What was read up to a failure is of no use to anybody, so it goes before the exception does.
  try {
    if (parser == nullptr) {
      parser = std::make_unique<KYRSAX2Parser>(this, log, &startCallback, &endCallback, &charactersCallback,
                                               nullptr);
      parser->lookAhead(&isIdCallback, &comingIdCallback);
    }
    parser->parseFile(file);
    texts = parser->getDocument()->getTexts();
    if (!modelSeen) KBI_UML2XMI::UML2_I_BAD_HEADERUML2_ERROR.throwException();
    reportUnknownTags();
    {
      const KYRPhaseTimer timer(KYRPhase::link);
      resolveLinks();
      attachComments();
    }
    const KYRPhaseTimer timer(KYRPhase::extension);
    runToolExtension();
  } catch (...) {
    cleanUp();
    throw;
  }
  return model;
}

void XMIParser::dropReading() {
  std::vector<PendingLink>().swap(pendingLinks);
  ids.empty();
  parser.reset();
}

UMLElement* XMIParser::getElement(int offset) const noexcept {
  const auto position = static_cast<std::ptrdiff_t>(elementStack.size()) - 1 + offset;
  if (position < 0) return nullptr;
  return elementStack[static_cast<std::size_t>(position)].element;
}

void XMIParser::pushElement(UMLElement* element, IdTable::Number id) {
  elementStack.push_back({element, id});
}

// A patched row pops once more than was pushed when its element is a mere reference, so the stack
// can be empty here.
void XMIParser::popElement() noexcept {
  if (!elementStack.empty()) elementStack.pop_back();
}

KYRString XMIParser::getPosition() const { return parser->getPosition(); }

// A context row has no end action, since its element may be a mere reference. Once its reader has
// made an object the row pops at every end tag, that of later references included; this shapes which
// object later children attach to and is kept. See "ThePatchedRowPopsForReferencesToo" in RowPatchTest.
void XMIParser::patchRow() noexcept {
  TagHandler* const row = handlerStack.back().row;
  if (row->endAction.marker == EndAction::Marker::none) row->endAction = {EndAction::Marker::pop, nullptr};
}

void XMIParser::reportUnknownTags() {
  for (unsigned int i = 0; i < unknownTags.getSlotCount(); ++i) {
    const UnknownTag& record = *unknownTags.at(i);
    KBI_UML2XMI::UML2_I_UNKNOWN_TAG.log(*log, record.position, record.tag);
  }
}

// The ids of a link lie anywhere in memory, and so do the objects that bear them: both are asked for
// some links ahead.
void XMIParser::prefetchLinks(std::size_t at) const noexcept {
  constexpr std::size_t idsAhead = 24;
  constexpr std::size_t objectsAhead = 8;
  if (at + idsAhead >= pendingLinks.size()) return;
  ids.prefetch(pendingLinks[at + idsAhead].first);
  ids.prefetch(pendingLinks[at + idsAhead].second);
  __builtin_prefetch(ids.find(pendingLinks[at + objectsAhead].first).object);
  __builtin_prefetch(ids.find(pendingLinks[at + objectsAhead].second).object);
}

void XMIParser::resolveLinks() {
  for (std::size_t at = 0; at < pendingLinks.size(); ++at) {
    prefetchLinks(at);
    const PendingLink& pending = pendingLinks[at];
    const IdTable::Bearer first = ids.find(pending.first);
    const IdTable::Bearer second = ids.find(pending.second);
    const bool linked =
        first.object != nullptr && second.object != nullptr && link(first, second, pending.kind);
    if (observer == nullptr) continue;
    using Result = ReadObserver::LinkResult;
    const Result result = linked                     ? Result::linked
                          : first.object == nullptr  ? Result::firstMissing
                          : second.object == nullptr ? Result::secondMissing
                                                     : Result::wrongClass;
    observer->link(ids.getText(pending.first), ids.getText(pending.second), pending.kind, result);
  }
}

void XMIParser::Destroy::operator()(UMLElement* object) const noexcept { std::destroy_at(object); }

void XMIParser::cleanUp() noexcept {
  const KYRPhaseTimer timer(KYRPhase::release);
  elementStack.clear();
  handlerStack.clear();
  pendingLinks.clear();
  comingIds.forget();
  for (unsigned int i = 0; i < unknownTags.getSlotCount(); ++i) delete unknownTags.at(i);
  unknownTags.empty();
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    UMLElement* const element = objects.at(i);
    for (UMLTaggedValue* const tag : element->taggedValues) delete tag;
    element->taggedValues.clear();
    std::destroy_at(element);
  }
  objects.empty();
  objectMemory.release();
  model = nullptr;
  parser.reset();
  texts.reset();
}
