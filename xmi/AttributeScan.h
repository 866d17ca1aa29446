// AttributeScan: the attributes of one element, looked through once.
//
// It answers exactly as `XMIParser::getAttribute` does. That walks names and values alike, one
// position at a time, so a value that equals the wanted name is a match too and the next
// attribute's name is the answer; see "AValueThatEqualsTheNameIsTakenAsAMatch" in AttributeScanTest.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/KYRStringArray.h"

class AttributeScan {
 public:
  AttributeScan();
  /// Looks through the list, which must live until the next call.
  void scan(const KYRStringArray& attributes);
  /// The entry behind the first one that equals the name of that number (ReaderNames), or the empty
  /// text.
  const KYRString& get(int name) const noexcept;
  /// The numbers of the names that `get` finds something for, in order of first mention.
  const std::vector<int>& getFoundNames() const noexcept { return found_; }

 private:
  const KYRStringArray* attributes_ = nullptr;
  // Position of the first entry that equals a name; valid when the stamp is that of this element.
  struct Place {
    std::uint32_t stamp = 0;
    std::uint32_t position = 0;
  };
  std::vector<Place> places_;
  std::vector<int> found_;
  std::uint32_t stamp_ = 0;
};
