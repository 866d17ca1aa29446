// Stereotypes beside the model that point nowhere.
#include "trace/AppliedStereotypes.h"

#include "tests/trace/TracedImport.h"

namespace {

std::string withStereotypes(const std::string& stereotypes) {
  return "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' "
         "xmlns:xmi='http://schema.omg.org/spec/XMI/2.1' xmlns:s='urn:s'>"
         "<uml:Model xmi:id='m' name='M'>" +
         classNamed("A") + "<xmi:Extension><diagram xmi:id='d'/></xmi:Extension></uml:Model>\n" +
         stereotypes + "</xmi:XMI>";
}

TEST(AppliedStereotypes, OneThatPointsNowhereIsTold) {
  const TracedImport import(withStereotypes(
      "<s:Table xmi:id='x' base_Class='A'/>\n<s:Key base_Property='gone'/><s:None base_Class=''/>"));
  const auto notes = import.notesOf(KYRTraceReason::stereotypeNotFound);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_EQ(text(notes[0].name), "s:Key");
  EXPECT_EQ(text(notes[0].missingId), "gone");
  EXPECT_EQ(notes[0].line, 3U);
}

TEST(AppliedStereotypes, WhatStandsOutsideTheModelCountsToo) {
  const TracedImport import(withStereotypes("<s:DiagramInfo base_Diagram='d'/>"));
  EXPECT_TRUE(import.notesOf(KYRTraceReason::stereotypeNotFound).empty());
}

}  // namespace
