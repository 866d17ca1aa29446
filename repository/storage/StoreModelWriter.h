// StoreModelWriter: what a format has to offer to have models saved in it. `writeStoreModel` walks the
// model and calls these; a format decides how each is put.
#pragma once

#include <cstdint>
#include <string_view>

#include "repository/model/KYRStoreModel.h"

class KYR_EXPORT StoreModelWriter {
 public:
  StoreModelWriter() = default;
  StoreModelWriter(const StoreModelWriter&) = delete;
  StoreModelWriter& operator=(const StoreModelWriter&) = delete;
  virtual ~StoreModelWriter();

  /// The members of the document around the model: called first, and at the end.
  virtual void beginDocument(const KYRStoreModel& model) = 0;
  virtual void endDocument() = 0;
  /// An object; what is written up to its end belongs to it. Ids are not 0.
  virtual void beginObject(unsigned int id, std::string_view className) = 0;
  virtual void endObject() = 0;
  /// A list of objects under that name.
  virtual void beginList(std::string_view name) = 0;
  virtual void endList() = 0;
  /// Members with a value other than the default.
  virtual void text(std::string_view name, std::string_view value) = 0;
  virtual void number(std::string_view name, std::int64_t value) = 0;
  virtual void flag(std::string_view name) = 0;
  virtual void reference(std::string_view name, unsigned int id) = 0;
  /// A list of references under that name.
  virtual void beginReferences(std::string_view name) = 0;
  virtual void reference(unsigned int id) = 0;
  virtual void endReferences() = 0;
  /// The property values of an object: one call for each between begin and end.
  virtual void beginPropertyValues() = 0;
  virtual void propertyValue(unsigned int propertyType, std::string_view value) = 0;
  virtual void endPropertyValues() = 0;
};

/// Writes the whole model. Fields at their default and references to objects that the model does not
/// hold are left out.
KYR_EXPORT void writeStoreModel(const KYRStoreModel& model, StoreModelWriter& writer);
