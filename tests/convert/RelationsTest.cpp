// Generalizations, realizations and dependencies.
#include <gtest/gtest.h>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRealization.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"

namespace {

std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", elements));
}

std::string edge(const std::string& attributes) {
  return "<generalization xmi:type='uml:Generalization' " + attributes + "/>";
}

std::string subclass(const std::string& id, const std::string& edges) {
  return element("Class", "xmi:id='" + id + "' name='" + id + "'", edges);
}

const std::string base = element("Class", "xmi:id='base' name='Base'");
const std::string three = element("Class", "xmi:id='c1' name='One'") +
                          element("Class", "xmi:id='c2' name='Two'") +
                          element("Interface", "xmi:id='i' name='Face'");

// Two classes made from UML elements, and generalizations between them made by hand.
struct Generalizations : testing::Test {
  Generalizations() {
    bridge.storeModel = &model;
    for (UMLClass* element : {&super, &sub}) {
      element->name = element->id;
      bridge.convertClass(element, &package);
    }
  }
  void connect(UMLGeneralization& generalization) {
    generalization.general = &super;
    generalization.specific = &sub;
    bridge.convertGeneralization(&generalization);
  }

  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  UMLClass super{"super", ""};
  UMLClass sub{"sub", ""};
  KYROmgUml2XmiImportBridge bridge{&log};
};

}  // namespace

TEST(Relations, SubclassesOfOneClassShareAGeneralization) {
  const ImportedModel imported(inPackage(subclass("s1", edge("xmi:id='g1' general='base'")) +
                                         subclass("s2", edge("xmi:id='g2' general='base'")) + base));
  const auto generalizations = imported.all<KYRGeneralization>();
  ASSERT_EQ(generalizations.size(), 1U);
  const KYRGeneralization& generalization = *generalizations[0];
  ASSERT_EQ(generalization.supertypeRoles.count(), 1U);
  EXPECT_EQ(generalization.supertypeRoles[0]->associatedClass, &imported.get<KYRClass>("base"));
  ASSERT_EQ(generalization.subtypeRoles.count(), 2U);
  EXPECT_EQ(generalization.subtypeRoles[0]->associatedClass, &imported.get<KYRClass>("s1"));
  EXPECT_EQ(text(generalization.subtypeRoles[0]->sourceId), "g1");
  EXPECT_EQ(text(generalization.subtypeRoles[1]->sourceId), "g2");
  EXPECT_EQ(text(generalization.sourceId), "");
  EXPECT_EQ(text(generalization.getName()), "");
  EXPECT_EQ(generalization.getDesignPackage(), imported.model.designPackages[0]);
}

TEST(Relations, ASetNamesTheGeneralizationAndGivesItAnId) {
  const ImportedModel imported(
      inPackage(subclass("s1", edge("xmi:id='g1' general='base' generalizationSet='set1'")) +
                subclass("s2", edge("xmi:id='g2' general='base' generalizationSet='set2'")) + base +
                element("GeneralizationSet", "xmi:id='set1' name='First'") +
                element("GeneralizationSet", "xmi:id='set2' name='Second'")));
  const auto generalizations = imported.all<KYRGeneralization>();
  ASSERT_EQ(generalizations.size(), 1U);  // two sets over one superclass still share it
  EXPECT_EQ(text(generalizations[0]->getName()), "First");
  EXPECT_EQ(text(generalizations[0]->sourceId), "set1");
  EXPECT_EQ(generalizations[0]->subtypeRoles.count(), 2U);
}

TEST(Relations, TheFirstEdgeOrItsSetDocumentsTheGeneralization) {
  const std::string edges = subclass("s1", edge("xmi:id='g1' general='base'")) +
                            subclass("s2", edge("xmi:id='g2' general='base' generalizationSet='set1'")) +
                            base + element("GeneralizationSet", "xmi:id='set1' name='First'") +
                            commentOn("g1", "Of the edge") + commentOn("g2", "Of the other edge") +
                            commentOn("set1", "Of the set");
  const ImportedModel byEdge(inPackage(edges));
  EXPECT_EQ(text(byEdge.all<KYRGeneralization>().at(0)->description), "Of the edge");
  EXPECT_EQ(text(byEdge.all<KYRGeneralization>().at(0)->getName()), "");
  EXPECT_FALSE(byEdge.has("set1"));
  const ImportedModel bySet(
      inPackage(subclass("s0", edge("xmi:id='g0' general='base' generalizationSet='set1'")) + edges));
  EXPECT_EQ(text(bySet.all<KYRGeneralization>().at(0)->description), "Of the set");
  for (const char* id : {"g0", "g1", "g2"}) EXPECT_EQ(text(bySet.get<KYRObject>(id).description), "") << id;
}

TEST(Relations, RealizationsAndDependenciesBringTheirDocumentationAlong) {
  const ImportedModel imported(inPackage(
      three +
      element("Class", "xmi:id='c' name='C'",
              "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r'>"
              "<supplier xmi:idref='i'/><client xmi:idref='c'/><client xmi:idref='c1'/>"
              "</interfaceRealization>") +
      element("Dependency", "xmi:id='d' supplier='c1'", "<client xmi:idref='c'/><client xmi:idref='c2'/>") +
      commentOn("r", "Offers") + commentOn("d", "Needs")));
  EXPECT_EQ(text(imported.get<KYRRealization>("r").description), "Offers");
  EXPECT_EQ(text(imported.get<KYRRealization>("r").getName()), "");
  EXPECT_EQ(imported.get<KYRRealization>("r").specificationClass, &imported.get<KYRClass>("c"));
  EXPECT_EQ(text(imported.get<KYRDependency>("d").description), "Needs");
  EXPECT_EQ(text(imported.get<KYRDependency>("d").getName()), "");
  EXPECT_EQ(imported.get<KYRDependency>("d").clientClass, &imported.get<KYRClass>("c"));
}

TEST_F(Generalizations, ASecondEdgeBetweenTheSameClassesRenamesTheirRole) {
  UMLGeneralization first("g1", "");
  UMLGeneralization second("g2", "");
  connect(first);
  KYRObject* const role = bridge.objects.find("g1");
  connect(second);
  EXPECT_EQ(bridge.objects.find("g1"), nullptr);
  EXPECT_EQ(bridge.objects.find("g2"), role);
  EXPECT_EQ(text(role->sourceId), "g2");
}

TEST_F(Generalizations, AnEdgeToADroppedClassIsDropped) {
  UMLClass boundary("b", "");
  boundary.name = "B";
  boundary.isBoundary = true;
  bridge.convertClass(&boundary, &package);
  UMLGeneralization toBoundary("g", "");
  toBoundary.general = &boundary;
  toBoundary.specific = &sub;
  bridge.convertGeneralization(&toBoundary);
  UMLGeneralization toNothing("h", "");
  toNothing.specific = &sub;
  bridge.convertGeneralization(&toNothing);
  UMLGeneralization fromNothing("k", "");
  fromNothing.general = &super;
  bridge.convertGeneralization(&fromNothing);
  for (const char* id : {"g", "h", "k"}) EXPECT_EQ(bridge.objects.find(id), nullptr) << id;
  EXPECT_EQ(package.elements.count(), 2U);
}

TEST_F(Generalizations, AClassMayBeItsOwnSuperclass) {
  UMLGeneralization ring("g", "");
  ring.general = &super;
  ring.specific = &super;
  bridge.convertGeneralization(&ring);
  EXPECT_NE(bridge.objects.find("g"), nullptr);
}

TEST(Relations, ClassesMaySpecialiseEachOtherInARing) {
  const ImportedModel imported(inPackage(
      subclass("a", edge("xmi:id='g1' general='b'")) + subclass("b", edge("xmi:id='g2' general='c'")) +
      subclass("c", edge("xmi:id='g3' general='a'") + edge("xmi:id='g4' general='c'") +
                        edge("xmi:id='g5' general='g5'"))));
  EXPECT_EQ(imported.all<KYRGeneralization>().size(), 3U);
  for (const char* id : {"g1", "g2", "g3", "g4"}) EXPECT_TRUE(imported.has(id)) << id;
  EXPECT_FALSE(imported.has("g5"));
}

TEST(Relations, ARelationOfAClassWithItselfIsOneLikeAnyOther) {
  const ImportedModel imported(inPackage(three +
                                         element("Dependency", "xmi:id='d' supplier='c1' client='c1'") +
                                         element("Dependency", "xmi:id='e' supplier='e' client='c1'")));
  EXPECT_EQ(imported.get<KYRDependency>("d").supplierClass, imported.get<KYRDependency>("d").clientClass);
  EXPECT_FALSE(imported.has("e"));
}

TEST(Relations, ARealizationJoinsAClassAndAnInterface) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='c' name='C'",
                          "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r' name='R'"
                          " supplier='i' client='c'/>")) +
          element("Package", "xmi:id='q' name='Q'", element("Interface", "xmi:id='i' name='I'"))));
  const KYRRealization& realization = imported.get<KYRRealization>("r");
  EXPECT_EQ(realization.realizationClass, &imported.get<KYRClass>("i"));
  EXPECT_EQ(realization.specificationClass, &imported.get<KYRClass>("c"));
  EXPECT_EQ(imported.pathOf("r"), "Q/R");
}

TEST(Relations, ARealizationOfAClassByAClassIsDropped) {
  const ImportedModel imported(
      inPackage(three + element("Class", "xmi:id='c' name='C'",
                                "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r'"
                                " supplier='c2' client='c'/>")));
  EXPECT_TRUE(imported.all<KYRRealization>().empty());
}

TEST(Relations, AnAssociationClassRealizesNothing) {
  const ImportedModel imported(
      inPackage(three + element("AssociationClass", "xmi:id='ac' name='AC'",
                                "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r'"
                                " supplier='i' client='ac'/>")));
  EXPECT_TRUE(imported.has("ac"));
  EXPECT_TRUE(imported.all<KYRRealization>().empty());
}

TEST(Relations, ADependencyGoesToThePackageOfItsFirstSupplier) {
  const ImportedModel imported(xmi(element("Package", "xmi:id='p' name='P'", three) +
                                   element("Dependency", "xmi:id='d' name='D' client='c2'",
                                           "<supplier xmi:idref='c1'/><supplier xmi:idref='c2'/>")));
  const KYRDependency& dependency = imported.get<KYRDependency>("d");
  EXPECT_EQ(dependency.supplierClass, &imported.get<KYRClass>("c1"));
  EXPECT_EQ(dependency.clientClass, &imported.get<KYRClass>("c2"));
  EXPECT_EQ(imported.pathOf("d"), "P/D");
  EXPECT_TRUE(imported.get<KYRClass>("c2").supplierDependencies.isEmpty());
}

TEST(Relations, ADependencyWithAnInterfaceOrAMissingEndIsDropped) {
  for (const char* ends : {"supplier='i' client='c1'", "supplier='c1' client='i'", "supplier='c1'",
                           "client='c1'", "supplier='missing' client='c1'", ""}) {
    const ImportedModel imported(inPackage(three + element("Dependency", std::string("xmi:id='d' ") + ends)));
    EXPECT_TRUE(imported.all<KYRDependency>().empty()) << ends;
  }
}

TEST(Relations, OtherKindsOfDependenciesAreNotConverted) {
  const ImportedModel imported(inPackage(three + element("Usage", "xmi:id='u' supplier='c1' client='c2'") +
                                         element("Abstraction", "xmi:id='a' supplier='c1' client='c2'") +
                                         element("Realization", "xmi:id='r' supplier='c1' client='c2'")));
  EXPECT_TRUE(imported.all<KYRDependency>().empty());
  EXPECT_TRUE(imported.all<KYRRealization>().empty());
}
