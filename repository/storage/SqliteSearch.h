// SqliteSearch: the table `search` of a saved model, for words in names, descriptions and notes.
//
// It is filled from the rows of objects on their way into the tables. The view `objects` would give the
// same rows, and takes as long to read as all else that searching needs.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "repository/storage/SqlSchema.h"
#include "repository/storage/SqliteRowFeed.h"
#include "repository/storage/SqliteSearchAside.h"

class SqliteSearch {
 public:
  /// Makes the table.
  static void create(SqliteDatabase& database);
  /// Takes out the objects with the ids from `first` to `last`, whose rows are still in their tables.
  static void remove(SqliteDatabase& database, std::int64_t first, std::int64_t last);

  /// The database has the table already; `isEmpty` tells whether it is empty. Database and feed must outlive
  /// the search.
  SqliteSearch(SqliteDatabase& database, SqliteRowFeed& feed, bool isEmpty);

  /// Notes what is searched of a row. Ids come in ascending order. Texts are borrowed until `flush`.
  void add(const SqlTable& table, const SqliteCell* row);
  /// Returns when no text is borrowed any more.
  void flush();
  /// Puts what was noted into the table, unless that has been done already. To be called once, at the end.
  void finish();

 private:
  // Where a table has what is searched; `none` where it has no such column.
  struct Columns {
    std::string_view kind;  // of all rows, if there is no column for it
    std::size_t kindAt;
    std::size_t name;
    std::size_t description;
    std::size_t noteText;
  };
  static Columns columnsOf(const SqlTable& table);
  void handOn();
  void load();

  SqliteDatabase& database_;
  SqliteRowFeed& feed_;
  const bool isEmpty_;
  std::vector<Columns> columns_;  // by the index of the table
  SqliteRowBlock rows_;
  std::optional<SqliteSearchAside> aside_;  // from the first full block on
};
