// XmlEncoding: which encoding a file is written in.
//
// The order of evidence: an order of the host, a byte order mark, the first four bytes (XML 1.0,
// appendix F: UTF-16 and UTF-32 without a mark, EBCDIC), the XML declaration, and UTF-8 when nothing
// is said.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/xml/XmlPosition.h"

struct KYR_EXPORT XmlEncoding {
  std::string name;            // as the file or the host calls it, for messages
  std::string converterName;   // as iconv knows it; "UTF-8" needs no conversion
  std::size_t markLength = 0;  // bytes of the byte order mark
  bool isDeclared = false;     // the XML declaration is what told
  XmlPosition position;        // where it is told

  bool isUtf8() const noexcept { return converterName == "UTF-8"; }

  /// `head` is the beginning of the file: all of the XML declaration if there is one.
  /// `forcedName` overrides what the file says; empty when nothing is ordered.
  static XmlEncoding detect(std::string_view head, std::string_view forcedName);
  /// Whether `head` is long enough for `detect`.
  static bool isHeadComplete(std::string_view head) noexcept;
};

/// The encoding ordered by forceXmlEncoding; empty when none is.
KYR_EXPORT const std::string& getForcedXmlEncoding() noexcept;
