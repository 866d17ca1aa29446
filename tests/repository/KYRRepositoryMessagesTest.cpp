#include "repository/KYRRepositoryMessages.h"

#include <gtest/gtest.h>

namespace {

TEST(KYRRepositoryMessages, StandInTheLibrarysCatalogue) {
  for (const char* code : {"KYRSTD_F0100", "KYRSTD_F0107", "KYRSTD_F0120", "KYRSTD_F0131", "KYRSTD_F0145"}) {
    EXPECT_NE(KYRStdMessages::findTextLiteral(code), nullptr) << code;
  }
}

TEST(KYRRepositoryMessages, CarryCodeAndArguments) {
  EXPECT_EQ(KYRRepositoryMessages::CANNOT_SAVE.getMessage(KYRString("a.json"), KYRString("disk full")),
            "[KYRSTD_F0120] The file 'a.json' cannot be saved: disk full");
  EXPECT_EQ(KYRRepositoryMessages::NO_OBJECT.getMessage(),
            "[KYRSTD_F0101] An object was to be added where there is none");
}

}  // namespace
