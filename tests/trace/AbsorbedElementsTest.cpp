// What lives on inside another object is told with the object.
#include "trace/AbsorbedElements.h"

#include "tests/trace/TracedImport.h"

namespace {

struct Case {
  const char* name;
  std::string content;  // of a package
  std::string id;
  std::string code;
  std::string object;
  std::string path;
};

class Absorbed : public testing::TestWithParam<Case> {};

TEST_P(Absorbed, IsToldWithItsObject) {
  const Case& expected = GetParam();
  const TracedImport import(inPackage(expected.content));
  ASSERT_EQ(import.fateOf(expected.id), expected.code);
  const KYRTraceRecord& told = *import.find(expected.id);
  EXPECT_STREQ(told.objectKind, expected.object.c_str());
  EXPECT_EQ(text(told.objectPath), expected.path);
  EXPECT_NE(text(told.sentence).find(expected.object + " '" + expected.path + "'"), std::string::npos);
}

std::string operation(const std::string& content) {
  return classNamed("C", "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'>" + content +
                             "</ownedOperation>") +
         element("PrimitiveType", "xmi:id='t' name='T'");
}

std::string generalization(const std::string& id, const std::string& attributes = "") {
  return "<generalization xmi:type='uml:Generalization' xmi:id='" + id + "' general='S' " + attributes + "/>";
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Absorbed,
    testing::Values(
        Case{"AStringAsInitialValue",
             classNamed("C", property("xmi:id='a' name='a'",
                                      value("defaultValue", "LiteralString", "v", "value='x'"))),
             "v", "initial-value", "KYRAttribute", "P/C/a"},
        Case{"ABooleanAsInitialValue",
             classNamed("C", property("xmi:id='a' name='a'",
                                      value("defaultValue", "LiteralBoolean", "v", "value='true'"))),
             "v", "initial-value", "KYRAttribute", "P/C/a"},
        Case{"ABound",
             classNamed("A") + classNamed("B") +
                 association("A", "B", value("upperValue", "LiteralUnlimitedNatural", "v", "value='*'")),
             "v", "multiplicity", "KYRAssociationRole", "P//"},
        Case{"TheValueOfALiteral",
             element("Enumeration", "xmi:id='E' name='E'",
                     "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l' name='l'>" +
                         value("specification", "LiteralInteger", "v", "value='3'") + "</ownedLiteral>"),
             "v", "literal-value", "KYRTypeValue", "E/l"},
        Case{"AReturnParameter",
             operation("<ownedParameter xmi:type='uml:Parameter' xmi:id='r' direction='return' type='t'/>"),
             "r", "return-type", "KYROperation", "P/C/o"},
        Case{"TheOnlyComment", classNamed("C", commentOn("C", "text")), "kC", "description", "KYRClass",
             "P/C"},
        Case{"ALaterEdgeToASuperclass",
             classNamed("S") + classNamed("A", generalization("g1")) + classNamed("B", generalization("g2")),
             "g2", "merged-generalization", "KYRGeneralization", "P/"},
        Case{"ASetWhoseEdgesHaveJoined",
             classNamed("S") + classNamed("A", generalization("g1")) +
                 classNamed("B", generalization("g2", "generalizationSet='gs'")) +
                 element("GeneralizationSet", "xmi:id='gs' name='gs'"),
             "gs", "merged-generalization", "KYRGeneralization", "P/"},
        Case{
            "ATypeOfATakenName",
            element("PrimitiveType", "xmi:id='t' name='T'") + element("PrimitiveType", "xmi:id='u' name='T'"),
            "u", "shared-type", "KYRDerivedType", "T"},
        Case{"ATypedAttributesTypeOfATakenName",
             element("PrimitiveType", "xmi:id='t' name='T'") + element("DataType", "xmi:id='u' name='t'") +
                 classNamed("C", property("xmi:id='a' name='a' type='u'")),
             "u", "shared-type", "KYRDerivedType", "T"},
        Case{"AnEnumerationOfATakenName",
             element("Enumeration", "xmi:id='t' name='T'") + element("Enumeration", "xmi:id='u' name='T'"),
             "u", "shared-type", "KYRDerivedType", "T"},
        Case{"AnActorAsAType",
             element("Actor", "xmi:id='u' name='U'") +
                 classNamed("C", property("xmi:id='a' name='a' type='u'")),
             "u", "type-name", "KYRDerivedType", "U"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(AbsorbedElements, TheEdgeThatMadeAGeneralizationIsConverted) {
  const TracedImport import(inPackage(classNamed("S") + classNamed("A", generalization("g1")) +
                                      classNamed("B", generalization("g2"))));
  EXPECT_EQ(import.fateOf("g1"), "converted");
}

TEST(AbsorbedElements, OfTwoEdgesBetweenTheSameClassesTheLaterGivesTheRoleItsId) {
  const TracedImport import(
      inPackage(classNamed("S") + classNamed("A", generalization("g1") + generalization("g2"))));
  EXPECT_EQ(import.fateOf("g1"), "merged-generalization");
  EXPECT_EQ(import.fateOf("g2"), "merged-generalization");
}

TEST(AbsorbedElements, ACommentOfSeveralElementsIsToldOnce) {
  const TracedImport import(inPackage(
      classNamed("A") + classNamed("B") +
      "<ownedComment xmi:type='uml:Comment' xmi:id='k' body='text'><annotatedElement xmi:idref='A'/>"
      "<annotatedElement xmi:idref='B'/></ownedComment>"));
  EXPECT_EQ(import.fateOf("k"), "description");
  EXPECT_EQ(import.totals.absorbed, 1U);
}

TEST(AbsorbedElements, TheTypeOfAClassThatWasConvertedIsNotAbsorbed) {
  const TracedImport import(
      inPackage(classNamed("A") + classNamed("B", property("xmi:id='a' name='a' type='A'"))));
  EXPECT_EQ(import.fateOf("A"), "converted");
  EXPECT_TRUE(import.records.empty());
}

}  // namespace
