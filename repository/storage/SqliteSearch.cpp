// Full-text search by FTS5, which keeps words only: the texts are those of the view `objects`.
#include "repository/storage/SqliteSearch.h"

#include <sqlite3.h>

#include <string>

namespace {

// The words are looked for without case and without the marks on letters. Lengths of texts are not
// kept: the ranking finds them out, for the few rows that a search meets.
constexpr const char* createSearch =
    "CREATE VIRTUAL TABLE search USING fts5(kind UNINDEXED, name, description, content='objects', "
    "content_rowid='id',"
    " columnsize=0, tokenize='unicode61 remove_diacritics 2')";

// A class type bears the name of its class.
constexpr std::string_view passedOver = "class type";

// What `add` has noted of the objects from ?1 to ?2: a word is only taken out by the text it came with.
constexpr const char* removeSearched =
    "INSERT INTO search(search, rowid, kind, name, description)"
    " SELECT 'delete', id, kind, name, description FROM objects"
    " WHERE id BETWEEN ?1 AND ?2 AND kind <> 'class type'"
    " AND (name IS NOT NULL OR description IS NOT NULL)";

constexpr std::size_t searchedWidth = 4;  // id, kind, name, description

// FTS5 puts what it has gathered into its tables before each statement of many rows, so they are many.
constexpr std::size_t mostRows = 8192;

std::string insertSearched() {
  return "INSERT INTO search(rowid, kind, name, description) " + SqliteRowFeed::select(searchedWidth);
}

}  // namespace

void SqliteSearch::create(SqliteDatabase& database) { database.run(createSearch); }

void SqliteSearch::remove(SqliteDatabase& database, std::int64_t first, std::int64_t last) {
  SqliteStatement statement(database, removeSearched);
  statement.bind(1, first);
  statement.bind(2, last);
  statement.step();
}

SqliteSearch::SqliteSearch(SqliteDatabase& database, SqliteRowFeed& feed, bool isEmpty)
    : database_(database), feed_(feed), isEmpty_(isEmpty), rows_(searchedWidth) {
  for (const SqlTable& table : SqlSchema::get().getTables()) columns_.push_back(columnsOf(table));
}

SqliteSearch::Columns SqliteSearch::columnsOf(const SqlTable& table) {
  Columns columns{{},
                  table.columnAt("kind"),
                  table.columnAt("name"),
                  table.columnAt("description"),
                  table.columnAt("note_text")};
  for (const SqlClass& entry : SqlSchema::get().getClasses()) {
    if (entry.table == &table) columns.kind = entry.kind;
  }
  return columns;
}

void SqliteSearch::add(const SqlTable& table, const SqliteCell* row) {
  if (!table.holdsObjects) return;
  const Columns& columns = columns_[table.index];
  const std::size_t none = table.columns.size();
  const SqliteCell kind = columns.kindAt == none ? SqliteCell(columns.kind) : row[columns.kindAt];
  const bool hasNote = columns.noteText != none && !row[columns.noteText].isNull();
  const SqliteCell& description = row[hasNote ? columns.noteText : columns.description];
  const SqliteCell& name = row[columns.name];
  if ((name.isNull() && description.isNull()) || kind.getText() == passedOver) return;
  const SqliteCell searched[searchedWidth] = {row[0], kind, name, description};
  rows_.add(searched);
  if (rows_.getCount() == mostRows) handOn();
}

// Small models need no thread: what there is at the end goes straight in.
void SqliteSearch::handOn() {
  if (isEmpty_ && !aside_ && sqlite3_threadsafe() != 0) {
    aside_.emplace(database_.getShownPath(), createSearch, insertSearched(), searchedWidth);
  }
  if (aside_) {
    aside_->add(rows_);
  } else {
    load();
  }
  rows_.clear();
}

void SqliteSearch::load() {
  SqliteStatement insert(database_, insertSearched());
  feed_.run(insert, rows_);
}

void SqliteSearch::flush() {
  handOn();
  if (aside_) aside_->wait();
}

void SqliteSearch::finish() {
  if (aside_) {
    aside_->add(rows_);
    aside_->copyTo(database_);
  } else {
    load();
  }
  rows_.clear();
  aside_.reset();
}
