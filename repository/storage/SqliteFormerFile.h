// SqliteFormerFile: the database whose place another one takes.
//
// A database can have a journal beside it, of a process that is at work or that died at it. SQLite finds
// it by the name of the file, so it would take it for a journal of the new one and write old pages into
// it. That is why a database is locked while it is replaced.
#pragma once

#include "foundation/KYRString.h"

struct sqlite3;

class SqliteFormerFile {
 public:
  /// Waits until nobody writes to the file, finishes what a dead process has left of a transaction, and
  /// keeps others out as long as it lives. Does nothing for a file that is no database, or none at all; a
  /// journal that has lost its database is removed. Raises a KYRException when the file stays locked.
  explicit SqliteFormerFile(const KYRString& path);
  SqliteFormerFile(const SqliteFormerFile&) = delete;
  SqliteFormerFile& operator=(const SqliteFormerFile&) = delete;
  ~SqliteFormerFile();

 private:
  void lock(const KYRString& path);

  sqlite3* handle_ = nullptr;
};
