// What is written between begin and end of a list of shapes goes nowhere.
#include "report/ReportModelWriter.h"

namespace {

constexpr std::string_view shapes = "diagramElements";

}

void ReportModelWriter::beginList(std::string_view name) {
  if (isInShapes() || name == shapes) {
    ++depth_;
  } else {
    JsonStoreModelWriter::beginList(name);
  }
}

void ReportModelWriter::endList() {
  if (isInShapes()) {
    --depth_;
  } else {
    JsonStoreModelWriter::endList();
  }
}

void ReportModelWriter::beginObject(unsigned int id, std::string_view className) {
  if (!isInShapes()) JsonStoreModelWriter::beginObject(id, className);
}

void ReportModelWriter::endObject() {
  if (!isInShapes()) JsonStoreModelWriter::endObject();
}

void ReportModelWriter::text(std::string_view name, std::string_view value) {
  if (!isInShapes()) JsonStoreModelWriter::text(name, value);
}

void ReportModelWriter::number(std::string_view name, std::int64_t value) {
  if (!isInShapes()) JsonStoreModelWriter::number(name, value);
}

void ReportModelWriter::flag(std::string_view name) {
  if (!isInShapes()) JsonStoreModelWriter::flag(name);
}

void ReportModelWriter::reference(std::string_view name, unsigned int id) {
  if (!isInShapes()) JsonStoreModelWriter::reference(name, id);
}
