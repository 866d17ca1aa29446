// StoredReferences: the ids of a model that is being loaded, and the references between its objects.
// References point forward as well, so they are gathered and resolved once all objects are there.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "repository/model/KYRStoreModel.h"
#include "repository/storage/StoredField.h"

class StoredReferences {
 public:
  /// `path` is the file, for messages; the offsets of the operations are too.
  explicit StoredReferences(const KYRString& path) : path_(path) {}

  /// Raises a KYRException for an id that another object has.
  void define(std::uint32_t id, KYRObject* object, std::uint64_t offset);
  void refer(KYRObject* holder, const StoredField* field, std::uint32_t id, std::uint64_t offset);
  void addPropertyValue(KYRElement* element, std::uint32_t propertyType, KYRString value,
                        std::uint64_t offset);
  /// Ties everything together. Raises a KYRException for an id that no object has, for one of an object
  /// that cannot stand there, and for types that rest on each other in a ring.
  void resolve(const KYRModel& model);

 private:
  struct Reference {
    KYRObject* holder;
    const StoredField* field;
    std::uint32_t id;
    std::uint64_t offset;
  };
  struct PropertyValue {
    KYRElement* element;
    std::uint32_t propertyType;
    KYRString value;
    std::uint64_t offset;
  };
  KYRObject& get(std::uint32_t id, std::uint64_t offset) const;
  [[noreturn]] void refuse(std::uint32_t id, std::uint64_t offset, std::string_view member) const;
  void refuseRings(const KYRModel& model) const;

  KYRString path_;
  std::vector<KYRObject*> dense_;  // ids from 1 in order, as they are written
  std::unordered_map<std::uint32_t, KYRObject*> others_;
  std::vector<Reference> references_;
  std::vector<PropertyValue> propertyValues_;
};
