// What an import has lost is counted only when a rule would have helped.
#include "host/LossSurvey.h"

#include <chrono>
#include <cstdio>
#include <thread>

#include "foundation/MemoryAtEnd.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "tests/convert/ImportedModel.h"
#include "xmi/DispatchRows.h"
#include "xmi/XMIParser.h"

namespace {

struct Surveyed {
  // An import that is watched, and what is said of it. `saved` is what the import is said to have saved.
  explicit Surveyed(const std::string& text, const SavedModelCounts& saved = {}) : file(text) {
    DispatchRows::resetForTests();
    {
      const XmlRewriting rewriting(file.file(), survey);
      RecordingLog log;
      XMIParser(&log).parse(file.file());
    }
    DispatchRows::resetForTests();
    loss = survey.compare(file.file(), saved, false);
  }
  TemporaryFile file;
  LossSurvey survey{"shop.xmi", false};
  std::optional<LossSurvey::Loss> loss;
};

const std::string twoClasses =
    element("Class", "xmi:id='c' name='C'", "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'/>") +
    element("Class", "xmi:id='d' name='D'");

TEST(LossSurvey, NothingIsSaidOfAFileThatNoRuleChanges) {
  // Not even when less was saved than it holds: that has other reasons.
  EXPECT_FALSE(Surveyed(xmi(twoClasses)).loss.has_value());
}

TEST(LossSurvey, WhatARuleCuresIsCountedWithItsReason) {
  SavedModelCounts saved;
  saved.classes = 1;
  const Surveyed surveyed(
      xmi("<nestedPackage xmi:type='uml:Package' xmi:id='p' name='P'>" + twoClasses + "</nestedPackage>"),
      saved);
  ASSERT_TRUE(surveyed.loss.has_value());
  EXPECT_EQ(surveyed.loss->classes, 1U);
  EXPECT_EQ(surveyed.loss->attributes, 1U);
  EXPECT_EQ(surveyed.loss->associations, 0U);
  EXPECT_EQ(surveyed.loss->reasons, "models in the model or misplaced contents of packages");
}

TEST(LossSurvey, ARuleThatCuresNothingIsNotMentioned) {
  SavedModelCounts saved;
  saved.classes = 2;
  saved.attributes = 1;
  EXPECT_FALSE(
      Surveyed(xmi(twoClasses + "<packagedElement xmi:type='uml:Comment'/>"), saved).loss.has_value());
}

TEST(LossSurvey, ALargeFileIsLookedAtWhileTheImportGoesOn) {
  std::string classes;
  for (int i = 0; i < 11000; ++i)
    classes += element("Class", "xmi:id='c" + std::to_string(i) + "' name='C" + std::to_string(i) + "'");
  SavedModelCounts saved;
  saved.classes = 1000;
  const Surveyed surveyed(
      xmi("<nestedPackage xmi:type='uml:Package' xmi:id='p' name='P'>" + classes + "</nestedPackage>"),
      saved);
  ASSERT_TRUE(surveyed.loss.has_value());
  EXPECT_EQ(surveyed.loss->classes, 10000U);
}

// The document of a file that a survey has been given, and that nobody else holds.
std::weak_ptr<const XmlDocument> watchedDocument(LossSurvey& survey, const TemporaryFile& file) {
  const std::shared_ptr<const XmlDocument> document = readXmlFile(file.file(), nullptr, false);
  survey.rewrite(document);
  return document;
}

// It takes as much memory as the file, and the import is not over yet.
TEST(LossSurvey, TheDocumentIsLetGoWhenTheRulesAreThrough) {
  for (const int classes : {2, 11000}) {  // on the calling thread, and on another one
    std::string xml;
    for (int i = 0; i < classes; ++i) xml += element("Class", "xmi:id='c" + std::to_string(i) + "' name='C'");
    const TemporaryFile file(xmi(xml));
    LossSurvey survey("shop.xmi", false);
    const std::weak_ptr<const XmlDocument> document = watchedDocument(survey, file);
    for (int i = 0; !document.expired() && i < 5000; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    EXPECT_TRUE(document.expired()) << classes;
    EXPECT_FALSE(survey.compare(file.file(), {}, false).has_value());
  }
}

TEST(LossSurvey, TheDocumentStaysForAnImportThatReadsItsFileAgain) {
  const TemporaryFile file(xmi(twoClasses));
  LossSurvey survey("shop.xmi", true);
  const std::weak_ptr<const XmlDocument> document = watchedDocument(survey, file);
  ASSERT_FALSE(document.expired());
  EXPECT_EQ(readXmlFile(file.file(), nullptr, false), document.lock());
}

// What a rule would cure is read once more later on, which takes memory; that tells that the rules were run.
TEST(LossSurvey, ADocumentThatIsReadAgainIsNotLookedAtAgain) {
  const TemporaryFile file(xmi("<nestedPackage xmi:id='p'>" + twoClasses + "</nestedPackage>"));
  const auto document = readXmlFile(file.file(), nullptr, false);
  LossSurvey survey("shop.xmi", false);
  MemoryAtEnd::leaveToSystem(true);
  EXPECT_EQ(survey.rewrite(document), document);
  EXPECT_FALSE(MemoryAtEnd::isLeftToSystem());
  MemoryAtEnd::needMemory(false);
  EXPECT_EQ(survey.rewrite(document), document);
  EXPECT_TRUE(MemoryAtEnd::isLeftToSystem());
  MemoryAtEnd::leaveToSystem(false);
}

TEST(LossSurvey, AFileThatIsGoneMeanwhileTakesNothingFromTheImport) {
  LossSurvey survey("shop.xmi", false);
  TemporaryFile file(xmi("<nestedPackage xmi:id='p'>" + twoClasses + "</nestedPackage>"));
  {
    const XmlRewriting rewriting(file.file(), survey);
    RecordingLog log;
    XMIParser(&log).parse(file.file());
  }
  std::remove(file.path.c_str());
  EXPECT_FALSE(survey.compare(file.file(), {}, false).has_value());
}

TEST(LossSurvey, SaysNothingOfAFileThatItHasNotSeen) {
  LossSurvey survey("shop.xmi", false);
  EXPECT_FALSE(survey.compare(KYRFile("none"), {}, false).has_value());
}

}  // namespace
