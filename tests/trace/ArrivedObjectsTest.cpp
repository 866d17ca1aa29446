// What is in the model when an import ends, and what only was there.
#include "trace/ArrivedObjects.h"

#include "tests/trace/TracedImport.h"

namespace {

std::string generalization(const std::string& id) {
  return "<generalization xmi:type='uml:Generalization' xmi:id='" + id + "' general='S'/>";
}

TEST(ArrivedObjects, ObjectsOfEveryKindAreFound) {
  const TracedImport import(inPackage(
      classNamed("S") +
      classNamed("A", property("xmi:id='a' name='a'") + generalization("g") +
                          "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'><ownedParameter "
                          "xmi:type='uml:Parameter' xmi:id='q' name='q'/></ownedOperation>"
                          "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r' client='A' "
                          "supplier='I'/>") +
      element("Interface", "xmi:id='I' name='I'") + association("A", "S") +
      element("Dependency", "xmi:id='d' supplier='S' client='A'") +
      element("Enumeration", "xmi:id='E' name='E'",
              "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l' name='l'/>") +
      element("PrimitiveType", "xmi:id='t' name='T'") +
      element("AssociationClass", "xmi:id='ac' name='AC'")));
  EXPECT_TRUE(import.records.empty());
  EXPECT_EQ(import.totals.converted, 18U);
}

TEST(ArrivedObjects, APackageThatIsTakenOutAtTheEndIsNotThere) {
  const TracedImport import(xmi(element("Package", "xmi:id='p' name='P'",
                                        element("Package", "xmi:id='q' name='Q'", classNamed("A")) +
                                            element("Package", "xmi:id='r' name='R'"))));
  EXPECT_EQ(import.fateOf("p"), "converted");
  EXPECT_EQ(import.fateOf("q"), "converted");
  EXPECT_EQ(import.fateOf("r"), "empty-package");
}

TEST(ArrivedObjects, WhatNoPackageTookIsNotThere) {
  const TracedImport import(
      xmi(element("AssociationClass", "xmi:id='a' name='A'", property("xmi:id='b' name='b'"))));
  EXPECT_EQ(import.fateOf("a"), "no-package");
  EXPECT_NE(import.fateOf("b"), "converted");
}

}  // namespace
