// KYRStringHashSet: a set of texts.
#include "foundation/KYRStringHashSet.h"

#include <gtest/gtest.h>

namespace {

TEST(KYRStringHashSet, RefusesATextThatIsPresent) {
  for (const int capacity : {-1, 0, 1, 100}) {
    KYRStringHashSet texts(capacity);
    EXPECT_FALSE(texts.contains("tag"));
    EXPECT_TRUE(texts.add("tag"));
    EXPECT_FALSE(texts.add("tag"));
    EXPECT_TRUE(texts.contains("tag"));
  }
}

TEST(KYRStringHashSet, ComparesExactly) {
  KYRStringHashSet texts(0);
  EXPECT_TRUE(texts.add("tag"));
  EXPECT_TRUE(texts.add("Tag"));
  EXPECT_TRUE(texts.add(""));
  EXPECT_FALSE(texts.add(""));
  EXPECT_FALSE(texts.contains("tags"));
}

TEST(KYRStringHashSet, KeepsItsOwnCopyOfATextUntilCleared) {
  KYRStringHashSet texts(0);
  {
    KYRString text("tag");
    texts.add(KYRString::borrowed(text.view()));
    text = "gone";
  }
  EXPECT_TRUE(texts.contains("tag"));
  texts.clear();
  EXPECT_FALSE(texts.contains("tag"));
  EXPECT_TRUE(texts.add("tag"));
}

}  // namespace
