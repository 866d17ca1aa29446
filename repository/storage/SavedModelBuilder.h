// SavedModelBuilder: builds a model from the events of a saved document: members, values, and the
// begin and end of objects and lists. It keeps one frame for each object and list that is open, so depth
// costs memory only. What the format does not know is refused, with the place in the file.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "repository/model/KYRStoreModel.h"
#include "repository/storage/StoredClasses.h"
#include "repository/storage/StoredReferences.h"

struct StoredOriginField;

/// A value that is neither an object nor a list.
struct SavedValue {
  enum class Kind { text, number, flag, other };
  Kind kind;
  std::string_view text;
  std::int64_t number = 0;  // flags: 0 or 1
};

/// All operations raise a KYRException that names the file and the offset.
class KYR_EXPORT SavedModelBuilder {
 public:
  /// `offset` is where the document is being read; it must outlive the builder.
  SavedModelBuilder(const KYRString& path, const std::uint64_t& offset);
  SavedModelBuilder(const SavedModelBuilder&) = delete;
  SavedModelBuilder& operator=(const SavedModelBuilder&) = delete;

  void enterMember(std::string_view name);
  void accept(const SavedValue& value);
  void beginObject();
  void endObject();
  void beginList();
  void endList();
  /// The model, after the last event.
  std::unique_ptr<KYRStoreModel> finish();

 private:
  enum class Place { document, origins, origin, children, object, references, propertyValues, propertyValue };
  /// An object or list that is open.
  struct Frame {
    explicit Frame(Place where) : place(where) {}
    Place place;
    KYRObject* object = nullptr;          // the object; of a list, what holds it
    const StoredClass* stored = nullptr;  // of an object, once its class is known
    const StoredField* list = nullptr;    // of a list
    std::size_t next = 0;                 // of an object: the row that is expected next
    std::uint64_t seen = 0;               // members so far, one bit each
    std::uint32_t id = 0;                 // of an object; of a property value, its type
  };

  void enterDocumentMember(std::string_view name);
  void enterOriginMember(std::string_view name);
  void enterObjectMember(std::string_view name);
  void enterPropertyValueMember(std::string_view name);
  void markSeen(std::string_view name, std::size_t bit);

  void acceptInDocument(const SavedValue& value);
  void acceptInOrigin(const SavedValue& value);
  void acceptInObject(const SavedValue& value);
  void setField(Frame& frame, const SavedValue& value);
  void makeObject(Frame& frame, std::string_view className);

  std::uint32_t readId(const SavedValue& value) const;
  std::int64_t readNumber(const SavedValue& value, std::int64_t lowest, std::int64_t highest) const;
  std::string_view readText(const SavedValue& value) const;
  bool readFlag(const SavedValue& value) const;

  KYRString offset() const;
  [[noreturn]] void refuseValue() const;
  [[noreturn]] void refuseMember(std::string_view name) const;
  [[noreturn]] void missMember(std::string_view name) const;

  KYRString path_;
  const std::uint64_t& offset_;
  std::unique_ptr<KYRStoreModel> model_;
  StoredReferences references_;
  std::vector<Frame> frames_;
  bool isComplete_ = false;
  // The last member: its name, and of its place what it is.
  std::string_view member_;
  const StoredField* field_ = nullptr;
  const StoredOriginField* originField_ = nullptr;
  KYRString propertyText_;
};
