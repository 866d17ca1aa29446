// Splitting references and decoding their file part.
#include "extension/HrefText.h"

#include <gtest/gtest.h>

namespace {

TEST(DecodePercent, ReadsTwoDigitsAsTheyGo) {
  struct Row {
    const char* encoded;
    const char* decoded;
  };
  for (const Row& row : std::initializer_list<Row>{{"a%20b", "a b"},
                                                   {"%41%62", "Ab"},
                                                   {"%1G", "\x01"},
                                                   {"%zz", "%zz"},
                                                   {"%00x", "%00x"},
                                                   {"ab%2", "ab"},
                                                   {"ab%", "ab"},
                                                   {"% 5", "\x05"},
                                                   {"%+5", "\x05"},
                                                   {"%-1", "\xFF"},
                                                   {"%C3%A9", "\xC3\xA9"},
                                                   {"%%20", "%%20"},
                                                   {"", ""}}) {
    EXPECT_EQ(decodePercent(row.encoded).view(), row.decoded) << row.encoded;
  }
}

TEST(HrefText, SplitsAtTheFirstHash) {
  const HrefText href("my%20file.xml#a#b");
  EXPECT_EQ(href.filePart.view(), "my file.xml");
  EXPECT_EQ(href.fragment.view(), "a#b");
}

TEST(HrefText, WithoutAHashBothAreTheWhole) {
  const HrefText href("a%20b");
  EXPECT_EQ(href.filePart.view(), "a b");
  EXPECT_EQ(href.fragment.view(), "a%20b");
}

}  // namespace
