// A place is empty, being written, or filled. Only filled ones are looked at by the handler; it can come
// between any two steps.
#include "repository/storage/UnfinishedFiles.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstring>

namespace {

enum State { empty, written, filled };

struct Place {
  std::atomic<int> state{empty};
  char path[PATH_MAX];
};

constexpr int placeCount = 16;  // a host saves one model at a time
Place places[placeCount];

static_assert(std::atomic<int>::is_always_lock_free);

}  // namespace

int UnfinishedFiles::add(const std::string& path) noexcept {
  if (path.size() >= PATH_MAX) return -1;
  for (int i = 0; i < placeCount; ++i) {
    int expected = empty;
    if (!places[i].state.compare_exchange_strong(expected, written)) continue;
    std::memcpy(places[i].path, path.c_str(), path.size() + 1);
    places[i].state.store(filled);
    return i + 1;
  }
  return -1;
}

void UnfinishedFiles::drop(int place) noexcept {
  if (place > 0) places[place - 1].state.store(empty);
}

void UnfinishedFiles::removeAll() noexcept {
  const int error = errno;
  for (Place& place : places) {
    if (place.state.load() == filled) ::unlink(place.path);
  }
  errno = error;
}
