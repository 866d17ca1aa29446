// The events of the streaming reader: which row an element gets, skipping, and collected text.
#include <memory>

#include "uml/UMLElement.h"
#include "xmi/ReadObserver.h"
#include "xmi/ReaderNames.h"
#include "xmi/XMINames.h"
#include "xmi/XMIParser.h"

void XMIParser::startCallback(void* userData, const KYRString& tag, const KYRStringArray& attributes) {
  static_cast<XMIParser*>(userData)->startTag(tag, attributes);
}

void XMIParser::endCallback(void* userData, const KYRString& tag) {
  static_cast<XMIParser*>(userData)->endTag(tag);
}

void XMIParser::charactersCallback(void* userData, const KYRString& chunk) {
  auto& self = *static_cast<XMIParser*>(userData);
  if (self.skipDepth != 0) return;
  if (self.text.isEmpty()) {
    self.text.borrow(chunk);
  } else {
    self.text += chunk;
  }
}

bool XMIParser::isIdCallback(void* /*userData*/, const KYRString& attribute) {
  const ReaderNames& names = ReaderNames::get();
  return names.holdsId(names.findIgnoringCase(attribute.view()));
}

void XMIParser::comingIdCallback(void* userData, const KYRString& id) {
  auto& self = *static_cast<XMIParser*>(userData);
  if (self.skipDepth == 0) self.comingIds.expect(id);  // nothing is looked up of what is skipped
}

void XMIParser::startTag(const KYRString& writtenTag, const KYRStringArray& attributes) {
  static const KYRString modelTag(XMINames::umlModel);
  static const KYRString packageTag(XMINames::umlPackage);

  handlerStack.push_back({nullptr});
  if (skipDepth > 0) {
    if (writtenTag == skippedTag) ++skipDepth;
    return;
  }
  text.clearKeepingBuffer();
  scan.scan(attributes);
  const KYRString& type = attribute(ReaderNames::get().type);

  // The first package written as an element of its own stands for the model.
  const KYRString& tag = !modelSeen && writtenTag == packageTag ? modelTag : writtenTag;

  TagHandler* row = nullptr;
  if (tag == modelTag) {
    row = typeHandlers.find(tag);
  } else if (!type.isEmpty() && type != modelTag) {
    row = typeHandlers.find(type);
    if (row == nullptr) {
      if (observer != nullptr) observer->skippedType(type, getPosition());
      beginSkip(tag);
      return;
    }
  } else {
    row = chooseRowByTag(tag);
  }
  handlerStack.back().row = row;
  if (row == nullptr) {
    noteUnknown(tag);
    return;
  }
  switch (row->startAction.marker) {
    case StartAction::Marker::none:
      break;
    case StartAction::Marker::skip:
      beginSkip(tag);
      break;
    case StartAction::Marker::call:
      (this->*row->startAction.member)(*row, tag, attributes);
      break;
  }
}

TagHandler* XMIParser::chooseRowByTag(const KYRString& tag) const {
  const UMLElement* const current = getElement(0);
  TagHandler* const row = current == nullptr ? nullptr : contextHandlers.findInContext(tag, *current);
  return row != nullptr ? row : generalHandlers.find(tag);
}

void XMIParser::beginSkip(const KYRString& tag) {
  skipDepth = 1;
  skippedTag = tag;
}

// Nothing is skipped: the children of an unknown element are read as if they stood in its parent.
// A tag with a ":" belongs to a profile or a tool and is expected not to be known.
void XMIParser::noteUnknown(const KYRString& tag) {
  if (observer != nullptr) observer->unknownTag(tag, getPosition());
  static const KYRString colon(":");
  if (tag.find(colon, 0) >= 0) return;
  if (unknownTags.findFirst(tag.getCharacters(), nullptr) != nullptr) return;
  auto record = std::make_unique<UnknownTag>();
  record->position = getPosition();
  record->tag = tag;
  if (unknownTags.add(record.get(), true, nullptr)) record.release();  // owned by unknownTags from here on
}

void XMIParser::endTag(const KYRString& tag) {
  TagHandler* const row = handlerStack.back().row;
  handlerStack.pop_back();
  if (skipDepth > 0) {
    if (tag == skippedTag) --skipDepth;
    return;
  }
  if (row == nullptr) return;
  switch (row->endAction.marker) {
    case EndAction::Marker::none:
    case EndAction::Marker::skip:
      break;
    case EndAction::Marker::pop:
      popElement();
      break;
    case EndAction::Marker::call:
      (this->*row->endAction.member)(*row, tag);
      break;
  }
}
