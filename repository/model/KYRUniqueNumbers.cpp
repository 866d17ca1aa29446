// A name may end in digits itself and a separator may be a digit, so a released name is looked up
// under every way of reading its end as a number.
#include "repository/model/KYRUniqueNumbers.h"

#include <new>

KYRString KYRUniqueNumbers::makeName(const KYRString& name, char separator,
                                     const std::function<bool(std::string_view)>& isTaken) {
  std::string candidate(name.view());
  candidate += separator;
  const std::size_t stemLength = candidate.size();
  Numbers& numbers = byStem_[candidate];
  const auto isFree = [&](Number number) {
    candidate.resize(stemLength);
    candidate += std::to_string(number);
    return !isTaken(candidate);
  };
  while (!numbers.free.empty()) {
    const Number smallest = *numbers.free.begin();
    if (isFree(smallest)) return KYRString(std::string_view(candidate));
    numbers.free.erase(numbers.free.begin());
  }
  while (!isFree(numbers.next)) ++numbers.next;
  return KYRString(std::string_view(candidate));
}

void KYRUniqueNumbers::release(std::string_view name) noexcept {
  constexpr std::size_t mostDigits = 18;
  if (byStem_.empty()) return;
  try {
    Number number = 0;
    Number weight = 1;
    for (std::size_t digits = 1; digits <= mostDigits && digits < name.size(); ++digits, weight *= 10) {
      const char character = name[name.size() - digits];
      if (character < '0' || character > '9') return;
      number += weight * static_cast<Number>(character - '0');
      if (character == '0') continue;  // numbers are written without leading zeros
      const auto found = byStem_.find(std::string(name.substr(0, name.size() - digits)));
      if (found != byStem_.end() && number < found->second.next) found->second.free.insert(number);
    }
  } catch (const std::bad_alloc&) {
    byStem_.clear();  // names are also given up while memory is short; the numbers can be found again
  }
}
