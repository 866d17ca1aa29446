// File names out of names of diagrams. What a shell, another system or a reader of a list could take for
// something else becomes "_"; letters of all languages stay.
#include "host/PictureNames.h"

#include <filesystem>

#include "foundation/KYRString.h"
#include "host/TerminalText.h"

namespace {

constexpr std::size_t longestName = 120;  // bytes; with number and extension far below any limit
constexpr const char* nameOfUnnamed = "diagram";

bool isPlain(char32_t code) {
  if (code >= 0x80) return code != TerminalText::invalid && !TerminalText::isObeyed(code);
  return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9') ||
         code == '-' || code == '.' || code == '_';
}

std::string safeName(std::string_view rest) {
  std::string name;
  while (!rest.empty()) {
    const TerminalText::Character character = TerminalText::take(rest);
    if (name.size() + character.bytes.size() > longestName) break;
    if (isPlain(character.code)) {
      name += character.bytes;
    } else {
      name += '_';
    }
  }
  if (name.empty()) return nameOfUnnamed;
  // Not a hidden file, not an option, not a folder.
  if (name.front() == '.' || name.front() == '-') name.front() = '_';
  return name;
}

std::string folded(std::string name) {
  for (char& character : name) character = foldCase(character);
  return name;
}

}  // namespace

std::string PictureNames::pathFor(std::string_view diagramName) {
  const std::string name = safeName(diagramName);
  std::string candidate = name;
  unsigned int& number = numbers_[folded(name)];
  while (!taken_.insert(folded(candidate)).second) candidate = name + "-" + std::to_string(++number + 1);
  return (std::filesystem::path(folder_) / (candidate + ".svg")).string();
}
