// Lists of ids become references one by one.
#include "normalize/IdListRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

const std::string classes = element("Class", "xmi:id='c'") + element("Class", "xmi:id='d'");

std::string dependency(const std::string& attributes, const std::string& content = "") {
  return classes + element("Dependency", "xmi:id='x' " + attributes, content);
}

TEST(IdListRule, AListBecomesChildrenThatComeFirst) {
  expectCases<IdListRule>(
      NormalizeRule::idList,
      {{"two ids", dependency("supplier='c d'"),
        dependency("", "<supplier xmi:idref='c'/><supplier xmi:idref='d'/>")},
       {"before other children", dependency("supplier='d c'", "<name>x</name>"),
        dependency("", "<supplier xmi:idref='d'/><supplier xmi:idref='c'/><name>x</name>")},
       {"two lists, in the order of the attributes", dependency("supplier='c d' client='d  c'", "<a/>"),
        dependency("",
                   "<supplier xmi:idref='c'/><supplier xmi:idref='d'/><client xmi:idref='d'/>"
                   "<client xmi:idref='c'/><a/>")},
       {"one id", dependency("supplier='c'"), ""},
       {"an unknown id among them", dependency("supplier='c y'"), ""},
       {"an id with a blank in it", dependency("supplier='c d'") + element("Class", "xmi:id='c d'"), ""},
       {"no reference of the class", dependency("general='c d'"), ""},
       {"a text", dependency("name='c d'"), ""},
       {"an id of the data of a tool among them",
        dependency("supplier='c t'") + "<xmi:Extension><a xmi:id='t'/></xmi:Extension>",
        dependency("", "<supplier xmi:idref='c'/><supplier xmi:idref='t'/>") +
            "<xmi:Extension><a xmi:id='t'/></xmi:Extension>"}},
      true);
}

std::string association(const std::string& ends, const std::string& backOfSecond) {
  return classes + element("Association", "xmi:id='a' " + ends,
                           "<ownedEnd xmi:type='uml:Property' xmi:id='e' association='a' type='c'/>"
                           "<ownedEnd xmi:type='uml:Property' xmi:id='f' type='d'" +
                               backOfSecond);
}

TEST(IdListRule, MemberEndsThatPointBackStayAsTheyAre) {
  const std::string list = "memberEnd='f e'";
  for (const std::string back : {" association='a'/>", "><association xmi:idref='a'/></ownedEnd>"}) {
    SCOPED_TRACE(back);
    IdListRule rule;
    EXPECT_FALSE(changedBy(rule, xmi(association(list, back)), true).report.hasFired());
  }
  for (const std::string back : {"/>", " association='b'/>", "><association xmi:idref='b'/></ownedEnd>"}) {
    SCOPED_TRACE(back);
    IdListRule rule;
    EXPECT_EQ(changedBy(rule, xmi(association(list, back)), true).report.of(NormalizeRule::idList).fired, 1U);
  }
}

TEST(IdListRule, AnAssociationGetsItsEnds) {
  const auto model = [](const std::string& attribute, const std::string& children) {
    return xmi(element("Class", "xmi:id='c' name='C'") + element("Class", "xmi:id='d' name='D'") +
               element("Association", "xmi:id='a' " + attribute,
                       children + "<ownedEnd xmi:type='uml:Property' xmi:id='e' type='c'/>"
                                  "<ownedEnd xmi:type='uml:Property' xmi:id='f' type='d'/>"));
  };
  EXPECT_EQ(imported(normalized(model("memberEnd='f e'", ""))),
            imported(model("", "<memberEnd xmi:idref='f'/><memberEnd xmi:idref='e'/>")));
}

}  // namespace
