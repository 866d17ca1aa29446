// The walk over a model that is saved.
#include "repository/storage/StoreModelWriter.h"

#include "repository/model/KYRElement.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"
#include "repository/storage/StoredNumbers.h"
#include "repository/storage/StoredWalk.h"

StoreModelWriter::~StoreModelWriter() = default;

namespace {

class Saving {
 public:
  Saving(const KYRStoreModel& model, StoreModelWriter& writer)
      : numbers_(model, StoredNumbers::Use::alone), writer_(writer) {}

  void enter(const KYRObject& object, const StoredClass& stored) {
    lookAhead();
    writer_.beginObject(++entered_, stored.name);  // the numbers follow the walk
    for (const StoredField* field : stored.values) write(object, *field);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): the row says that it is one
    if (stored.isElement) writePropertyValues(static_cast<const KYRElement&>(object));
  }
  void leave() { writer_.endObject(); }
  void beginList(const StoredField& field) { writer_.beginList(field.name); }
  void endList() { writer_.endList(); }

 private:
  // Objects, their texts, and what they refer to lie anywhere in memory: each is asked for some objects
  // ahead.
  void lookAhead() {
    // Writing an object takes a fourth of a microsecond, memory about as long.
    constexpr unsigned int objectsAhead = 12;
    constexpr unsigned int contentsAhead = 6;
    if (entered_ + objectsAhead < numbers_.getCount()) {
      constexpr std::size_t line = 64;
      constexpr std::size_t most = 4 * line;  // of an attribute or a class
      const char* const object = reinterpret_cast<const char*>(numbers_.at(entered_ + objectsAhead + 1));
      for (std::size_t at = 0; at < most; at += line) __builtin_prefetch(object + at);
    }
    if (entered_ + contentsAhead >= numbers_.getCount()) return;
    const KYRObject& object = *numbers_.at(entered_ + contentsAhead + 1);
    __builtin_prefetch(object.getName().getCharacters());
    __builtin_prefetch(object.sourceId.getCharacters());
    for (const StoredField* field : StoredClasses::get(object.getElementType()).references) {
      numbers_.prefetch(field->getReference(object));
    }
  }

  void write(const KYRObject& object, const StoredField& field) {
    switch (field.kind) {
      case StoredKind::text: {
        const std::string_view value = field.getText(object);
        if (!value.empty()) writer_.text(field.name, value);
        break;
      }
      case StoredKind::number: {
        const std::int64_t value = field.getNumber(object);
        if (value != 0) writer_.number(field.name, value);
        break;
      }
      case StoredKind::flag:
        if (field.getNumber(object) != 0) writer_.flag(field.name);
        break;
      case StoredKind::reference: {
        const unsigned int id = numbers_.get(field.getReference(object));
        if (id != 0) writer_.reference(field.name, id);
        break;
      }
      case StoredKind::references:
        writeReferences(field.name, field.getList(object));
        break;
      case StoredKind::children:  // written by the walk
        break;
    }
  }

  void writeReferences(std::string_view name, const KYRSdkCollection* list) {
    bool isBegun = false;
    for (unsigned int i = 0; list != nullptr && i < list->getCount(); ++i) {
      const unsigned int id = numbers_.get((*list)[i]);
      if (id == 0) continue;
      if (!isBegun) writer_.beginReferences(name);
      isBegun = true;
      writer_.reference(id);
    }
    if (isBegun) writer_.endReferences();
  }

  void writePropertyValues(const KYRElement& element) {
    bool isBegun = false;
    for (const auto* value = element.getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
      const unsigned int id = numbers_.get(value->getPropertyType());
      if (id == 0) continue;  // without a definition a value has no meaning
      if (!isBegun) writer_.beginPropertyValues();
      isBegun = true;
      writer_.propertyValue(id, value->value.view());
    }
    if (isBegun) writer_.endPropertyValues();
  }

  StoredNumbers numbers_;
  unsigned int entered_ = 0;
  StoreModelWriter& writer_;
};

}  // namespace

void writeStoreModel(const KYRStoreModel& model, StoreModelWriter& writer) {
  Saving saving(model, writer);
  writer.beginDocument(model);
  walkStored(model, saving);
  writer.endDocument();
}
