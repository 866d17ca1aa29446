// The seed of the process.
#include "foundation/TextHash.h"

#include <chrono>
#include <random>

namespace {

std::uint64_t drawSeed() noexcept {
  try {
    std::random_device source;
    return (std::uint64_t{source()} << 32) | source();
  } catch (...) {  // no source of chance: the time and a place in memory differ from run to run, too
    static const char place = '\0';
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return static_cast<std::uint64_t>(now) ^ reinterpret_cast<std::uintptr_t>(&place);
  }
}

}  // namespace

std::uint64_t TextHash::seed() noexcept {
  static const std::uint64_t drawn = drawSeed();
  return drawn;
}
