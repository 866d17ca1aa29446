// The lines of the log, in both forms.
#include "host/HostLog.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "foundation/KYRException.h"
#include "tests/support/TemporaryFile.h"

namespace {

constexpr int nothingShown = 0;

std::string contentOf(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path).rdbuf();
  return content.str();
}

KYRLogEvent event(const char* text, int level) { return KYRLogEvent(text, "KYRTEST_X0001", level, ""); }

TEST(HostLog, WritesLinesOfTextWithLevelAndCode) {
  const TemporaryFile file("old");
  HostLog log(HostLog::Format::text, nothingShown);
  log.openFile(file.path);
  log.log(event("a status", KYRLogLevel::status));
  log.log(event("a\nwarning", KYRLogLevel::warning));
  log.fail("[KYRTEST_F0002] the end");
  log.finish();
  EXPECT_EQ(contentOf(file.path),
            "STATUS KYRTEST_X0001 a status\n"
            "WARNING KYRTEST_X0001 a\\nwarning\n"
            "[KYRTEST_F0002] the end\n");
}

TEST(HostLog, WritesLinesOfJsonWithTheCodeOfAnExceptionApart) {
  const TemporaryFile file("");
  HostLog log(HostLog::Format::json, nothingShown);
  log.openFile(file.path);
  log.log(event("\"quoted\"", KYRLogLevel::warning));
  log.fail("[KYRTEST_F0002] the end] of it");
  log.fail("no code");
  log.fail("[half a code");
  EXPECT_EQ(contentOf(file.path), R"({"level":"WARNING","code":"KYRTEST_X0001","text":"\"quoted\""})"
                                  "\n"
                                  R"({"level":"FATAL","code":"KYRTEST_F0002","text":"the end] of it"})"
                                  "\n"
                                  R"({"level":"FATAL","code":"","text":"no code"})"
                                  "\n"
                                  R"({"level":"FATAL","code":"","text":"[half a code"})"
                                  "\n");
}

TEST(HostLog, ShowsTheTerminalOnlyWhatIsWanted) {
  HostLog log(HostLog::Format::text, KYRLogLevel::warning);
  testing::internal::CaptureStderr();
  log.log(event("a status", KYRLogLevel::status));
  log.log(event("a warning", KYRLogLevel::warning));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "WARNING KYRTEST_X0001 a warning\n");
}

TEST(HostLog, PassesOnWhatAnotherLogHasMade) {
  const TemporaryFile file("");
  HostLog log(HostLog::Format::text, nothingShown);
  log.openFile(file.path);
  testing::internal::CaptureStderr();
  log.passOn("shown\n", "logged\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "shown\n");
  EXPECT_EQ(contentOf(file.path), "logged\n");
}

TEST(HostLog, WritesToAFileThatIsOpenAlready) {
  const TemporaryFile file("");
  {
    HostLog log(HostLog::Format::text, nothingShown);
    log.openFile(::open(file.path.c_str(), O_WRONLY));
    log.fail("the end");
  }
  EXPECT_EQ(contentOf(file.path), "the end\n");
}

TEST(HostLog, AFileThatCannotBeOpenedIsAnExceptionWithPathAndReason) {
  HostLog log(HostLog::Format::text, nothingShown);
  try {
    log.openFile("/tmp/no/such/folder/a.log");
    FAIL() << "nothing was raised";
  } catch (const KYRException& exception) {
    EXPECT_STREQ(exception.what(),
                 "[KYRHOST_F0011] The log file '/tmp/no/such/folder/a.log' cannot be opened: No such file or "
                 "directory");
  }
}

}  // namespace
