// Two ways into a file. One of its own needs no journal: until it is renamed, nobody knows it. A file
// that is shared is changed under SQLite's lock, with its journal.
#include "repository/storage/SqliteModelFile.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "foundation/SignalHold.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/ReplacedFile.h"
#include "repository/storage/SqliteFormerFile.h"
#include "repository/storage/SqliteStoreModelWriter.h"
#include "repository/storage/SqliteWaiting.h"

namespace {

// Up to 128 MiB of pages stay in memory, so that indexes are made of rows that need not be read back. What is
// sorted for them stays in memory up to that size too, in one piece: `temp_store = MEMORY` would sort
// entries that are allocated one by one, in twice the time.
constexpr const char* settings =
    "PRAGMA page_size = 8192; PRAGMA cache_size = -131072; PRAGMA foreign_keys = OFF;";
constexpr const char* settingsOfOwnFile =
    "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;";

void write(SqliteDatabase& database, const KYRString& path, const KYRStoreModel& model) {
  SqliteStoreModelWriter writer(database, path);
  writeStoreModel(model, writer);
}

void refuseOtherThanFiles(const KYRString& path) {
  struct stat status {};
  const bool isThere = ::stat(path.getCharacters(), &status) == 0;
  if (isThere && !S_ISREG(status.st_mode)) KYRRepositoryMessages::CANNOT_SAVE_NOT_A_FILE.throwException(path);
}

// Removes a file that opening it has made and that is still empty. The transaction must not be over, since
// only its lock keeps others from filling the file meanwhile; who waits for the lock sees the file gone.
class EmptyFile {
 public:
  EmptyFile(const KYRString& path, const SqliteDatabase& database) : path_(path), database_(database) {}
  EmptyFile(const EmptyFile&) = delete;
  EmptyFile& operator=(const EmptyFile&) = delete;
  ~EmptyFile() {
    struct stat status {};
    if (sqlite3_get_autocommit(database_.getHandle()) != 0) return;
    if (::stat(path_.getCharacters(), &status) == 0 && status.st_size == 0) ::unlink(path_.getCharacters());
  }

 private:
  const KYRString& path_;
  const SqliteDatabase& database_;
};

// False when the file was replaced or removed while this process waited for its lock.
bool appendTo(const KYRString& path, const KYRStoreModel& model) {
  SqliteDatabase database(path.getCharacters(), path);
  SqliteWaiting::install(database.getHandle());
  database.run(settings);
  database.run("BEGIN IMMEDIATE");
  if (database.hasMoved()) return false;
  {
    const EmptyFile undo(path, database);
    write(database, path, model);
    database.run("COMMIT");
  }
  database.close();
  return true;
}

}  // namespace

void saveSqliteModel(const KYRFile& file, const KYRStoreModel& model) {
  ReplacedFile output(file);
  SqliteDatabase database(output.getTemporaryPath(), file.getPath());
  database.run(settings);
  database.run(settingsOfOwnFile);
  database.run("BEGIN");
  write(database, file.getPath(), model);
  database.run("COMMIT");
  database.close();
  const SqliteFormerFile former(file.getPath());
  output.commit();
}

void appendSqliteModel(const KYRFile& file, const KYRStoreModel& model) {
  refuseOtherThanFiles(file.getPath());
  const SignalHold hold;
  while (!appendTo(file.getPath(), model)) {
  }
}
