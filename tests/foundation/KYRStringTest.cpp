// KYRString: values, borrowed views, searching, numbers and hashes.
#include "foundation/KYRString.h"

#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/foundation/AllocationProbe.h"

namespace {

std::string str(const KYRString& text) { return std::string(text.view()); }

TEST(KYRString, ConstructorsGiveTheTextOfTheirArgument) {
  EXPECT_EQ(str(KYRString()), "");
  EXPECT_EQ(str(KYRString("")), "");
  EXPECT_EQ(str(KYRString("Order")), "Order");
  EXPECT_EQ(str(KYRString(static_cast<const char*>(nullptr))), "");
  EXPECT_EQ(str(KYRString(std::string_view("Orders", 5))), "Order");
  EXPECT_EQ(str(KYRString('x')), "x");
  EXPECT_EQ(str(KYRString(0)), "0");
  EXPECT_EQ(str(KYRString(-42)), "-42");
  EXPECT_EQ(str(KYRString(INT_MAX)), "2147483647");
  EXPECT_EQ(str(KYRString(INT_MIN)), "-2147483648");
}

TEST(KYRString, CharactersEndInAZeroAndAreNeverNull) {
  EXPECT_STREQ(KYRString().getCharacters(), "");
  EXPECT_STREQ(KYRString(std::string_view("abcdef", 3)).getCharacters(), "abc");
  EXPECT_EQ(KYRString("abc").getLength(), 3U);
}

TEST(KYRString, AnEmbeddedZeroCountsAsACharacter) {
  const KYRString text(std::string_view("a\0b", 3));
  EXPECT_EQ(text.getLength(), 3U);
  EXPECT_FALSE(text == KYRString("a"));
}

TEST(KYRString, EmptyAndBorrowedTextsAllocateNothing) {
  const std::string kept(1000, 'k');
  const AllocationProbe probe;
  KYRString empty;
  KYRString fromEmptyLiteral("");
  KYRString copyOfEmpty(empty);
  KYRString borrowed = KYRString::borrowed(kept);
  KYRString moved(std::move(borrowed));
  KYRString another;
  another.borrow(moved);
  another += "";
  EXPECT_EQ(probe.getCount(), 0U);
  EXPECT_EQ(another.getLength(), 1000U);
}

TEST(KYRString, ABorrowedTextShowsTheForeignCharacters) {
  const char characters[] = "foreign";
  const KYRString text = KYRString::borrowed(characters);
  EXPECT_TRUE(text.isBorrowed());
  EXPECT_EQ(text.getCharacters(), characters);
  EXPECT_FALSE(KYRString("own").isBorrowed());
  EXPECT_FALSE(KYRString::borrowed("").isBorrowed());
}

TEST(KYRString, CopiesOfABorrowedTextOwnTheirCharacters) {
  char characters[] = "before";
  const KYRString text = KYRString::borrowed(characters);
  const KYRString copy(text);
  KYRString assigned("something");
  assigned = text;
  KYRString appended = KYRString::borrowed(characters);
  appended += "!";
  characters[0] = 'X';
  EXPECT_EQ(str(text), "Xefore");
  EXPECT_EQ(str(copy), "before");
  EXPECT_FALSE(copy.isBorrowed());
  EXPECT_EQ(str(assigned), "before");
  EXPECT_EQ(str(appended), "before!");
  EXPECT_FALSE(appended.isBorrowed());
}

TEST(KYRString, AMoveKeepsWhatTheSourceWasAndEmptiesIt) {
  const char characters[] = "foreign";
  KYRString borrowed = KYRString::borrowed(characters);
  KYRString first(std::move(borrowed));
  EXPECT_TRUE(first.isBorrowed());
  EXPECT_TRUE(borrowed.isEmpty());  // NOLINT(bugprone-use-after-move): that is what is tested
  KYRString owned("own");
  const char* const buffer = owned.getCharacters();
  first = std::move(owned);
  EXPECT_EQ(first.getCharacters(), buffer);
  EXPECT_TRUE(owned.isEmpty());  // NOLINT(bugprone-use-after-move)
  KYRString& self = first;
  first = std::move(self);
  EXPECT_EQ(str(first), "own");
}

TEST(KYRString, BorrowingReplacesTheValueAndBorrowingFromItselfChangesNothing) {
  const KYRString source("source");
  KYRString text("a longer value than that");
  text.borrow(source);
  EXPECT_TRUE(text.isBorrowed());
  EXPECT_EQ(text.getCharacters(), source.getCharacters());
  text.borrow(KYRString::getEmptyString());
  EXPECT_TRUE(text.isEmpty());
  EXPECT_FALSE(text.isBorrowed());
  KYRString own("own");
  const KYRString& self = own;
  own.borrow(self);
  EXPECT_EQ(str(own), "own");
  EXPECT_FALSE(own.isBorrowed());
}

TEST(KYRStringDeathTest, BorrowingCharactersWithoutAZeroBehindThemIsAProgrammingError) {
  EXPECT_DEBUG_DEATH(KYRString::borrowed(std::string_view("abcd", 2)), "");
}

TEST(KYRString, ATextBeyondTheLimitRaisesBeforeAnyCharacterIsRead) {
  const std::string_view tooLong("x", std::size_t{UINT_MAX});
  KYRString text("kept");
  EXPECT_THROW(KYRString{tooLong}, std::length_error);
  EXPECT_THROW(KYRString::borrowed(tooLong), std::length_error);
  EXPECT_THROW(text += tooLong, std::length_error);
  EXPECT_THROW(text += std::string_view("x", std::size_t{UINT_MAX} - 4), std::length_error);
  EXPECT_EQ(str(text), "kept");
}

TEST(KYRString, InitTakesALengthOrGoesToTheZero) {
  struct Row {
    const char* text;
    int length;
    const char* expected;
  };
  const Row rows[] = {{"abcdef", 3, "abc"},     {"abcdef", 0, ""},        {"abcdef", 6, "abcdef"},
                      {"abcdef", -1, "abcdef"}, {"abcdef", -7, "abcdef"}, {"", -1, ""},
                      {nullptr, -1, ""},        {nullptr, 3, ""}};
  for (const Row& row : rows) {
    KYRString text("old value");
    text.init(row.text, row.length);
    EXPECT_EQ(str(text), row.expected) << row.length;
  }
}

TEST(KYRString, InitFromAPieceOfItselfWorks) {
  KYRString text("0123456789");
  text.init(text.getCharacters() + 3, 4);
  EXPECT_EQ(str(text), "3456");
  text.init(text.getCharacters(), -1);
  EXPECT_EQ(str(text), "3456");
  text = text.getCharacters() + 2;
  EXPECT_EQ(str(text), "56");
}

TEST(KYRString, AssigningToItselfChangesNothing) {
  KYRString text("value");
  const KYRString& self = text;
  text = self;
  EXPECT_EQ(str(text), "value");
}

TEST(KYRString, AppendingToItselfDoublesTheText) {
  KYRString text("ab");
  std::string expected = "ab";
  for (int i = 0; i < 10; ++i) {
    text += text;
    expected += expected;
    ASSERT_EQ(str(text), expected);
  }
  text += text.view().substr(1, 3);
  EXPECT_EQ(str(text), expected + "bab");
  KYRString borrowed = KYRString::borrowed("xy");
  borrowed += borrowed;
  EXPECT_EQ(str(borrowed), "xyxy");
}

TEST(KYRString, CollectingATextPieceByPieceAllocatesSeldom) {
  KYRString text;
  const AllocationProbe probe;
  for (int i = 0; i < 1000000; ++i) text += "x";
  EXPECT_EQ(text.getLength(), 1000000U);
  EXPECT_LT(probe.getCount(), 30U);
}

TEST(KYRString, AFailedAppendOrAssignmentLeavesTheText) {
  KYRString text("kept");
  const KYRString longer(std::string_view(std::string(100, 'l')));
  {
    const AllocationFailure failing(0);
    EXPECT_THROW(text += longer, std::bad_alloc);
    EXPECT_THROW(text = longer, std::bad_alloc);
    EXPECT_THROW(text + longer, std::bad_alloc);
  }
  EXPECT_EQ(str(text), "kept");
}

TEST(KYRString, ConcatenationLeavesItsOperands) {
  const KYRString first("Order");
  EXPECT_EQ(str(first + "/" + KYRString(1)), "Order/1");
  EXPECT_EQ(str(KYRString() + KYRString()), "");
  EXPECT_EQ(str("[" + first), "[Order");
  EXPECT_EQ(str(first), "Order");
}

TEST(KYRString, EmptyEmptiesAndIsNoTest) {
  KYRString text("value");
  text.empty();
  EXPECT_TRUE(text.isEmpty());
  EXPECT_STREQ(text.getCharacters(), "");
  text += "again";
  EXPECT_EQ(str(text), "again");
}

TEST(KYRString, AKeptBufferServesTheNextText) {
  KYRString text(std::string_view(std::string(100, 'a')));
  text.clearKeepingBuffer();
  EXPECT_TRUE(text.isEmpty());
  EXPECT_FALSE(text.isBorrowed());
  EXPECT_STREQ(text.getCharacters(), "");
  const AllocationProbe probe;
  text += "fifty";
  text = KYRString::borrowed("sixty");
  EXPECT_EQ(probe.getCount(), 0U);
  EXPECT_EQ(str(text), "sixty");
  KYRString borrowed = KYRString::borrowed("foreign");
  borrowed.clearKeepingBuffer();
  EXPECT_TRUE(borrowed.isEmpty());
}

TEST(KYRString, TheSharedEmptyTextIsOneObject) {
  EXPECT_TRUE(KYRString::getEmptyString().isEmpty());
  EXPECT_EQ(&KYRString::getEmptyString(), &KYRString::getEmptyString());
}

TEST(KYRString, EqualsIgnoresCaseOnlyWhenAsked) {
  struct Row {
    const char* first;
    const char* second;
    bool exact;
    bool folded;
  };
  const Row rows[] = {{"", "", true, true},
                      {"xmi:Type", "xmi:type", false, true},
                      {"xmi:type", "xmi:type", true, true},
                      {"Type", "Types", false, false},
                      {"AZaz", "azAZ", false, true},
                      {"@", "`", false, false},  // 32 apart as letters of both cases are
                      {"[", "{", false, false},
                      {"\xC3\x84", "\xC3\xA4", false, false}};  // letters beyond ASCII have no case here
  for (const Row& row : rows) {
    EXPECT_EQ(KYRString(row.first).equals(row.second, true), row.exact) << row.first;
    EXPECT_EQ(KYRString(row.first).equals(row.second, false), row.folded) << row.first;
    EXPECT_EQ(KYRString(row.first) == KYRString(row.second), row.exact) << row.first;
    EXPECT_NE(KYRString(row.first) != KYRString(row.second), row.exact) << row.first;
    EXPECT_EQ(equalsIgnoringCase(row.first, row.second), row.folded) << row.first;
  }
}

TEST(KYRString, PrefixAndSuffixTests) {
  struct Row {
    const char* text;
    const char* part;
    bool starts, startsFolded, ends, endsFolded;
  };
  const Row rows[] = {{"uml:Model", "uml:", true, true, false, false},
                      {"uml:Model", "UML:", false, true, false, false},
                      {"file.MDZIP", ".mdzip", false, false, false, true},
                      {"file.mdzip", ".mdzip", false, false, true, true},
                      {"abc", "", true, true, true, true},
                      {"", "", true, true, true, true},
                      {"", "a", false, false, false, false},
                      {"ab", "abc", false, false, false, false},
                      {"abc", "abc", true, true, true, true}};
  for (const Row& row : rows) {
    const KYRString text(row.text);
    EXPECT_EQ(text.startsWith(row.part, true), row.starts) << row.text << " " << row.part;
    EXPECT_EQ(text.startsWith(row.part, false), row.startsFolded) << row.text << " " << row.part;
    EXPECT_EQ(text.endsWith(row.part, true), row.ends) << row.text << " " << row.part;
    EXPECT_EQ(text.endsWith(row.part, false), row.endsFolded) << row.text << " " << row.part;
  }
}

TEST(KYRString, FindGivesTheFirstMatchAtOrBehindAPosition) {
  struct Row {
    const char* text;
    const char* wanted;
    unsigned int from;
    int expected;
  };
  const Row rows[] = {{"a/b/c", "/", 0, 1},       {"a/b/c", "/", 1, 1},     {"a/b/c", "/", 2, 3},
                      {"a/b/c", "/", 4, -1},      {"a/b/c", "x", 0, -1},    {"aaab", "aab", 0, 1},
                      {"abc", "abcd", 0, -1},     {"abc", "", 0, 0},        {"abc", "", 2, 2},
                      {"abc", "", 3, 3},          {"abc", "", 4, -1},       {"", "", 0, 0},
                      {"", "a", 0, -1},           {"abc", "c", 2, 2},       {"abc", "c", 3, -1},
                      {"abc", "a", UINT_MAX, -1}, {"abc", "", UINT_MAX, -1}};
  for (const Row& row : rows) {
    EXPECT_EQ(KYRString(row.text).find(row.wanted, row.from), row.expected)
        << row.text << " " << row.wanted << " " << row.from;
  }
}

TEST(KYRString, ReverseFindGivesTheLastMatchThatStartsAtOrBeforeAPosition) {
  struct Row {
    const char* text;
    const char* wanted;
    unsigned int from;
    int expected;
  };
  const Row rows[] = {{"a/b/c", "/", 4, 3},  {"a/b/c", "/", 3, 3},        {"a/b/c", "/", 2, 1},
                      {"a/b/c", "/", 0, -1}, {"a/b/c", "/", UINT_MAX, 3}, {"a/b/c", "/", 99, 3},
                      {"a/b/c", "x", 9, -1}, {"abab", "ab", 3, 2},        {"abab", "ab", 1, 0},
                      {"abc", "", 1, 1},     {"abc", "", 99, 3},          {"", "", 0, 0},
                      {"", "a", 9, -1},      {"ab", "abc", 9, -1}};
  for (const Row& row : rows) {
    EXPECT_EQ(KYRString(row.text).reverseFind(row.wanted, row.from), row.expected)
        << row.text << " " << row.wanted << " " << row.from;
  }
}

TEST(KYRString, SubstringsStayInsideTheText) {
  constexpr auto minusOne = static_cast<unsigned int>(-1);
  constexpr auto mostNegative = static_cast<unsigned int>(INT_MIN);
  const KYRString text("0123456789");
  struct Row {
    KYRString part;
    const char* expected;
  };
  const Row rows[] = {{text.left(0), ""},
                      {text.left(3), "012"},
                      {text.left(10), "0123456789"},
                      {text.left(11), "0123456789"},
                      {text.left(minusOne), "0123456789"},
                      {text.left(mostNegative), "0123456789"},
                      {text.mid(0), "0123456789"},
                      {text.mid(7), "789"},
                      {text.mid(10), ""},
                      {text.mid(11), ""},
                      {text.mid(minusOne), ""},
                      {text.mid(2, 3), "234"},
                      {text.mid(8, 5), "89"},
                      {text.mid(8, minusOne), "89"},
                      {text.mid(8, mostNegative), "89"},
                      {text.mid(3, 0), ""},
                      {text.mid(minusOne, minusOne), ""},
                      {KYRString().left(minusOne), ""}};
  for (const Row& row : rows) EXPECT_EQ(str(row.part), row.expected);
}

TEST(KYRString, TrimRemovesTheSixWhiteSpacesFromBothEndsOnly) {
  struct Row {
    const char* text;
    const char* expected;
  };
  const Row rows[] = {{"", ""},
                      {"  ", ""},
                      {" \t\n\r\f\v", ""},
                      {"\v\f\r\n\t a b \t\n\r\f\v", "a b"},
                      {"none", "none"},
                      {"\xC2\xA0x", "\xC2\xA0x"}};  // a no-break space is a character
  for (const Row& row : rows) EXPECT_EQ(str(KYRString(row.text).trim()), row.expected);
}

TEST(KYRString, NumbersAreReadAsFarAsTheyGoAndSaturate) {
  struct Row {
    const char* text;
    int expected;
  };
  const Row rows[] = {{"", 0},
                      {"0", 0},
                      {"42", 42},
                      {"-42", -42},
                      {"+7", 7},
                      {" \t\n\v\f\r12", 12},
                      {"12abc", 12},
                      {"12 34", 12},
                      {"abc", 0},
                      {"-", 0},
                      {"+", 0},
                      {"--5", 0},
                      {"+-5", 0},
                      {"- 5", 0},
                      {"*", 0},
                      {"0x10", 0},
                      {"007", 7},
                      {"1.9", 1},
                      {"2147483646", 2147483646},
                      {"2147483647", INT_MAX},
                      {"2147483648", INT_MAX},
                      {"2147483649", INT_MAX},
                      {"4294967296", INT_MAX},
                      {"18446744073709551617", INT_MAX},
                      {"-2147483647", -2147483647},
                      {"-2147483648", INT_MIN},
                      {"-2147483649", INT_MIN},
                      {"-99999999999999999999", INT_MIN},
                      {"000000000000000000000000005", 5}};
  for (const Row& row : rows) {
    EXPECT_EQ(KYRString(row.text).getInt(), row.expected) << row.text;
    EXPECT_EQ(parseInt(row.text), row.expected) << row.text;
  }
}

TEST(KYRString, AMillionDigitsSaturate) {
  EXPECT_EQ(parseInt(std::string(1000000, '9')), INT_MAX);
  EXPECT_EQ(parseInt("-" + std::string(1000000, '9')), INT_MIN);
  EXPECT_EQ(parseInt(std::string(1000000, '0') + "8"), 8);
}

TEST(StringHashCode, IsTheSameForEqualTextsWhereverTheyStand) {
  for (const char* const text : {"", "a", "ab", "xmi", "uml:", "12345", "uml:Class"}) {
    const std::string elsewhere = std::string("before ") + text;
    EXPECT_EQ(stringHashCode(text), stringHashCode(std::string_view(elsewhere).substr(7))) << text;
    EXPECT_EQ(stringHashCode(text), KYRString(text).hashCode()) << text;
  }
}

TEST(StringHashCode, AgreesForAllWaysToAskForIt) {
  std::string text;
  for (int length = 0; length < 70; ++length) {
    const std::string buffer = "?" + text;  // another alignment
    EXPECT_EQ(stringHashCode(text.c_str()), stringHashCode(std::string_view(text)));
    EXPECT_EQ(stringHashCode(buffer.c_str() + 1), KYRString(text.c_str()).hashCode());
    text += static_cast<char>('a' + length % 26);
  }
  EXPECT_EQ(stringHashCode(static_cast<const char*>(nullptr)), stringHashCode(""));
}

TEST(StringHashCode, EveryByteOfEveryLengthTakesPart) {
  for (std::size_t length = 1; length <= 40; ++length) {
    const std::string text(length, 'a');
    std::set<unsigned int> codes{stringHashCode(std::string_view(text))};
    for (std::size_t at = 0; at < length; ++at) {
      std::string changed = text;
      changed[at] = 'b';
      codes.insert(stringHashCode(std::string_view(changed)));
    }
    EXPECT_EQ(codes.size(), length + 1) << length;
  }
}

TEST(StringHashCode, IdsWithALongCommonPrefixHardlyEverMeet) {
  for (const char* prefix :
       {"", "_", "EAID_", "_17_0_2_3_f7102b3_1371654987000_", "EAID_4A1B2C3D_5E6F_4a7b_8C9D_"}) {
    std::set<unsigned int> codes;
    for (int i = 0; i < 100000; ++i) codes.insert((KYRString(prefix) + KYRString(i)).hashCode());
    // Chance makes one or two of 100,000 meet; with a rare seed about twenty do.
    EXPECT_GT(codes.size(), 99900U) << prefix;
  }
}

}  // namespace
