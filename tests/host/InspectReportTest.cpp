// What the report of an inspection counts.
#include "host/InspectReport.h"

#include <gtest/gtest.h>

namespace {

using Result = ReadObserver::LinkResult;

TEST(InspectReport, CountsNamesInOrderOfFirstAppearance) {
  InspectReport report;
  report.unknownTag("b", "line 1, column 1");
  report.unknownTag("a", "line 2, column 1");
  report.unknownTag("b", "line 3, column 1");
  report.skippedType("uml:State", "line 4, column 1");
  ASSERT_EQ(report.getUnknownTags().size(), 2U);
  EXPECT_EQ(report.getUnknownTags()[0].name, "b");
  EXPECT_EQ(report.getUnknownTags()[0].count, 2U);
  EXPECT_EQ(report.getUnknownTags()[0].firstPosition, KYRString("line 1, column 1"));
  EXPECT_EQ(report.getUnknownTags()[1].name, "a");
  ASSERT_EQ(report.getSkippedTypes().size(), 1U);
  EXPECT_EQ(report.getSkippedTypes()[0].name, "uml:State");
}

TEST(InspectReport, TellsApartWhatBecameOfReferences) {
  InspectReport report;
  report.link("a", "b", 0, Result::linked);
  report.link("gone", "b", 1, Result::firstMissing);
  report.link("a", "away", 2, Result::secondMissing);
  report.link("a", "", 2, Result::secondMissing);
  report.link("a", "b", 3, Result::wrongClass);
  EXPECT_EQ(report.getResolved(), 1U);
  EXPECT_EQ(report.getUnresolved(), 3U);
  EXPECT_EQ(report.getWithoutId(), 1U);
  EXPECT_EQ(report.getUnfitting(), 1U);
  const std::vector<KYRString> expected = {"gone", "away"};
  EXPECT_EQ(report.getFirstMissingIds(), expected);
}

TEST(InspectReport, KeepsTheFirstMissingIdsAndNoMore) {
  InspectReport report;
  for (int i = 0; i < 100; ++i) report.link("a", KYRString(i), 0, Result::secondMissing);
  EXPECT_EQ(report.getFirstMissingIds().size(), InspectReport::listedIds);
  EXPECT_EQ(report.getFirstMissingIds().back(), KYRString("9"));
  EXPECT_EQ(report.getUnresolved(), 100U);
}

}  // namespace
