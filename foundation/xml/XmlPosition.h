// XmlPosition: a place in an XML text, and the exceptions that name one.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/KYRStdMessages.h"
#include "foundation/KYRString.h"

/// Line and column, both from 1. A column is one character (Unicode code point) of the file as
/// written, whatever its encoding; a byte order mark is none.
struct KYR_EXPORT XmlPosition {
  std::uint64_t line = 1;
  std::uint64_t column = 1;

  /// Moves on behind `text`, which is UTF-8. A line ends with LF, CR or CR LF, and a CR LF may be cut
  /// by the end of one text and the beginning of the next.
  void advance(std::string_view text) noexcept;

  bool operator==(const XmlPosition&) const = default;

 private:
  bool afterReturn_ = false;
};

/// The decimal text of a number, for messages.
KYRString toText(std::uint64_t number);
/// A byte as "0xE9", for messages.
KYRString describeByte(char byte);

/// Raises `message`, whose first three arguments are the file, the line and the column.
template <class Message, class... Argument>
[[noreturn]] void raiseXmlError(const Message& message, const KYRString& file, const XmlPosition& position,
                                const Argument&... arguments) {
  message.throwException(file, toText(position.line), toText(position.column), arguments...);
}
