// XmlPieces: where the elements and attributes of an XML text stand, so that one of them can be taken
// out, doubled, moved or changed and the rest stays as it is.
//
// The text may be anything: what is no markup is passed over, and what is not closed ends with the text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t size() const noexcept { return end - begin; }
  std::string_view of(std::string_view text) const { return text.substr(begin, size()); }
};

struct XmlPieces {
  struct Element {
    TextSpan whole;  // from "<" to behind the ">" of its end tag
    TextSpan tag;    // the name in the start tag
  };
  struct Attribute {
    TextSpan whole;  // with the blanks before it
    TextSpan name;
    TextSpan value;  // without the quotes
  };
  std::vector<Element> elements;  // in order of their start tags
  std::vector<Attribute> attributes;

  explicit XmlPieces(std::string_view text);

 private:
  void readTag(std::string_view text, std::size_t at);
  std::size_t readAttributes(std::string_view text, std::size_t at);
  std::vector<std::size_t> open_;
};

/// The text with a span replaced.
std::string withReplaced(std::string_view text, TextSpan span, std::string_view replacement);
/// The text with a copy of a span at another place.
std::string withCopyAt(std::string_view text, TextSpan span, std::size_t place);
/// The text with a span taken out and put at a place outside it.
std::string withMoved(std::string_view text, TextSpan span, std::size_t place);
