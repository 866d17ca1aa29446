// KYRException and the stack trace it carries.
#include "foundation/KYRException.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/foundation/AllocationProbe.h"

namespace {

TEST(KYRException, CarriesMessageAndStackTrace) {
  try {
    throw KYRException("[CODE] what happened", "frames");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "[CODE] what happened");
    const auto& raised = dynamic_cast<const KYRException&>(error);
    EXPECT_EQ(raised.getMessage().view(), "[CODE] what happened");
    EXPECT_EQ(raised.getStackTrace().view(), "frames");
  }
}

TEST(KYRException, ACopyOwnsItsTexts) {
  char message[] = "message";
  const KYRException original(KYRString::borrowed(message), KYRString());
  KYRException copy(original);
  KYRException assigned("other", "trace");
  assigned = copy;
  message[0] = 'X';
  EXPECT_EQ(copy.getMessage().view(), "message");
  EXPECT_EQ(assigned.getMessage().view(), "message");
  EXPECT_TRUE(assigned.getStackTrace().isEmpty());
}

int depth(int levels, KYRString& trace) {
  if (levels > 0) return 1 + depth(levels - 1, trace);
  trace = buildStackTrace();
  return 0;
}

TEST(BuildStackTrace, GivesALineForEachFrameAndABoundedNumberOfThem) {
  KYRString trace;
  EXPECT_EQ(depth(100, trace), 100);
  const auto view = trace.view();
  const auto lines = std::count(view.begin(), view.end(), '\n');
  EXPECT_GE(lines, 1);
  EXPECT_LE(lines, 32);
  EXPECT_EQ(view.back(), '\n');
  EXPECT_LE(view.size(), 32U * 512U);
}

TEST(BuildStackTrace, IsEmptyWhenMemoryIsShort) {
  buildStackTrace();  // what the first call loads is there now
  for (std::size_t failure = 0; failure < 3; ++failure) {
    const AllocationFailure failing(failure);
    EXPECT_TRUE(buildStackTrace().isEmpty());
  }
}

}  // namespace
