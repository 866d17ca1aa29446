// Linux knows the call since 5.14.
#include "foundation/PreparedPages.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

void preparePages([[maybe_unused]] void* memory, std::size_t size) noexcept {
  constexpr std::size_t worthACall = std::size_t{128} * 1024;
  if (size < worthACall) return;
#ifdef MADV_POPULATE_WRITE
  static const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto start = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t first = (start + page - 1) / page * page;
  const std::uintptr_t last = (start + size) / page * page;
  if (first >= last) return;
  const int error = errno;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the first whole page inside
  madvise(reinterpret_cast<void*>(first), last - first, MADV_POPULATE_WRITE);
  errno = error;
#endif
}
