// UTF-8 as of RFC 3629: no overlong forms, no surrogates, nothing above U+10FFFF.
#include "host/TerminalText.h"

namespace {

// The smallest code that needs as many bytes; a smaller one is an overlong form.
constexpr char32_t smallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};

std::size_t lengthByFirst(unsigned char first) noexcept {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

// The code of a character that begins `text`, or `invalid`; `length` is that of its first byte.
char32_t decode(std::string_view text, std::size_t length) noexcept {
  if (length == 0 || length > text.size()) return TerminalText::invalid;
  const auto first = static_cast<unsigned char>(text[0]);
  if (length == 1) return first;
  char32_t code = first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return TerminalText::invalid;
    code = (code << 6U) | (byte & 0x3FU);
  }
  const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
  return code < smallestOfLength[length] || isSurrogate || code > 0x10FFFF ? TerminalText::invalid : code;
}

void appendEscape(std::string& out, const TerminalText::Character& character) {
  if (character.code == '\n') {
    out += "\\n";
  } else if (character.code == '\t') {
    out += "\\t";
  } else if (character.code == '\r') {
    out += "\\r";
  } else if (character.code == TerminalText::invalid || character.code < 0x80) {
    out += "\\x";
    TerminalText::appendHex(out, static_cast<unsigned char>(character.bytes[0]), 2);
  } else {
    out += "\\u";
    TerminalText::appendHex(out, character.code, 4);
  }
}

}  // namespace

TerminalText::Character TerminalText::take(std::string_view& rest) {
  const std::size_t length = lengthByFirst(static_cast<unsigned char>(rest[0]));
  const char32_t code = decode(rest, length);
  const std::string_view bytes = rest.substr(0, code == invalid ? 1 : length);
  rest.remove_prefix(bytes.size());
  return {bytes, code};
}

bool TerminalText::isObeyed(char32_t code) noexcept {
  const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
  const bool isLineBreak = code == 0x2028 || code == 0x2029;
  const bool isMark = code == 0x061C || code == 0x200E || code == 0x200F;
  const bool turnsDirection =
      isMark || (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
  return isControl || isLineBreak || turnsDirection;
}

void TerminalText::appendHex(std::string& out, char32_t value, unsigned int width) {
  constexpr char digits[] = "0123456789abcdef";
  for (unsigned int i = width; i-- > 0;) out += digits[(value >> (4 * i)) & 0xFU];
}

std::string TerminalText::shorten(std::string_view text, std::size_t longest) {
  std::string_view rest = text;
  for (std::size_t i = 0; i < longest && !rest.empty(); ++i) take(rest);
  if (rest.empty()) return std::string(text);
  return std::string(text.substr(0, text.size() - rest.size())) + "...";
}

std::string TerminalText::escape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const Character character = take(text);
    if (character.code == invalid || isObeyed(character.code)) {
      appendEscape(out, character);
    } else {
      out += character.bytes;
    }
  }
  return out;
}
