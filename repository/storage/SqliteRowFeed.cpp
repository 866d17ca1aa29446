// A virtual table that is there by its name alone: nothing of it is stored in the database.
#include "repository/storage/SqliteRowFeed.h"

#include <sqlite3.h>

#include <new>

namespace {

// No table of a user is called so.
constexpr const char* feedName = "rows of kyr";

struct Table {
  sqlite3_vtab base;
  const SqliteRowBlock* const* block;
};

struct Cursor {
  sqlite3_vtab_cursor base;
  const SqliteCell* row;
  std::size_t width;
  std::size_t at;
  std::size_t count;
};

Table& tableOf(sqlite3_vtab* table) { return *reinterpret_cast<Table*>(table); }
Cursor& cursorOf(sqlite3_vtab_cursor* cursor) { return *reinterpret_cast<Cursor*>(cursor); }

int chooseWay(sqlite3_vtab*, sqlite3_index_info*) { return SQLITE_OK; }

int disconnect(sqlite3_vtab* table) {
  delete &tableOf(table);
  return SQLITE_OK;
}

int open(sqlite3_vtab*, sqlite3_vtab_cursor** made) {
  auto* const cursor = new (std::nothrow) Cursor{};
  if (cursor == nullptr) return SQLITE_NOMEM;
  *made = &cursor->base;
  return SQLITE_OK;
}

int close(sqlite3_vtab_cursor* cursor) {
  delete &cursorOf(cursor);
  return SQLITE_OK;
}

int rewind(sqlite3_vtab_cursor* cursor, int, const char*, int, sqlite3_value**) {
  const SqliteRowBlock& block = **tableOf(cursor->pVtab).block;
  Cursor& place = cursorOf(cursor);
  place.row = block.first();
  place.width = block.getWidth();
  place.at = 0;
  place.count = block.getCount();
  return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* cursor) {
  Cursor& place = cursorOf(cursor);
  place.row += place.width;
  ++place.at;
  return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* cursor) { return cursorOf(cursor).at < cursorOf(cursor).count ? 0 : 1; }

int giveCell(sqlite3_vtab_cursor* cursor, sqlite3_context* result, int column) {
  const SqliteCell& cell = cursorOf(cursor).row[column];
  if (cell.isNumber()) {
    sqlite3_result_int64(result, cell.getNumber());
  } else if (!cell.isNull()) {
    const std::string_view text = cell.getText();
    sqlite3_result_text64(result, text.data(), text.size(), nullptr, SQLITE_UTF8);
  }
  return SQLITE_OK;
}

int giveNumber(sqlite3_vtab_cursor* cursor, sqlite3_int64* number) {
  *number = static_cast<sqlite3_int64>(cursorOf(cursor).at);
  return SQLITE_OK;
}

}  // namespace

struct SqliteRowFeed::Module {
  static int connect(sqlite3* database, void* feed, int, const char* const*, sqlite3_vtab** made, char**) {
    const auto& owner = *static_cast<const SqliteRowFeed*>(feed);
    const int result = sqlite3_declare_vtab(database, owner.declaration_.c_str());
    if (result != SQLITE_OK) return result;
    auto* const table = new (std::nothrow) Table{{}, &owner.block_};
    if (table == nullptr) return SQLITE_NOMEM;
    *made = &table->base;
    return SQLITE_OK;
  }

  static const sqlite3_module& get() {
    static const sqlite3_module module = [] {
      sqlite3_module made{};
      made.xConnect = connect;
      made.xBestIndex = chooseWay;
      made.xDisconnect = disconnect;
      made.xOpen = open;
      made.xClose = close;
      made.xFilter = rewind;
      made.xNext = next;
      made.xEof = isAtEnd;
      made.xColumn = giveCell;
      made.xRowid = giveNumber;
      return made;
    }();
    return module;
  }
};

SqliteRowFeed::SqliteRowFeed(SqliteDatabase& database, std::size_t width) : database_(database) {
  declaration_ = "CREATE TABLE feed (c0";
  for (std::size_t i = 1; i < width; ++i) declaration_ += ", c" + std::to_string(i);
  declaration_ += ")";
  if (sqlite3_create_module(database.getHandle(), feedName, &Module::get(), this) != SQLITE_OK) {
    database.fail();
  }
}

SqliteRowFeed::~SqliteRowFeed() { sqlite3_create_module(database_.getHandle(), feedName, nullptr, nullptr); }

std::string SqliteRowFeed::select(std::size_t width) {
  std::string sql = "SELECT c0";
  for (std::size_t i = 1; i < width; ++i) sql += ", c" + std::to_string(i);
  return sql + " FROM \"" + feedName + '"';
}

void SqliteRowFeed::run(SqliteStatement& statement, const SqliteRowBlock& block) {
  block_ = &block;
  statement.step();
  statement.reset();
}
