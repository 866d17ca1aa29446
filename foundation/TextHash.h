// The hash of texts, and the comparison that goes with it.
//
// Ids and names come from files that anybody may have written. A file whose ids were chosen to meet in
// one bucket would make every lookup a walk, so tables hash with a seed that is drawn once for each
// process. Nothing that leaves the process depends on it: our tables are walked in insertion order.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "foundation/Export.h"

namespace TextHash {

/// The seed of this process.
KYR_EXPORT std::uint64_t seed() noexcept;

template <class Word>
std::uint64_t load(const char* bytes) noexcept {
  Word word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

__extension__ typedef unsigned __int128 Product;

/// Both factors hold the hash so far, so that no part of a text cancels another whatever the seed is.
inline std::uint64_t mix(std::uint64_t first, std::uint64_t second) noexcept {
  const Product product = static_cast<Product>(first ^ 0x9E3779B97F4A7C15U) * (second ^ 0xD6E8FEB86659FD93U);
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

/// All bytes take part. `seed` keeps a file from being made so that its names collide.
inline std::uint64_t of(std::string_view text, std::uint64_t seed) noexcept {
  const char* bytes = text.data();
  std::size_t left = text.size();
  std::uint64_t hash = seed ^ left;
  for (; left > 16; bytes += 16, left -= 16) {
    hash = mix(load<std::uint64_t>(bytes) ^ hash, load<std::uint64_t>(bytes + 8) ^ std::rotl(hash, 32));
  }
  std::uint64_t first = 0;
  std::uint64_t second = 0;
  if (left >= 8) {
    first = load<std::uint64_t>(bytes);
    second = load<std::uint64_t>(bytes + left - 8);
  } else if (left >= 4) {
    first = load<std::uint32_t>(bytes);
    second = load<std::uint32_t>(bytes + left - 4);
  } else if (left > 0) {
    first = load<unsigned char>(bytes) | (load<unsigned char>(bytes + left / 2) << 8);
    second = load<unsigned char>(bytes + left - 1);
  }
  return mix(first ^ hash, second ^ std::rotl(hash, 32));
}

/// Compares `length` bytes. Most texts here are a few words long, and repeat.
inline bool areEqual(const char* first, const char* second, std::size_t length) noexcept {
  if (length < 4) {
    for (std::size_t at = 0; at < length; ++at) {
      if (first[at] != second[at]) return false;
    }
    return true;
  }
  if (length < 8) {
    return load<std::uint32_t>(first) == load<std::uint32_t>(second) &&
           load<std::uint32_t>(first + length - 4) == load<std::uint32_t>(second + length - 4);
  }
  for (std::size_t at = 0; at + 8 < length; at += 8) {
    if (load<std::uint64_t>(first + at) != load<std::uint64_t>(second + at)) return false;
  }
  return load<std::uint64_t>(first + length - 8) == load<std::uint64_t>(second + length - 8);
}

}  // namespace TextHash
