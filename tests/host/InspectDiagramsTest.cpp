// Counting the diagrams of a file by kind.
#include "host/InspectDiagrams.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"

namespace {

std::string diagram(const std::string& content) {
  return "<ownedDiagram xmi:type='uml:Diagram'>" + content + "</ownedDiagram>";
}

std::string ofKind(const std::string& kind) {
  return diagram("<xmi:Extension><diagramRepresentation><diagram:DiagramRepresentationObject umlType='" +
                 kind + "'/></diagramRepresentation></xmi:Extension>");
}

std::string counted(const std::string& xml) {
  const TemporaryFile file(xml);
  RecordingLog log;
  const InspectDiagrams diagrams(log, file.file());
  std::string result = std::to_string(diagrams.getCount()) + ":";
  for (const InspectDiagrams::Kind& kind : diagrams.getKinds()) {
    result += " " + std::string(kind.name.view()) + "=" + std::to_string(kind.count);
  }
  return result;
}

}  // namespace

TEST(InspectDiagrams, CountsEachKindInTheOrderOfTheFile) {
  EXPECT_EQ(counted("<root><uml:Model>" + ofKind("State Machine") + "<nested>" + ofKind("Class Diagram") +
                    "</nested>" + ofKind("State Machine") + "</uml:Model>" + ofKind("Behind") + "</root>"),
            "3: State Machine=2 Class Diagram=1");
}

TEST(InspectDiagrams, OneThatDoesNotTellItsKindCountsToo) {
  EXPECT_EQ(
      counted("<root><uml:Model>" + diagram("") + diagram("<xmi:Extension/>") +
              diagram("<xmi:Extension><diagramRepresentation/></xmi:Extension>") + "</uml:Model></root>"),
      "3: =3");
}

TEST(InspectDiagrams, WhatStandsInsideADiagramIsNotSearched) {
  EXPECT_EQ(counted("<root><uml:Model>" + diagram(ofKind("Inner")) + "</uml:Model></root>"), "1: =1");
}

TEST(InspectDiagrams, WithoutAModelBelowTheRootThereAreNone) {
  EXPECT_EQ(counted("<root/>"), "0:");
  EXPECT_EQ(counted("<uml:Model>" + ofKind("Class Diagram") + "</uml:Model>"), "0:");
}
