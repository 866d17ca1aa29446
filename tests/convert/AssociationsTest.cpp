// Associations: their ends, multiplicities and places, and what is left of those that are dropped.
#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"

namespace {

const std::string classes =
    element("Class", "xmi:id='c1' name='One'") + element("Class", "xmi:id='c2' name='Two'") +
    element("Interface", "xmi:id='i' name='Face'") + element("PrimitiveType", "xmi:id='t' name='String'") +
    element("Enumeration", "xmi:id='e' name='Color'");

std::string end(const std::string& attributes, const std::string& content = "") {
  return "<ownedEnd xmi:type='uml:Property' " + attributes + ">" + content + "</ownedEnd>";
}

std::string association(const std::string& attributes, const std::string& ends) {
  return element("Association", attributes, ends);
}

std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", classes + elements));
}

std::string bound(const std::string& tag, const std::string& literal, const std::string& value) {
  return "<" + tag + " xmi:type='uml:" + literal + "' xmi:id='" + tag + "' value='" + value + "'/>";
}

// The multiplicity of an end with those bounds.
std::string multiplicityOf(const std::string& bounds) {
  const ImportedModel imported(inPackage(
      association("xmi:id='a'", end("xmi:id='x' type='c1'", bounds) + end("xmi:id='y' type='c2'"))));
  return text(imported.get<KYRAssociationRole>("x").multiplicity);
}

std::string range(int lower, int upper) { return text(buildMultiplicity(lower, upper)); }

}  // namespace

TEST(Associations, AnAssociationTakesNameIdAndBothEnds) {
  const ImportedModel imported(
      inPackage(association("xmi:id='a' name='knows'",
                            end("xmi:id='x' name='from' type='c1' isOrdered='true' visibility='private'") +
                                end("xmi:id='y' type='c2'"))));
  const KYRAssociation& object = imported.get<KYRAssociation>("a");
  EXPECT_EQ(imported.pathOf("a"), "P/knows");
  ASSERT_EQ(object.roles.count(), 2U);
  const KYRAssociationRole& from = imported.get<KYRAssociationRole>("x");
  EXPECT_EQ(object.roles[0], &from);
  EXPECT_EQ(text(from.getName()), "from");
  EXPECT_EQ(from.associatedClass, &imported.get<KYRClass>("c1"));
  EXPECT_TRUE(imported.get<KYRClass>("c1").associationRoles.contains(&from));
  EXPECT_TRUE(from.isOrdered);
  EXPECT_EQ(from.visibility, 2);
  EXPECT_TRUE(from.isSource);
  EXPECT_FALSE(object.roles[1]->isSource);
  EXPECT_FALSE(object.roles[1]->isOrdered);
  EXPECT_EQ(text(object.roles[1]->getName()), "");
  EXPECT_FALSE(object.isComposite);
}

TEST(Associations, MemberEndsGoBeforeOwnedEnds) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='c1' name='One'",
                          "<ownedAttribute xmi:type='uml:Property' xmi:id='m1' type='c2' association='a'/>") +
                      element("Class", "xmi:id='c2' name='Two'",
                              "<ownedAttribute xmi:type='uml:Property' xmi:id='m2' type='c1' "
                              "association='a'/>") +
                      association("xmi:id='a'", "<memberEnd xmi:idref='m2'/><memberEnd xmi:idref='m1'/>"))));
  EXPECT_EQ(imported.get<KYRAssociation>("a").roles.count(), 2U);
  EXPECT_TRUE(imported.has("m1"));
  EXPECT_TRUE(imported.has("m2"));
}

TEST(Associations, AnAssociationWithFewerThanTwoEndsDoesNotExist) {
  const ImportedModel imported(
      inPackage(association("xmi:id='a'", "") + association("xmi:id='b'", end("xmi:id='x' type='c1'"))));
  EXPECT_TRUE(imported.all<KYRAssociation>().empty());
}

TEST(Associations, AnEndTypedByNoClassTakesTheAssociationWithIt) {
  for (const char* type : {"type='t'", "type='e'", "type='missing'", ""}) {
    const ImportedModel imported(inPackage(
        association("xmi:id='a'", end("xmi:id='x' type='c1'") + end(std::string("xmi:id='y' ") + type))));
    EXPECT_TRUE(imported.all<KYRAssociation>().empty()) << type;
    EXPECT_TRUE(imported.all<KYRAssociationRole>().empty()) << type;
    EXPECT_TRUE(imported.get<KYRClass>("c1").associationRoles.isEmpty()) << type;
  }
}

// An association of one property with itself has one end, and so does not exist.
TEST(Associations, EndsThatAreTheSamePropertyCountOnce) {
  const std::string one = end("xmi:id='x' type='c1'");
  const struct {
    std::string content;
    std::size_t associations;
  } rows[] = {
      {"<memberEnd xmi:idref='x'/><memberEnd xmi:idref='x'/>" + one, 0},
      {one + "<ownedEnd xmi:idref='x'/>", 0},
      {"<memberEnd xmi:idref='x'/>" + one + end("xmi:id='y' type='c2'"), 1},
      {"<memberEnd xmi:idref='x'/><memberEnd xmi:idref='x'/><memberEnd xmi:idref='y'/>" + one +
           end("xmi:id='y' type='c2'"),
       1},
      {one + one, 0},  // an id stands for the first that bears it
  };
  for (const auto& row : rows) {
    const ImportedModel imported(inPackage(association("xmi:id='a'", row.content)));
    EXPECT_EQ(imported.all<KYRAssociation>().size(), row.associations) << row.content;
    EXPECT_EQ(imported.all<KYRAssociationRole>().size(), 2 * row.associations) << row.content;
  }
  const ImportedModel itself(inPackage(association("xmi:id='a'", "<memberEnd xmi:idref='a'/>" + one)));
  EXPECT_TRUE(itself.all<KYRAssociation>().empty());
}

TEST(Associations, AnEndTypedByItsOwnAssociationIsDropped) {
  const ImportedModel imported(
      inPackage(association("xmi:id='a'", end("xmi:id='x' type='c1'") + end("xmi:id='y' type='a'") +
                                              end("xmi:id='z' type='z'") + end("xmi:id='w' type='c2'"))));
  EXPECT_EQ(imported.get<KYRAssociation>("a").roles.count(), 2U);
  EXPECT_EQ(imported.all<KYRAssociationRole>().size(), 2U);
}

// Each association makes roles of its own of an end that two of them list.
TEST(Associations, AnEndMayBeListedByTwoAssociations) {
  const ImportedModel imported(
      inPackage(association("xmi:id='a'", end("xmi:id='x' type='c1'") + end("xmi:id='y' type='c2'")) +
                association("xmi:id='b'", "<memberEnd xmi:idref='x'/><memberEnd xmi:idref='y'/>")));
  EXPECT_EQ(imported.all<KYRAssociation>().size(), 2U);
  EXPECT_EQ(imported.countOf("x"), 2U);
  EXPECT_EQ(imported.get<KYRClass>("c1").associationRoles.count(), 2U);
}

TEST(Associations, ADroppedAssociationLeavesNoTrace) {
  RecordingLog log;
  KYRStoreModel model;
  KYRDesignPackage package;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  UMLClass target("c", "");
  target.name = "C";
  bridge.convertClass(&target, &package);
  UMLProperty good("x", "");
  UMLProperty bad("y", "");
  good.type = &target;
  UMLAssociation element("a", "");
  element.addOwnedEnd(&good);
  element.addOwnedEnd(&bad);
  bridge.convertAssociation(&element);
  EXPECT_EQ(bridge.objects.find("x"), nullptr);
  EXPECT_EQ(bridge.objects.find("a"), nullptr);
  EXPECT_EQ(good.repositoryObject, nullptr);
  EXPECT_TRUE(dynamic_cast<const KYRClass*>(target.repositoryObject)->associationRoles.isEmpty());
  EXPECT_TRUE(log.lines.empty());
}

TEST(Associations, OnlyTwoRolesGetADirection) {
  const std::string two = end("xmi:id='x' type='c1'") + end("xmi:id='y' type='i'");
  const ImportedModel oneFails(inPackage(association("xmi:id='a'", two + end("xmi:id='z' type='t'"))));
  EXPECT_EQ(oneFails.get<KYRAssociation>("a").roles.count(), 2U);
  EXPECT_TRUE(oneFails.get<KYRAssociationRole>("x").isSource);
  const ImportedModel allGood(inPackage(association("xmi:id='a'", two + end("xmi:id='z' type='c2'"))));
  EXPECT_EQ(allGood.get<KYRAssociation>("a").roles.count(), 3U);
  EXPECT_FALSE(allGood.get<KYRAssociationRole>("x").isSource);
}

TEST(Associations, BoundsMakeTheMultiplicity) {
  const struct {
    std::string bounds;
    std::string expected;
  } rows[] = {
      {"", range(0, manyMultiplicity)},
      {bound("upperValue", "LiteralUnlimitedNatural", "*"), range(0, manyMultiplicity)},
      {bound("upperValue", "LiteralUnlimitedNatural", "7"), range(0, 7)},
      {bound("upperValue", "LiteralUnlimitedNatural", "-1"), range(0, manyMultiplicity)},
      {bound("upperValue", "LiteralUnlimitedNatural", "abc"), range(0, 0)},
      {bound("lowerValue", "LiteralInteger", "2") + bound("upperValue", "LiteralUnlimitedNatural", "abc"),
       range(0, 0)},
      {bound("lowerValue", "LiteralInteger", "5") + bound("upperValue", "LiteralInteger", "3"), range(3, 3)},
      {bound("lowerValue", "LiteralInteger", "-1") + bound("upperValue", "LiteralInteger", "3"), range(3, 3)},
      {bound("lowerValue", "LiteralInteger", "1") + bound("upperValue", "LiteralInteger", "-1"),
       range(1, manyMultiplicity)},
      {bound("lowerValue", "LiteralString", "4") + bound("upperValue", "LiteralString", "4"),
       range(0, manyMultiplicity)},
      {bound("lowerValue", "LiteralUnlimitedNatural", "4"), range(0, manyMultiplicity)},
      {bound("lowerValue", "LiteralInteger", "-1"), "*"},
      {bound("lowerValue", "LiteralInteger", "-1") + bound("upperValue", "LiteralInteger", "-1"), "*"},
      {bound("upperValue", "LiteralInteger", ""), "0"},
      {bound("upperValue", "LiteralUnlimitedNatural", ""), "0"},
      {bound("upperValue", "LiteralUnlimitedNatural", "12 of them"), "0..12"},
      {bound("upperValue", "OpaqueExpression", "7"), "0..*"},
      // Beyond what a number holds: cut at its limits, and a lower bound at the upper one.
      {bound("upperValue", "LiteralInteger", "99999999999999999999"), range(0, 2147483647)},
      {bound("upperValue", "LiteralUnlimitedNatural", "99999999999999999999"), range(0, 2147483647)},
      {bound("upperValue", "LiteralUnlimitedNatural", "-99999999999999999999"), "0..*"},
      {bound("lowerValue", "LiteralInteger", "99999999999999999999"), "*"},
      {bound("lowerValue", "LiteralInteger", "-99999999999999999999") +
           bound("upperValue", "LiteralInteger", "2"),
       "2"},
  };
  for (const auto& row : rows) EXPECT_EQ(multiplicityOf(row.bounds), row.expected) << row.bounds;
}

TEST(Associations, ThePlainBoundsOfAnEndAreNotConsulted) {
  const ImportedModel imported(inPackage(association(
      "xmi:id='a'", end("xmi:id='x' type='c1' lower='2' upper='3'") + end("xmi:id='y' type='c2'"))));
  EXPECT_EQ(text(imported.get<KYRAssociationRole>("x").multiplicity), range(0, manyMultiplicity));
}

TEST(Associations, CompositionIsToldOnTheAssociationAndOnTheEnd) {
  const struct {
    const char* aggregation;
    bool isComposite;
    bool isAggregate;
  } rows[] = {{"composite", true, true}, {"shared", false, true}, {"none", false, false}, {"", false, false}};
  for (const auto& row : rows) {
    const ImportedModel imported(inPackage(association(
        "xmi:id='a'", end("xmi:id='x' type='c1' aggregation='" + std::string(row.aggregation) + "'") +
                          end("xmi:id='y' type='c2'"))));
    EXPECT_EQ(imported.get<KYRAssociation>("a").isComposite, row.isComposite) << row.aggregation;
    EXPECT_EQ(imported.get<KYRAssociationRole>("x").isAggregate, row.isAggregate) << row.aggregation;
  }
}

TEST(Associations, AnAssociationBringsItsDocumentationAlongAndItsEndsDoNot) {
  const ImportedModel imported(
      inPackage(association("xmi:id='a'", end("xmi:id='x' type='c1'") + end("xmi:id='y' type='c2'")) +
                commentOn("a", "Of the association") + commentOn("x", "Of the end")));
  EXPECT_EQ(text(imported.get<KYRAssociation>("a").description), "Of the association");
  EXPECT_EQ(text(imported.get<KYRAssociationRole>("x").description), "");
}

TEST(Associations, AnAssociationIsPlacedWithTheClassOfItsFirstEnd) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c1' name='One'")) +
          element("Package", "xmi:id='q' name='Q'", element("Class", "xmi:id='c2' name='Two'")) +
          element("Package", "xmi:id='r' name='R'",
                  element("Class", "xmi:id='c3' name='Three'") +
                      association("xmi:id='a' name='A'",
                                  end("xmi:id='x' type='c2'") + end("xmi:id='y' type='c1'")))));
  EXPECT_EQ(imported.pathOf("a"), "Q/A");
}
