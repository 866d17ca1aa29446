// ReportModelWriter: the JSON of a saved model without the shapes of diagrams, which a page gets as
// pictures. Ids are those of the whole model, with gaps.
#pragma once

#include "repository/storage/JsonStoreModelWriter.h"

class ReportModelWriter : public JsonStoreModelWriter {
 public:
  using JsonStoreModelWriter::JsonStoreModelWriter;
  using JsonStoreModelWriter::reference;  // shapes have no lists of references

  void beginObject(unsigned int id, std::string_view className) override;
  void endObject() override;
  void beginList(std::string_view name) override;
  void endList() override;
  void text(std::string_view name, std::string_view value) override;
  void number(std::string_view name, std::int64_t value) override;
  void flag(std::string_view name) override;
  void reference(std::string_view name, unsigned int id) override;

 private:
  bool isInShapes() const { return depth_ > 0; }

  unsigned int depth_ = 0;  // of lists, from that of the shapes on
};
