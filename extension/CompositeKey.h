// CompositeKey: a key made of an id followed by the key of what holds it, without the text.
//
// The text of a key grows with the depth, so writing it out for every element would cost depth times
// elements. Only its length and a polynomial hash are kept: the hash of "id + parent's key" follows
// from the two hashes and the parent's length. Two keys with equal length and hash are compared by
// walking their chains.
#pragma once

#include <cstdint>
#include <string_view>

class CompositeKey {
 public:
  /// The key of the empty text.
  CompositeKey() = default;
  /// The key of a text.
  explicit CompositeKey(std::string_view text) noexcept;
  /// The key of this key's text followed by that of `tail`.
  CompositeKey followedBy(const CompositeKey& tail) const noexcept;
  std::uint64_t hash() const noexcept { return hash_; }
  std::uint64_t length() const noexcept { return length_; }
  bool operator==(const CompositeKey& other) const noexcept {
    return hash_ == other.hash_ && length_ == other.length_;
  }

 private:
  std::uint64_t hash_ = 0;
  std::uint64_t power_ = 1;  // base to the power of the length
  std::uint64_t length_ = 0;
};
