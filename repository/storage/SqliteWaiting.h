// SqliteWaiting: how long a database waits for others that hold its lock, and what ends the wait.
#pragma once

#include <string>

struct sqlite3;

namespace SqliteWaiting {

/// Waits for ten minutes at most, and not after a signal that a SignalHold keeps back. Statements end at
/// such a signal too.
void install(sqlite3* database) noexcept;

/// The path in a form that SQLite takes for a file, whatever its name is.
std::string placeOf(const std::string& path);

}  // namespace SqliteWaiting
