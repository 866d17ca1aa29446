// Log events and levels.
#include "foundation/KYRLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(KYRLogLevel, NamesAndNumbersBelongTogether) {
  struct Row {
    const char* name;
    int level;
  };
  const Row rows[] = {
      {"FATAL", KYRLogLevel::fatal}, {"WARNING", KYRLogLevel::warning}, {"STATUS", KYRLogLevel::status}};
  for (const Row& row : rows) {
    EXPECT_EQ(KYRLogLevel::fromName(row.name), row.level);
    EXPECT_STREQ(KYRLogLevel::toName(row.level), row.name);
  }
  EXPECT_LT(KYRLogLevel::fatal, KYRLogLevel::warning);
  EXPECT_LT(KYRLogLevel::warning, KYRLogLevel::status);
}

TEST(KYRLogLevel, AnUnknownNameIsAStatus) {
  for (const char* name : {"", "fatal", "DEBUG"}) EXPECT_EQ(KYRLogLevel::fromName(name), KYRLogLevel::status);
}

TEST(KYRLogLevel, ANumberBetweenTwoLevelsHasTheNameOfTheLessGraveOne) {
  EXPECT_STREQ(KYRLogLevel::toName(0), "FATAL");
  EXPECT_STREQ(KYRLogLevel::toName(2), "WARNING");
  EXPECT_STREQ(KYRLogLevel::toName(4), "STATUS");
  EXPECT_STREQ(KYRLogLevel::toName(99), "STATUS");
}

struct Recorder : KYRLog {
  void log(const KYRLogEvent& event) override { events.push_back(event); }
  std::vector<KYRLogEvent> events;
};

TEST(KYRLog, ReceivesTextAndCodeApart) {
  Recorder recorder;
  KYRLog& log = recorder;
  KYRString text("Parsing");
  log.log(KYRLogEvent(text, "LIB_S0001", KYRLogLevel::status, ""));
  text = "changed";
  ASSERT_EQ(recorder.events.size(), 1U);
  EXPECT_EQ(recorder.events[0].getText().view(), "Parsing");
  EXPECT_EQ(recorder.events[0].getCode().view(), "LIB_S0001");
  EXPECT_EQ(recorder.events[0].getLevel(), KYRLogLevel::status);
  EXPECT_TRUE(recorder.events[0].getDetail().isEmpty());
}

}  // namespace
