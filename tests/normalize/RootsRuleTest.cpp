// One model for what stands side by side below the document's root.
#include "normalize/RootsRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

std::string file(const std::string& roots) {
  return "<xmi:XMI xmlns:xmi='http://schema.omg.org/spec/XMI/2.1' "
         "xmlns:uml='http://schema.omg.org/spec/UML/2.1'>" +
         roots + "</xmi:XMI>";
}

Changed change(const std::string& text) {
  RootsRule rule;
  return changedBy(rule, text);
}

TEST(RootsRule, FurtherRootsMoveToTheEndOfTheFirstModel) {
  const Changed changed = change(
      file("<uml:Package xmi:type='uml:Package' xmi:id='p'/><uml:Model xmi:id='m'><a/></uml:Model>"
           "<uml:Model xmi:id='n'/><uml:Profile xmi:type='uml:Profile' xmi:id='q'/><uml:Class xmi:id='c'/>"
           "<packagedElement xmi:type='uml:Class' xmi:id='d'/>"));
  EXPECT_EQ(changed.text,
            plain(file("<uml:Model xmi:id='m'><a/><packagedElement xmi:type='uml:Package' xmi:id='p'/>"
                       "<packagedElement xmi:type='uml:Package' xmi:id='n'/>"
                       "<packagedElement xmi:type='uml:Package' xmi:id='q'/>"
                       "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"
                       "<packagedElement xmi:type='uml:Class' xmi:id='d'/></uml:Model>")));
  EXPECT_EQ(changed.report.of(NormalizeRule::roots).fired, 5U);
}

TEST(RootsRule, WhatIsNoPartOfAModelStaysInItsOrder) {
  EXPECT_EQ(change(file("<xmi:Documentation/><S:First base='x'/><uml:Model xmi:id='m'/><xmi:Extension/>"
                        "<uml:Package xmi:id='p'/><S:Second/><uml:Diagram xmi:type='uml:Diagram'/>"))
                .text,
            plain(file("<xmi:Documentation/><S:First base='x'/><uml:Model xmi:id='m'>"
                       "<packagedElement xmi:type='uml:Package' xmi:id='p'/></uml:Model><xmi:Extension/>"
                       "<S:Second/><uml:Diagram xmi:type='uml:Diagram'/>")));
}

TEST(RootsRule, APackageOrProfileAloneBecomesTheModel) {
  for (const char* tag : {"uml:Package", "uml:Profile"}) {
    SCOPED_TRACE(tag);
    const std::string name = tag;
    EXPECT_EQ(change(file("<" + name + " xmi:type='" + name + "' xmi:id='p'><a/></" + name + ">")).text,
              plain(file("<uml:Model xmi:type='uml:Model' xmi:id='p'><a/></uml:Model>")));
    const Changed changed = change("<" + name + " xmi:id='p'/>");
    EXPECT_EQ(changed.text, plain("<uml:Model xmi:id='p'/>"));
    EXPECT_FALSE(changed.report.matters());
  }
}

TEST(RootsRule, AProfileAloneBecomesTheModelWithAllRulesToo) {
  for (const std::string& text :
       {file("<uml:Profile xmi:id='p'/>"), std::string("<uml:Profile xmi:id='p'/>")}) {
    EXPECT_NE(normalized(text, nullptr, Normalizer::Extent::all)
                  .find("<uml:Model xmi:type=\"uml:Model\" xmi:id=\"p\"/>"),
              std::string::npos);
  }
}

TEST(RootsRule, SeveralPackagesAreHeldByANewModelOfTheFilesName) {
  EXPECT_EQ(change(file("<S:A/><uml:Package xmi:id='p'/><uml:Package xmi:id='q'/>")).text,
            plain(file("<S:A/><uml:Model xmi:type='uml:Model' xmi:id='kyr_1_110' name='shop.xmi'>"
                       "<packagedElement xmi:type='uml:Package' xmi:id='p'/>"
                       "<packagedElement xmi:type='uml:Package' xmi:id='q'/></uml:Model>")));
}

TEST(RootsRule, AClassAloneIsHeldToo) {
  EXPECT_NE(change(file("<uml:Class xmi:id='c'/>"))
                .text.find("<packagedElement xmi:type=\"uml:Class\" xmi:id=\"c\"/>"),
            std::string::npos);
}

TEST(RootsRule, OneModelStaysAsItIs) {
  for (const std::string& text :
       {file("<S:A/><uml:Model xmi:id='m'/><S:B/>"),
        std::string("<uml:Model xmi:id='m'><uml:Package/></uml:Model>"), file("<S:A/>"),
        std::string("<shop/>"), std::string("<uml:Class xmi:id='c'/>")}) {
    SCOPED_TRACE(text);
    const Changed changed = change(text);
    EXPECT_EQ(changed.text, plain(text));
    EXPECT_FALSE(changed.report.hasFired());
  }
}

TEST(RootsRule, TheFreshIdIsNoIdOfTheFile) {
  const std::string changed =
      change(file("<uml:Package xmi:id='kyr_1_104'/><uml:Package xmi:id='kyr_1_104_2'/>")).text;
  EXPECT_NE(changed.find("xmi:id=\"kyr_1_104_3\" name=\"shop.xmi\""), std::string::npos) << changed;
}

TEST(RootsRule, AllRootsArriveAndTheFirstModelIsTheResult) {
  const std::string roots =
      "<uml:Model xmi:id='m' name='M'>" +
      element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'")) +
      "</uml:Model><uml:Package xmi:id='q' name='Q'>" + element("Class", "xmi:id='d' name='D'") +
      "</uml:Package>";
  DispatchRows::resetForTests();
  const ImportedModel model(normalized(file(roots)));
  EXPECT_EQ(model.model.sourceId, "m");
  EXPECT_EQ(model.pathOf("c"), "P/C");
  EXPECT_EQ(model.pathOf("d"), "Q/D");
}

}  // namespace
