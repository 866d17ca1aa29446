// What FTS5 keeps stands in tables of its own, which are the same in all databases.
#include "repository/storage/SqliteSearchAside.h"

#include <sqlite3.h>

namespace {

// One that is taken and one that waits.
constexpr std::size_t blockCount = 2;

void copy(SqliteDatabase& from, SqliteDatabase& to, const char* query, const char* insert) {
  SqliteStatement rows(from, query);
  SqliteStatement copied(to, insert);
  while (rows.step()) {
    copied.bindRow(rows);
    copied.step();
    copied.reset();
  }
}

}  // namespace

SqliteSearchAside::SqliteSearchAside(const KYRString& shownPath, const char* createTable,
                                     const std::string& insert, std::size_t width)
    : database_(shownPath),
      feed_(prepare(createTable), width),
      insert_(database_, insert),
      blocks_(blockCount, SqliteRowBlock(width),
              [this](const SqliteRowBlock& rows) { feed_.run(insert_, rows); }) {}

// Whoever goes without the words need not wait for them.
SqliteSearchAside::~SqliteSearchAside() { sqlite3_interrupt(database_.getHandle()); }

SqliteDatabase& SqliteSearchAside::prepare(const char* createTable) {
  database_.run("PRAGMA journal_mode = OFF; BEGIN");
  database_.run(createTable);
  return database_;
}

void SqliteSearchAside::add(const SqliteRowBlock& rows) {
  blocks_.give([&rows](SqliteRowBlock& place) { place = rows; });
}

void SqliteSearchAside::wait() { blocks_.wait(); }

// The table is there already, and has its two head rows.
void SqliteSearchAside::copyTo(SqliteDatabase& database) {
  wait();
  database_.run("COMMIT");
  // Where SQLite protects such tables from its users.
  sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
  copy(database_, database, "SELECT id, block FROM search_data ORDER BY id",
       "REPLACE INTO search_data VALUES (?, ?)");
  copy(database_, database, "SELECT segid, term, pgno FROM search_idx ORDER BY segid, term",
       "INSERT INTO search_idx VALUES (?, ?, ?)");
}
