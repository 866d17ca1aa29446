// The hash is a polynomial modulo the prime 2^61 - 1, whose remainder takes a shift and an addition.
#include "extension/CompositeKey.h"

namespace {

__extension__ using Wide = unsigned __int128;

constexpr std::uint64_t prime = (std::uint64_t{1} << 61) - 1;
constexpr std::uint64_t base = 0x1F2E3D4C5B6A7987;  // any number well above a byte and below the prime

constexpr std::uint64_t reduce(Wide number) noexcept {
  const auto low = static_cast<std::uint64_t>(number & prime);
  const auto high = static_cast<std::uint64_t>(number >> 61);
  const std::uint64_t sum = low + high;
  return sum >= prime ? sum - prime : sum;
}

constexpr std::uint64_t multiply(std::uint64_t first, std::uint64_t second) noexcept {
  return reduce(static_cast<Wide>(first) * second);
}

constexpr std::uint64_t base2 = multiply(base, base);
constexpr std::uint64_t base3 = multiply(base2, base);
constexpr std::uint64_t base4 = multiply(base2, base2);

std::uint64_t powerOf(std::size_t exponent) noexcept {
  std::uint64_t result = 1;
  for (std::uint64_t square = base; exponent != 0; exponent >>= 1U) {
    if ((exponent & 1U) != 0) result = multiply(result, square);
    square = multiply(square, square);
  }
  return result;
}

}  // namespace

CompositeKey::CompositeKey(std::string_view text) noexcept
    : power_(powerOf(text.size())), length_(text.size()) {
  const auto character = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  std::size_t at = 0;
  for (; at + 4 <= text.size(); at += 4) {
    hash_ = reduce(static_cast<Wide>(hash_) * base4 + static_cast<Wide>(base3) * character(at) +
                   static_cast<Wide>(base2) * character(at + 1) +
                   static_cast<Wide>(base) * character(at + 2) + character(at + 3));
  }
  for (; at < text.size(); ++at) hash_ = reduce(static_cast<Wide>(hash_) * base + character(at));
}

CompositeKey CompositeKey::followedBy(const CompositeKey& tail) const noexcept {
  CompositeKey result;
  result.hash_ = reduce(static_cast<Wide>(hash_) * tail.power_ + tail.hash_);
  result.power_ = multiply(power_, tail.power_);
  result.length_ = length_ + tail.length_;
  return result;
}
