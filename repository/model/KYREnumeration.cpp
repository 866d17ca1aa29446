// The refusal of numbers that an enumeration does not know.
#include "repository/model/KYREnumeration.h"

#include "repository/KYRRepositoryMessages.h"

void raiseInvalidEnumeration(const char* enumeration, int value) {
  KYRRepositoryMessages::VALUE_OUT_OF_RANGE.throwException(KYRString(enumeration), KYRString(value));
}
