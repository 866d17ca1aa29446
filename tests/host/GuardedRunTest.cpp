// What becomes of what a command raises.
#include "host/GuardedRun.h"

#include <gtest/gtest.h>

#include <fstream>
#include <new>
#include <sstream>
#include <stdexcept>

#include "foundation/KYRException.h"
#include "host/HostLog.h"
#include "tests/support/TemporaryFile.h"

namespace {

struct Outcome {
  int code;
  std::string said;
};

Outcome runWith(const std::function<int()>& work) {
  const TemporaryFile file("");
  HostLog log(HostLog::Format::text, KYRLogLevel::fatal - 1);
  log.openFile(file.path);
  const int code = runGuarded(log, 9, work);
  std::ifstream in(file.path);
  std::stringstream text;
  text << in.rdbuf();
  return {code, text.str()};
}

TEST(GuardedRun, TheCodeOfTheWorkIsTheResult) {
  const Outcome outcome = runWith([] { return 3; });
  EXPECT_EQ(outcome.code, 3);
  EXPECT_EQ(outcome.said, "");
}

TEST(GuardedRun, EveryExceptionBecomesAMessageAndTheCodeOfFailure) {
  struct Case {
    std::function<int()> work;
    const char* said;
  };
  const Case cases[] = {
      {[]() -> int { throw KYRException("[X_F0001] no", ""); }, "[X_F0001] no\n"},
      {[]() -> int { throw std::bad_alloc(); }, "[KYRHOST_F0014] There is not enough memory\n"},
      {[]() -> int { throw std::runtime_error("odd"); },
       "[KYRHOST_F0015] An unexpected error occurred: odd\n"},
      {[]() -> int { throw 5; }, "[KYRHOST_F0015] An unexpected error occurred: \n"},
  };
  for (const Case& test : cases) {
    const Outcome outcome = runWith(test.work);
    EXPECT_EQ(outcome.code, 9);
    EXPECT_EQ(outcome.said, test.said);
  }
}

}  // namespace
