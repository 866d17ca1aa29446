// UMLLineage: which kinds an object of a kind is, as a table of bits computed from the class rows of
// the metamodel. It serves `isKindOf`, and knows where in an object each base lies.
#pragma once

#include <cstddef>
#include <cstdint>

namespace UMLLineage {

constexpr int kindCount = 117;

/// For each kind one bit for each kind that its objects answer to.
struct Table {
  struct Bits {
    std::uint64_t words[2];
  } rows[kindCount];
};
extern const Table table;

/// Whether `other` is `kind` or the kind of one of its direct or indirect bases.
inline bool isKindOf(int kind, int other) noexcept {
  if (other < 0 || other >= kindCount) return false;
  const auto bit = static_cast<unsigned int>(other);
  return (table.rows[kind].words[bit / 64] >> (bit % 64) & 1U) != 0;
}

}  // namespace UMLLineage
