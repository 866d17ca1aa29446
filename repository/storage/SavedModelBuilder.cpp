// In an object "id" and "class" come first, in this order: the rest is read by the rows of the class,
// straight into the object, which is in its owner by then.
#include "repository/storage/SavedModelBuilder.h"

#include <limits>
#include <string>

#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/JsonStoreModelWriter.h"
#include "repository/storage/StoredOrigin.h"

namespace {

using Messages = KYRRepositoryMessages;

constexpr std::string_view format = "format";
constexpr std::string_view version = "version";
constexpr std::string_view designLevel = "designLevel";
constexpr std::string_view storeType = "storeType";
constexpr std::string_view origins = "origins";
constexpr std::string_view model = "model";
constexpr std::string_view id = "id";
constexpr std::string_view className = "class";
constexpr std::string_view propertyValues = "propertyValues";
constexpr std::string_view propertyType = "propertyType";
constexpr std::string_view propertyText = "value";

struct DocumentText {
  std::string_view name;
  KYRString KYRStoreModel::*field;
};

constexpr DocumentText documentTexts[] = {
    {"modificationTime", &KYRStoreModel::modificationTime},
    {"dataStore", &KYRStoreModel::dataStore},
    {"dataStoreVersion", &KYRStoreModel::dataStoreVersion},
};

// The members of the document. Their places are bits in what has been seen.
constexpr std::string_view documentMembers[] = {format,
                                                version,
                                                designLevel,
                                                storeType,
                                                documentTexts[0].name,
                                                documentTexts[1].name,
                                                documentTexts[2].name,
                                                origins,
                                                model};

// Bits of an object behind those of its rows.
constexpr std::size_t listBit = 48;
constexpr std::size_t propertyValuesBit = 63;

template <class Names>
std::size_t indexOf(const Names& names, std::string_view name) {
  std::size_t index = 0;
  for (const std::string_view known : names) {
    if (known == name) break;
    ++index;
  }
  return index;
}

}  // namespace

SavedModelBuilder::SavedModelBuilder(const KYRString& path, const std::uint64_t& offset)
    : path_(path), offset_(offset), model_(std::make_unique<KYRStoreModel>()), references_(path) {}

std::unique_ptr<KYRStoreModel> SavedModelBuilder::finish() {
  if (!isComplete_) Messages::NOT_A_MODEL.throwException(path_, offset());
  references_.resolve(*model_);
  return std::move(model_);
}

void SavedModelBuilder::enterMember(std::string_view name) {
  switch (frames_.back().place) {
    case Place::document:
      return enterDocumentMember(name);
    case Place::origin:
      return enterOriginMember(name);
    case Place::object:
      return enterObjectMember(name);
    default:  // lists have no members
      return enterPropertyValueMember(name);
  }
}

void SavedModelBuilder::enterDocumentMember(std::string_view name) {
  const std::size_t index = indexOf(documentMembers, name);
  // Format and version come first, so that nothing is read by the rules of another one.
  Frame& frame = frames_.back();
  if (frame.seen == 0 && name != format) Messages::NOT_A_MODEL.throwException(path_, offset());
  if (index == std::size(documentMembers)) refuseMember(name);
  if (frame.seen == 1 && name != version) missMember(version);
  markSeen(documentMembers[index], index);
}

void SavedModelBuilder::enterOriginMember(std::string_view name) {
  std::size_t index = 0;
  while (index < std::size(storedOriginFields) && storedOriginFields[index].name != name) ++index;
  if (index == std::size(storedOriginFields)) refuseMember(name);
  originField_ = &storedOriginFields[index];
  markSeen(originField_->name, index);
}

void SavedModelBuilder::enterObjectMember(std::string_view name) {
  Frame& frame = frames_.back();
  field_ = nullptr;
  if (frame.id == 0) {
    if (name != id) missMember(id);
    member_ = id;
    return;
  }
  if (frame.stored == nullptr) {
    if (name != className) missMember(className);
    member_ = className;
    return;
  }
  if (name == propertyValues && frame.object->isInstanceOf(KYRElementType::element)) {
    return markSeen(propertyValues, propertyValuesBit);
  }
  // Members mostly come in the order of the rows, so the search goes on where the last one ended.
  const auto& values = frame.stored->values;
  for (std::size_t tried = 0; tried < values.size(); ++tried) {
    const std::size_t at = (frame.next + tried) % values.size();
    if (values[at]->name != name) continue;
    frame.next = at + 1;
    field_ = values[at];
    return markSeen(field_->name, at);
  }
  const auto& lists = frame.stored->lists;
  for (std::size_t at = 0; at < lists.size(); ++at) {
    if (lists[at]->name != name) continue;
    field_ = lists[at];
    return markSeen(field_->name, listBit + at);
  }
  refuseMember(name);
}

void SavedModelBuilder::enterPropertyValueMember(std::string_view name) {
  if (name == propertyType) return markSeen(propertyType, 0);
  if (name == propertyText) return markSeen(propertyText, 1);
  refuseMember(name);
}

void SavedModelBuilder::markSeen(std::string_view name, std::size_t bit) {
  std::uint64_t& seen = frames_.back().seen;
  const std::uint64_t mark = std::uint64_t{1} << bit;
  if ((seen & mark) != 0) Messages::MEMBER_TWICE.throwException(path_, offset(), KYRString(name));
  seen |= mark;
  member_ = name;
}

void SavedModelBuilder::accept(const SavedValue& value) {
  if (frames_.empty()) Messages::NOT_A_MODEL.throwException(path_, offset());
  Frame& frame = frames_.back();
  switch (frame.place) {
    case Place::document:
      return acceptInDocument(value);
    case Place::origin:
      return acceptInOrigin(value);
    case Place::object:
      return acceptInObject(value);
    case Place::references:
      return references_.refer(frame.object, frame.list, readId(value), offset_);
    case Place::propertyValue:
      if (member_ == propertyType) {
        frame.id = readId(value);
      } else {
        propertyText_ = KYRString(readText(value));
      }
      return;
    case Place::origins:
    case Place::children:
    case Place::propertyValues:
      refuseValue();
  }
}

void SavedModelBuilder::acceptInDocument(const SavedValue& value) {
  if (member_ == format) {
    if (value.kind != SavedValue::Kind::text || value.text != JsonStoreModelWriter::formatName) {
      Messages::NOT_A_MODEL.throwException(path_, offset());
    }
  } else if (member_ == version) {
    const auto number = readNumber(value, 0, std::numeric_limits<std::int32_t>::max());
    if (number != JsonStoreModelWriter::formatVersion) {
      Messages::UNKNOWN_VERSION.throwException(path_, offset(), KYRString(static_cast<int>(number)));
    }
  } else if (member_ == designLevel) {
    model_->designLevel = static_cast<int>(readNumber(value, 0, KYRDesignLevelType::highestValue));
  } else if (member_ == storeType) {
    model_->storeType = static_cast<int>(readNumber(value, 0, KYRStoreType::highestValue));
  } else {
    for (const DocumentText& text : documentTexts) {
      if (text.name != member_) continue;
      (*model_).*text.field = KYRString(readText(value));
      return;
    }
    refuseValue();  // origins and model are no such values
  }
}

void SavedModelBuilder::acceptInOrigin(const SavedValue& value) {
  KYRMetadataOrigin& origin = *model_->metadataOrigin;
  if (originField_->text != nullptr) {
    origin.*originField_->text = KYRString(readText(value));
  } else {
    origin.*originField_->number = static_cast<int>(readNumber(
        value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
  }
}

void SavedModelBuilder::acceptInObject(const SavedValue& value) {
  Frame& frame = frames_.back();
  if (field_ != nullptr) {
    setField(frame, value);
  } else if (frame.id == 0) {
    frame.id = readId(value);
  } else if (frame.stored == nullptr) {
    makeObject(frame, readText(value));
  } else {
    refuseValue();  // property values are a list
  }
}

void SavedModelBuilder::setField(Frame& frame, const SavedValue& value) {
  switch (field_->kind) {
    case StoredKind::text:
      if (!field_->setText(*frame.object, readText(value))) refuseValue();
      return;
    case StoredKind::number:
      return field_->setNumber(*frame.object, readNumber(value, field_->lowest, field_->highest));
    case StoredKind::flag:
      return field_->setNumber(*frame.object, readFlag(value) ? 1 : 0);
    case StoredKind::reference:
      return references_.refer(frame.object, field_, readId(value), offset_);
    case StoredKind::references:
    case StoredKind::children:
      refuseValue();
  }
}

void SavedModelBuilder::makeObject(Frame& frame, std::string_view name) {
  const StoredClass* const stored = StoredClasses::find(name);
  if (stored == nullptr) Messages::UNKNOWN_CLASS.throwException(path_, offset(), KYRString(name));
  const Frame& parent = frames_[frames_.size() - 2];
  if (parent.place == Place::document) {
    if (stored->make != nullptr) {
      Messages::CLASS_MISPLACED.throwException(path_, offset(), KYRString(name), KYRString(model));
    }
    frame.object = model_.get();
  } else {
    std::unique_ptr<KYRObject> object(stored->make == nullptr ? nullptr : stored->make());
    if (!object || !object->isInstanceOf(parent.list->elementType)) {
      Messages::CLASS_MISPLACED.throwException(path_, offset(), KYRString(name),
                                               KYRString(parent.list->name));
    }
    parent.list->add(*parent.object, *object);
    frame.object = object.release();
  }
  frame.stored = stored;
  references_.define(frame.id, frame.object, offset_);
}

void SavedModelBuilder::beginObject() {
  if (frames_.empty()) {
    frames_.emplace_back(Place::document);
    return;
  }
  const Frame& frame = frames_.back();
  const bool isModel = frame.place == Place::document && member_ == model;
  if (isModel || frame.place == Place::children) {
    frames_.emplace_back(Place::object);
  } else if (frame.place == Place::origins) {
    auto origin = std::make_unique<KYRMetadataOrigin>();
    model_->addMetadataOrigin(origin.get());
    origin.release();
    frames_.emplace_back(Place::origin);
  } else if (frame.place == Place::propertyValues) {
    KYRObject* const holder = frame.object;
    frames_.emplace_back(Place::propertyValue).object = holder;
    propertyText_.empty();
  } else {
    refuseValue();
  }
}

void SavedModelBuilder::endObject() {
  const Frame& frame = frames_.back();
  if (frame.place == Place::object) {
    if (frame.id == 0) missMember(id);
    if (frame.stored == nullptr) missMember(className);
  } else if (frame.place == Place::propertyValue) {
    if (frame.id == 0) missMember(propertyType);
    references_.addPropertyValue(dynamic_cast<KYRElement*>(frame.object), frame.id, propertyText_, offset_);
  } else if (frame.place == Place::document) {
    for (const std::string_view name : {format, version, designLevel, storeType, origins, model}) {
      if ((frame.seen >> indexOf(documentMembers, name) & 1U) == 0) missMember(name);
    }
    isComplete_ = true;
  }
  frames_.pop_back();
}

void SavedModelBuilder::beginList() {
  if (frames_.empty()) Messages::NOT_A_MODEL.throwException(path_, offset());
  const Frame& frame = frames_.back();
  Frame list(Place::origins);
  if (frame.place == Place::object && frame.stored != nullptr) {
    list.object = frame.object;
    list.list = field_;
    if (field_ == nullptr) {
      list.place = Place::propertyValues;
    } else if (field_->kind == StoredKind::children) {
      list.place = Place::children;
    } else if (field_->kind == StoredKind::references) {
      list.place = Place::references;
    } else {
      refuseValue();
    }
  } else if (frame.place != Place::document || member_ != origins) {
    refuseValue();
  }
  frames_.push_back(list);
}

void SavedModelBuilder::endList() { frames_.pop_back(); }

std::uint32_t SavedModelBuilder::readId(const SavedValue& value) const {
  const bool isId = value.kind == SavedValue::Kind::number && value.number > 0 &&
                    value.number <= std::numeric_limits<std::uint32_t>::max();
  if (!isId) Messages::BAD_ID.throwException(path_, offset(), KYRString(member_));
  return static_cast<std::uint32_t>(value.number);
}

std::int64_t SavedModelBuilder::readNumber(const SavedValue& value, std::int64_t lowest,
                                           std::int64_t highest) const {
  if (value.kind != SavedValue::Kind::number || value.number < lowest || value.number > highest)
    refuseValue();
  return value.number;
}

std::string_view SavedModelBuilder::readText(const SavedValue& value) const {
  if (value.kind != SavedValue::Kind::text) refuseValue();
  return value.text;
}

bool SavedModelBuilder::readFlag(const SavedValue& value) const {
  if (value.kind != SavedValue::Kind::flag) refuseValue();
  return value.number != 0;
}

KYRString SavedModelBuilder::offset() const {
  const std::string digits = std::to_string(offset_);
  return KYRString(std::string_view(digits));
}

void SavedModelBuilder::refuseValue() const {
  Messages::WRONG_VALUE.throwException(path_, offset(), KYRString(member_));
}

void SavedModelBuilder::refuseMember(std::string_view name) const {
  Messages::UNKNOWN_MEMBER.throwException(path_, offset(), KYRString(name));
}

void SavedModelBuilder::missMember(std::string_view name) const {
  Messages::MEMBER_MISSING.throwException(path_, offset(), KYRString(name));
}
