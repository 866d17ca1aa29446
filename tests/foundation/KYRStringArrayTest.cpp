// KYRStringArray: a list of texts, owned or borrowed.
#include "foundation/KYRStringArray.h"

#include <gtest/gtest.h>

#include "tests/foundation/AllocationProbe.h"

namespace {

TEST(KYRStringArray, GivesTextsByPositionAndTheEmptyTextBeyond) {
  KYRStringArray texts;
  texts.add("xmi:id");
  texts.add("");
  EXPECT_EQ(texts.getCount(), 2U);
  EXPECT_EQ(texts.get(0).view(), "xmi:id");
  EXPECT_EQ(texts.get(1).view(), "");
  EXPECT_EQ(texts.get(2).view(), "");
  EXPECT_EQ(texts.get(4294967295U).view(), "");
}

TEST(KYRStringArray, NamesAndValuesInTurnGiveAnEvenNumberOfEntries) {
  const char* const attributes[][2] = {{"xmi:id", "a"}, {"name", ""}, {"xmi:type", "uml:Class"}};
  KYRStringArray texts;
  for (const auto& attribute : attributes) {
    for (const char* text : attribute) texts.add(text);
  }
  EXPECT_EQ(texts.getCount() % 2, 0U);
  EXPECT_EQ(texts.get(3).view(), "");
  EXPECT_EQ(texts.get(5).view(), "uml:Class");
}

TEST(KYRStringArray, AnAddedTextIsACopyAndABorrowedOneAView) {
  KYRString text("name");
  KYRStringArray texts;
  texts.add(text);
  texts.addBorrowed(text);
  EXPECT_EQ(texts.get(1).getCharacters(), text.getCharacters());
  EXPECT_NE(texts.get(0).getCharacters(), text.getCharacters());
  EXPECT_FALSE(texts.get(0).isBorrowed());
}

TEST(KYRStringArray, ACopyOwnsAllItsTexts) {
  KYRString text("name");
  KYRStringArray texts;
  texts.addBorrowed(text);
  const KYRStringArray copy(texts);
  text = "changed";
  EXPECT_EQ(copy.get(0).view(), "name");
}

TEST(KYRStringArray, ClearingKeepsTheRoom) {
  const KYRString text("a text of some length");
  KYRStringArray texts;
  for (int i = 0; i < 10; ++i) texts.addBorrowed(text);
  texts.clear();
  EXPECT_EQ(texts.getCount(), 0U);
  const AllocationProbe probe;
  for (int i = 0; i < 10; ++i) texts.addBorrowed(text);
  EXPECT_EQ(probe.getCount(), 0U);
}

}  // namespace
