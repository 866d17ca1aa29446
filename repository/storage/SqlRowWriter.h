// SqlRowWriter: a saved model as rows of the tables of SqlSchema. What is done with a row is up to the
// derived class.
//
// Rows come in the order of the document, so that ids only grow. While the row of an object is being
// filled, rows of link tables are begun and ended; there is never more than one open row of a table.
#pragma once

#include <string>
#include <vector>

#include "repository/storage/SqlSchema.h"
#include "repository/storage/StoreModelWriter.h"

/// The text as a database takes it: valid UTF-8 without zero characters, U+FFFD in place of what is not.
KYR_EXPORT std::string sqlText(std::string_view text);

class KYR_EXPORT SqlRowWriter : public StoreModelWriter {
 public:
  void beginDocument(const KYRStoreModel& model) override;
  void endDocument() override;
  void beginObject(unsigned int id, std::string_view className) override;
  void endObject() override;
  void beginList(std::string_view name) override;
  void endList() override;
  void text(std::string_view name, std::string_view value) override;
  void number(std::string_view name, std::int64_t value) override;
  void flag(std::string_view name) override;
  void reference(std::string_view name, unsigned int id) override;
  void beginReferences(std::string_view name) override;
  void reference(unsigned int id) override;
  void endReferences() override;
  void beginPropertyValues() override;
  void propertyValue(unsigned int propertyType, std::string_view value) override;
  void endPropertyValues() override;

 protected:
  SqlRowWriter();
  /// The id of the model's own row; the ids of all others follow it. Called before the first object.
  void setFirstId(std::int64_t id) noexcept { base_ = id - 1; }
  std::int64_t getLastId() const noexcept { return lastId_; }
  const SqlSchema& getSchema() const noexcept { return schema_; }

  /// A row in which numbers and flags are 0 and all else is empty.
  virtual void beginRow(const SqlTable& table) = 0;
  /// References and flags are numbers too.
  virtual void putNumber(const SqlTable& table, std::size_t column, std::int64_t value) = 0;
  /// Valid UTF-8 without zero characters. It stays where it is until the document ends unless `isPassing`.
  virtual void putText(const SqlTable& table, std::size_t column, std::string_view value, bool isPassing) = 0;
  virtual void endRow(const SqlTable& table) = 0;

 private:
  struct Frame {
    const SqlClass* type;
    std::int64_t id;
    std::string_view list;  // of children, the one that is open
  };
  void fillOwner(const SqlTable& table, const SqlClass& type);
  void fillModel(const SqlTable& table);
  void writeOrigins();
  void finishRow();
  std::size_t findColumn(std::string_view name);
  void putAnyText(const SqlTable& table, std::size_t column, std::string_view value);
  void putModelText(const SqlTable& table, std::string_view column, std::string_view value);

  const SqlSchema& schema_;
  const SqlTable& propertyValues_;
  const SqlTable& origins_;
  const KYRStoreModel* model_ = nullptr;
  std::int64_t base_ = 0;
  std::int64_t lastId_ = 0;
  std::vector<Frame> frames_;
  bool isRowOpen_ = false;
  std::size_t nextField_ = 0;
  const SqlTable* link_ = nullptr;
  std::int64_t position_ = 0;
};
