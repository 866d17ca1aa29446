// KYRDate: US Pacific time without the machine's help, and ISO 8601 in both directions.
#include "foundation/KYRDate.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

TEST(KYRDate, IsoTimestampsOfKnownTimes) {
  struct Row {
    std::int64_t time;
    const char* expected;
  };
  const Row rows[] = {{0, "1970-01-01T00:00:00Z"},
                      {-1, "1969-12-31T23:59:59Z"},
                      {951782400, "2000-02-29T00:00:00Z"},
                      {1767225600, "2026-01-01T00:00:00Z"},
                      {2147483648, "2038-01-19T03:14:08Z"},
                      {-2203891200, "1900-03-01T00:00:00Z"},  // no leap day in 1900
                      {-62135596800, "0001-01-01T00:00:00Z"},
                      {253402300799, "9999-12-31T23:59:59Z"}};
  for (const Row& row : rows) {
    EXPECT_EQ(KYRDate(row.time).getIsoTimestamp().view(), row.expected);
    EXPECT_EQ(KYRDate(row.time).getTime(), row.time);
    std::int64_t time = 0;
    EXPECT_TRUE(KYRDate::parseIsoTimestamp(row.expected, time));
    EXPECT_EQ(time, row.time);
  }
}

TEST(KYRDate, PacificTimeSwitchesOnTheSecondSundayOfMarchAndTheFirstOfNovember) {
  struct Row {
    const char* utc;
    const char* expected;
  };
  const Row rows[] = {{"2025-01-15T12:00:00Z", "2025-01-15 04:00:00 PST"},
                      {"2025-07-15T12:00:00Z", "2025-07-15 05:00:00 PDT"},
                      {"2026-01-01T00:00:00Z", "2025-12-31 16:00:00 PST"},
                      {"2025-03-09T09:59:59Z", "2025-03-09 01:59:59 PST"},
                      {"2025-03-09T10:00:00Z", "2025-03-09 03:00:00 PDT"},
                      {"2025-11-02T08:59:59Z", "2025-11-02 01:59:59 PDT"},
                      {"2025-11-02T09:00:00Z", "2025-11-02 01:00:00 PST"},
                      // March 1 and November 1 are Sundays: March 8 and November 1
                      {"2026-03-08T09:59:59Z", "2026-03-08 01:59:59 PST"},
                      {"2026-03-08T10:00:00Z", "2026-03-08 03:00:00 PDT"},
                      {"2026-11-01T08:59:59Z", "2026-11-01 01:59:59 PDT"},
                      {"2026-11-01T09:00:00Z", "2026-11-01 01:00:00 PST"},
                      // March 1 and November 1 are Mondays: the latest possible days
                      {"2027-03-14T09:59:59Z", "2027-03-14 01:59:59 PST"},
                      {"2027-03-14T10:00:00Z", "2027-03-14 03:00:00 PDT"},
                      {"2027-11-07T08:59:59Z", "2027-11-07 01:59:59 PDT"},
                      {"2027-11-07T09:00:00Z", "2027-11-07 01:00:00 PST"},
                      {"2028-03-12T10:00:00Z", "2028-03-12 03:00:00 PDT"},  // a leap year
                      {"1970-01-01T00:00:00Z", "1969-12-31 16:00:00 PST"},
                      {"1969-07-20T20:17:40Z", "1969-07-20 13:17:40 PDT"}};
  for (const Row& row : rows) {
    std::int64_t time = 0;
    ASSERT_TRUE(KYRDate::parseIsoTimestamp(row.utc, time)) << row.utc;
    EXPECT_EQ(KYRDate(time).getPstTimestamp().view(), row.expected);
  }
}

TEST(KYRDate, TimesOutsideFourDigitYearsSaturate) {
  EXPECT_EQ(KYRDate(least).getIsoTimestamp().view(), "0000-01-01T00:00:00Z");
  EXPECT_EQ(KYRDate(most).getIsoTimestamp().view(), "9999-12-31T23:59:59Z");
  EXPECT_EQ(KYRDate(least).getPstTimestamp().view(), "0000-01-01 00:00:00 PST");
  EXPECT_EQ(KYRDate(most).getPstTimestamp().view(), "9999-12-31 15:59:59 PST");
  EXPECT_EQ(KYRDate(most).getTime(), most);
}

TEST(KYRDate, IsoTimesAreReadWithZoneOffsetOrAsADate) {
  struct Row {
    const char* text;
    std::int64_t expected;
  };
  const Row rows[] = {{"2026-01-01T00:00:00Z", 1767225600},
                      {"2026-01-01", 1767225600},
                      {"2026-01-01T02:00:00+02:00", 1767225600},
                      {"2025-12-31T16:00:00-08:00", 1767225600},
                      {"2026-01-01T05:30:00+05:30", 1767225600},
                      {"2026-01-01T00:00:00+00:00", 1767225600},
                      {"2024-02-29", 1709164800},
                      {"2000-02-29T23:59:59Z", 951868799},
                      {"1969-12-31T23:59:59Z", -1}};
  for (const Row& row : rows) {
    std::int64_t time = 7;
    EXPECT_TRUE(KYRDate::parseIsoTimestamp(row.text, time)) << row.text;
    EXPECT_EQ(time, row.expected) << row.text;
  }
}

TEST(KYRDate, WhatIsNoIsoTimeIsRefusedAndChangesNothing) {
  const char* const texts[] = {"",
                               "2026",
                               "2026-01",
                               "2026-1-1",
                               "2026-13-01",
                               "2026-00-01",
                               "2026-01-00",
                               "2026-01-32",
                               "2026-04-31",
                               "2025-02-29",
                               "1900-02-29",
                               "2026/01/01",
                               "2026-01-01T",
                               "2026-01-01T00:00Z",
                               "2026-01-01T00:00:00",
                               "2026-01-01 00:00:00Z",
                               "2026-01-01t00:00:00z",
                               "2026-01-01T24:00:00Z",
                               "2026-01-01T00:60:00Z",
                               "2026-01-01T00:00:60Z",
                               "2026-01-01T00:00:00.5Z",
                               "2026-01-01T00:00:00+2:00",
                               "2026-01-01T00:00:00+0200",
                               "2026-01-01T00:00:00+24:00",
                               "2026-01-01T00:00:00+02:60",
                               "2026-01-01T00:00:00ZZ",
                               "2026-01-01T00:00:00Z ",
                               " 2026-01-01",
                               "+026-01-01",
                               "-001-01-01",
                               "02026-01-01",
                               "2026-01-01Z"};
  for (const char* text : texts) {
    std::int64_t time = 7;
    EXPECT_FALSE(KYRDate::parseIsoTimestamp(text, time)) << text;
    EXPECT_EQ(time, 7) << text;
  }
}

TEST(KYRDate, EveryDayOfFourCenturiesGoesThereAndBack) {
  constexpr std::int64_t day = 86400;
  std::int64_t time = 0;
  ASSERT_TRUE(KYRDate::parseIsoTimestamp("1800-01-01", time));
  KYRString last;
  for (int i = 0; i < 146097; ++i, time += day) {
    const KYRString text = KYRDate(time + i % day).getIsoTimestamp();
    std::int64_t back = 0;
    ASSERT_TRUE(KYRDate::parseIsoTimestamp(text, back)) << text.getCharacters();
    ASSERT_EQ(back, time + i % day);
    ASSERT_GT(text.view(), last.view());
    last = text;
  }
}

}  // namespace
