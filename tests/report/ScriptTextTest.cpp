// JSON in a script element: nothing in it ends the element, and it stays the same JSON.
#include "report/ScriptText.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include "tests/report/TextSink.h"

namespace {

std::string written(std::initializer_list<std::string_view> blocks) {
  TextSink sink;
  ScriptText text(sink);
  for (const std::string_view block : blocks) text.write(block);
  return sink.text;
}

}  // namespace

TEST(ScriptText, TheStartOfATagIsAnEscape) {
  EXPECT_EQ(written({R"(["</script><!-- <script>"])"}), R"(["\u003c/script>\u003c!-- \u003cscript>"])");
}

TEST(ScriptText, BlocksMayBeCutAnywhere) {
  EXPECT_EQ(written({"[\"<", "/scr", "ipt>\"", "", "]"}), "[\"\\u003c/script>\"]");
}

TEST(ScriptText, AReaderOfTheJsonFindsTheSameText) {
  const std::string json = written({R"(["a < b <<c> \\< \"<"])"});
  EXPECT_EQ(json.find('<'), std::string::npos);
  rapidjson::Document document;
  document.Parse(json.c_str());
  ASSERT_FALSE(document.HasParseError());
  EXPECT_STREQ(document[0].GetString(), "a < b <<c> \\< \"<");
}
