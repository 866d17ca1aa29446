// Each object begins on a line of its own, so that two saved models can be compared line by line.
#include "repository/storage/JsonStoreModelWriter.h"

#include <rapidjson/writer.h>

#include "repository/storage/JsonAllocator.h"
#include "repository/storage/StoredOrigin.h"
#include "repository/storage/Utf8.h"

BlockSink::~BlockSink() = default;

// The JSON writer with line breaks, and with texts copied as they are where nothing is to be escaped.
class JsonStoreModelWriter::Lines
    : public rapidjson::Writer<BlockOutput, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonAllocator> {
 public:
  using Base = rapidjson::Writer<BlockOutput, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonAllocator>;
  using Base::Base;

  void beginObjectOnNewLine() {
    Prefix(rapidjson::kObjectType);
    os_->Put('\n');
    new (level_stack_.Push<Level>()) Level(false);
    WriteStartObject();
  }
  void key(std::string_view name) { plain(name); }
  /// A text that holds nothing to be escaped.
  void plain(std::string_view text) {
    Prefix(rapidjson::kStringType);
    os_->Put('"');
    os_->write(text);
    os_->Put('"');
  }
  void string(std::string_view value) {
    switch (examineUtf8(value)) {
      case Utf8Shape::plain:
        plain(value);
        break;
      case Utf8Shape::escaped:
        String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
        break;
      case Utf8Shape::damaged: {
        // A host may hand over any bytes; the file stays valid all the same.
        const std::string repaired = repairUtf8(value);
        String(repaired.data(), static_cast<rapidjson::SizeType>(repaired.size()));
        break;
      }
    }
  }
};

JsonStoreModelWriter::JsonStoreModelWriter(BlockSink& sink)
    : output_(sink), json_(std::make_unique<Lines>(output_)) {}

JsonStoreModelWriter::~JsonStoreModelWriter() = default;

void JsonStoreModelWriter::beginDocument(const KYRStoreModel& model) {
  json_->StartObject();
  text("format", formatName);
  number("version", formatVersion);
  // These two tell what the model is for and stand in every file.
  number("designLevel", model.designLevel);
  number("storeType", model.storeType);
  if (!model.modificationTime.isEmpty()) text("modificationTime", model.modificationTime.view());
  if (!model.dataStore.isEmpty()) text("dataStore", model.dataStore.view());
  if (!model.dataStoreVersion.isEmpty()) text("dataStoreVersion", model.dataStoreVersion.view());
  json_->key("origins");
  json_->StartArray();
  for (unsigned int i = 0; i < model.getMetadataOriginCount(); ++i) writeOrigin(*model.getMetadataOrigin(i));
  json_->EndArray();
  json_->key("model");
}

void JsonStoreModelWriter::writeOrigin(const KYRMetadataOrigin& origin) {
  json_->beginObjectOnNewLine();
  for (const StoredOriginField& field : storedOriginFields) {
    if (field.text != nullptr && !(origin.*field.text).isEmpty()) {
      text(field.name, (origin.*field.text).view());
    } else if (field.number != nullptr && origin.*field.number != 0) {
      number(field.name, origin.*field.number);
    }
  }
  json_->EndObject();
}

void JsonStoreModelWriter::endDocument() {
  json_->EndObject();
  output_.Put('\n');
  output_.Flush();
}

void JsonStoreModelWriter::beginObject(unsigned int id, std::string_view className) {
  json_->beginObjectOnNewLine();
  json_->key("id");
  json_->Uint(id);
  json_->key("class");
  json_->plain(className);
}

void JsonStoreModelWriter::endObject() { json_->EndObject(); }

void JsonStoreModelWriter::beginList(std::string_view name) {
  json_->key(name);
  json_->StartArray();
}

void JsonStoreModelWriter::endList() { json_->EndArray(); }

void JsonStoreModelWriter::text(std::string_view name, std::string_view value) {
  json_->key(name);
  json_->string(value);
}

void JsonStoreModelWriter::number(std::string_view name, std::int64_t value) {
  json_->key(name);
  json_->Int64(value);
}

void JsonStoreModelWriter::flag(std::string_view name) {
  json_->key(name);
  json_->Bool(true);
}

void JsonStoreModelWriter::reference(std::string_view name, unsigned int id) {
  json_->key(name);
  json_->Uint(id);
}

void JsonStoreModelWriter::beginReferences(std::string_view name) { beginList(name); }

void JsonStoreModelWriter::reference(unsigned int id) { json_->Uint(id); }

void JsonStoreModelWriter::endReferences() { endList(); }

void JsonStoreModelWriter::beginPropertyValues() { beginList("propertyValues"); }

void JsonStoreModelWriter::propertyValue(unsigned int propertyType, std::string_view value) {
  json_->StartObject();
  reference("propertyType", propertyType);
  if (!value.empty()) text("value", value);
  json_->EndObject();
}

void JsonStoreModelWriter::endPropertyValues() { endList(); }
