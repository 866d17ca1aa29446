// A state machine over bytes. What it meets most, plain characters of content and tags, it passes eight at a
// time.
#include "foundation/xml/XmlTagScan.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

constexpr std::uint64_t inEachByte = 0x0101010101010101U;
constexpr std::uint64_t highBits = inEachByte * 0x80U;

// Of eight bytes, the high bit of those that are "<", below the blank, or no ASCII; above the lowest such bit
// others may be set for no reason.
std::uint64_t markSpecial(std::uint64_t bytes) noexcept {
  const std::uint64_t less = bytes ^ (inEachByte * '<');
  return (((less - inEachByte) & ~less) | ((bytes - inEachByte * ' ') & ~bytes) | bytes) & highBits;
}

bool isSpecial(unsigned char byte) noexcept { return byte == '<' || byte < ' ' || byte >= 0x80; }

}  // namespace

bool XmlTagScan::scan(std::string_view bytes, std::vector<XmlPosition>& starts) {
  const char* const end = bytes.data() + bytes.size();
  for (const char* at = bytes.data(); at != end;) {
    if (state_ == State::content && continuations_ == 0) {
      const char* const next = *at == '\n' ? skipIndentation(at, end) : skipPlain(at, end);
      if (next != at) {
        if (!countSpan(at, next)) return false;
        at = next;
        continue;
      }
    }
    if (!advance(static_cast<unsigned char>(*at)) || !turn(*at, starts) || !countSpan(at, at + 1))
      return false;
    ++at;
  }
  return true;
}

// The end of the run of plain characters that begins here.
const char* XmlTagScan::skipPlain(const char* from, const char* end) noexcept {
  const char* at = from;
  std::uint64_t bytes;
  std::uint64_t special = 0;
  while (special == 0 && static_cast<std::size_t>(end - at) >= sizeof bytes) {
    std::memcpy(&bytes, at, sizeof bytes);
    if constexpr (std::endian::native == std::endian::big) bytes = __builtin_bswap64(bytes);
    special = markSpecial(bytes);
    at += special == 0 ? sizeof bytes : static_cast<std::size_t>(std::countr_zero(special)) / 8;
  }
  while (special == 0 && at != end && !isSpecial(static_cast<unsigned char>(*at))) ++at;
  if (at != from) afterReturn_ = false;
  column_ += static_cast<std::uint64_t>(at - from);
  return at;
}

// The place behind a line feed and the blanks and tabs that follow it.
const char* XmlTagScan::skipIndentation(const char* from, const char* end) noexcept {
  if (!afterReturn_) ++line_;
  afterReturn_ = false;
  const char* at = from + 1;
  while (at != end && (*at == ' ' || *at == '\t')) ++at;
  column_ = static_cast<std::uint64_t>(at - from);
  return at;
}

bool XmlTagScan::countSpan(const char* from, const char* end) noexcept {
  span_ += static_cast<std::size_t>(end - from);
  if (span_ <= longSpan) return true;
  for (; from != end; ++from) {
    const bool isQuote = *from == '"' || *from == '\'';
    const bool isSpace = *from == ' ' || *from == '\t' || *from == '\n' || *from == '\r';
    if (isQuote && afterEqual_) ++quotes_;
    afterEqual_ = *from == '=' || (isSpace && afterEqual_);
  }
  return span_ <= longestSpan && quotes_ <= mostQuotes;
}

// Lines end with LF, CR or CR LF; other characters below the blank but the tab are none of XML
// (XML 1.0, 2.2).
bool XmlTagScan::advance(unsigned char byte) noexcept {
  if (byte >= 0x80 || continuations_ != 0) return advanceWide(byte);
  const bool isSecondOfTwo = byte == '\n' && afterReturn_;
  afterReturn_ = byte == '\r';
  if (byte == '\n' || byte == '\r') {
    if (!isSecondOfTwo) ++line_;
    column_ = 1;
    return true;
  }
  ++column_;
  return byte >= ' ' || byte == '\t';
}

// RFC 3629: no overlong forms, no surrogates, nothing beyond U+10FFFF.
bool XmlTagScan::advanceWide(unsigned char byte) noexcept {
  if (continuations_ != 0) {
    if (byte < lowest_ || byte > highest_) return false;
    lowest_ = 0x80;
    highest_ = 0xBF;
    --continuations_;
    return true;
  }
  afterReturn_ = false;
  ++column_;
  if (byte < 0xC2 || byte > 0xF4) return false;
  continuations_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  lowest_ = byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80;
  highest_ = byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF;
  return true;
}

bool XmlTagScan::turn(char character, std::vector<XmlPosition>& starts) {
  switch (state_) {
    case State::content:
      if (character == '<') {
        markup_.line = line_;
        markup_.column = column_ - 1;
        state_ = State::markup;
        span_ = 0;
        quotes_ = 0;
        afterEqual_ = false;
      }
      return true;
    case State::markup:
      closing_ = 0;
      bangLength_ = 0;
      state_ = character == '!' ? State::bang : character == '?' ? State::instruction : State::content;
      if (state_ == State::content && character != '/') starts.push_back(markup_);
      return true;
    case State::bang:
      return turnAtBang(character);
    case State::comment:
    case State::section: {
      const std::size_t needed = 2;
      if (character == '>' && closing_ == needed) {
        state_ = State::content;
      } else {
        const char part = state_ == State::comment ? '-' : ']';
        closing_ = character == part ? std::min(closing_ + 1, needed) : 0;
      }
      return true;
    }
    case State::instruction:
      if (character == '>' && closing_ == 1) state_ = State::content;
      closing_ = character == '?' ? 1 : 0;
      return true;
  }
  return false;
}

// A comment or a CDATA section; what else begins like them is a document type, or an error.
bool XmlTagScan::turnAtBang(char character) noexcept {
  constexpr std::string_view comment = "--";
  constexpr std::string_view section = "[CDATA[";
  bang_[bangLength_++] = character;
  const std::string_view seen(bang_.data(), bangLength_);
  if (seen == comment) state_ = State::comment;
  if (seen == section) state_ = State::section;
  return comment.starts_with(seen) || section.starts_with(seen);
}
