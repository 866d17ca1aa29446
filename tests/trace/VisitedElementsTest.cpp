// What the conversion comes to: members of packages, features, relations.
#include "trace/VisitedElements.h"

#include <gtest/gtest.h>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/model/KYRClass.h"
#include "tests/support/RecordingLog.h"
#include "uml/UMLClasses.h"
#include "xmi/UMLObjectTable.h"

namespace {

TEST(VisitedElements, OnlyWhatWasConvertedLeadsOn) {
  RecordingLog log;
  KYROmgUml2XmiImportBridge bridge(&log);
  UMLModel model("m", "");
  UMLClass known("a", "");
  UMLClass passedOver("b", "");
  UMLProperty first("p", "");
  UMLProperty second("q", "");
  UMLDependency dependency("d", "");
  KYRClass object;
  known.repositoryObject = &object;
  for (UMLClass* element : {&known, &passedOver}) model.addPackagedElement(element);
  known.UMLClass::ownedAttribute.add(&first);
  passedOver.UMLClass::ownedAttribute.add(&second);
  bridge.umlModel = &model;
  bridge.pendingDependencies.add(&dependency);
  UMLObjectTable elements(16);
  for (UMLElement* element :
       std::initializer_list<UMLElement*>{&model, &known, &passedOver, &first, &second}) {
    elements.add(element, false, nullptr);
  }
  const VisitedElements visited(bridge, elements);
  EXPECT_TRUE(visited.isMember(&known));
  EXPECT_TRUE(visited.isTopMember(&passedOver));
  EXPECT_TRUE(visited.isFeature(&first));
  EXPECT_FALSE(visited.isFeature(&second));
  EXPECT_TRUE(visited.isRelation(&dependency));
  EXPECT_FALSE(visited.isRelation(&known));
  EXPECT_FALSE(visited.isMember(&first));
}

}  // namespace
