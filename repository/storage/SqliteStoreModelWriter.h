// SqliteStoreModelWriter: the SQLite format of saved models; docs/sqlite.md describes it.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "repository/storage/SqlRowWriter.h"
#include "repository/storage/SqliteRowFeed.h"
#include "repository/storage/SqliteSearch.h"

/// Writes one model into the database, which holds none yet or some of this format. A model of the same
/// origin path that is there is replaced. Whoever makes the writer begins the transaction before the
/// model and commits it afterwards. All operations raise a KYRException that names the file.
class KYR_EXPORT SqliteStoreModelWriter : public SqlRowWriter {
 public:
  /// What `PRAGMA application_id` tells of the file: "KYRM" in ASCII.
  static constexpr int applicationId = 0x4B59524D;

  /// `shownPath` is what messages call the file. The database must outlive the writer.
  SqliteStoreModelWriter(SqliteDatabase& database, const KYRString& shownPath);
  ~SqliteStoreModelWriter() override;

  void beginDocument(const KYRStoreModel& model) override;
  void endDocument() override;

 protected:
  void beginRow(const SqlTable& table) override;
  void putNumber(const SqlTable& table, std::size_t column, std::int64_t value) override;
  void putText(const SqlTable& table, std::size_t column, std::string_view value, bool isPassing) override;
  void endRow(const SqlTable& table) override;

 private:
  // The rows of a table that are not in the database yet.
  struct Pending {
    std::vector<SqliteCell> defaults;
    SqliteRowBlock rows;
    std::optional<SqliteStatement> insert;  // prepared for the first block
  };
  void createSchema();
  void refuseOthers() const;
  void removeFormer(const KYRStoreModel& model);
  void load(const SqlTable& table);
  void loadRows();
  void loadAll();

  SqliteDatabase& database_;
  KYRString shownPath_;
  bool isNew_ = false;
  std::int64_t firstId_ = 1;
  // What rows that are pending refer to, unless it is the model's. A thread of the search reads it, too.
  std::deque<std::string> keptTexts_;
  std::size_t keptSize_ = 0;
  std::optional<SqliteRowFeed> feed_;
  std::optional<SqliteSearch> search_;
  std::vector<Pending> pending_;  // by the index of the table
};
