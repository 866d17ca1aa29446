// Lines and columns over UTF-8, and how positions and bytes are written in messages.
#include "foundation/xml/XmlPosition.h"

#include <algorithm>
#include <string>

namespace {

// In UTF-8 every character has exactly one byte that is no continuation byte.
std::uint64_t countCharacters(std::string_view text) noexcept {
  return static_cast<std::uint64_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

}  // namespace

void XmlPosition::advance(std::string_view text) noexcept {
  if (text.empty()) return;
  if (afterReturn_ && text.starts_with('\n')) text.remove_prefix(1);
  afterReturn_ = false;
  for (std::size_t end; (end = text.find_first_of("\r\n")) != std::string_view::npos;) {
    ++line;
    column = 1;
    const bool isReturn = text[end] == '\r';
    text.remove_prefix(end + 1);
    afterReturn_ = isReturn && text.empty();
    if (isReturn && text.starts_with('\n')) text.remove_prefix(1);
  }
  column += countCharacters(text);
}

KYRString toText(std::uint64_t number) { return KYRString(std::string_view(std::to_string(number))); }

KYRString describeByte(char byte) {
  constexpr char digits[] = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  return KYRString(std::string_view(std::string{'0', 'x', digits[value >> 4], digits[value & 15]}));
}
