// SQLite asks how to go on in two places: at a lock of others, and from time to time.
#include "repository/storage/SqliteWaiting.h"

#include <sqlite3.h>
#include <unistd.h>

#include "foundation/SignalHold.h"

namespace {

constexpr int waitMilliseconds = 20;
constexpr int mostWaits = 10 * 60 * 1000 / waitMilliseconds;
// Steps of SQLite's machine between two looks at the signals: well below a millisecond.
constexpr int stepsBetweenLooks = 10000;

int waitForOthers(void*, int waits) {
  if (waits >= mostWaits || SignalHold::isSignalled()) return 0;
  ::usleep(waitMilliseconds * 1000);
  return 1;
}

int stopOnSignal(void*) { return SignalHold::isSignalled() ? 1 : 0; }

}  // namespace

void SqliteWaiting::install(sqlite3* database) noexcept {
  sqlite3_busy_handler(database, waitForOthers, nullptr);
  sqlite3_progress_handler(database, stepsBetweenLooks, stopOnSignal, nullptr);
}

std::string SqliteWaiting::placeOf(const std::string& path) {
  return path.find('/') == std::string::npos ? "./" + path : path;
}
