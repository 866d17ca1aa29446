// See the header for the form.
#include "report/PackedNumbers.h"

namespace {

constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}

void PackedNumbers::add(std::int64_t number) {
  auto rest = static_cast<std::uint64_t>(number < 0 ? -number : number) << 1U;
  if (number < 0) rest |= 1U;
  do {
    const std::uint64_t piece = rest & 31U;
    rest >>= 5U;
    text_ += letters[rest > 0 ? piece | 32U : piece];
  } while (rest > 0);
}

void PackedNumbers::addStep(std::int64_t number) {
  add(number - before_);
  before_ = number;
}
