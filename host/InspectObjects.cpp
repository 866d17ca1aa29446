// From the rows of the metamodel to the fields of an object's line.
#include "host/InspectObjects.h"

#include <bit>
#include <cstdint>

#include "uml/UMLCast.h"
#include "uml/UMLElement.h"
#include "uml/UMLMadeObjects.h"
#include "uml/read/ClassPlan.h"
#include "xmi/UMLObjectTable.h"

namespace {

std::string keyOf(int owner, const char* field) {
  return std::string(UMLMetamodel::classRows[static_cast<unsigned int>(owner)].name) + '.' + field;
}

const std::string taggedValuesKey = keyOf(UMLElement::kind, "taggedValues");

}  // namespace

unsigned int InspectObjects::Objects::getCount() const noexcept {
  return read.getSlotCount() + made.getCount();
}

bool InspectObjects::Objects::isMade(unsigned int index) const noexcept {
  return index >= read.getSlotCount();
}

UMLElement& InspectObjects::Objects::at(unsigned int index) const noexcept {
  return isMade(index) ? *made.at(index - read.getSlotCount()) : *read.at(index);
}

// The spread of the addresses comes from a multiplication, whose best bits are the highest.
InspectObjects::Indexes::Indexes(const Objects& objects) {
  const std::size_t size = std::bit_ceil(std::size_t{objects.getCount()} * 2 + 2);
  shift_ = 64U - static_cast<unsigned int>(std::countr_zero(size));
  slots_.resize(size);
  for (unsigned int i = 0; i < objects.getCount(); ++i) {
    std::size_t slot = slotOf(&objects.at(i));
    while (slots_[slot].element != nullptr) slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = {&objects.at(i), i};
  }
}

std::size_t InspectObjects::Indexes::slotOf(const UMLElement* element) const noexcept {
  constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U;  // 2^64 over the golden ratio
  return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(element) * spread >> shift_);
}

unsigned int InspectObjects::Indexes::find(const UMLElement* element) const noexcept {
  std::size_t slot = slotOf(element);
  while (slots_[slot].element != nullptr && slots_[slot].element != element) {
    slot = (slot + 1) & (slots_.size() - 1);
  }
  return slots_[slot].index;
}

InspectObjects::InspectObjects(const UMLObjectTable& read, const UMLMadeObjects& made)
    : objects_{read, made}, indexes_(objects_) {
  collectFields();
}

void InspectObjects::collectFields() {
  fields_.resize(UMLLineage::kindCount);
  const auto fieldsOf = [this](int owner) -> ClassFields& {
    return fields_[static_cast<unsigned int>(owner)];
  };
  for (const auto& row : UMLMetamodel::scalarRows) {
    fieldsOf(row.owner).scalars.push_back({keyOf(row.owner, row.name), &row});
  }
  for (const auto& row : UMLMetamodel::plainFieldRows) {
    fieldsOf(row.owner).scalars.push_back({keyOf(row.owner, row.name), &row});
  }
  for (const auto& row : UMLMetamodel::linkRows) {
    for (const auto* end : {&row.first, &row.second}) {
      if (end->role == nullptr) continue;
      fieldsOf(end->owner).references.push_back({keyOf(end->owner, end->role), end});
    }
  }
  lineages_.resize(UMLLineage::kindCount);
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    for (const int owner : ClassPlan::of(kind).lineage) {
      if (!fieldsOf(owner).isEmpty()) lineages_[static_cast<unsigned int>(kind)].push_back(owner);
    }
  }
}

void InspectObjects::write(Output& output) {
  for (unsigned int i = 0; i < objects_.getCount() && !output.isClosed(); ++i) {
    json_.beginLine();
    writeObject(i);
    output.write(json_.endLine());
  }
}

void InspectObjects::writeObject(unsigned int index) {
  UMLElement& element = objects_.at(index);
  const auto kind = static_cast<unsigned int>(element.getKind());
  json_.beginObject();
  json_.key("index").number(index);
  json_.key("class").text(UMLMetamodel::classRows[kind].name);
  json_.key("kind").number(kind);
  json_.key("id").text(element.id);
  if (objects_.isMade(index)) json_.key("made").boolean(true);
  json_.key("fields").beginObject();
  for (const int owner : lineages_[kind]) {
    const ClassFields& fields = fields_[static_cast<unsigned int>(owner)];
    const void* const part = umlCastTo(&element, owner);
    for (const Scalar& field : fields.scalars) writeScalar(field, part);
    if (owner == UMLElement::kind) writeTaggedValues(element);
    for (const Reference& field : fields.references) writeReference(field, part);
  }
  json_.endObject();
  json_.endObject();
}

void InspectObjects::writeScalar(const Scalar& field, const void* owner) {
  using Type = UMLMetamodel::FieldType;
  if (field.row->type == Type::text) {
    const KYRString& text = *field.row->getText(owner);
    if (!text.isEmpty()) json_.key(field.key).text(text);
    return;
  }
  const int number = field.row->getNumber(owner);
  if (field.row->type == Type::kind) {
    if (number >= 0) json_.key(field.key).integer(number);
  } else if (number != 0) {
    json_.key(field.key);
    if (field.row->type == Type::boolean) {
      json_.boolean(true);
    } else {
      json_.integer(number);
    }
  }
}

void InspectObjects::writeTaggedValues(const UMLElement& element) {
  if (element.taggedValues.isEmpty()) return;
  json_.key(taggedValuesKey).beginArray();
  for (const UMLTaggedValue* const tag : element.taggedValues) {
    json_.beginArray().text(tag->name).text(tag->value).endArray();
  }
  json_.endArray();
}

void InspectObjects::writeReference(const Reference& field, const void* owner) {
  const unsigned int count = field.end->count(owner);
  if (count == 0) return;
  json_.key(field.key);
  if (!field.end->isList) {
    writeIndex(field.end->at(owner, 0));
    return;
  }
  json_.beginArray();
  for (unsigned int i = 0; i < count; ++i) writeIndex(field.end->at(owner, i));
  json_.endArray();
}

void InspectObjects::writeIndex(const UMLElement* element) {
  const unsigned int index = element != nullptr ? indexes_.find(element) : Indexes::none;
  if (index == Indexes::none) {
    json_.null();
  } else {
    json_.number(index);
  }
}
