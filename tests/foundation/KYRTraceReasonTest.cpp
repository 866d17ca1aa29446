// The table of reasons, and its page in docs/.
#include "foundation/KYRTraceReason.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>

namespace {

std::string contentOf(const char* path) {
  std::ifstream file(path);
  std::ostringstream page;
  page << file.rdbuf();
  return page.str();
}

TEST(KYRTraceReason, ARowStandsAtThePositionOfItsReason) {
  for (std::size_t i = 0; i < KYRTraceReasons::count; ++i) {
    EXPECT_EQ(KYRTraceReasons::get(static_cast<KYRTraceReason>(i)).reason, static_cast<KYRTraceReason>(i));
  }
}

TEST(KYRTraceReason, CodesAreWordsJoinedByDashesAndEachIsOne) {
  const KYRTraceReasons& catalogue = KYRTraceReasons::initLiterals();
  for (std::size_t i = 0; i < KYRTraceReasons::count; ++i) {
    const KYRTraceReasons::Row& row = KYRTraceReasons::get(static_cast<KYRTraceReason>(i));
    EXPECT_EQ(catalogue.KYRTextLiteralsCollection::get(row.getIdentifier()), &row);
    for (const char letter : row.getIdentifier().view())
      EXPECT_TRUE(letter == '-' || (letter >= 'a' && letter <= 'z'));
  }
}

TEST(KYRTraceReason, ASentenceNamesWhatElsePlaysAPart) {
  const KYRTraceReasons::Row& row = KYRTraceReasons::get(KYRTraceReason::ownerNotConverted);
  EXPECT_EQ(row.tell("UMLActor '{0}'").view(), "It stands in UMLActor '{0}', which has no object.");
  EXPECT_STREQ(KYRTraceReasons::getName(row.outcome), "lost");
}

TEST(KYRTraceReason, ThePageInTheDocumentationShowsTheTable) {
  std::string table;
  for (std::size_t i = 0; i < KYRTraceReasons::count; ++i) {
    const KYRTraceReasons::Row& row = KYRTraceReasons::get(static_cast<KYRTraceReason>(i));
    std::string sentence(row.getText().view());
    const std::size_t place = sentence.find("{0}");
    if (place != std::string::npos) sentence.replace(place, 3, "...");
    table += std::string("| `") + row.getIdentifier().getCharacters() + "` | " +
             KYRTraceReasons::getName(row.outcome) + " | " + sentence + " |\n";
  }
  EXPECT_NE(contentOf(KYR_SOURCE_DIR "/docs/trace.md").find("|---|---|---|\n" + table + "\n"),
            std::string::npos)
      << "docs/trace.md is to show\n"
      << table;
}

}  // namespace
