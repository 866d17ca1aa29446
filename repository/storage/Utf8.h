// UTF-8 texts on their way into a file.
#pragma once

#include <string>
#include <string_view>

#include "foundation/Export.h"

enum class Utf8Shape {
  plain,    // valid, and nothing in it that JSON escapes
  escaped,  // valid, with control characters, quotes or backslashes
  damaged,  // not valid UTF-8
};

/// Looks at each byte once.
KYR_EXPORT Utf8Shape examineUtf8(std::string_view text) noexcept;

/// The text with U+FFFD in place of each run of bytes that is no character: the longest beginning of
/// one, or a single byte.
KYR_EXPORT std::string repairUtf8(std::string_view text);
