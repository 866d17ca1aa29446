// Rows go in by blocks, through one prepared statement for each table and there in order of their ids, so
// that every tree of the file only grows at its end. Indexes of a new file are made over the finished rows:
// sorting once is far cheaper than finding the place of each entry.
//
// A database that is there already may have got triggers from its user. They see plain inserts, and rows of
// all tables in turn, what is referred to mostly first.
#include "repository/storage/SqliteStoreModelWriter.h"

#include <algorithm>

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRMetadataOrigin.h"

namespace {

constexpr const char* applicationIdQuery = "PRAGMA application_id";
constexpr const char* versionQuery = "PRAGMA user_version";

// Blocks stay in the caches of the processor, and are large enough for the work on a whole one not to count.
constexpr std::size_t rowsOfBlock = 256;

// Texts that are kept for rows, until the rows are loaded.
constexpr std::size_t mostKept = std::size_t{1} << 20;

// A row that is refused ends the whole transaction; SQLite need not be able to take back the block alone. But
// what a statement says of conflicts also holds for the statements of triggers.
std::string insertInto(const SqlTable& table, bool isNew) {
  return (isNew ? "INSERT OR FAIL INTO " : "INSERT INTO ") + std::string(table.name) + ' ' +
         SqliteRowFeed::select(table.columns.size());
}

SqliteCell defaultOf(const SqlColumn& column) {
  const bool isNumber = column.kind == SqlColumn::Kind::number || column.kind == SqlColumn::Kind::flag;
  return isNumber ? SqliteCell(std::int64_t{0}) : SqliteCell();
}

void runOn(SqliteDatabase& database, const std::string& statement, std::int64_t first, std::int64_t last) {
  SqliteStatement prepared(database, statement);
  prepared.bind(1, first);
  prepared.bind(2, last);
  prepared.step();
}

}  // namespace

SqliteStoreModelWriter::SqliteStoreModelWriter(SqliteDatabase& database, const KYRString& shownPath)
    : database_(database), shownPath_(shownPath) {}

SqliteStoreModelWriter::~SqliteStoreModelWriter() = default;

void SqliteStoreModelWriter::beginDocument(const KYRStoreModel& model) {
  SqlRowWriter::beginDocument(model);
  isNew_ = database_.getNumber("SELECT count(*) FROM sqlite_master") == 0;
  if (isNew_) {
    createSchema();
  } else {
    refuseOthers();
    // Ids are not given a second time, so that one that a user has noted never means something else.
    firstId_ = database_.getNumber("SELECT max(last_id) FROM models") + 1;
    removeFormer(model);
  }
  setFirstId(firstId_);
  std::size_t widest = 0;
  for (const SqlTable& table : getSchema().getTables()) {
    Pending& pending = pending_.emplace_back(Pending{{}, SqliteRowBlock(table.columns.size()), {}});
    for (const SqlColumn& column : table.columns) pending.defaults.push_back(defaultOf(column));
    widest = std::max(widest, table.columns.size());
  }
  feed_.emplace(database_, widest);
  search_.emplace(database_, *feed_, isNew_);
}

void SqliteStoreModelWriter::createSchema() {
  database_.run("PRAGMA application_id = " + std::to_string(applicationId));
  database_.run("PRAGMA user_version = " + std::to_string(SqlSchema::version));
  database_.run(getSchema().createTables(SqlSchema::Dialect::sqlite));
  database_.run(getSchema().createViews());
  SqliteSearch::create(database_);
}

void SqliteStoreModelWriter::refuseOthers() const {
  if (database_.getNumber(applicationIdQuery) != applicationId) {
    KYRRepositoryMessages::NOT_A_MODEL_DATABASE.throwException(shownPath_);
  }
  const std::int64_t version = database_.getNumber(versionQuery);
  if (version != SqlSchema::version) {
    KYRRepositoryMessages::UNKNOWN_DATABASE_VERSION.throwException(shownPath_,
                                                                   KYRString(static_cast<int>(version)));
  }
}

void SqliteStoreModelWriter::removeFormer(const KYRStoreModel& model) {
  if (model.metadataOrigin == nullptr) return;
  SqliteStatement find(database_, "SELECT id, last_id FROM models WHERE origin_path = ?1");
  const std::string path = sqlText(model.metadataOrigin->filePath.view());
  find.bind(1, path, false);
  if (!find.step()) return;
  const std::int64_t first = find.getNumber(0);
  const std::int64_t last = find.getNumber(1);
  find.reset();
  SqliteSearch::remove(database_, first, last);
  for (const SqlTable& table : getSchema().getTables()) {
    runOn(database_,
          "DELETE FROM " + std::string(table.name) + " WHERE " + table.columns.front().name +
              " BETWEEN ?1 AND ?2",
          first, last);
  }
}

void SqliteStoreModelWriter::endDocument() {
  SqlRowWriter::endDocument();
  loadRows();
  runOn(database_, "UPDATE models SET last_id = ?2 WHERE id = ?1", firstId_, getLastId());
  if (isNew_) database_.run(getSchema().createIndexes());
  search_->finish();
}

// While the row of an object begins, no other one is open.
void SqliteStoreModelWriter::beginRow(const SqlTable& table) {
  if (keptSize_ >= mostKept && table.holdsObjects) loadAll();
  Pending& pending = pending_[table.index];
  pending.rows.add(pending.defaults.data());
}

void SqliteStoreModelWriter::putNumber(const SqlTable& table, std::size_t column, std::int64_t value) {
  pending_[table.index].rows.last()[column] = SqliteCell(value);
}

void SqliteStoreModelWriter::putText(const SqlTable& table, std::size_t column, std::string_view value,
                                     bool isPassing) {
  if (isPassing) {
    value = keptTexts_.emplace_back(value);
    keptSize_ += value.size();
  }
  pending_[table.index].rows.last()[column] = SqliteCell(value);
}

void SqliteStoreModelWriter::endRow(const SqlTable& table) {
  SqliteRowBlock& rows = pending_[table.index].rows;
  search_->add(table, rows.last());
  if (rows.getCount() < rowsOfBlock) return;
  if (isNew_) {
    load(table);
  } else {
    loadRows();
  }
}

void SqliteStoreModelWriter::load(const SqlTable& table) {
  Pending& pending = pending_[table.index];
  if (pending.rows.getCount() == 0) return;
  if (!pending.insert) pending.insert.emplace(database_, insertInto(table, isNew_));
  feed_->run(*pending.insert, pending.rows);
  pending.rows.clear();
}

void SqliteStoreModelWriter::loadRows() {
  for (const SqlTable& table : getSchema().getTables()) load(table);
}

void SqliteStoreModelWriter::loadAll() {
  loadRows();
  search_->flush();
  keptTexts_.clear();
  keptSize_ = 0;
}
