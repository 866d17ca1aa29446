// From the members of an object to the columns of its row.
#include "repository/storage/SqlRowWriter.h"

#include <algorithm>
#include <unordered_map>

#include "repository/storage/StoredOrigin.h"
#include "repository/storage/Utf8.h"

namespace {

using ClassesByName = std::unordered_map<std::string_view, const SqlClass*>;

const ClassesByName& classesByName() {
  static const ClassesByName built = [] {
    ClassesByName classes;
    for (const SqlClass& entry : SqlSchema::get().getClasses()) classes.emplace(entry.stored->name, &entry);
    return classes;
  }();
  return built;
}

constexpr std::string_view supertypeRoles = "supertypeRoles";

// A text of SQL ends at a zero character, or cannot hold one at all.
std::string withoutZeros(std::string_view text) {
  constexpr std::string_view replacement = "\xEF\xBF\xBD";
  std::string result;
  for (const char character : text) {
    if (character == '\0') {
      result += replacement;
    } else {
      result += character;
    }
  }
  return result;
}

}  // namespace

std::string sqlText(std::string_view text) {
  return withoutZeros(examineUtf8(text) == Utf8Shape::damaged ? repairUtf8(text) : std::string(text));
}

SqlRowWriter::SqlRowWriter()
    : schema_(SqlSchema::get()),
      propertyValues_(schema_.getTable("property_values")),
      origins_(schema_.getTable("origins")) {}

void SqlRowWriter::beginDocument(const KYRStoreModel& model) { model_ = &model; }

void SqlRowWriter::endDocument() {}

void SqlRowWriter::beginObject(unsigned int id, std::string_view className) {
  const SqlClass& type = *classesByName().at(className);
  const SqlTable& table = *type.table;
  lastId_ = base_ + id;
  beginRow(table);
  isRowOpen_ = true;
  nextField_ = 0;
  putNumber(table, 0, lastId_);
  if (frames_.empty()) {
    fillModel(table);
  } else {
    fillOwner(table, type);
  }
  frames_.push_back({&type, lastId_, {}});
}

// The columns before those of the fields: model, kind, owner.
void SqlRowWriter::fillOwner(const SqlTable& table, const SqlClass& type) {
  putNumber(table, 1, base_ + 1);
  std::size_t next = 2;
  if (table.columns[next].name == "kind") putText(table, next++, type.kind, false);
  const Frame& parent = frames_.back();
  for (const SqlClass::Owner& owner : type.owners) {
    if (owner.table == parent.type->table) putNumber(table, owner.column, parent.id);
    ++next;
  }
  if (next == table.columns.size()) return;
  if (table.columns[next].name == "object_id") {
    putNumber(table, next, parent.id);
  } else if (parent.list == supertypeRoles) {
    putNumber(table, next, 1);
  }
}

void SqlRowWriter::fillModel(const SqlTable& table) {
  putNumber(table, table.columnAt("design_level"), model_->designLevel);
  putNumber(table, table.columnAt("store_type"), model_->storeType);
  putModelText(table, "modification_time", model_->modificationTime.view());
  putModelText(table, "data_store", model_->dataStore.view());
  putModelText(table, "data_store_version", model_->dataStoreVersion.view());
  if (model_->metadataOrigin != nullptr)
    putModelText(table, "origin_path", model_->metadataOrigin->filePath.view());
}

void SqlRowWriter::putModelText(const SqlTable& table, std::string_view column, std::string_view value) {
  if (!value.empty()) putAnyText(table, table.columnAt(column), value);
}

void SqlRowWriter::writeOrigins() {
  for (unsigned int i = 0; i < model_->getMetadataOriginCount(); ++i) {
    const KYRMetadataOrigin& origin = *model_->getMetadataOrigin(i);
    beginRow(origins_);
    putNumber(origins_, 0, base_ + 1);
    putNumber(origins_, 1, i);
    std::size_t column = 2;
    for (const StoredOriginField& field : storedOriginFields) {
      if (field.number != nullptr) {
        putNumber(origins_, column, origin.*field.number);
      } else if (!(origin.*field.text).isEmpty()) {
        putAnyText(origins_, column, (origin.*field.text).view());
      }
      ++column;
    }
    endRow(origins_);
  }
}

// The fields of an object are complete when its first child begins, or when it ends without any.
void SqlRowWriter::finishRow() {
  if (!isRowOpen_) return;
  isRowOpen_ = false;
  endRow(*frames_.back().type->table);
  if (frames_.size() == 1) writeOrigins();
}

void SqlRowWriter::endObject() {
  finishRow();
  frames_.pop_back();
}

void SqlRowWriter::beginList(std::string_view name) {
  finishRow();
  frames_.back().list = name;
}

void SqlRowWriter::endList() { frames_.back().list = {}; }

// Fields come in the order of the rows, so the search goes on where the last one ended.
std::size_t SqlRowWriter::findColumn(std::string_view name) {
  const auto& fields = frames_.back().type->fields;
  while (fields[nextField_].name != name) ++nextField_;
  return fields[nextField_++].column;
}

void SqlRowWriter::text(std::string_view name, std::string_view value) {
  putAnyText(*frames_.back().type->table, findColumn(name), value);
}

void SqlRowWriter::putAnyText(const SqlTable& table, std::size_t column, std::string_view value) {
  const Utf8Shape shape = examineUtf8(value);
  const bool isFit = shape == Utf8Shape::plain ||
                     (shape == Utf8Shape::escaped && value.find('\0') == std::string_view::npos);
  if (isFit) {
    putText(table, column, value, false);
  } else {
    putText(table, column, sqlText(value), true);
  }
}

void SqlRowWriter::number(std::string_view name, std::int64_t value) {
  putNumber(*frames_.back().type->table, findColumn(name), value);
}

void SqlRowWriter::flag(std::string_view name) { number(name, 1); }

void SqlRowWriter::reference(std::string_view name, unsigned int id) { number(name, base_ + id); }

void SqlRowWriter::beginReferences(std::string_view name) {
  const auto& links = frames_.back().type->links;
  link_ = std::find_if(links.begin(), links.end(), [name](const SqlClass::Link& link) {
            return link.name == name;
          })->table;
  position_ = 0;
}

void SqlRowWriter::reference(unsigned int id) {
  beginRow(*link_);
  putNumber(*link_, 0, frames_.back().id);
  putNumber(*link_, 1, position_++);
  putNumber(*link_, 2, base_ + id);
  endRow(*link_);
}

void SqlRowWriter::endReferences() {}

void SqlRowWriter::beginPropertyValues() {}

void SqlRowWriter::propertyValue(unsigned int propertyType, std::string_view value) {
  beginRow(propertyValues_);
  putNumber(propertyValues_, 0, frames_.back().id);
  putNumber(propertyValues_, 1, base_ + propertyType);
  if (!value.empty()) putAnyText(propertyValues_, 2, value);
  endRow(propertyValues_);
}

void SqlRowWriter::endPropertyValues() {}
