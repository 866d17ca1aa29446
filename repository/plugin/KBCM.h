// KBCM: the messages that bridges of all kinds share.
#pragma once

#include "foundation/KYRString.h"
#include "foundation/KYRTextLiteral.h"

class KYR_EXPORT KBCM {
 public:
  KBCM() = delete;

  /// A message with two arguments. Its identifier is its code.
  class KYR_EXPORT MessageInstance_String_String : public KYRMessageLiteral {
   public:
    MessageInstance_String_String(int number, const char* text, const char* levelName);
    ~MessageInstance_String_String() override;
    KYRString toString(const KYRString& first, const KYRString& second) const;
    /// The code in square brackets, a blank, and the text.
    KYRString getMessage(const KYRString& first, const KYRString& second) const;
    /// Raises a KYRException with `getMessage` as its text.
    [[noreturn]] void throwException(const KYRString& first, const KYRString& second) const;
  };

  /// {0}: the bridge, {1}: the operation.
  static MessageInstance_String_String UNSUPPORTED_BRIDGE_OPERATION;
};
