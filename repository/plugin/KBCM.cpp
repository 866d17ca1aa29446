// The rows of the catalogue of common bridge messages, and what they do.
#include "repository/plugin/KBCM.h"

#include "foundation/KYRException.h"

KBCM::MessageInstance_String_String KBCM::UNSUPPORTED_BRIDGE_OPERATION(
    1, "The bridge '{0}' does not support the operation '{1}'", "FATAL");

KBCM::MessageInstance_String_String::MessageInstance_String_String(int number, const char* text,
                                                                   const char* levelName)
    : KYRMessageLiteral(number, text, levelName) {
  setCode("KBCM", levelName);
}

KBCM::MessageInstance_String_String::~MessageInstance_String_String() = default;

KYRString KBCM::MessageInstance_String_String::toString(const KYRString& first,
                                                        const KYRString& second) const {
  KYRStringArray arguments;
  arguments.add(first);
  arguments.add(second);
  return createParameterizedText(arguments);
}

KYRString KBCM::MessageInstance_String_String::getMessage(const KYRString& first,
                                                          const KYRString& second) const {
  return "[" + code + "] " + toString(first, second);
}

void KBCM::MessageInstance_String_String::throwException(const KYRString& first,
                                                         const KYRString& second) const {
  throw KYRException(getMessage(first, second), buildStackTrace());
}
