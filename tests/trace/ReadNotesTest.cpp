// Notes of a read, as the reader gives them.
#include "trace/ReadNotes.h"

#include <gtest/gtest.h>

#include "uml/UMLClasses.h"

namespace {

using Result = ReadObserver::LinkResult;

TEST(ReadNotes, ElementsHaveTheirLines) {
  ReadNotes notes;
  UMLClass first("a", "");
  UMLClass third("b", "");
  third.readingNumber = 2;
  notes.element(first, 7);
  notes.element(third, 900);
  EXPECT_EQ(notes.lineOf(first), 7U);
  EXPECT_EQ(notes.lineOf(third), 900U);
  third.readingNumber = 3;
  EXPECT_EQ(notes.lineOf(third), 0U);
}

TEST(ReadNotes, ReferencesThatWereLinkedAreNotKept) {
  ReadNotes notes;
  notes.link("a", "b", 0, Result::linked);
  notes.link("", "b", 0, Result::firstMissing);
  notes.link("a", "", 0, Result::secondMissing);
  EXPECT_TRUE(notes.getReferences().empty());
}

TEST(ReadNotes, OfTwoIdsTheOneThatIsThereRefersToTheOther) {
  ReadNotes notes;
  notes.link("gone", "a", 0, Result::firstMissing);
  notes.link("b", "lost", 0, Result::secondMissing);
  notes.link("b", "later", 0, Result::secondMissing);
  notes.link("c", "d", 0, Result::wrongClass);
  ASSERT_EQ(notes.getReferences().size(), 4U);
  EXPECT_EQ(notes.missingIdOf("a").view(), "gone");
  EXPECT_EQ(notes.missingIdOf("b").view(), "lost");
  EXPECT_TRUE(notes.missingIdOf("c").isEmpty());
  EXPECT_TRUE(notes.getReferences()[3].isFound);
  EXPECT_EQ(notes.getReferences()[3].to.view(), "d");
}

TEST(ReadNotes, NamesAreCountedInOrderOfFirstAppearance) {
  ReadNotes notes;
  notes.unknownTag("z", "line 12, column 1");
  notes.unknownTag("a", "line 13, column 40");
  notes.unknownTag("z", "line 14, column 1");
  notes.skippedType("uml:Z", "");
  ASSERT_EQ(notes.getUnknownTags().size(), 2U);
  EXPECT_EQ(notes.getUnknownTags()[0].name, "z");
  EXPECT_EQ(notes.getUnknownTags()[0].count, 2U);
  EXPECT_EQ(notes.getUnknownTags()[0].firstLine, 12U);
  EXPECT_EQ(notes.getUnknownTags()[1].firstLine, 13U);
  ASSERT_EQ(notes.getSkippedTypes().size(), 1U);
  EXPECT_EQ(notes.getSkippedTypes()[0].firstLine, 0U);
}

}  // namespace
