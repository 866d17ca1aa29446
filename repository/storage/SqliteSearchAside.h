// SqliteSearchAside: the table `search` of a database that holds no model yet, made in memory by a thread
// of its own while rows and indexes go into the database.
//
// Its words take as long as all rows of all tables. The database has one thread at a time, so they are
// gathered in another one, whose blocks are then copied, as a dump of a database does.
#pragma once

#include "repository/storage/BackgroundQueue.h"
#include "repository/storage/SqliteRowFeed.h"

class SqliteSearchAside {
 public:
  /// `createTable` makes `search`, and `insert` reads the feed. `shownPath` is what messages call the file.
  SqliteSearchAside(const KYRString& shownPath, const char* createTable, const std::string& insert,
                    std::size_t width);
  ~SqliteSearchAside();

  /// Borrows the texts of the rows until `wait` or `copyTo`. Raises what went wrong with earlier ones.
  void add(const SqliteRowBlock& rows);
  void wait();
  /// Fills the table of that database, which is empty.
  void copyTo(SqliteDatabase& database);

 private:
  SqliteDatabase& prepare(const char* createTable);

  SqliteDatabase database_;
  SqliteRowFeed feed_;
  SqliteStatement insert_;
  BackgroundQueue<SqliteRowBlock> blocks_;
};
