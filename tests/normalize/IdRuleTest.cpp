// Every element that makes an object has an id of its own.
#include "normalize/IdRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

std::string changed(const std::string& text, std::uint64_t fired, bool matters = true) {
  IdRule rule;
  const Changed result = changedBy(rule, text);
  EXPECT_EQ(result.report.of(NormalizeRule::ids).fired, fired);
  EXPECT_EQ(result.report.of(NormalizeRule::ids).matters, fired != 0 && matters);
  return result.text;
}

TEST(IdRule, AModelWithoutAnIdGetsItsNameAsTheReaderWouldDo) {
  EXPECT_EQ(changed("<uml:Model name='M'/>", 1, false), plain("<uml:Model name='M' xmi:id='M'/>"));
  EXPECT_EQ(changed("<uml:Model xmi:id='' name='M'/>", 1, false), plain("<uml:Model xmi:id='M' name='M'/>"));
}

TEST(IdRule, AModelWhoseNameIsNoIdGetsAFreshOne) {
  EXPECT_EQ(changed("<uml:Model/>", 1), plain("<uml:Model xmi:id='kyr_1_1'/>"));
  EXPECT_EQ(changed("<uml:Model name='c'><packagedElement xmi:type='uml:Class' xmi:id='c'/></uml:Model>", 1),
            plain("<uml:Model name='c' xmi:id='kyr_1_1'><packagedElement xmi:type='uml:Class' "
                  "xmi:id='c'/></uml:Model>"));
}

TEST(IdRule, WhatMakesAnObjectGetsAnIdByItsPlaceInTheFile) {
  EXPECT_EQ(
      changed("<uml:Model xmi:id='m'>\n <packagedElement xmi:type='uml:Class' name='C'>\n"
              "  <ownedAttribute xmi:id='' name='a'/></packagedElement></uml:Model>",
              2),
      plain("<uml:Model xmi:id='m'>\n <packagedElement xmi:type='uml:Class' name='C' xmi:id='kyr_2_2'>\n"
            "  <ownedAttribute xmi:id='kyr_3_3' name='a'/></packagedElement></uml:Model>"));
}

TEST(IdRule, WhatMakesNoObjectOrStandsForAnotherFileGetsNone) {
  for (const char* elements :
       {"<packagedElement xmi:type='uml:Class' href='x#y'/>",
        "<packagedElement xmi:type='uml:StateMachine'/>", "<packagedElement xmi:idref='c'/>", "<unknown/>",
        "<name>M</name>", "<xmi:Extension><a xmi:type='uml:Class'/></xmi:Extension>"}) {
    SCOPED_TRACE(elements);
    EXPECT_EQ(changed(xmi(elements), 0), plain(xmi(elements)));
  }
}

// More than are looked at ahead.
TEST(IdRule, ManyObjectsGetTheirIdsEachItsOwn) {
  std::string given;
  std::string expected;
  for (int at = 0; at < 40; ++at) {
    const std::string line = std::to_string(at + 2);
    const std::string id = at % 5 == 3 ? "" : " xmi:id='c" + std::to_string(at % 5 == 4 ? 0 : at) + "'";
    const std::string start = "\n<packagedElement xmi:type='uml:Class' name='C" + line + "'";
    given += start;
    given += id + "/>";
    expected += start;
    expected += at % 5 < 3 ? id : " xmi:id='kyr_" + line + "_1'";
    expected += "/>";
  }
  const auto model = [](const std::string& classes) {
    return "<uml:Model xmi:id='m'>" + classes + "</uml:Model>";
  };
  EXPECT_EQ(changed(model(given), 16), plain(model(expected)));
}

TEST(IdRule, ASecondBearerIsRenamedWhenItIsAnotherElement) {
  const std::string first = "<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'/>";
  const struct {
    const char* what;
    std::string second;
    bool isRenamed;
  } cases[] = {
      {"another name", "<packagedElement xmi:type='uml:Class' xmi:id='c' name='D'/>", true},
      {"another type", "<packagedElement xmi:type='uml:Interface' xmi:id='c' name='C'/>", true},
      {"the same once more", first, false},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    const std::string text = changed(xmi(first + each.second), each.isRenamed ? 1 : 0);
    EXPECT_EQ(text == plain(xmi(first + each.second)), !each.isRenamed);
    EXPECT_EQ(text.find("xmi:id=\"c\" name=\"C\""), plain(xmi(first)).find("xmi:id=\"c\" name=\"C\""));
  }
}

TEST(IdRule, ANameWrittenAsAnElementIsANameToo) {
  const auto one = [](const std::string& name) {
    return "<packagedElement xmi:type='uml:Class' xmi:id='c'><name>" + name + "</name></packagedElement>";
  };
  changed(xmi(one("C") + one("C")), 0);
  changed(xmi(one("C") + one("D")), 1);
}

TEST(IdRule, ASecondBearerInsideTheFirstIsRenamedWhateverItIs) {
  const std::string inner = "<packagedElement xmi:type='uml:Package' xmi:id='p' name='P'/>";
  const std::string outer = inner.substr(0, inner.size() - 2) + ">" + inner + "</packagedElement>";
  EXPECT_NE(changed(xmi(outer), 1), plain(xmi(outer)));
  // Behind it the first one is not open any more.
  changed(xmi(inner + inner), 0);
  changed(xmi(inner + element("Package", "xmi:id='q'", inner)), 0);
}

TEST(IdRule, IdsOfTheDataOfToolsDoNotCount) {
  changed(xmi("<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'/><xmi:Extension><a "
              "xmi:id='c'/></xmi:Extension>"),
          0);
}

TEST(IdRule, AFreshIdIsTakenByNobodyElse) {
  EXPECT_EQ(changed("<uml:Model xmi:id='m'><packagedElement xmi:type='uml:Class'/>"
                    "<packagedElement xmi:type='uml:Class' xmi:id='kyr_1_23'/></uml:Model>",
                    1),
            plain("<uml:Model xmi:id='m'><packagedElement xmi:type='uml:Class' xmi:id='kyr_1_23_2'/>"
                  "<packagedElement xmi:type='uml:Class' xmi:id='kyr_1_23'/></uml:Model>"));
}

TEST(IdRule, ElementsWithoutIdsArriveAndTheModelIsTheSameOtherwise) {
  const auto model = [](const std::string& id) {
    return xmi(element("Class", "xmi:id='c' name='C'",
                       "<ownedAttribute xmi:type='uml:Property' name='a' " + id + "/>") +
               element("Class", "xmi:id='d' name='D'"));
  };
  const std::string fresh = normalized(model(""));
  const std::size_t at = fresh.find("kyr_");
  const std::string id = fresh.substr(at, fresh.find('"', at) - at);
  EXPECT_NE(imported(model("")), imported(model("xmi:id='" + id + "'")));
  EXPECT_EQ(imported(fresh), imported(model("xmi:id='" + id + "'")));
}

}  // namespace
