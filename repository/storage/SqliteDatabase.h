// SqliteDatabase, SqliteStatement: an open SQLite file and what is prepared on it. What SQLite refuses
// is raised as a KYRException that names the file and the reason.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/KYRString.h"

struct sqlite3;
struct sqlite3_stmt;

class KYR_EXPORT SqliteDatabase {
 public:
  /// Opens the file, and makes it when it is missing. `shownPath` is what messages call it.
  SqliteDatabase(const std::string& path, const KYRString& shownPath);
  /// Makes a database in memory, for what is to go into that file.
  explicit SqliteDatabase(const KYRString& shownPath);
  SqliteDatabase(const SqliteDatabase&) = delete;
  SqliteDatabase& operator=(const SqliteDatabase&) = delete;
  /// Takes back what was not committed.
  ~SqliteDatabase();

  /// Runs statements that answer nothing.
  void run(const std::string& statements);
  /// The number that a statement answers; 0 when it answers nothing.
  std::int64_t getNumber(const std::string& statement);
  /// Whether the file has another name by now, or none.
  bool hasMoved() const noexcept;
  /// Closes the file. What could not be written until then is raised here.
  void close();

  sqlite3* getHandle() const noexcept { return handle_; }
  [[noreturn]] void fail() const;

  /// What messages call the file.
  const KYRString& getShownPath() const noexcept { return shownPath_; }

 private:
  void open(const char* place);

  KYRString shownPath_;
  sqlite3* handle_ = nullptr;
};

/// A prepared statement, whose parameters are counted from 1. It must not outlive the database.
class KYR_EXPORT SqliteStatement {
 public:
  SqliteStatement(SqliteDatabase& database, const std::string& text);
  SqliteStatement(SqliteStatement&& other) noexcept;
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;
  ~SqliteStatement();

  void bind(int parameter, std::int64_t value);
  /// Borrows the text until the parameter is bound anew, or copies it.
  void bind(int parameter, std::string_view value, bool isCopied);
  /// Copies the row at which the other statement stands, from the first parameter on.
  void bindRow(const SqliteStatement& other);
  /// Runs the statement up to its next row; false at the end.
  bool step();
  /// Makes it ready for another run. Parameters keep their values.
  void reset();
  std::int64_t getNumber(int column) const;

 private:
  SqliteDatabase* database_;
  sqlite3_stmt* handle_ = nullptr;
};
