// The limits in force, one set for the process.
#include "foundation/xml/XmlLimits.h"

#include <algorithm>

namespace {

// Texts longer than this are no KYRString.
constexpr std::size_t longestText = 0xFFFFFFFEU;

XmlLimits& limitsInForce() noexcept {
  static XmlLimits limits;
  return limits;
}

}  // namespace

const XmlLimits& XmlLimits::get() noexcept { return limitsInForce(); }

void XmlLimits::set(const XmlLimits& limits) noexcept {
  XmlLimits& inForce = limitsInForce();
  inForce = limits;
  inForce.maxTextBytes = std::min(limits.maxTextBytes, longestText);
  inForce.maxNameBytes = std::min(limits.maxNameBytes, longestText);
  inForce.maxItems = std::min(limits.maxItems, XmlLimits().maxItems);
}
