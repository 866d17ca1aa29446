// Attributes and operations as lines of text.
#include "repository/drawing/DrawnTexts.h"

#include "repository/model/KYRArgument.h"
#include "repository/model/KYRType.h"

namespace {

constexpr std::size_t longestText = 400;

char signOf(const KYRVisibilityType& visibility) {
  switch (static_cast<int>(visibility)) {
    case KYRVisibilityType::protected_:
      return '#';
    case KYRVisibilityType::private_:
      return '-';
    case KYRVisibilityType::package:
      return '~';
    default:
      return '+';
  }
}

void append(std::string& text, const KYRString& part) {
  if (text.size() <= longestText) text += part.view().substr(0, longestText + 1);
}

void appendType(std::string& text, const KYRType* type) {
  if (type == nullptr || type->getName().isEmpty()) return;
  text += ": ";
  append(text, type->getName());
}

}  // namespace

std::string DrawnTexts::shorten(std::string text) {
  if (text.size() <= longestText) return text;
  std::size_t end = longestText;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;  // inside a character
  text.resize(end);
  return text + "\xE2\x80\xA6";
}

std::string DrawnTexts::nameOf(const KYRObject& object) {
  std::string text;
  append(text, object.getName());
  return shorten(std::move(text));
}

std::string DrawnTexts::attribute(const KYRAttribute& attribute, bool withType) {
  std::string text(1, signOf(attribute.visibility));
  if (attribute.isDerived) text += '/';
  append(text, attribute.getName());
  if (withType) appendType(text, attribute.type);
  if (!attribute.initialValue.isEmpty()) {
    text += " = ";
    append(text, attribute.initialValue);
  }
  return shorten(std::move(text));
}

std::string DrawnTexts::operation(const KYROperation& operation) {
  std::string text(1, signOf(operation.visibility));
  append(text, operation.getName());
  text += '(';
  bool isFirst = true;
  for (const KYRArgument* argument : operation.arguments) {
    if (text.size() > longestText) break;
    if (argument->direction == KYRArgumentType::return_) continue;
    if (!isFirst) text += ", ";
    isFirst = false;
    append(text, argument->getName());
    appendType(text, argument->type);
  }
  text += ')';
  appendType(text, operation.returnType);
  return shorten(std::move(text));
}
