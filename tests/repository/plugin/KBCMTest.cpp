// The messages that all bridges share.
#include "repository/plugin/KBCM.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/KYRException.h"

TEST(KBCM, EachMessageHasItsCodeAndText) {
  const struct {
    const KBCM::MessageInstance_String_String& message;
    const char* expected;
  } rows[] = {
      {KBCM::UNSUPPORTED_BRIDGE_OPERATION,
       "[KBCM_F0001] The bridge 'one' does not support the operation 'two'"},
  };
  for (const auto& row : rows) {
    EXPECT_STREQ(row.message.getMessage("one", "two").getCharacters(), row.expected);
    EXPECT_EQ(std::string("[") + row.message.getIdentifier().getCharacters() + "]",
              std::string(row.expected).substr(0, 12));
    try {
      row.message.throwException("one", "two");
    } catch (const KYRException& exception) {
      EXPECT_STREQ(exception.what(), row.expected);
    }
  }
}
