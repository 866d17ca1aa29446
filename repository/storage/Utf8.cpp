// The well-formed byte sequences are those of table 3-7 of the Unicode standard: no overlong forms, no
// surrogates, nothing beyond U+10FFFF.
#include "repository/storage/Utf8.h"

#include <cstdint>
#include <cstring>

namespace {

using Byte = unsigned char;

struct Lead {
  unsigned int length;  // of the character; 0: not a lead byte
  Byte lowest;          // the range of the second byte
  Byte highest;
};

Lead leadOf(Byte byte) noexcept {
  if (byte < 0x80) return {1, 0, 0};
  if (byte < 0xC2) return {0, 0, 0};
  if (byte < 0xE0) return {2, 0x80, 0xBF};
  if (byte < 0xF0) {
    return {3, static_cast<Byte>(byte == 0xE0 ? 0xA0 : 0x80), static_cast<Byte>(byte == 0xED ? 0x9F : 0xBF)};
  }
  if (byte < 0xF5) {
    return {4, static_cast<Byte>(byte == 0xF0 ? 0x90 : 0x80), static_cast<Byte>(byte == 0xF4 ? 0x8F : 0xBF)};
  }
  return {0, 0, 0};
}

// How many bytes at the front of `text` belong together, and whether they are a character.
unsigned int takeCharacter(std::string_view text, bool& isValid) noexcept {
  const Lead lead = leadOf(static_cast<Byte>(text.front()));
  isValid = lead.length == 1;
  if (lead.length < 2) return 1;
  for (unsigned int at = 1; at < lead.length; ++at) {
    const Byte byte = at < text.size() ? static_cast<Byte>(text[at]) : Byte{0};
    const Byte lowest = at == 1 ? lead.lowest : Byte{0x80};
    const Byte highest = at == 1 ? lead.highest : Byte{0xBF};
    if (byte < lowest || byte > highest) return at;
  }
  isValid = true;
  return lead.length;
}

// Whether all eight bytes are ASCII that JSON does not escape. Each test marks the upper bit of the
// bytes that it finds; marks may also arise above a real one, which does no harm.
bool isPlainWord(std::uint64_t word) noexcept {
  constexpr std::uint64_t each = 0x0101010101010101U;
  constexpr std::uint64_t upper = 0x8080808080808080U;
  const auto holdsBelow = [&](std::uint64_t bytes, std::uint64_t limit) {
    return (bytes - each * limit) & ~bytes;
  };
  const std::uint64_t marks = word | holdsBelow(word, 0x20) | holdsBelow(word ^ (each * '"'), 1) |
                              holdsBelow(word ^ (each * '\\'), 1);
  return (marks & upper) == 0;
}

std::uint64_t wordAt(const char* bytes) noexcept {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

// Whether a text is plain throughout. The last bytes are looked at together with some before them.
bool isPlain(std::string_view text) noexcept {
  constexpr std::size_t size = sizeof(std::uint64_t);
  if (text.size() < size) {
    char padded[size] = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
    for (std::size_t at = 0; at < text.size(); ++at) padded[at] = text[at];
    return isPlainWord(wordAt(padded));
  }
  const char* const last = text.data() + text.size() - size;
  for (const char* at = text.data(); at < last; at += size) {
    if (!isPlainWord(wordAt(at))) return false;
  }
  return isPlainWord(wordAt(last));
}

bool isEscaped(char character) noexcept {
  return static_cast<Byte>(character) < 0x20 || character == '"' || character == '\\';
}

}  // namespace

Utf8Shape examineUtf8(std::string_view text) noexcept {
  if (isPlain(text)) return Utf8Shape::plain;
  Utf8Shape shape = Utf8Shape::plain;
  while (!text.empty()) {
    if (text.size() >= sizeof(std::uint64_t) && isPlainWord(wordAt(text.data()))) {
      text.remove_prefix(sizeof(std::uint64_t));
      continue;
    }
    if (isEscaped(text.front())) shape = Utf8Shape::escaped;
    bool isValid = false;
    text.remove_prefix(takeCharacter(text, isValid));
    if (!isValid) return Utf8Shape::damaged;
  }
  return shape;
}

std::string repairUtf8(std::string_view text) {
  constexpr std::string_view replacement = "\xEF\xBF\xBD";
  std::string result;
  result.reserve(text.size() + replacement.size());
  while (!text.empty()) {
    bool isValid = false;
    const unsigned int length = takeCharacter(text, isValid);
    result += isValid ? text.substr(0, length) : replacement;
    text.remove_prefix(length);
  }
  return result;
}
