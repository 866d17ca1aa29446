// The two roads of a text: nearly all are plain and go to RapidJSON as they are.
#include "host/JsonOut.h"

#include <algorithm>
#include <string>

#include "host/TerminalText.h"

namespace {

// RapidJSON escapes quotes, backslashes and the first 32 characters itself.
bool isPlain(std::string_view value) noexcept {
  return std::all_of(value.begin(), value.end(), [](char c) { return static_cast<unsigned char>(c) < 0x7F; });
}

}  // namespace

JsonOut& JsonOut::text(std::string_view value) {
  if (isPlain(value))
    return done(writer_.String(value.data(), static_cast<rapidjson::SizeType>(value.size())));
  escapedText(value);
  return *this;
}

void JsonOut::escapedText(std::string_view value) {
  std::string raw = "\"";
  while (!value.empty()) {
    const TerminalText::Character character = TerminalText::take(value);
    if (character.code == TerminalText::invalid) {
      raw += "\xEF\xBF\xBD";
    } else if (character.code == '\n') {
      raw += "\\n";
    } else if (TerminalText::isObeyed(character.code)) {
      raw += "\\u";
      TerminalText::appendHex(raw, character.code, 4);
    } else {
      if (character.code == '"' || character.code == '\\') raw += '\\';
      raw += character.bytes;
    }
  }
  raw += '"';
  writer_.RawValue(raw.data(), raw.size(), rapidjson::kStringType);
}

std::string_view JsonOut::endLine() {
  buffer_.Put('\n');
  return {buffer_.GetString(), buffer_.GetSize()};
}

void JsonOut::beginLine() {
  buffer_.Clear();
  writer_.Reset(buffer_);
}
