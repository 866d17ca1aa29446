// What holds for every UML object: one identity however many bases, adders that keep lists free of
// duplicates, and texts that are borrowed only when moved in as such.
#include "uml/UMLElement.h"

#include <gtest/gtest.h>

#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"

namespace {

TEST(UMLElement, AClassAnswersToItsLineageInAnyOrder) {
  const UMLClass object("id", "name");
  for (const int kind : {102, 111, 98, 12, 64, 0, 30, 65, 66}) EXPECT_TRUE(object.isKindOf(kind)) << kind;
  EXPECT_FALSE(object.isKindOf(18));
  for (const int kind : {66, 65, 30, 0, 64, 12, 98, 111, 102}) EXPECT_TRUE(object.isKindOf(kind)) << kind;
}

TEST(UMLElement, AnAssociationClassIsBothAndHoldsOneClassifier) {
  UMLAssociationClass object("id", "name");
  EXPECT_TRUE(object.isKindOf(24));
  EXPECT_TRUE(object.isKindOf(102));
  EXPECT_EQ(object.getKind(), 116);
  UMLAssociation& association = object;
  UMLClass& class_ = object;
  EXPECT_EQ(static_cast<UMLClassifier*>(&association), static_cast<UMLClassifier*>(&class_));
  EXPECT_EQ(static_cast<UMLElement*>(&association), static_cast<UMLElement*>(&class_));
  association.name = "set through one base";
  EXPECT_EQ(class_.name.view(), "set through one base");
}

TEST(UMLElement, APropertyIsNoPlainNamedElement) {
  const UMLProperty object("id", "name");
  EXPECT_EQ(object.getKind(), 70);
  EXPECT_TRUE(object.isKindOf(64));
  UMLElement root("id", "name");
  EXPECT_EQ(root.getKind(), 0);
  EXPECT_TRUE(root.isKindOf(0));
  EXPECT_FALSE(root.isKindOf(64));
}

TEST(UMLElement, TheSamePointerIsAddedOnce) {
  UMLClass owner("c", "C");
  UMLProperty first("p", "P");
  UMLProperty second("p", "P");  // same texts, another object
  EXPECT_TRUE(owner.addOwnedAttribute(&first));
  EXPECT_FALSE(owner.addOwnedAttribute(&first));
  EXPECT_TRUE(owner.addOwnedAttribute(&second));
  EXPECT_FALSE(owner.addOwnedAttribute(&first));
  EXPECT_EQ(owner.ownedAttribute.count(), 2U);
  EXPECT_EQ(owner.ownedAttribute.at(0), &first);
}

TEST(UMLElement, ACommentHasTheNameAsElementNameOnly) {
  UMLComment comment("c", "a note");
  EXPECT_EQ(comment.elementName.view(), "a note");
  EXPECT_EQ(umlCast<UMLNamedElement>(static_cast<UMLElement*>(&comment)), nullptr);
}

TEST(UMLElement, FieldsStartEmptyFalseNullAndZero) {
  const UMLProperty property("id", "name");
  EXPECT_FALSE(property.isDerived);
  EXPECT_EQ(property.lower, 0);
  EXPECT_TRUE(property.upper.isEmpty());
  EXPECT_EQ(property.type, nullptr);
  EXPECT_EQ(property.aggregation, nullptr);
  EXPECT_EQ(property.UMLNamedElement::visibility, nullptr);
  EXPECT_TRUE(property.ownedElement.isEmpty());
  EXPECT_EQ(property.owner, nullptr);
  EXPECT_TRUE(property.documentation.isEmpty());
  const UMLType type("id", "name");
  EXPECT_EQ(type.length, 0);
  EXPECT_EQ(type.scale, 0);
}

TEST(UMLElement, ACopiedTextIsOwnedAMovedOneStaysWhatItWas) {
  static const char characters[] = "EAID_1";
  KYRString view = KYRString::borrowed(characters);
  const UMLClass copied(view, "n");
  EXPECT_FALSE(copied.id.isBorrowed());
  const UMLClass moved(std::move(view), "n");
  EXPECT_TRUE(moved.id.isBorrowed());
  EXPECT_EQ(moved.id.getCharacters(), characters);
}

TEST(UMLCast, NullAndForeignObjectsGiveNull) {
  EXPECT_EQ(umlCast<UMLClass>(static_cast<UMLElement*>(nullptr)), nullptr);
  UMLPackage package("p", "P");
  UMLElement* const element = &package;
  EXPECT_EQ(umlCast<UMLClass>(element), nullptr);
  EXPECT_EQ(umlCast<UMLPackage>(element), &package);
  EXPECT_EQ(umlCast<UMLElement>(element), element);
}

}  // namespace
