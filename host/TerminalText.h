// TerminalText: texts from files made fit for a terminal.
//
// A model file can hold anything in its names, and so can a path. What a terminal would obey instead
// of show is written as an escape, and bytes that are no UTF-8 too: one line stays one line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace TerminalText {

/// The next character of a UTF-8 text.
struct Character {
  std::string_view bytes;
  char32_t code;  // `invalid` for a byte that begins no valid character
};
constexpr char32_t invalid = 0xFFFFFFFF;

/// Takes the first character off `rest`, which must not be empty.
Character take(std::string_view& rest);

/// Whether a terminal obeys the character: controls, and the marks that turn the direction of writing
/// around and so can make a line read as what it is not.
bool isObeyed(char32_t code) noexcept;

/// Appends the last `width` hexadecimal digits of the value.
void appendHex(std::string& out, char32_t value, unsigned int width);

/// `text`, or its first `longest` characters and "..." when it has more.
std::string shorten(std::string_view text, std::size_t longest);

/// `text` with such characters as \n, \t, \r, \x1b or \u202e and stray bytes as \xff.
std::string escape(std::string_view text);

}  // namespace TerminalText
