// xsi:type becomes xmi:type for types of UML that have no other.
#include "normalize/TypeAttributeRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

TEST(TypeAttributeRule, TypesOfUmlAreRenamed) {
  expectCases<TypeAttributeRule>(
      NormalizeRule::typeAttribute,
      {{"a type of UML", "<packagedElement xsi:type='uml:Class' xmi:id='c'/>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"},
       {"an empty type beside it", "<packagedElement xmi:type='' xsi:type='uml:Class'/>",
        "<packagedElement xmi:type='uml:Class'/>"},
       {"both", "<packagedElement xsi:type='uml:Class' xmi:type='uml:Interface'/>", ""},
       {"a type of something else", "<packagedElement xsi:type='ecore:EClass'/>", ""},
       {"inside an extension", "<xmi:Extension><a xsi:type='uml:Class'/></xmi:Extension>", ""},
       {"inside annotations", "<eAnnotations><a xsi:type='uml:Class'/></eAnnotations>", ""}});
}

TEST(TypeAttributeRule, WhatStandsBesideTheModelStaysAsItIs) {
  const std::string text =
      "<xmi:XMI><uml:Model xmi:id='m'/><S:Block><base xsi:type='uml:Class' href='x#y'/></S:Block></xmi:XMI>";
  TypeAttributeRule rule;
  EXPECT_EQ(changedBy(rule, text).text, plain(text));
}

TEST(TypeAttributeRule, TheImportedModelIsThatOfXmiType) {
  const std::string usual = xmi(element("Class", "xmi:id='c' name='C'"));
  std::string other = usual;
  other.replace(other.find("xmi:type='uml:Class'"), 8, "xsi:type");
  EXPECT_NE(imported(other), imported(usual));
  EXPECT_EQ(imported(normalized(other)), imported(usual));
}

}  // namespace
