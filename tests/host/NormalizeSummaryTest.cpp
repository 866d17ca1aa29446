// What the step has done, in words and as JSON.
#include "host/NormalizeSummary.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingLog.h"

namespace {

NormalizeReport reportOf(std::initializer_list<NormalizeRule> rules) {
  NormalizeReport report;
  for (const NormalizeRule rule : rules) report.note(rule, rule != NormalizeRule::declaredType);
  return report;
}

TEST(NormalizeSummary, ListsTheRulesThatHaveChangedSomethingInTheirOrder) {
  EXPECT_EQ(NormalizeSummary::describe(NormalizeReport()), "");
  EXPECT_EQ(NormalizeSummary::describe(reportOf({NormalizeRule::roots, NormalizeRule::prefixes,
                                                 NormalizeRule::roots, NormalizeRule::declaredType})),
            "prefixes 1, roots 2, elements without a type 1");
}

TEST(NormalizeSummary, ReasonsAreThoseThatMatter) {
  EXPECT_EQ(NormalizeSummary::describeReasons(reportOf({NormalizeRule::declaredType, NormalizeRule::roots})),
            "several roots side by side");
}

TEST(NormalizeSummary, EveryRuleHasWordsOfItsOwn) {
  NormalizeReport report;
  for (std::size_t rule = 0; rule < NormalizeReport::ruleCount; ++rule)
    report.note(static_cast<NormalizeRule>(rule));
  const std::string words = NormalizeSummary::describe(report);
  EXPECT_EQ(std::count(words.begin(), words.end(), ','),
            static_cast<std::ptrdiff_t>(NormalizeReport::ruleCount) - 1);
  JsonOut json;
  NormalizeSummary::toJson(json, report);
  const std::string line(json.endLine());
  EXPECT_EQ(std::count(line.begin(), line.end(), ':'),
            static_cast<std::ptrdiff_t>(NormalizeReport::ruleCount));
  EXPECT_EQ(line.find("{\"prefixes\":1,\"typeAttributes\":1,"), 0U);
}

TEST(NormalizeSummary, AToolsNameAndRingsAreToldInTheLog) {
  RecordingLog log;
  NormalizeReport report;
  NormalizeSummary::logNotes(log, report);
  EXPECT_TRUE(log.lines.empty());
  report.note(NormalizeRule::documentation);
  report.attributeRings = 2;
  NormalizeSummary::logNotes(log, report);
  EXPECT_EQ(log.countOf("KYRHOST_W0041 "), 1U);
  EXPECT_EQ(log.lines.back(),
            "KYRHOST_W0042 Elements whose attributes hide each other in any order, and stay as they are: 2");
}

}  // namespace
