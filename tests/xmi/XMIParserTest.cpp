// The parse as a whole: which row an element gets, skipping, text, unknown tags, the end of a parse.
#include "xmi/XMIParser.h"

#include <algorithm>

#include "tests/xmi/Reading.h"

namespace {

constexpr const char* unknownTagCode = "KBI_UML2XMI_W0001";

TEST(XMIParser, APackageAsRootStandsForTheModel) {
  const Reading reading(
      "<uml:Package xmlns:uml='u' xmlns:xmi='x' xmi:id='p' name='P'>"
      "<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'/></uml:Package>");
  ASSERT_NE(reading.model, nullptr);
  EXPECT_EQ(reading.model->getKind(), UMLModel::kind);
  EXPECT_EQ(reading.model->id.view(), "p");
  EXPECT_EQ(idsOf(reading.model->packagedElement), "c");
}

TEST(XMIParser, APackageTagWithATypeStandsForTheModelToo) {
  const Reading reading("<uml:Package xmlns:uml='u' xmi:type='uml:Package' xmi:id='p' xmlns:xmi='x'/>");
  EXPECT_EQ(reading.model->getKind(), UMLModel::kind);
}

TEST(XMIParser, TheRootRuleHoldsAtAnyDepthAndWhateverTheType) {
  const Reading reading(
      "<xmi:XMI xmlns:uml='u' xmlns:xmi='x'><a><uml:Package xmi:id='p' xmi:type='uml:Class'/></a></xmi:XMI>");
  EXPECT_EQ(reading.model->id.view(), "p");
}

TEST(XMIParser, ALaterPackageTagMatchesNoRowAndIsNotReported) {
  const Reading reading(
      inModel("<uml:Package xmi:id='p'><packagedElement xmi:type='uml:Class' xmi:id='c' name='C'/>"
              "</uml:Package>"));
  EXPECT_EQ(reading.find("p"), nullptr);
  EXPECT_EQ(idsOf(reading.model->packagedElement), "c");
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(XMIParser, AnUnknownTypeIsSkippedWholeWithoutAMessage) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:StateMachine' xmi:id='s'>"
              "<packagedElement xmi:type='uml:Class' xmi:id='inner'/><packagedElement/><strange/>"
              "</packagedElement><packagedElement xmi:type='uml:Class' xmi:id='after'/>"));
  EXPECT_EQ(reading.find("s"), nullptr);
  EXPECT_EQ(reading.find("inner"), nullptr);
  EXPECT_NE(reading.find("after"), nullptr);
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(XMIParser, AnUnknownTypeOnAKnownTagIsSkippedToo) {
  const Reading reading(
      "<xmi:XMI xmlns:xmi='x' xmlns:uml='u'>"
      "<xmi:Documentation xmi:type='xmi:Documentation' exporter='T' exporterVersion='1'/>"
      "<uml:Model xmi:id='m'/></xmi:XMI>");
  EXPECT_TRUE(reading.model->exporter.isEmpty());
}

TEST(XMIParser, TheModelTypeOnAnotherTagLetsTheTagDecide) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Package' xmi:id='p'>"
              "<packagedElement xmi:type='uml:Model' xmi:id='inner'/></packagedElement>"));
  ASSERT_NE(reading.find("inner"), nullptr);
  EXPECT_EQ(reading.find("inner")->getKind(), UMLPackageableElement::kind);
  EXPECT_EQ(idsOf(reading.get<UMLPackage>("p").packagedElement), "inner");
}

TEST(XMIParser, AnUnknownTagIsReportedOnceWithItsFirstPosition) {
  const Reading reading(
      "<uml:Model xmlns:uml='u' xmlns:xmi='x' xmi:id='m'>\n"
      "  <strange/>\n  <other/>\n  <strange/><strange/>\n</uml:Model>");
  ASSERT_EQ(reading.log.countOf(unknownTagCode), 2U);
  const auto line = std::find_if(reading.log.lines.begin(), reading.log.lines.end(),
                                 [](const std::string& l) { return l.find("strange") != l.npos; });
  ASSERT_NE(line, reading.log.lines.end());
  EXPECT_EQ(*line, "KBI_UML2XMI_W0001 line 2, column 3 : Skipping the unknown tag 'strange'");
}

TEST(XMIParser, AnUnknownTagWithAColonIsNeverReported) {
  const Reading reading(inModel("<Profile:Entity base_Class='c'/><a:b><c:d/></a:b>"));
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(XMIParser, ChildrenOfAnUnknownElementGoToItsParent) {
  const Reading reading(
      inModel("<strange><packagedElement xmi:type='uml:Class' xmi:id='c' name='C'/></strange>"));
  EXPECT_EQ(idsOf(reading.model->packagedElement), "c");
  EXPECT_EQ(reading.get<UMLClass>("c").owner, reading.model);
}

TEST(XMIParser, NestedSkippedElementsOfOneTagEndAtTheOutermost) {
  const Reading reading(
      inModel("<eAnnotations><eAnnotations><packagedElement xmi:type='uml:Class' xmi:id='a'/>"
              "</eAnnotations><packagedElement xmi:type='uml:Class' xmi:id='b'/><other/></eAnnotations>"
              "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"));
  EXPECT_EQ(reading.find("a"), nullptr);
  EXPECT_EQ(reading.find("b"), nullptr);
  EXPECT_NE(reading.find("c"), nullptr);
}

TEST(XMIParser, TextBeforeAChildIsLostWhenTheChildOpens) {
  const Reading reading(
      inModel("<ownedComment xmi:type='uml:Comment' xmi:id='a'><body>one<x/>two</body></ownedComment>"
              "<ownedComment xmi:type='uml:Comment' xmi:id='b'><body>one<xmi:Extension>t</xmi:Extension>"
              "</body></ownedComment>"));
  EXPECT_EQ(reading.get<UMLComment>("a").body.view(), "two");
  EXPECT_EQ(reading.get<UMLComment>("b").body.view(), "");
}

TEST(XMIParser, TextIsStoredUntrimmedAndReplacesTheAttribute) {
  const Reading reading(
      inModel("<ownedComment xmi:type='uml:Comment' xmi:id='a' body='attribute'><body> two words \n</body>"
              "</ownedComment>"
              "<ownedComment xmi:type='uml:Comment' xmi:id='b' body='attribute'><body/></ownedComment>"));
  EXPECT_EQ(reading.get<UMLComment>("a").body.view(), " two words \n");
  EXPECT_EQ(reading.get<UMLComment>("b").body.view(), "");
}

TEST(XMIParser, AValueThatSpellsTheTypeAttributeShiftsTheType) {
  // The value "xmi:type" is taken as a match, so the name of the next attribute is the type.
  const Reading reading(inModel("<packagedElement name='xmi:type' visibility='public' xmi:id='c'/>"));
  EXPECT_EQ(reading.find("c"), nullptr);  // the type "visibility" is unknown, so it was skipped
}

TEST(XMIParser, AFileWithoutAModelIsRefused) {
  const TemporaryFile file("<html><body/></html>");
  RecordingLog log;
  XMIParser parser(&log);
  try {
    parser.parse(file.file());
    FAIL() << "no exception";
  } catch (const KYRException& exception) {
    EXPECT_EQ(exception.getMessage().view(), "[KBI_UML2XMI_F0008] This file may not be a valid UML2 file.");
  }
  EXPECT_TRUE(log.lines.empty());
  EXPECT_EQ(parser.getObjects().getCount(), 0U);
}

TEST(XMIParser, AModelInsideASkippedElementIsNone) {
  const TemporaryFile file(
      "<xmi:XMI xmlns:xmi='x'><xmi:Extension><uml:Model xmlns:uml='u'/></xmi:Extension></xmi:XMI>");
  RecordingLog log;
  XMIParser parser(&log);
  EXPECT_THROW(parser.parse(file.file()), KYRException);
}

TEST(XMIParser, AMalformedFileRaisesAndLeavesNothingBehind) {
  const TemporaryFile file(inModel("<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'>"));
  RecordingLog log;
  XMIParser parser(&log);
  EXPECT_THROW(parser.parse(file.file()), KYRException);
  EXPECT_EQ(parser.getObjects().getCount(), 0U);
}

TEST(XMIParser, ACommentReachesTheElementsItAnnotatesOnce) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>"
              "<ownedComment xmi:type='uml:Comment' xmi:id='k' body='B'>"
              "<annotatedElement xmi:idref='c'/><annotatedElement xmi:idref='d'/></ownedComment>"
              "</packagedElement><packagedElement xmi:type='uml:Class' xmi:id='d'/>"));
  EXPECT_EQ(idsOf(reading.get<UMLClass>("c").ownedComment), "k");
  EXPECT_EQ(idsOf(reading.get<UMLClass>("d").ownedComment), "k");
}

TEST(XMIParser, ATwinCommentIsToldByIdAndBodyWithoutCase) {
  const Reading reading(
      inModel("<ownedComment xmi:type='uml:Comment' xmi:id='k' body='Text' annotatedElement='m'/>"
              "<ownedComment xmi:type='uml:Comment' xmi:id='K' body='TEXT' annotatedElement='m'/>"
              "<ownedComment xmi:type='uml:Comment' xmi:id='K2' body='TEXT' annotatedElement='m'/>"));
  EXPECT_EQ(idsOf(reading.model->ownedComment), "k K2");
}

TEST(XMIParser, ManyCommentsOnOneElementAreStillToldApart) {
  std::string comments;
  for (int i = 0; i < 200; ++i) {
    const std::string number = std::to_string(i % 100);
    comments += "<ownedComment xmi:type='uml:Comment' xmi:id='k" + number + "' body='b" + number +
                "' annotatedElement='m'/>";
  }
  const Reading reading(inModel(comments));
  EXPECT_EQ(reading.model->ownedComment.count(), 100U);
}

TEST(XMIParser, ACommentNestedInAnElementIsNoCommentOfItUnlessItSaysSo) {
  const Reading reading(inModel("<ownedComment xmi:type='uml:Comment' xmi:id='k' body='B'/>"));
  EXPECT_TRUE(reading.model->ownedComment.isEmpty());
  EXPECT_EQ(idsOf(reading.model->ownedElement), "k");
}

TEST(XMIParser, DeepNestingUnderTheLimitReadsWithoutRecursion) {
  std::string open;
  std::string close;
  for (int i = 0; i < 900; ++i) {
    open += "<packagedElement xmi:type='uml:Package' xmi:id='p" + std::to_string(i) + "'>";
    close += "</packagedElement>";
  }
  const Reading reading(inModel(open + close));
  EXPECT_EQ(reading.parser.getObjects().getCount(), 901U);
  EXPECT_EQ(reading.get<UMLPackage>("p899").owner, reading.find("p898"));
}

}  // namespace
