// Classifiers inside classes move out when somebody wants all of them.
#include "normalize/NestedClassifierRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

TEST(NestedClassifierRule, ClassifiersMoveAndWhatDescribesAClassStays) {
  const std::string open = "<packagedElement xmi:type='uml:Class' xmi:id='c'>";
  const std::string close = "</packagedElement>";
  expectCases<NestedClassifierRule>(
      NormalizeRule::nestedClassifier,
      {{"a class", open + "<nestedClassifier xmi:type='uml:Class' xmi:id='d'/>" + close,
        open + close + "<packagedElement xmi:type='uml:Class' xmi:id='d'/>"},
       {"an enumeration as a member", open + "<ownedMember xmi:type='uml:Enumeration' xmi:id='d'/>" + close,
        open + close + "<packagedElement xmi:type='uml:Enumeration' xmi:id='d'/>"},
       {"both levels, outer first",
        open +
            "<nestedClassifier xmi:type='uml:Class' xmi:id='d'><nestedClassifier xmi:type='uml:Class' "
            "xmi:id='e'/>"
            "</nestedClassifier>" +
            close,
        open + close +
            "<packagedElement xmi:type='uml:Class' xmi:id='d'></packagedElement>"
            "<packagedElement xmi:type='uml:Class' xmi:id='e'/>"},
       {"beside members of the package",
        "<ownedMember xmi:type='uml:Class' xmi:id='c'><nestedClassifier xmi:type='uml:Class' "
        "xmi:id='d'/></ownedMember>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'></packagedElement><packagedElement "
        "xmi:type='uml:Class' "
        "xmi:id='d'/>"},
       {"a behaviour", open + "<ownedBehavior xmi:type='uml:Activity' xmi:id='d'/>" + close, ""},
       {"a behaviour as a nested classifier",
        open + "<nestedClassifier xmi:type='uml:Activity' xmi:id='d'/>" + close, ""},
       {"a reference", open + "<nestedClassifier xmi:idref='x'/>" + close, ""},
       {"a stand-in", open + "<nestedClassifier xmi:type='uml:Class' href='x#y'/>" + close, ""},
       {"a property", open + "<ownedAttribute xmi:type='uml:Property' xmi:id='d'/>" + close, ""}});
}

TEST(NestedClassifierRule, IsNoPartOfTheUsualStep) {
  NormalizeReport report;
  normalized(
      xmi(element("Class", "xmi:id='c' name='C'", "<nestedClassifier xmi:type='uml:Class' xmi:id='d'/>")),
      &report);
  EXPECT_FALSE(report.hasFired());
}

}  // namespace
