// Lines of a log file and the messages in them.
#include "host/LogLines.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "tests/support/TemporaryFile.h"

namespace {

struct Row {
  const char* line;
  LogLines::Message expected;
};

TEST(LogLines, BothFormatsOfTheLogAreUnderstood) {
  const Row rows[] = {
      {"STATUS KBI_UML2XMI_S0017 Parsing file 'a'", {"STATUS", "KBI_UML2XMI_S0017", "Parsing file 'a'"}},
      {"WARNING KYRHOST_W0037 x", {"WARNING", "KYRHOST_W0037", "x"}},
      {"[KBI_UML2XMI_F0008] This file ends.", {"FATAL", "KBI_UML2XMI_F0008", "This file ends."}},
      {R"({"level":"WARNING","code":"C","text":"a\u0022b"})", {"WARNING", "C", "a\"b"}},
      {R"({"level":1,"text":["x"]})", {"", "", ""}},
      {R"({"level":"WARNING")", {"", "", R"({"level":"WARNING")"}},
      {"STATUS", {"STATUS", "", ""}},
      {"[", {"", "", "["}},
      {"[KYR", {"FATAL", "KYR", ""}},
      {"anything else", {"", "", "anything else"}},
  };
  for (const Row& row : rows) {
    const LogLines::Message read = LogLines::read(row.line);
    EXPECT_EQ(read.level, row.expected.level) << row.line;
    EXPECT_EQ(read.code, row.expected.code) << row.line;
    EXPECT_EQ(read.text, row.expected.text) << row.line;
  }
}

TEST(LogLines, DeepJsonIsNoDanger) {
  const std::string line = "{\"a\":" + std::string(200'000, '[');
  EXPECT_EQ(LogLines::read(line).text, line);
}

TEST(LogLines, AFileIsReadByLinesAndEmptyOnesAreNone) {
  const TemporaryFile file("STATUS A b\n\nWARNING C d\r e\nlast");
  const std::vector<LogLines::Message> messages = LogLines::readFile(KYRFile(KYRString(file.path)));
  ASSERT_EQ(messages.size(), 3U);
  EXPECT_EQ(messages[1].text, "d\r e");
  EXPECT_EQ(messages[2].text, "last");
  EXPECT_THROW(LogLines::readFile(KYRFile("gone.log")), KYRException);
}

}  // namespace
