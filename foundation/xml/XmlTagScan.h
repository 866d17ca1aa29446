// XmlTagScan: a first look at an XML text in UTF-8, on its way to a tokenizer.
//
// It finds the place of each start tag, which libxml2 does not tell, and what that library must not be
// given: bytes that are no characters, a document type, markup so long or so full of attributes that
// reading it would be slow. It does not judge: all of that is read by expat in its place.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/Export.h"
#include "foundation/xml/XmlPosition.h"

class KYR_EXPORT XmlTagScan {
 public:
  /// Bytes from one "<" to the next from which on expat shall read.
  static constexpr std::size_t longestSpan = std::size_t{16} * 1024 * 1024;
  /// In a span of more than `longSpan` bytes, so many quotes behind a "=" may be a tag of too many
  /// attributes.
  static constexpr std::size_t longSpan = 4096;
  static constexpr std::size_t mostQuotes = 1000;

  /// Looks at the next bytes of the text, cut anywhere, and adds the places of its start tags, as soon as
  /// they are known for such, to `starts`. False: the bytes are not for libxml2, and the scan is over.
  bool scan(std::string_view bytes, std::vector<XmlPosition>& starts);

 private:
  enum class State : std::uint8_t { content, markup, bang, comment, section, instruction };

  const char* skipPlain(const char* from, const char* end) noexcept;
  const char* skipIndentation(const char* from, const char* end) noexcept;
  bool countSpan(const char* from, const char* end) noexcept;
  bool advance(unsigned char byte) noexcept;
  bool advanceWide(unsigned char byte) noexcept;
  bool turn(char character, std::vector<XmlPosition>& starts);
  bool turnAtBang(char character) noexcept;

  State state_ = State::content;
  std::array<char, 8> bang_{};  // what has come behind "<!"
  std::size_t bangLength_ = 0;
  std::size_t closing_ = 0;  // how much of "--", "]]" or "?" has come last
  std::size_t span_ = 0;     // bytes since the last "<"
  std::size_t quotes_ = 0;   // behind a "=", in the part of the span behind `longSpan`
  bool afterEqual_ = false;
  std::uint64_t line_ = 1;
  std::uint64_t column_ = 1;  // of the next character
  bool afterReturn_ = false;
  std::size_t continuations_ = 0;  // bytes that the character under way still has
  unsigned char lowest_ = 0x80;    // bounds of the next of them
  unsigned char highest_ = 0xBF;
  XmlPosition markup_;  // of the last "<"
};
