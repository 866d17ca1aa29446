// KYRException: the one exception of the system. Raised by value, caught by reference.
#pragma once

#include <exception>

#include "foundation/KYRString.h"

class KYR_EXPORT KYRException : public std::exception {
 public:
  KYRException(const KYRString& message, const KYRString& stackTrace);
  KYRException(const KYRException& other);
  KYRException& operator=(const KYRException& other) = default;
  ~KYRException() override;
  /// What happened: "[CODE] text" when it comes from a catalogue.
  const KYRString& getMessage() const noexcept { return message_; }
  const KYRString& getStackTrace() const noexcept { return stackTrace_; }
  const char* what() const noexcept override { return message_.getCharacters(); }

 private:
  KYRString message_;
  KYRString stackTrace_;
};

/// The current call stack as text, one frame a line; empty where none can be had.
KYR_EXPORT KYRString buildStackTrace();
