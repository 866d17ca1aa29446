// A thin layer: SQLite's own codes become exceptions, its handles have owners.
#include "repository/storage/SqliteDatabase.h"

#include <sqlite3.h>

#include <cstring>
#include <utility>

#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/SqliteWaiting.h"

namespace {

// What the system said of the call that failed; 0 when it was none. A disk that cannot be read is told by
// SQLite as a database that is damaged.
int systemError(sqlite3* database) noexcept {
  const int code = sqlite3_errcode(database);
  if (code != SQLITE_IOERR && code != SQLITE_CORRUPT && code != SQLITE_CANTOPEN) return 0;
  int error = sqlite3_system_errno(database);
  if (error == 0) sqlite3_file_control(database, "main", SQLITE_FCNTL_LAST_ERRNO, &error);
  return error;
}

}  // namespace

SqliteDatabase::SqliteDatabase(const std::string& path, const KYRString& shownPath) : shownPath_(shownPath) {
  open(SqliteWaiting::placeOf(path).c_str());
}

SqliteDatabase::SqliteDatabase(const KYRString& shownPath) : shownPath_(shownPath) { open(":memory:"); }

void SqliteDatabase::open(const char* place) {
  constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(place, &handle_, flags, nullptr) == SQLITE_OK) return;
  const std::string reason = handle_ != nullptr ? sqlite3_errmsg(handle_) : sqlite3_errstr(SQLITE_NOMEM);
  sqlite3_close_v2(handle_);
  KYRRepositoryMessages::CANNOT_SAVE.throwException(shownPath_, KYRString(std::string_view(reason)));
}

SqliteDatabase::~SqliteDatabase() { sqlite3_close_v2(handle_); }

void SqliteDatabase::run(const std::string& statements) {
  if (sqlite3_exec(handle_, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail();
}

std::int64_t SqliteDatabase::getNumber(const std::string& statement) {
  SqliteStatement query(*this, statement);
  return query.step() ? query.getNumber(0) : 0;
}

bool SqliteDatabase::hasMoved() const noexcept {
  int moved = 0;
  return sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

void SqliteDatabase::close() {
  if (sqlite3_close(handle_) != SQLITE_OK) fail();
  handle_ = nullptr;
}

void SqliteDatabase::fail() const {
  std::string reason = sqlite3_errmsg(handle_);
  const int error = systemError(handle_);
  if (error != 0) reason = reason + ": " + std::strerror(error);
  KYRRepositoryMessages::CANNOT_SAVE.throwException(shownPath_, KYRString(std::string_view(reason)));
}

SqliteStatement::SqliteStatement(SqliteDatabase& database, const std::string& text) : database_(&database) {
  const int length = static_cast<int>(text.size() + 1);
  const int result = sqlite3_prepare_v3(database.getHandle(), text.c_str(), length, SQLITE_PREPARE_PERSISTENT,
                                        &handle_, nullptr);
  if (result != SQLITE_OK) database.fail();
}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : database_(other.database_), handle_(std::exchange(other.handle_, nullptr)) {}

SqliteStatement::~SqliteStatement() { sqlite3_finalize(handle_); }

void SqliteStatement::bind(int parameter, std::int64_t value) {
  if (sqlite3_bind_int64(handle_, parameter, value) != SQLITE_OK) database_->fail();
}

void SqliteStatement::bind(int parameter, std::string_view value, bool isCopied) {
  // An address that is null would bind NULL.
  const char* const text = value.data() != nullptr ? value.data() : "";
  // The library spells the choice as function pointers that are numbers.
  const sqlite3_destructor_type destructor =
      // NOLINTNEXTLINE(performance-no-int-to-ptr): the value of SQLITE_TRANSIENT
      isCopied ? reinterpret_cast<sqlite3_destructor_type>(-1) : nullptr;
  const int result = sqlite3_bind_text64(handle_, parameter, text, value.size(), destructor, SQLITE_UTF8);
  if (result != SQLITE_OK) database_->fail();
}

void SqliteStatement::bindRow(const SqliteStatement& other) {
  const int count = sqlite3_column_count(other.handle_);
  for (int i = 0; i < count; ++i) {
    const int result = sqlite3_bind_value(handle_, i + 1, sqlite3_column_value(other.handle_, i));
    if (result != SQLITE_OK) database_->fail();
  }
}

bool SqliteStatement::step() {
  const int result = sqlite3_step(handle_);
  if (result != SQLITE_ROW && result != SQLITE_DONE) {
    // The message goes with the reset, which must come before anything else can be done.
    sqlite3_reset(handle_);
    database_->fail();
  }
  return result == SQLITE_ROW;
}

void SqliteStatement::reset() { sqlite3_reset(handle_); }

std::int64_t SqliteStatement::getNumber(int column) const { return sqlite3_column_int64(handle_, column); }
