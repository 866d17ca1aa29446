// Splitting and decoding.
#include "extension/HrefText.h"

#include <cstdlib>
#include <string>

HrefText::HrefText(const KYRString& href) {
  const int hash = href.find("#", 0);
  fragment = hash < 0 ? href : href.mid(static_cast<unsigned int>(hash) + 1);
  filePart = decodePercent(href.left(static_cast<unsigned int>(hash)));
}

KYRString decodePercent(const KYRString& text) {
  constexpr std::size_t escapeLength = 3;
  const std::string_view source = text.view();
  std::string result;
  std::size_t at = 0;
  while (at < source.size()) {
    if (source[at] != '%') {
      result += source[at++];
      continue;
    }
    if (source.size() - at < escapeLength) break;
    const char digits[] = {source[at + 1], source[at + 2], '\0'};
    const auto character = static_cast<char>(std::strtol(digits, nullptr, 16) & 0xFF);
    if (character != '\0') {
      result += character;
    } else {
      result += source.substr(at, escapeLength);
    }
    at += escapeLength;
  }
  return KYRString(std::string_view(result));
}
