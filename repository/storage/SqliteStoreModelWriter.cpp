// Rows go in through one prepared statement for each table, in order of their ids, so that every tree of
// the file only grows at its end. Indexes are made over the finished rows: sorting once is far cheaper
// than finding the place of each entry.
#include "repository/storage/SqliteStoreModelWriter.h"

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRMetadataOrigin.h"

namespace {

constexpr const char* applicationIdQuery = "PRAGMA application_id";
constexpr const char* versionQuery = "PRAGMA user_version";

// The words are looked for without case and without the marks on letters. Lengths of texts are not
// kept: the ranking finds them out, for the few rows that a search meets.
constexpr const char* createSearch =
    "CREATE VIRTUAL TABLE search USING fts5(kind UNINDEXED, name, description, content='objects', "
    "content_rowid='id',"
    " columnsize=0, tokenize='unicode61 remove_diacritics 2')";

// What the search covers, of the objects from ?1 to ?2. A class type bears the name of its class.
constexpr const char* searchedObjects =
    "id, kind, name, description FROM objects WHERE id BETWEEN ?1 AND ?2 AND kind <> 'class type'"
    " AND (name IS NOT NULL OR description IS NOT NULL)";

std::string insertInto(const SqlTable& table) {
  std::string sql = "INSERT INTO " + std::string(table.name) + " VALUES (?";
  for (std::size_t i = 1; i < table.columns.size(); ++i) sql += ",?";
  return sql + ")";
}

int parameterOf(std::size_t column) { return static_cast<int>(column + 1); }

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
  for (const SqlTable& table : getSchema().getTables()) {
    Insert& insert = inserts_.emplace_back(Insert{SqliteStatement(database_, insertInto(table)), {}});
    insert.parameters.resize(table.columns.size());
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
      bindDefault(insert.statement, table, column);
    }
  }
}

void SqliteStoreModelWriter::createSchema() {
  database_.run("PRAGMA application_id = " + std::to_string(applicationId));
  database_.run("PRAGMA user_version = " + std::to_string(SqlSchema::version));
  database_.run(getSchema().createTables(SqlSchema::Dialect::sqlite));
  database_.run(getSchema().createViews());
  database_.run(createSearch);
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
  runOn(database_,
        std::string("INSERT INTO search(search, rowid, kind, name, description) SELECT 'delete', ") +
            searchedObjects,
        first, last);
  for (const SqlTable& table : getSchema().getTables()) {
    runOn(database_,
          "DELETE FROM " + std::string(table.name) + " WHERE " + table.columns.front().name +
              " BETWEEN ?1 AND ?2",
          first, last);
  }
}

void SqliteStoreModelWriter::endDocument() {
  SqlRowWriter::endDocument();
  inserts_.clear();
  runOn(database_, "UPDATE models SET last_id = ?2 WHERE id = ?1", firstId_, getLastId());
  if (isNew_) database_.run(getSchema().createIndexes());
  fillSearch();
}

void SqliteStoreModelWriter::fillSearch() {
  runOn(database_,
        std::string("INSERT INTO search(rowid, kind, name, description) SELECT ") + searchedObjects, firstId_,
        getLastId());
}

void SqliteStoreModelWriter::bindDefault(SqliteStatement& insert, const SqlTable& table, std::size_t column) {
  const SqlColumn::Kind kind = table.columns[column].kind;
  if (kind == SqlColumn::Kind::number || kind == SqlColumn::Kind::flag) {
    insert.bind(parameterOf(column), 0);
  } else {
    insert.bindNull(parameterOf(column));
  }
}

void SqliteStoreModelWriter::beginRow(const SqlTable&) {}

void SqliteStoreModelWriter::putNumber(const SqlTable& table, std::size_t column, std::int64_t value) {
  Insert& insert = inserts_[table.index];
  insert.statement.bind(parameterOf(column), value);
  insert.parameters[column] = Parameter::ofThisRow;
}

void SqliteStoreModelWriter::putText(const SqlTable& table, std::size_t column, std::string_view value,
                                     bool isPassing) {
  Insert& insert = inserts_[table.index];
  insert.statement.bind(parameterOf(column), value, isPassing);
  insert.parameters[column] = Parameter::ofThisRow;
}

// Parameters keep their values, so only those are put back to the default that the row before has set
// and this one has not.
void SqliteStoreModelWriter::endRow(const SqlTable& table) {
  Insert& insert = inserts_[table.index];
  for (std::size_t column = 0; column < insert.parameters.size(); ++column) {
    Parameter& parameter = insert.parameters[column];
    if (parameter == Parameter::ofFormerRow) {
      bindDefault(insert.statement, table, column);
      parameter = Parameter::atDefault;
    } else if (parameter == Parameter::ofThisRow) {
      parameter = Parameter::ofFormerRow;
    }
  }
  insert.statement.step();
  insert.statement.reset();
}
