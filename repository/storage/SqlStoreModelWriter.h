// SqlStoreModelWriter: a saved model as a file of SQL statements, for databases that read such files:
// the tables and views that an SQLite file has, in standard SQL as PostgreSQL understands it.
#pragma once

#include <string>
#include <vector>

#include "repository/storage/BlockOutput.h"
#include "repository/storage/SqlRowWriter.h"

class KYR_EXPORT SqlStoreModelWriter : public SqlRowWriter {
 public:
  explicit SqlStoreModelWriter(BlockSink& sink);
  ~SqlStoreModelWriter() override;

  void beginDocument(const KYRStoreModel& model) override;
  void endDocument() override;

 protected:
  void beginRow(const SqlTable& table) override;
  void putNumber(const SqlTable& table, std::size_t column, std::int64_t value) override;
  void putText(const SqlTable& table, std::size_t column, std::string_view value, bool isPassing) override;
  void endRow(const SqlTable& table) override;

 private:
  struct Rows {
    std::vector<std::string> cells;  // of the row that is open
    std::string values;              // of the finished rows that wait for their statement
    std::vector<bool> isTooLong;     // whether a column holds a text that no index takes
  };
  void flush(const SqlTable& table);

  BlockOutput output_;
  std::vector<Rows> rows_;  // by the index of the table
};
