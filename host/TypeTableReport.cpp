// The tables as columns for people, and as one JSON object.
#include "host/TypeTableReport.h"

#include <algorithm>

#include "host/JsonOut.h"
#include "host/KYRHostTexts.h"
#include "host/TextOut.h"

namespace {

std::span<const KYRKnownDataStore> storesNamed(const std::string& name) {
  if (name.empty()) return getKnownDataStores();
  const KYRKnownDataStore* const store = findKnownDataStore(KYRString(name));
  return {store, store == nullptr ? 0U : 1U};
}

// The codes of a table stand below each other.
void tableToText(TextOut& out, const KYRDataTypeTable& table) {
  std::size_t width = 0;
  for (const KYRDataTypeTable::Entry& entry : table.getEntries()) {
    width = std::max(width, entry.name.view().size());
  }
  for (const KYRDataTypeTable::Entry& entry : table.getEntries()) {
    std::string name(entry.name.view());
    name.resize(width, ' ');
    out.line(KYRHostTexts::INFO_TYPE, name, getDataTypeText(entry.code));
  }
}

}  // namespace

TypeTableReport::TypeTableReport(const std::string& store) : stores_(storesNamed(store)) {}

void TypeTableReport::writeText(Output& output) const {
  TextOut out(output);
  bool isFirst = true;
  for (const KYRKnownDataStore& store : stores_) {
    if (!isFirst) out.paragraph("");
    isFirst = false;
    const KYRDataTypeTable& table = store.getTable();
    out.line(KYRHostTexts::INFO_TYPES, store.name, store.title);
    out.line(KYRHostTexts::INFO_TYPES_SOURCE, table.getSource());
    tableToText(out, table);
  }
}

void TypeTableReport::writeJson(Output& output) const {
  JsonOut json;
  json.beginObject();
  json.key("dataStores").beginArray();
  for (const KYRKnownDataStore& store : stores_) {
    const KYRDataTypeTable& table = store.getTable();
    json.beginObject();
    json.key("name").text(store.name);
    json.key("title").text(store.title);
    json.key("source").text(table.getSource());
    json.key("types").beginArray();
    for (const KYRDataTypeTable::Entry& entry : table.getEntries()) {
      json.beginObject();
      json.key("name").text(entry.name);
      json.key("dataType").text(getDataTypeText(entry.code));
      json.endObject();
    }
    json.endArray();
    json.endObject();
  }
  json.endArray();
  json.endObject();
  output.write(json.endLine());
}
