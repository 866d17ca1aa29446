// What the literals of the catalogue do. Each way to a text goes through `initLiterals` first, so that
// a literal in use is always part of a built catalogue.
#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRException.h"
#include "foundation/KYRLog.h"

namespace {

constexpr const char* catalogueName = "KBI_UML2XMI";

KYRString withCode(const KYRString& code, const KYRString& text) { return "[" + code + "] " + text; }

void send(KYRLog& log, const KYRMessageLiteral& message, const KYRString& text) {
  log.log(KYRLogEvent(text, message.getCode(), message.getLevel(), KYRString::getEmptyString()));
}

KYRStringArray arrayOf(const KYRString& first) {
  KYRStringArray arguments;
  arguments.add(first);
  return arguments;
}

KYRStringArray arrayOf(const KYRString& first, const KYRString& second) {
  KYRStringArray arguments = arrayOf(first);
  arguments.add(second);
  return arguments;
}

}  // namespace

KBI_UML2XMI::TextInstance::TextInstance(const char* identifier, const char* text)
    : KYRParameterizedTextLiteral(identifier, text) {}

KBI_UML2XMI::TextInstance::~TextInstance() = default;

const KYRString& KBI_UML2XMI::TextInstance::toString() const {
  initLiterals();
  return getText();
}

KBI_UML2XMI::ParameterInstance::ParameterInstance(const char* identifier, const char* displayName,
                                                  OptionType type, const char* description,
                                                  const KYRTextLiteral* enumeration,
                                                  const KYRTextLiteral* defaultValue)
    : KYRBridgeOptionLiteral(identifier, displayName, type, description, enumeration, defaultValue) {}

KBI_UML2XMI::ParameterInstance::~ParameterInstance() = default;

// A message is known to the catalogue by its code.
KBI_UML2XMI::MessageInstance::MessageInstance(int number, const char* text, const char* levelName)
    : KYRMessageLiteral(number, text, levelName) {
  setCode(catalogueName, levelName);
}

KBI_UML2XMI::MessageInstance::~MessageInstance() = default;

KYRString KBI_UML2XMI::MessageInstance::toString() const {
  initLiterals();
  return getText();
}

KYRString KBI_UML2XMI::MessageInstance::getMessage() const { return withCode(code, toString()); }

void KBI_UML2XMI::MessageInstance::log(KYRLog& log) const { send(log, *this, toString()); }

void KBI_UML2XMI::MessageInstance::throwException() const {
  throw KYRException(getMessage(), buildStackTrace());
}

KBI_UML2XMI::MessageInstance_String::MessageInstance_String(int number, const char* text,
                                                            const char* levelName)
    : KYRMessageLiteral(number, text, levelName) {
  setCode(catalogueName, levelName);
}

KBI_UML2XMI::MessageInstance_String::~MessageInstance_String() = default;

KYRString KBI_UML2XMI::MessageInstance_String::toString(const KYRString& first) const {
  initLiterals();
  return createParameterizedText(arrayOf(first));
}

KYRString KBI_UML2XMI::MessageInstance_String::getMessage(const KYRString& first) const {
  return withCode(code, toString(first));
}

void KBI_UML2XMI::MessageInstance_String::log(KYRLog& log, const KYRString& first) const {
  send(log, *this, toString(first));
}

void KBI_UML2XMI::MessageInstance_String::throwException(const KYRString& first) const {
  throw KYRException(getMessage(first), buildStackTrace());
}

KBI_UML2XMI::MessageInstance_String_String::MessageInstance_String_String(int number, const char* text,
                                                                          const char* levelName)
    : KYRMessageLiteral(number, text, levelName) {
  setCode(catalogueName, levelName);
}

KBI_UML2XMI::MessageInstance_String_String::~MessageInstance_String_String() = default;

KYRString KBI_UML2XMI::MessageInstance_String_String::toString(const KYRString& first,
                                                               const KYRString& second) const {
  initLiterals();
  return createParameterizedText(arrayOf(first, second));
}

KYRString KBI_UML2XMI::MessageInstance_String_String::getMessage(const KYRString& first,
                                                                 const KYRString& second) const {
  return withCode(code, toString(first, second));
}

void KBI_UML2XMI::MessageInstance_String_String::log(KYRLog& log, const KYRString& first,
                                                     const KYRString& second) const {
  send(log, *this, toString(first, second));
}

void KBI_UML2XMI::MessageInstance_String_String::throwException(const KYRString& first,
                                                                const KYRString& second) const {
  throw KYRException(getMessage(first, second), buildStackTrace());
}
