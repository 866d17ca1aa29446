// Classes and interfaces: their fields, and which of their features and relations are taken.
#include <gtest/gtest.h>

#include "repository/datatypes/KYRDataStoreVersion.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYROperation.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"

namespace {

std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", elements));
}

std::string property(const std::string& attributes) {
  return "<ownedAttribute xmi:type='uml:Property' " + attributes + "/>";
}

std::string operation(const std::string& attributes) {
  return "<ownedOperation xmi:type='uml:Operation' " + attributes + "/>";
}

std::vector<std::string> attributesOf(const KYRClass& object) {
  std::vector<std::string> names;
  for (const KYRAttribute* attribute : object.attributes) {
    names.push_back(std::to_string(attribute->position) + " " + text(attribute->getName()));
  }
  return names;
}

using Names = std::vector<std::string>;

}  // namespace

TEST(Classes, AClassTakesNameIdAbstractnessAndVisibility) {
  const ImportedModel imported(
      inPackage(element("Class", "xmi:id='c' name='C' isAbstract='true' visibility='protected'") +
                element("Class", "xmi:id='d' name='D'")));
  const KYRClass& c = imported.get<KYRClass>("c");
  EXPECT_EQ(text(c.getName()), "C");
  EXPECT_TRUE(c.isAbstract);
  EXPECT_EQ(c.visibility, 1);
  EXPECT_EQ(c.classCategory, 0);
  EXPECT_FALSE(c.isPhysicalClass);
  const KYRClass& d = imported.get<KYRClass>("d");
  EXPECT_FALSE(d.isAbstract);
  EXPECT_EQ(d.visibility, 0);  // absent: as the repository has it
}

TEST(Classes, AnInterfaceIsAClassOfItsOwnCategory) {
  const ImportedModel imported(
      inPackage(element("Interface", "xmi:id='i' name='I' isAbstract='true' visibility='package'",
                        property("xmi:id='a' name='A'") + operation("xmi:id='o' name='O'"))));
  const KYRClass& object = imported.get<KYRClass>("i");
  EXPECT_EQ(object.classCategory, 9);
  EXPECT_TRUE(object.isAbstract);
  EXPECT_EQ(object.visibility, 3);
  EXPECT_EQ(object.getAttributeCount(), 1);
  EXPECT_EQ(object.getOperationCount(), 1);
}

TEST(Classes, VisibilityIsMapped) {
  const int expected[] = {0, 2, 1, 3, 2, 2};
  const int values[] = {0, 1, 2, 3, 4, -1};
  for (std::size_t i = 0; i < std::size(values); ++i) {
    EXPECT_EQ(KYROmgUml2XmiImportBridge::mapVisibility(values[i]), expected[i]) << values[i];
  }
}

TEST(Classes, ABoundaryHasNoRepositoryObject) {
  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  UMLClass element("b", "");
  element.name = "B";
  element.isBoundary = true;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  bridge.convertClass(&element, &package);
  EXPECT_EQ(element.repositoryObject, nullptr);
  EXPECT_TRUE(package.elements.isEmpty());
  EXPECT_EQ(bridge.objects.getCount(), 0U);
  EXPECT_TRUE(log.lines.empty());
}

TEST(Classes, ABoundaryOfAFileTakesTheRelationsThatEndOnItAlong) {
  const std::string ends =
      "<ownedEnd xmi:type='uml:Property' xmi:id='e1' type='c' association='s'/>"
      "<ownedEnd xmi:type='uml:Property' xmi:id='e2' type='b' association='s'/>";
  const ImportedModel imported(
      "<xmi:XMI xmlns:xmi='http://schema.omg.org/spec/XMI/2.1' "
      "xmlns:uml='http://schema.omg.org/spec/UML/2.1'>"
      "<xmi:Documentation exporter='Enterprise Architect' exporterVersion='6.5'/>"
      "<uml:Model xmi:id='model' name='Model'>" +
      element("Class", "xmi:id='c' name='C'",
              "<generalization xmi:type='uml:Generalization' xmi:id='g' general='b'/>") +
      element("Class", "xmi:id='b' name='B'") + element("Association", "xmi:id='s'", ends) +
      "</uml:Model><xmi:Extension extender='Enterprise Architect'><elements>"
      "<element xmi:idref='b' xmi:type='uml:Boundary'/></elements></xmi:Extension></xmi:XMI>");
  EXPECT_TRUE(imported.has("c"));
  for (const char* const id : {"b", "s", "e1", "e2", "g"}) EXPECT_FALSE(imported.has(id)) << id;
}

TEST(Classes, OnAPhysicalTargetClassesArePhysical) {
  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  const KYRDataStoreVersion target("ORACLE", 12, 0, 0);
  UMLClass element("c", "");
  element.name = "C";
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  bridge.targetDataStore = &target;
  bridge.convertClass(&element, &package);
  const auto* const object = dynamic_cast<const KYRClass*>(element.repositoryObject);
  ASSERT_NE(object, nullptr);
  EXPECT_TRUE(object->isPhysicalClass);
  EXPECT_EQ(object->umlElement, static_cast<UMLElement*>(&element));
}

TEST(Classes, AttributesAreNamedPropertiesThatAreNoEndOfAnAssociation) {
  const ImportedModel imported(
      inPackage(element("Class", "xmi:id='c' name='C'",
                        property("xmi:id='a1' name='one'") + property("xmi:id='n'") +
                            property("xmi:id='e' name='end' association='as'") +
                            property("xmi:id='a2' name='two'") + property("xmi:id='a3' name='one'")) +
                element("Association", "xmi:id='as' memberEnd='e'")));
  EXPECT_EQ(attributesOf(imported.get<KYRClass>("c")), (Names{"0 one", "1 two", "2 one/1"}));
  EXPECT_FALSE(imported.has("n"));
  EXPECT_FALSE(imported.has("e"));
}

TEST(Classes, OperationsAreNamedAndMayShareAName) {
  const ImportedModel imported(inPackage(element(
      "Class", "xmi:id='c' name='C'",
      operation("xmi:id='o1' name='run'") + operation("xmi:id='n'") + operation("xmi:id='o2' name='run'"))));
  EXPECT_EQ(imported.get<KYRClass>("c").getOperationCount(), 2);
  EXPECT_EQ(text(imported.get<KYROperation>("o1").getName()), "run");
  EXPECT_EQ(text(imported.get<KYROperation>("o2").getName()), "run");
  EXPECT_EQ(imported.get<KYROperation>("o1").position, 0);
  EXPECT_EQ(imported.get<KYROperation>("o2").position, 1);
  EXPECT_FALSE(imported.has("n"));
}

TEST(Classes, ANestedClassifierProducesNothing) {
  const ImportedModel imported(
      inPackage(element("Class", "xmi:id='c' name='C'",
                        "<nestedClassifier xmi:type='uml:Class' xmi:id='n' name='N'>" +
                            property("xmi:id='a' name='A'") + "</nestedClassifier>")));
  EXPECT_FALSE(imported.has("n"));
  EXPECT_FALSE(imported.has("a"));
}

TEST(Classes, AnInterfaceTakesPartInGeneralizations) {
  const ImportedModel imported(
      inPackage(element("Interface", "xmi:id='i' name='I'",
                        "<generalization xmi:type='uml:Generalization' xmi:id='g' general='j'/>") +
                element("Interface", "xmi:id='j' name='J'")));
  EXPECT_EQ(imported.all<KYRGeneralization>().size(), 1U);
}

TEST(Classes, PositionsBeyondSixteenBitsSaturate) {
  constexpr int count = 65538;
  std::vector<std::unique_ptr<UMLProperty>> properties;
  UMLClass element("c", "");
  element.name = "C";
  for (int i = 0; i < count; ++i) {
    properties.push_back(std::make_unique<UMLProperty>("", ""));
    properties.back()->name = "a";
    element.UMLClass::addOwnedAttribute(properties.back().get());
  }
  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  bridge.convertClass(&element, &package);
  const auto* const object = dynamic_cast<const KYRClass*>(element.repositoryObject);
  ASSERT_EQ(object->getAttributeCount(), count);
  EXPECT_EQ(object->getAttribute(65535)->position, 65535);
  EXPECT_EQ(object->getAttribute(65537)->position, 65535);
}
