// The page as a document: what stands in it, that its policy fits it, and that no text of a model leaves its
// place. What the page does in a browser is tested in a browser (check_page.mjs).
#include "report/ReportWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include "report/ReportPage.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRProjection.h"
#include "tests/report/TextSink.h"
#include "tests/repository/FullModel.h"

namespace {

std::string pageOf(const KYRStoreModel& model, const ReportAdditions& additions = {}) {
  TextSink sink;
  writeReport(model, additions, sink);
  return sink.text;
}

// What stands between the start tag, given up to its end, and the next end tag.
std::string contentOf(const std::string& page, const std::string& startTag) {
  const std::size_t start = page.find(startTag);
  if (start == std::string::npos) return "(missing)";
  const std::size_t from = start + startTag.size();
  return page.substr(from, page.find("</", from) - from);
}

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::unique_ptr<KYRStoreModel> modelNamed(const char* name) {
  auto model = std::make_unique<KYRStoreModel>();
  model->setName(name);
  auto* const package = new KYRDesignPackage();
  package->setName(name);
  model->addDesignPackage(package);
  auto* const class_ = new KYRClass();
  class_->setName(name);
  class_->description = name;
  package->addNamespaceElementUniqueName(class_, '/');
  auto* const diagram = new KYRClassDiagram();
  diagram->setName(name);
  package->addDiagram(diagram);
  auto* const shape = new KYRProjection();
  shape->addDiagram(diagram);
  shape->addSubjectModelObject(class_);
  return model;
}

const char* const hostileNames[] = {
    "</script><script>alert(1)</script>",
    "<!--<script>",
    "</SCRIPT\n><img src=x onerror=alert(1)>",
    "\"'`${alert(1)}&lt;/script&gt;]]>",
    ("\xE2\x80\xAE"
     "evil\xE2\x81\xA6\xEF\xBB\xBF"),
    "not \xFF\xC0\xAF UTF-8",
};

}  // namespace

TEST(ReportWriter, TheModelInThePageIsJson) {
  const std::string json =
      contentOf(pageOf(*makeFullModel()), "<script type=\"application/json\" id=\"model\">");
  rapidjson::Document document;
  document.Parse(json.c_str());
  ASSERT_FALSE(document.HasParseError());
  EXPECT_STREQ(document["model"]["name"].GetString(), "Shop");
}

TEST(ReportWriter, APictureForEachDiagramWithBoxesThatAreLinks) {
  const auto model = modelNamed("Order");
  const std::string page = pageOf(*model);
  EXPECT_EQ(countOf(page, "<script type=\"image/svg+xml\""), 1U);
  const std::size_t picture = page.find("<script type=\"image/svg+xml\" id=\"diagram-4\">");
  ASSERT_NE(picture, std::string::npos);
  EXPECT_NE(page.find("<a xlink:href=\"#id/3\">", picture), std::string::npos);
  EXPECT_NE(page.find("\"id\":3,\"class\":\"KYRClass\""), std::string::npos);
}

TEST(ReportWriter, AModelWithoutContentIsAPageToo) {
  const KYRStoreModel model;
  const std::string page = pageOf(model);
  EXPECT_EQ(page.rfind("<!doctype html>", 0), 0U);
  EXPECT_NE(page.find("</html>"), std::string::npos);
}

TEST(ReportWriter, TheSameModelGivesTheSameBytes) {
  EXPECT_EQ(pageOf(*makeFullModel()), pageOf(*makeFullModel()));
}

TEST(ReportWriter, NothingInThePageComesFromElsewhere) {
  const std::string page = pageOf(*modelNamed("Order"));
  // Names of XML vocabularies are no addresses to load from.
  EXPECT_EQ(countOf(page, "://"),
            countOf(page, "http://www.w3.org/2000/svg") + countOf(page, "http://www.w3.org/1999/xlink"));
  EXPECT_EQ(countOf(page, "url("), countOf(page, "url(#clip"));
  for (const char* const part :
       {" src=", "@import", "<link", "<img", "<iframe", "fetch(", "XMLHttpRequest"}) {
    EXPECT_EQ(countOf(page, part), 0U) << part;
  }
}

TEST(ReportWriter, ThePolicyAllowsTheOwnStyleAndScriptOnly) {
  const std::string page = pageOf(*modelNamed("Order"));
  const std::string start = "<meta http-equiv=\"Content-Security-Policy\" content=\"";
  const std::size_t at = page.find(start);
  ASSERT_LT(at, page.find("<style>"));
  const std::size_t from = at + start.size();
  EXPECT_THAT(
      page.substr(from, page.find('"', from) - from),
      testing::MatchesRegex("default-src 'none'; script-src 'sha256-[A-Za-z0-9+/]{43}='; "
                            "style-src 'sha256-[A-Za-z0-9+/]{43}='; base-uri 'none'; form-action 'none'"));
}

TEST(ReportWriter, TheStyleAndTheScriptStandInThePageAsTheyWereHashed) {
  const std::string page = pageOf(*modelNamed("Order"));
  EXPECT_EQ(contentOf(page, "<style>"), ReportPage::style);
  std::string script;
  for (const std::string_view piece : ReportPage::script) script += piece;
  EXPECT_EQ(script.rfind("\"use strict\";\n", 0), 0U);
  EXPECT_EQ(contentOf(page, "<script>"), script);
}

TEST(ReportWriter, NoNameEndsTheElementInWhichItStands) {
  const std::string harmless = pageOf(*modelNamed("Order"));
  for (const char* const name : hostileNames) {
    const std::string page = pageOf(*modelNamed(name));
    for (const char* const part : {"</script", "</SCRIPT", "<script", "<!--", "<img"}) {
      EXPECT_EQ(countOf(page, part), countOf(harmless, part)) << name << ": " << part;
    }
    const std::string json = contentOf(page, "<script type=\"application/json\" id=\"model\">");
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag>(json.c_str());
    EXPECT_FALSE(document.HasParseError()) << name;
  }
}

TEST(ReportWriter, MessagesOfTheImportStandInAnElementOfTheirOwn) {
  const std::string start = "<script type=\"application/json\" id=\"messages\">";
  const auto model = modelNamed("Shop");
  EXPECT_EQ(countOf(pageOf(*model), "id=\"messages\""), 0U);
  const std::string page = pageOf(*model, {R"([["WARNING","X_W0001","a </script>"]])", {}});
  EXPECT_EQ(contentOf(page, start), R"([["WARNING","X_W0001","a \u003c/script>"]])");
}

TEST(ReportWriter, PicturesThatAreLaidOutStandInAnElementOfTheirOwn) {
  const auto model = modelNamed("Shop");
  EXPECT_EQ(countOf(pageOf(*model), "id=\"pictures\""), 0U);
  const std::string page = pageOf(*model, {{}, R"({"3":"wEoD"})"});
  EXPECT_EQ(contentOf(page, "<script type=\"application/json\" id=\"pictures\">"), R"({"3":"wEoD"})");
}
