// Only what is locked is an error: a file that is damaged may be replaced.
#include "repository/storage/SqliteFormerFile.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <string>
#include <string_view>

#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/SqliteWaiting.h"

namespace {

using namespace std::string_view_literals;

constexpr std::string_view databaseStart = "SQLite format 3\0"sv;
constexpr std::string_view journalStart = "\xD9\xD5\x05\xF9\x20\xA1\x63\xD7"sv;
constexpr std::string_view logStart = "\x37\x7F\x06"sv;

bool startsWith(const std::string& path, std::string_view start) {
  char bytes[16] = {};
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return false;
  const ssize_t count = ::read(descriptor, bytes, start.size());
  ::close(descriptor);
  return count == static_cast<ssize_t>(start.size()) && std::string_view(bytes, start.size()) == start;
}

void removeLostJournal(const std::string& path) {
  if (startsWith(path + "-journal", journalStart)) ::unlink((path + "-journal").c_str());
  if (startsWith(path + "-wal", logStart)) ::unlink((path + "-wal").c_str());
}

}  // namespace

SqliteFormerFile::SqliteFormerFile(const KYRString& path) {
  const std::string name(path.view());
  // SQLite looks through links, so it would find the journals of the file behind one.
  if (startsWith(name, databaseStart)) {
    lock(path);
  } else {
    removeLostJournal(name);
  }
}

SqliteFormerFile::~SqliteFormerFile() { sqlite3_close_v2(handle_); }

void SqliteFormerFile::lock(const KYRString& path) {
  const std::string name = SqliteWaiting::placeOf(std::string(path.view()));
  int result = sqlite3_open_v2(name.c_str(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (result == SQLITE_OK) {
    SqliteWaiting::install(handle_);
    // A database with a log of its own writes that back, and goes on without.
    result =
        sqlite3_exec(handle_, "PRAGMA journal_mode = DELETE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
  }
  if (result != SQLITE_BUSY && result != SQLITE_LOCKED && result != SQLITE_INTERRUPT) return;
  const std::string reason = sqlite3_errmsg(handle_);
  sqlite3_close_v2(handle_);
  handle_ = nullptr;
  KYRRepositoryMessages::CANNOT_SAVE.throwException(path, KYRString(std::string_view(reason)));
}
