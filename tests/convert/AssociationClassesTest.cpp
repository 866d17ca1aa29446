// Association classes: a class and an association under one id.
#include <gtest/gtest.h>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"

namespace {

const std::string classes = element("Class", "xmi:id='c1' name='Customer'") +
                            element("Class", "xmi:id='c2' name='Order'") +
                            element("Interface", "xmi:id='i' name='Face'");

const std::string ends =
    "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='c1'/>"
    "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c2'/>";

std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", classes + elements));
}

}  // namespace

TEST(AssociationClasses, ANamedOneIsAClassAndAnAssociation) {
  const ImportedModel imported(
      inPackage(element("AssociationClass", "xmi:id='ac' name='Contract'",
                        ends + "<ownedAttribute xmi:type='uml:Property' xmi:id='at' name='signed'/>")));
  KYRClass& object = imported.get<KYRClass>("ac");
  const KYRAssociation& association = imported.get<KYRAssociation>("ac_ASSOCIATION");
  EXPECT_EQ(imported.pathOf("ac"), "P/Contract");
  EXPECT_EQ(text(association.getName()), "");
  EXPECT_EQ(object.association, &association);
  EXPECT_EQ(association.associationClass, &object);
  EXPECT_EQ(association.roles.count(), 2U);
  EXPECT_EQ(object.getAttributeCount(), 1);
}

TEST(AssociationClasses, NameAndDocumentationAreThoseOfTheClassAlone) {
  const ImportedModel imported(xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Class", "xmi:id='c' name='C'") +
                  element("AssociationClass", "xmi:id='ac' name='Link'",
                          "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='c' aggregation='composite'/>"
                          "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c'/>") +
                  commentOn("ac", "Ties them"))));
  EXPECT_EQ(text(imported.get<KYRClass>("ac").description), "Ties them");
  const KYRAssociation& association = imported.get<KYRAssociation>("ac_ASSOCIATION");
  EXPECT_EQ(text(association.description), "");
  EXPECT_EQ(text(association.getName()), "");
  EXPECT_TRUE(association.isComposite);
  EXPECT_TRUE(association.roles[0]->isSource);
}

TEST(AssociationClasses, ANamelessOneIsNamedAfterTheClassesAtItsOwnedEnds) {
  const ImportedModel imported(inPackage(element("AssociationClass", "xmi:id='ac'", ends)));
  EXPECT_EQ(imported.pathOf("ac"), "P/Customer Order");
}

TEST(AssociationClasses, OnlyEndsAtClassesGiveANamePart) {
  const ImportedModel imported(
      inPackage(element("AssociationClass", "xmi:id='ac'",
                        "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='i'/>"
                        "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c2'/>")));
  EXPECT_EQ(imported.pathOf("ac"), "P/Order/1");
}

TEST(AssociationClasses, ANamelessOneWithoutOwnedEndsIsDeletedWithAllThatItHas) {
  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  UMLProperty members[] = {{"x", ""}, {"y", ""}};
  UMLProperty kept("k", "");
  UMLProperty attribute("at", "");
  attribute.name = "signed";
  kept.name = "kept";
  UMLParameter parameter("pa", "");
  UMLOperation operation("op", "");
  operation.name = "run";
  operation.UMLOperation::addOwnedParameter(&parameter);
  UMLAssociationClass element("ac", "");
  for (UMLProperty& member : members) element.addMemberEnd(&member);
  element.UMLClass::addOwnedAttribute(&attribute);
  element.UMLClass::addOwnedOperation(&operation);
  UMLClass other("c", "");
  other.name = "C";
  other.UMLClass::addOwnedAttribute(&kept);
  bridge.convertClass(&element, &package);
  bridge.convertClass(&other, &package);
  ASSERT_NE(bridge.objects.find("ac"), nullptr);
  ASSERT_EQ(bridge.typedFeatures.count(), 4U);

  bridge.placeAssociationClasses();
  bridge.convertAssociation(&element);

  for (const char* id : {"ac", "at", "op", "pa", "ac_ASSOCIATION", "x", "y"}) {
    EXPECT_EQ(bridge.objects.find(id), nullptr) << id;
  }
  ASSERT_EQ(bridge.typedFeatures.count(), 1U);
  EXPECT_EQ(bridge.typedFeatures.at(0), kept.repositoryObject);
  EXPECT_EQ(element.repositoryObject, nullptr);
  EXPECT_EQ(attribute.repositoryObject, nullptr);
  EXPECT_EQ(operation.repositoryObject, nullptr);
  EXPECT_EQ(parameter.repositoryObject, nullptr);
  EXPECT_EQ(bridge.unplacedObjects.getCount(), 0U);
  EXPECT_EQ(package.elements.count(), 1U);
}

TEST(AssociationClasses, RelationsToADeletedOneAreDropped) {
  const ImportedModel imported(
      inPackage(element("AssociationClass", "xmi:id='ac'") +
                element("Association", "xmi:id='a'",
                        "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='ac'/>"
                        "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c2'/>")));
  EXPECT_FALSE(imported.has("ac"));
  EXPECT_TRUE(imported.all<KYRAssociation>().empty());
}

// Its own name, which it does not have yet, is a part of the name that it gets.
TEST(AssociationClasses, ANamelessOneMayStandAtItsOwnEnds) {
  const std::string self = "<ownedEnd xmi:type='uml:Property' xmi:id='s' type='ac'/>";
  const ImportedModel mixed(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='c' name='Order'") +
                      element("AssociationClass", "xmi:id='ac'",
                              self + "<ownedEnd xmi:type='uml:Property' xmi:id='e' type='c'/>"))));
  EXPECT_EQ(text(mixed.get<KYRClass>("ac").getName()), " Order");
  EXPECT_EQ(mixed.get<KYRAssociation>("ac_ASSOCIATION").roles.count(), 2U);
  const ImportedModel alone(
      xmi(element("Package", "xmi:id='p' name='P'", element("AssociationClass", "xmi:id='ac'", self))));
  EXPECT_TRUE(alone.all<KYRClass>().empty());
  EXPECT_TRUE(alone.all<KYRAssociation>().empty());
}

TEST(AssociationClasses, OneThatHasFewerThanTwoGoodEndsStaysAsAClass) {
  const ImportedModel imported(inPackage(element("AssociationClass", "xmi:id='ac' name='Contract'",
                                                 "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='c1'/>"
                                                 "<ownedEnd xmi:type='uml:Property' xmi:id='y'/>")));
  EXPECT_EQ(imported.get<KYRClass>("ac").association, nullptr);
  EXPECT_TRUE(imported.all<KYRAssociation>().empty());
}

TEST(AssociationClasses, OneAtTheTopWithoutARootPackageHasNoPlaceAndItsAssociationStays) {
  const ImportedModel imported(xmi(element("Package", "xmi:id='p' name='P'", classes) +
                                   element("AssociationClass", "xmi:id='ac' name='Contract'", ends)));
  EXPECT_FALSE(imported.has("ac"));
  const KYRAssociation& association = imported.get<KYRAssociation>("ac_ASSOCIATION");
  EXPECT_EQ(association.associationClass, nullptr);
  EXPECT_EQ(association.getDesignPackage(), imported.model.designPackages[0]);
}

// The second conversion takes the record over, so the class of the first one never gets a place.
TEST(AssociationClasses, OneListedByTwoPackagesIsPlacedOnce) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  classes + element("AssociationClass", "xmi:id='ac' name='Contract'", ends)) +
          element("Package", "xmi:id='q' name='Q'", "<packagedElement xmi:idref='ac'/>")));
  EXPECT_EQ(imported.countOf("ac"), 1U);
  EXPECT_EQ(imported.pathOf("ac"), "Q/Contract");
}
