// One walk over the text. End tags close the innermost element, whatever name they bear.
#include "fuzz/XmlPieces.h"

#include <algorithm>

namespace {

constexpr std::string_view blanks = " \t\r\n";

bool startsAt(std::string_view text, std::size_t at, std::string_view start) {
  return text.substr(at, start.size()) == start;
}

// Behind the next `end`, or the end of the text.
std::size_t behind(std::string_view text, std::size_t at, std::string_view end) {
  const std::size_t found = text.find(end, at);
  return found == std::string_view::npos ? text.size() : found + end.size();
}

std::size_t nextOf(std::string_view text, std::size_t at, std::string_view characters) {
  return std::min(text.find_first_of(characters, at), text.size());
}

std::size_t behindBlanks(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(blanks, at), text.size());
}

}  // namespace

XmlPieces::XmlPieces(std::string_view text) {
  for (std::size_t at = nextOf(text, 0, "<"); at < text.size();) {
    std::size_t next = 0;
    if (startsAt(text, at, "<!--")) {
      next = behind(text, at, "-->");
    } else if (startsAt(text, at, "<![CDATA[")) {
      next = behind(text, at, "]]>");
    } else if (startsAt(text, at, "<?")) {
      next = behind(text, at, "?>");
    } else if (startsAt(text, at, "<!")) {
      next = behind(text, at, ">");
    } else if (startsAt(text, at, "</")) {
      next = behind(text, at, ">");
      if (!open_.empty()) {
        elements[open_.back()].whole.end = next;
        open_.pop_back();
      }
    } else {
      readTag(text, at);
      next = elements.back().whole.end;
    }
    at = nextOf(text, next, "<");
  }
  for (const std::size_t element : open_) elements[element].whole.end = text.size();
}

// Leaves behind its ">" as the end of the element until its end tag is met.
void XmlPieces::readTag(std::string_view text, std::size_t at) {
  const std::size_t nameEnd = nextOf(text, at + 1, " \t\r\n/>");
  const std::size_t number = elements.size();
  elements.push_back({{at, text.size()}, {at + 1, nameEnd}});
  const std::size_t end = readAttributes(text, nameEnd);
  elements[number].whole.end = end;
  const bool isClosed = end >= 2 && text[end - 2] == '/';
  if (!isClosed) open_.push_back(number);
}

std::size_t XmlPieces::readAttributes(std::string_view text, std::size_t at) {
  for (;;) {
    const std::size_t name = behindBlanks(text, at);
    if (name == text.size()) return name;
    if (text[name] == '>') return name + 1;
    const std::size_t nameEnd = nextOf(text, name, "= \t\r\n/>");
    const std::size_t equals = behindBlanks(text, nameEnd);
    const std::size_t quote = equals == text.size() ? equals : behindBlanks(text, equals + 1);
    const bool isAttribute = quote < text.size() && text[equals] == '=' && nameEnd > name &&
                             (text[quote] == '"' || text[quote] == '\'');
    if (!isAttribute) {
      at = std::max(nameEnd, name + 1);
      continue;
    }
    const std::size_t valueEnd = std::min(text.find(text[quote], quote + 1), text.size());
    const std::size_t end = std::min(valueEnd + 1, text.size());
    attributes.push_back({{at, end}, {name, nameEnd}, {quote + 1, valueEnd}});
    at = end;
  }
}

std::string withReplaced(std::string_view text, TextSpan span, std::string_view replacement) {
  std::string result(text.substr(0, span.begin));
  result += replacement;
  result += text.substr(span.end);
  return result;
}

std::string withCopyAt(std::string_view text, TextSpan span, std::size_t place) {
  return withReplaced(text, {place, place}, span.of(text));
}

std::string withMoved(std::string_view text, TextSpan span, std::size_t place) {
  const std::string piece(span.of(text));
  std::string result = withReplaced(text, span, "");
  result.insert(place < span.begin ? place : place - span.size(), piece);
  return result;
}
