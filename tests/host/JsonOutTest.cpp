// The JSON that the command writes.
#include "host/JsonOut.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string written(std::string_view text) {
  JsonOut json;
  json.text(text);
  return std::string(json.endLine());
}

TEST(JsonOut, WritesOneDocumentALine) {
  JsonOut json;
  json.beginObject();
  json.key("name").text("Order").key("count").number(18446744073709551615U).key("less").integer(-1);
  json.key("list").beginArray().boolean(true).null().real(1.5).endArray();
  json.endObject();
  EXPECT_EQ(json.endLine(),
            R"({"name":"Order","count":18446744073709551615,"less":-1,"list":[true,null,1.5]})"
            "\n");
  json.beginLine();
  json.beginArray().endArray();
  EXPECT_EQ(json.endLine(), "[]\n");
}

TEST(JsonOut, EscapesQuotesControlsAndWhatATerminalObeys) {
  struct Case {
    std::string text;
    const char* expected;
  };
  const Case cases[] = {
      {"plain", "\"plain\"\n"},
      {"a\"b\\c\nd", "\"a\\\"b\\\\c\\nd\"\n"},
      {"ä\"b\\c\nd", "\"ä\\\"b\\\\c\\nd\"\n"},
      {"\x7f", "\"\\u007f\"\n"},
      {"\x1b ä", "\"\\u001b ä\"\n"},
      {"\xC2\x9B \xE2\x80\xAE", "\"\\u009b \\u202e\"\n"},
  };
  for (const Case& test : cases) EXPECT_EQ(written(test.text), test.expected);
}

TEST(JsonOut, PutsAReplacementForBytesThatAreNoUtf8) {
  EXPECT_EQ(written("caf\xE9."), "\"caf\xEF\xBF\xBD.\"\n");
}

TEST(JsonOut, GivesSecondsWithAtMostThreeDecimals) {
  JsonOut json;
  json.beginArray().real(0.1234567).real(12).endArray();
  EXPECT_EQ(json.endLine(), "[0.123,12.0]\n");
}

}  // namespace
