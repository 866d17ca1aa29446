// Each rule that stops an element is told by its reason.
#include "trace/LostElements.h"

#include <set>

#include "tests/trace/TracedImport.h"
#include "uml/UMLClasses.h"

namespace {

struct Case {
  const char* name;
  std::string file;
  std::string id;
  std::string code;
  std::string mentioned;  // in the sentence
};

std::string operation(const std::string& id, const std::string& content) {
  return "<ownedOperation xmi:type='uml:Operation' xmi:id='" + id + "' name='" + id + "'>" + content +
         "</ownedOperation>";
}

std::string returned(const std::string& id, const std::string& attributes = "") {
  return "<ownedParameter xmi:type='uml:Parameter' xmi:id='" + id + "' direction='return' " + attributes +
         "/>";
}

std::string literal(const std::string& id, const std::string& name, const std::string& content = "") {
  return "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='" + id + "' name='" + name + "'>" +
         content + "</ownedLiteral>";
}

std::string nested(const std::string& id, const std::string& type) {
  return "<nestedClassifier xmi:type='uml:" + type + "' xmi:id='" + id + "' name='" + id + "'/>";
}

std::string dependency(const std::string& supplier, const std::string& client) {
  return element("Dependency", "xmi:id='d' supplier='" + supplier + "' client='" + client + "'");
}

const std::string unnamed = element("Class", "xmi:id='x'");
const std::string interface = element("Interface", "xmi:id='I' name='I'");

// A model of Enterprise Architect whose section says that the class "b" is a boundary.
const std::string withBoundary =
    "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'>"
    "<xmi:Documentation exporter='Enterprise Architect' exporterVersion='6.5'/>"
    "<uml:Model xmi:type='uml:Model' xmi:id='model' name='Model'>" +
    classNamed("b") +
    "</uml:Model><xmi:Extension extender='Enterprise Architect'><elements>"
    "<element xmi:idref='b' xmi:type='uml:Boundary'/></elements></xmi:Extension></xmi:XMI>";

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"NoId", inPackage("<packagedElement xmi:type='uml:Class' name='A'/>"), "", "no-id", "xmi:id"},
      {"SameId",
       inPackage(classNamed("A", property("xmi:id='a' name='first'") + property("xmi:id='a' name='b'"))), "a",
       "same-id", "UMLProperty 'first'"},
      {"AnActor", inPackage(element("Actor", "xmi:id='a' name='A'")), "a", "kind-not-converted", "class"},
      {"AUsage", inPackage(element("Usage", "xmi:id='a' name='A'")), "a", "kind-not-converted", "class"},
      {"AClassWithoutAName", inPackage(unnamed), "x", "no-name", "name"},
      {"AnAttributeWithoutAName", inPackage(classNamed("A", property("xmi:id='a'"))), "a", "no-name", "name"},
      {"AnEnumerationWithoutAName", inPackage(element("Enumeration", "xmi:id='a'")), "a", "no-name", "name"},
      {"ABoundary", withBoundary, "b", "boundary", "frame"},
      {"AnAssociationClassWithoutNames", inPackage(element("AssociationClass", "xmi:id='a'")), "a",
       "no-end-names", "ends"},
      {"APackageWithoutContent", inPackage(classNamed("A") + element("Package", "xmi:id='q' name='Q'")), "q",
       "empty-package", "converted"},
      {"APackageOfEmptyPackages",
       xmi(element("Package", "xmi:id='q' name='Q'", element("Package", "xmi:id='r' name='R'"))), "q",
       "empty-package", "converted"},
      {"ADataTypeOfNoFeature", inPackage(element("DataType", "xmi:id='a' name='A'")), "a", "type-not-used",
       "feature"},
      {"ALiteralOfATakenName",
       inPackage(element("Enumeration", "xmi:id='E' name='E'", literal("k", "k") + literal("l", "k"))), "l",
       "same-literal", "UMLEnumeration 'E'"},
      {"ADefaultOfNoText",
       inPackage(classNamed("A", property("xmi:id='a' name='a'", value("defaultValue", "LiteralNull", "v")))),
       "v", "value-kind", "UMLProperty 'a'"},
      {"ABoundThatIsAString",
       inPackage(classNamed("A") + association("A", "A", value("lowerValue", "LiteralString", "v"))), "v",
       "value-kind", "UMLProperty 'e2'"},
      {"ADefaultWithoutText",
       inPackage(
           classNamed("A", property("xmi:id='a' name='a'", value("defaultValue", "LiteralString", "v")))),
       "v", "empty-value", "UMLProperty 'a'"},
      {"TheZeroOfALiteral",
       inPackage(element("Enumeration", "xmi:id='E' name='E'",
                         literal("l", "l", value("specification", "LiteralInteger", "v", "value='0'")))),
       "v", "empty-value", "UMLEnumerationLiteral 'l'"},
      {"ACommentWithoutText", inPackage(classNamed("A") + commentOn("A", "")), "kA", "empty-comment", "text"},
      {"AnUntypedReturn", inPackage(classNamed("A", operation("o", returned("r")))), "r", "no-return-type",
       "UMLOperation 'o'"},
      {"AnEarlierReturn",
       inPackage(classNamed("A", operation("o", returned("r", "type='A'") + returned("s", "type='A'")))), "r",
       "later-return", "UMLOperation 'o'"},
      {"AnElementBesideTheModel",
       "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' "
       "xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'>"
       "<uml:Model xmi:id='m' name='M'/><uml:Class xmi:type='uml:Class' xmi:id='a' name='A'/></xmi:XMI>",
       "a", "outside-model", "model"},
      {"TheFirstOfTwoModels",
       "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' "
       "xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'>"
       "<uml:Model xmi:id='m' name='M'/><uml:Model xmi:id='n' name='N'/></xmi:XMI>",
       "m", "other-model", "model"},
      {"TheContentOfAnActor",
       inPackage(element("Actor", "xmi:id='u' name='U'", property("xmi:id='a' name='a'"))), "a",
       "owner-not-converted", "UMLActor 'U'"},
      {"AClassInAClass", inPackage(classNamed("A", nested("n", "Class"))), "n", "nested-classifier",
       "UMLClass 'A'"},
      {"AnEnumerationInAClass", inPackage(classNamed("A", nested("n", "Enumeration"))), "n",
       "nested-classifier", "UMLClass 'A'"},
      {"AnAttributeOfADataType",
       inPackage(element("DataType", "xmi:id='t' name='T'", property("xmi:id='a' name='a'"))), "a",
       "type-feature", "UMLDataType 'T'"},
      {"AClassUnderAnotherTag",
       inPackage(classNamed("A") + "<nestedPackage xmi:type='uml:Class' xmi:id='b' name='B'/>"), "b",
       "other-place", "UMLPackage 'P'"},
      {"AnInterfaceAtTheTop", xmi(interface), "I", "top-interface", "top"},
      {"TheMultiplicityOfAnAttribute",
       inPackage(
           classNamed("A", property("xmi:id='a' name='a'", value("lowerValue", "LiteralInteger", "v")))),
       "v", "no-place", "UMLProperty 'a'"},
      {"AnAssociationClassAtTheTop", xmi(element("AssociationClass", "xmi:id='a' name='A'")), "a",
       "no-package", "package"},
      {"AnAssociationOfOneEnd",
       inPackage(element("Association", "xmi:id='a'",
                         "<ownedEnd xmi:type='uml:Property' xmi:id='e' association='a' type='p'/>")),
       "a", "end-missing", "memberEnd"},
      {"AnEndWithoutAType", inPackage(classNamed("A") + association("A", "")), "as", "end-missing", "type"},
      {"AGeneralizationOfNothing",
       inPackage(classNamed("A", "<generalization xmi:type='uml:Generalization' xmi:id='g'/>")), "g",
       "end-missing", "general"},
      {"AnEndThatIsAPrimitiveType",
       inPackage(classNamed("A") + element("PrimitiveType", "xmi:id='t' name='T'") + association("A", "t")),
       "e2", "end-not-class", "UMLPrimitiveType 'T'"},
      {"ADependencyOnAnInterface", inPackage(interface + classNamed("A") + dependency("I", "A")), "d",
       "end-not-class", "UMLInterface 'I'"},
      {"ADependencyOnALostClass", inPackage(unnamed + classNamed("A") + dependency("x", "A")), "d",
       "end-not-converted", "UMLClass 'x'"},
      {"ARealizationOfALostInterface",
       xmi(interface +
           element("Package", "xmi:id='p' name='P'",
                   classNamed("A",
                              "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r' "
                              "client='A' supplier='I'/>"))),
       "r", "end-not-converted", "UMLInterface 'I'"},
      {"TheOtherEndOfALostAssociation", inPackage(classNamed("A") + association("A", "")), "e1",
       "association-not-converted", "UMLAssociation 'as'"},
      {"ASetOfNothing", inPackage(element("GeneralizationSet", "xmi:id='a' name='A'")), "a",
       "no-generalization", "generalizations"},
      {"ACommentOnALostClass", inPackage(unnamed + commentOn("x", "text")), "kx", "no-target", "comments"},
  };
  return all;
}

class Lost : public testing::TestWithParam<Case> {};

TEST_P(Lost, IsToldWithItsReason) {
  const Case& expected = GetParam();
  const TracedImport import(expected.file);
  ASSERT_EQ(import.fateOf(expected.id), expected.code);
  EXPECT_NE(text(import.find(expected.id)->sentence).find(expected.mentioned), std::string::npos)
      << import.find(expected.id)->sentence.view();
  EXPECT_EQ(import.totals.read, import.totals.converted + import.totals.absorbed + import.totals.lost);
}

INSTANTIATE_TEST_SUITE_P(Cases, Lost, testing::ValuesIn(cases()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(LostElements, EveryReasonOfALossHasACase) {
  std::set<std::string> tested = {"unexplained"};  // there is no way to get there
  for (const Case& entry : cases()) tested.insert(entry.code);
  for (std::size_t i = 0; i < KYRTraceReasons::count; ++i) {
    const KYRTraceReasons::Row& row = KYRTraceReasons::get(static_cast<KYRTraceReason>(i));
    if (row.outcome != KYRTraceOutcome::lost) continue;
    EXPECT_EQ(tested.count(text(row.getIdentifier())), 1U) << row.getIdentifier().view();
  }
}

TEST(LostElements, AnEndThatRefersToNothingTellsTheId) {
  const TracedImport import(inPackage(classNamed("A") + association("A", "gone")));
  ASSERT_EQ(import.fateOf("e2"), "end-missing");
  EXPECT_EQ(text(import.find("e2")->missingId), "gone");
  EXPECT_EQ(text(import.find("as")->missingId), "gone");
}

TEST(LostElements, ElementsThatOwnEachOtherEndNothing) {
  const TracedImport import(inPackage(element("Usage", "xmi:id='a' owner='b'") +
                                      element("Class", "xmi:id='b' name='B' owner='a'")));
  EXPECT_EQ(import.totals.read, 4U);
}

TEST(LostElements, DescribesAnElementByItsNameElseItsId) {
  const UMLClass named("c", "Order");
  const UMLClass nameless("c", "");
  EXPECT_EQ(text(LostElements::describe(named)), "UMLClass 'Order'");
  EXPECT_EQ(text(LostElements::describe(nameless)), "UMLClass 'c'");
}

}  // namespace
