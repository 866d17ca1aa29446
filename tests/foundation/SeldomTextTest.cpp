// SeldomText: reads as a text and costs one pointer while it is empty.
#include "foundation/SeldomText.h"

#include <gtest/gtest.h>

#include <new>
#include <utility>

#include "foundation/ShownText.h"
#include "tests/foundation/AllocationProbe.h"

namespace {

TEST(SeldomText, CostsOnePointerWhileItIsEmpty) {
  static_assert(sizeof(SeldomText) == sizeof(void*));
  const AllocationProbe probe;
  SeldomText text;
  const SeldomText copy(text);
  text = KYRString();
  EXPECT_TRUE(copy.isEmpty());
  EXPECT_EQ(text.getLength(), 0U);
  EXPECT_EQ(text.view(), "");
  EXPECT_STREQ(text.getCharacters(), "");
  EXPECT_EQ(&text.get(), &KYRString::getEmptyString());
  EXPECT_EQ(probe.getCount(), 0U);
}

TEST(SeldomText, ReadsAsTheTextThatItTookOn) {
  SeldomText text;
  text = "first";
  const KYRString& read = text;
  EXPECT_EQ(read, KYRString("first"));
  EXPECT_EQ(text.getLength(), 5U);
  EXPECT_FALSE(text.isEmpty());
  text = KYRString("another");
  EXPECT_EQ(text.view(), "another");
  EXPECT_STREQ(text.getCharacters(), "another");
  text = KYRString();
  EXPECT_TRUE(text.isEmpty());
}

TEST(SeldomText, WhatIsMovedInStaysBorrowedAndACopyOwns) {
  const KYRString characters("shown");
  SeldomText text;
  KYRString shown;
  shown.borrow(characters);
  text = shownText(shown);
  EXPECT_TRUE(text.isBorrowed());
  EXPECT_EQ(text.getCharacters(), characters.getCharacters());
  const SeldomText copy(text);
  EXPECT_FALSE(copy.isBorrowed());
  EXPECT_EQ(copy.view(), "shown");
}

TEST(SeldomText, AssignsAndMovesLikeAText) {
  SeldomText first;
  first = "one";
  SeldomText second;
  second = first;
  first = "two";
  EXPECT_EQ(second.view(), "one");
  const SeldomText& itself = second;
  second = itself;
  EXPECT_EQ(second.view(), "one");
  SeldomText third(std::move(first));
  EXPECT_EQ(third.view(), "two");
  second = std::move(third);
  EXPECT_EQ(second.view(), "two");
}

TEST(SeldomText, WithoutMemoryTheFormerTextStays) {
  SeldomText text;
  KYRString long_("a text");
  {
    const AllocationFailure failing(0);
    EXPECT_THROW(text = std::move(long_), std::bad_alloc);
  }
  EXPECT_TRUE(text.isEmpty());
  text = "before";
  {
    const AllocationFailure failing(0);
    EXPECT_THROW(text = "behind", std::bad_alloc);
  }
  EXPECT_EQ(text.view(), "before");
}

}  // namespace
