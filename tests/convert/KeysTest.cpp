// Keys from the marks of an entity-relationship profile, and which attributes are optional.
#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRType.h"
#include "tests/database/DatabaseFiles.h"

namespace {

std::string property(const std::string& id, const std::string& name) {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "' name='" + name + "'/>";
}
std::string generalization(const std::string& id, const std::string& general) {
  return "<generalization xmi:type='uml:Generalization' xmi:id='" + id + "' general='" + general + "'/>";
}
std::string classWith(const std::string& id, const std::string& features) {
  return element("Class", "xmi:id='" + id + "' name='" + id + "'", features);
}
// An association of two classes; each role is named after the class that it leads to, unless told.
std::string association(const std::string& id, const std::string& from, const std::string& to,
                        const std::string& farName) {
  return element("Association", "xmi:id='" + id + "'",
                 "<ownedEnd xmi:type='uml:Property' xmi:id='" + id + "-near' name='near' type='" + from +
                     "'/><ownedEnd xmi:type='uml:Property' xmi:id='" + id + "-far' name='" + farName +
                     "' type='" + to + "'/>");
}

std::string mark(const std::string& kind, const std::string& id, const std::string& content) {
  return "<Entity_Relationship:" + kind + " xmi:id='m' base_Property='" + id + "'>" + content +
         "</Entity_Relationship:" + kind + ">";
}
std::string primaryKey(const std::string& id, const std::string& name = "") {
  return mark("PrimaryKey", id, name.empty() ? "" : "<id>" + name + "</id>");
}
std::string foreignKey(const std::string& id, const std::string& name = "") {
  return mark("ForeignKey", id, name.empty() ? "" : "<id>" + name + "</id>");
}

std::string file(const std::string& elements, const std::string& marks) {
  return fileOfMagicDraw(element("Package", "xmi:id='p' name='P'", elements), marks);
}

// The keys of a class: "P" for the primary one, "C" and "F" for others, the name and the attributes.
std::vector<std::string> keysOf(const ImportedModel& imported, const std::string& id) {
  std::vector<std::string> rows;
  const KYRClass& owner = imported.get<KYRClass>(id);
  for (const KYRKey* key : owner.keys) {
    std::string row = dynamic_cast<const KYRForeignKey*>(key) != nullptr ? "F "
                      : key == owner.primaryKey                          ? "P "
                                                                         : "C ";
    row += text(key->getName()) + ":";
    for (const KYRAttribute* attribute : key->attributes) row += " " + text(attribute->getName());
    EXPECT_EQ(key->associatedClass, &owner);
    rows.push_back(row);
  }
  return rows;
}

std::vector<std::string> attributesOf(const ImportedModel& imported, const std::string& id) {
  std::vector<std::string> names;
  for (const KYRAttribute* attribute : imported.all<KYRAttribute>()) {
    if (attribute->owner == &imported.get<KYRClass>(id)) names.push_back(text(attribute->getName()));
  }
  return names;
}

using Rows = std::vector<std::string>;

const std::string parent = classWith("Parent", property("key", "id") + property("other", "name"));
const std::string parentKey = primaryKey("key", "PK");

// A child of Parent that is associated with it, and has those attributes.
std::string childWith(const std::string& features) {
  return parent + classWith("Child", features) + association("a", "Child", "Parent", "parent");
}

}  // namespace

TEST(PrimaryKeys, TwoMarksOfAClassMakeOneKeyNamedAfterTheFirst) {
  const ImportedModel imported(
      file(classWith("C", property("a", "A") + property("b", "B") + property("d", "D")),
           primaryKey("b", "first") + primaryKey("a", "second")));
  EXPECT_EQ(keysOf(imported, "C"), Rows{"P first: B A"});
  const KYRCandidateKey* const key = imported.get<KYRClass>("C").primaryKey;
  ASSERT_NE(key, nullptr);
  EXPECT_TRUE(key->isUnique);
  EXPECT_EQ(key->primaryKeyClass, &imported.get<KYRClass>("C"));
}

TEST(PrimaryKeys, WithoutAChildTheKeyHasNoName) {
  EXPECT_EQ(keysOf(ImportedModel(file(classWith("C", property("a", "A")), primaryKey("a"))), "C"),
            Rows{"P : A"});
}

TEST(PrimaryKeys, TheNameIsTheTextOfTheFirstChildAsItStands) {
  EXPECT_EQ(
      keysOf(ImportedModel(file(classWith("C", property("a", "A")),
                                mark("PrimaryKey", "a", "<name>no</name><id> PK </id><id>second</id>"))),
             "C"),
      Rows{"P  PK : A"});
}

TEST(PrimaryKeys, AnAttributeMarkedTwiceIsInTheKeyOnce) {
  EXPECT_EQ(
      keysOf(ImportedModel(file(classWith("C", property("a", "A")), primaryKey("a") + primaryKey("a"))), "C"),
      Rows{"P : A"});
}

TEST(PrimaryKeys, MarksOfAnythingButAnAttributeAreIgnored) {
  const ImportedModel imported(file(
      childWith(property("c", "id")),
      primaryKey("a-far", "role") + primaryKey("Parent") + primaryKey("p") + primaryKey("a") +
          primaryKey("m") + primaryKey("nowhere") + primaryKey("") + primaryKey("KEY") + primaryKey("model") +
          "<Entity_Relationship:PrimaryKey/>" + "<Entity_Relationship:PrimaryKey base_Class='key'/>" +
          foreignKey("a-far") + foreignKey("Parent") + foreignKey("nowhere") + foreignKey("")));
  EXPECT_EQ(keysOf(imported, "Parent"), Rows{});
  EXPECT_EQ(keysOf(imported, "Child"), Rows{});
}

TEST(PrimaryKeys, MarksCountOnlyBelowTheRoot) {
  const ImportedModel imported(
      fileOfMagicDraw(element("Package", "xmi:id='p' name='P'", parent + parentKey) + parentKey,
                      "<x:y>" + parentKey + "</x:y>"));
  EXPECT_EQ(keysOf(imported, "Parent"), Rows{});
}

TEST(PrimaryKeys, OtherToolsHaveNoKeys) {
  const std::string elements =
      element("Package", "xmi:id='p' name='P'", childWith(property("f", "parent.id")));
  const std::string marks = parentKey + foreignKey("f", "FK");
  for (const std::string& tool : {enterpriseArchitect, std::string("Visual Paradigm"), std::string()}) {
    const ImportedModel imported(xmi(elements, "M", writtenBy(tool) + marks));
    EXPECT_EQ(keysOf(imported, "Parent"), Rows{}) << tool;
    EXPECT_EQ(keysOf(imported, "Child"), Rows{}) << tool;
    EXPECT_EQ(attributesOf(imported, "Child"), Rows{"parent.id"}) << tool;
  }
  EXPECT_EQ(keysOf(ImportedModel(xmi(elements, "M", writtenBy("magicdraw UML") + marks)), "Parent"),
            Rows{"P PK: id"});
}

TEST(ForeignKeys, APlaceholderTakesTheNameOfItsColumn) {
  const ImportedModel imported(file(childWith(property("x", "before") + property("f", "parent.id")),
                                    foreignKey("f", "FK") + parentKey));  // in any order
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F FK: id"});
  EXPECT_EQ(attributesOf(imported, "Child"), (Rows{"before", "id"}));
  EXPECT_EQ(text(imported.get<KYRAttribute>("f").getName()), "id");
  const auto* const key = dynamic_cast<KYRForeignKey*>(imported.get<KYRClass>("Child").keys[0]);
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(key->candidateKey, imported.get<KYRClass>("Parent").primaryKey);
  EXPECT_TRUE(key->candidateKey->foreignKeys.contains(key));
  EXPECT_EQ(key->associationRole, &imported.get<KYRAssociationRole>("a-near"));
  EXPECT_TRUE(imported.get<KYRAssociationRole>("a-near").foreignKeys.contains(key));
  EXPECT_EQ(key->generalizationRole, nullptr);
}

TEST(ForeignKeys, APlaceholderForAColumnOfTheClassIsDroppedInItsFavour) {
  const ImportedModel imported(
      file(childWith(property("f", "parent.id") + property("own", "id") + property("z", "Z")),
           parentKey + foreignKey("f", "FK")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F FK: id"});
  EXPECT_EQ(attributesOf(imported, "Child"), (Rows{"id", "Z"}));
  EXPECT_FALSE(imported.has("f"));
  EXPECT_EQ(imported.get<KYRClass>("Child").keys[0]->attributes[0], &imported.get<KYRAttribute>("own"));
  EXPECT_EQ(imported.get<KYRAttribute>("own").position, 1);  // positions keep the gap
}

TEST(ForeignKeys, ADroppedPlaceholderLeavesItsPrimaryKeyAndItsTypeToo) {
  const ImportedModel imported(file(childWith(property("f", "parent.id") + property("own", "id")),
                                    parentKey + primaryKey("f", "PK2") + primaryKey("own") +
                                        foreignKey("f", "FK") + foreignKey("f", "again")));
  EXPECT_EQ(keysOf(imported, "Child"), (Rows{"P PK2: id", "F FK: id", "F again: id"}));
  for (const KYRType* type : imported.model.types) {
    for (const KYRModelObject* typed : type->typedObjects) EXPECT_NE(text(typed->sourceId), "f");
  }
}

TEST(ForeignKeys, WithoutANameTheKeyHasNone) {
  EXPECT_EQ(keysOf(ImportedModel(file(childWith(property("f", "parent.id")), parentKey + foreignKey("f"))),
                   "Child"),
            Rows{"F : id"});
}

TEST(ForeignKeys, RoleNamesAreComparedWithoutRegardToCaseAndColumnsExactly) {
  for (const char* name : {"PARENT.id", "Parent.id"}) {
    EXPECT_EQ(
        keysOf(ImportedModel(file(childWith(property("f", name)), parentKey + foreignKey("f"))), "Child"),
        Rows{"F : id"})
        << name;
  }
  for (const char* name : {"parent.ID", "parent. id", "parent .id", "near.id", "parent.", ".", "parent.name",
                           "parent.parent.id", "parentid", "id"}) {
    const ImportedModel imported(file(childWith(property("f", name)), parentKey + foreignKey("f")));
    EXPECT_EQ(keysOf(imported, "Child"), Rows{}) << name;
    EXPECT_EQ(attributesOf(imported, "Child"), Rows{name});
  }
}

TEST(ForeignKeys, OnlyTheFirstPointOfANameParts) {
  const ImportedModel imported(file(classWith("Parent", property("key", "a.b")) +
                                        classWith("Child", property("f", "parent.a.b")) +
                                        association("a", "Child", "Parent", "parent"),
                                    parentKey + foreignKey("f")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F : a.b"});
}

TEST(ForeignKeys, ATargetWithoutAPrimaryKeyOrWithAnotherOneYieldsNoKey) {
  EXPECT_EQ(keysOf(ImportedModel(file(childWith(property("f", "parent.id")), foreignKey("f"))), "Child"),
            Rows{});
  EXPECT_EQ(keysOf(ImportedModel(
                       file(childWith(property("f", "parent.id")), primaryKey("other") + foreignKey("f"))),
                   "Child"),
            Rows{});
}

TEST(ForeignKeys, TheFirstRoleThatPassesEndsTheSearch) {
  const std::string second = classWith("Second", property("key2", "id"));
  const std::string third = classWith("Third", property("key3", "id"));
  const std::string child = classWith("Child", property("f", "parent.id"));
  const ImportedModel imported(
      file(parent + second + third + child + association("a", "Child", "Parent", "parent") +
               association("b", "Child", "Second", "parent") + association("d", "Child", "Third", "parent"),
           primaryKey("key2") + primaryKey("key3") + foreignKey("f")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F : id"});
  EXPECT_EQ(imported.get<KYRAssociationRole>("b-near").foreignKeys.count(), 1U);
  EXPECT_TRUE(imported.get<KYRAssociationRole>("d-near").foreignKeys.isEmpty());
}

TEST(ForeignKeys, OfTwoAssociationsWithOneClassTheFirstTakesTheKey) {
  const ImportedModel imported(
      file(childWith(property("f", "parent.id")) + association("b", "Child", "Parent", "PARENT"),
           parentKey + foreignKey("f")));
  EXPECT_EQ(imported.get<KYRAssociationRole>("a-near").foreignKeys.count(), 1U);
  EXPECT_TRUE(imported.get<KYRAssociationRole>("b-near").foreignKeys.isEmpty());
}

TEST(ForeignKeys, AClassCanReferToItself) {
  const ImportedModel imported(file(classWith("Node", property("key", "id") + property("f", "up.id")) +
                                        association("a", "Node", "Node", "up"),
                                    parentKey + foreignKey("f", "FK")));
  EXPECT_EQ(keysOf(imported, "Node"), (Rows{"P PK: id", "F FK: id"}));
  EXPECT_FALSE(imported.has("f"));
}

TEST(ForeignKeys, OverAGeneralizationTheAttributeKeepsItsName) {
  const ImportedModel imported(
      file(parent + classWith("Child", property("f", "id") + generalization("g", "Parent")),
           parentKey + foreignKey("f", "FK")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F FK: id"});
  const auto* const key = dynamic_cast<KYRForeignKey*>(imported.get<KYRClass>("Child").keys[0]);
  EXPECT_EQ(key->generalizationRole, &imported.get<KYRGeneralizationRole>("g"));
  EXPECT_TRUE(imported.get<KYRGeneralizationRole>("g").foreignKeys.contains(key));
  EXPECT_EQ(key->candidateKey, imported.get<KYRClass>("Parent").primaryKey);
  EXPECT_EQ(key->associationRole, nullptr);
}

TEST(ForeignKeys, EverySuperclassWithTheColumnGivesAKey) {
  const ImportedModel imported(
      file(parent + classWith("Second", property("key2", "id")) + classWith("Third", property("key3", "no")) +
               classWith("Fourth", property("key4", "id")) +
               classWith("Child", property("f", "id") + generalization("g1", "Parent") +
                                      generalization("g2", "Third") + generalization("g3", "Second") +
                                      generalization("g4", "Fourth")),
           parentKey + primaryKey("key2") + primaryKey("key3") + foreignKey("f", "FK")));
  EXPECT_EQ(keysOf(imported, "Child"), (Rows{"F FK: id", "F FK: id"}));
  EXPECT_EQ(imported.get<KYRGeneralizationRole>("g1").foreignKeys.count(), 1U);
  EXPECT_EQ(imported.get<KYRGeneralizationRole>("g3").foreignKeys.count(), 1U);
}

TEST(ForeignKeys, ANameThatBeginsWithAPointGoesWholeToTheSuperclasses) {
  const ImportedModel imported(file(
      classWith("Parent", property("key", ".id")) +
          classWith("Child", property("f", ".id") + property("g", ".x") + generalization("gen", "Parent")) +
          association("a", "Child", "Parent", ""),
      parentKey + foreignKey("f") + foreignKey("g")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F : .id"});
  EXPECT_EQ(imported.get<KYRGeneralizationRole>("gen").foreignKeys.count(), 1U);
  EXPECT_TRUE(imported.get<KYRAssociationRole>("a-near").foreignKeys.isEmpty());
}

TEST(ForeignKeys, ATwoPartNameThatNoRoleBearsIsLookedForAmongSuperclassesByItsColumn) {
  const ImportedModel imported(file(
      parent + classWith("Child",
                         property("f", "role.id") + property("g", "role.") + generalization("gen", "Parent")),
      parentKey + foreignKey("f") + foreignKey("g")));
  EXPECT_EQ(keysOf(imported, "Child"), Rows{"F : role.id"});
}

TEST(ForeignKeys, ClassesThatAreTheirOwnSuperclassesAreNoTrouble) {
  const ImportedModel imported(
      file(classWith("A", property("key", "id") + generalization("g1", "B") + generalization("g0", "A")) +
               classWith("B", property("key2", "id") + generalization("g2", "A")),
           parentKey + primaryKey("key2") + foreignKey("key", "FK") + foreignKey("key2", "FK2")));
  EXPECT_EQ(keysOf(imported, "A"), (Rows{"P PK: id", "F FK: id", "F FK: id"}));
  EXPECT_EQ(keysOf(imported, "B"), (Rows{"P : id", "F FK2: id"}));
}

TEST(ForeignKeys, NothingIsLogged) {
  const ImportedModel imported(
      file(childWith(property("f", "parent.id")), primaryKey("nowhere") + foreignKey("f")));
  EXPECT_EQ(imported.log.countOf("KBI_UML2XMI_W"), 0U);
  EXPECT_EQ(imported.log.countOf("KBI_UML2XMI_F"), 0U);
}

TEST(OptionalAttributes, AllButThoseOfPrimaryKeysAreOptional) {
  const ImportedModel imported(
      file(childWith(property("f", "parent.id") + property("x", "x")), parentKey + foreignKey("f")));
  EXPECT_FALSE(imported.get<KYRAttribute>("key").isOptional);
  EXPECT_TRUE(imported.get<KYRAttribute>("other").isOptional);
  EXPECT_TRUE(imported.get<KYRAttribute>("f").isOptional);
  EXPECT_TRUE(imported.get<KYRAttribute>("x").isOptional);
}

TEST(OptionalAttributes, WithoutMarksAllAreWhateverTheTool) {
  const std::string elements = element("Package", "xmi:id='p' name='P'", parent);
  for (const std::string& tool : {enterpriseArchitect, magicDraw, std::string()}) {
    const ImportedModel imported(xmi(elements, "M", writtenBy(tool)));
    for (const KYRAttribute* attribute : imported.all<KYRAttribute>())
      EXPECT_TRUE(attribute->isOptional) << tool;
  }
}

TEST(OptionalAttributes, ACandidateKeyThatIsNotPrimaryDoesNotCount) {
  RecordingLog log;
  KYROmgUml2XmiImportBridge bridge(&log);
  KYRClass owner;
  auto* const attribute = new KYRAttribute();
  owner.addFeatureUniqueName(attribute, '/');
  auto* const key = new KYRCandidateKey();
  owner.addKey(key);
  key->addAttribute(attribute);
  bridge.typedFeatures.add(attribute);
  bridge.markOptionalAttributes();
  EXPECT_TRUE(attribute->isOptional);
  attribute->isOptional = false;
  owner.addPrimaryCandidateKey(key);
  bridge.markOptionalAttributes();
  EXPECT_FALSE(attribute->isOptional);
}

// A class with many roles and as many foreign keys: each key looks only at the roles of its name.
TEST(ForeignKeys, ManyKeysOfAClassWithManyRolesAreLinear) {
  constexpr int count = 3000;
  std::string elements;
  std::string features;
  std::string marks;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    elements += classWith("P" + number, property("k" + number, "id" + number)) +
                association("a" + number, "Child", "P" + number, "role" + number);
    features += property("f" + number, "role" + number + ".id" + number);
    marks += primaryKey("k" + number) + foreignKey("f" + number);
  }
  const ImportedModel imported(file(elements + classWith("Child", features), marks));
  EXPECT_EQ(imported.get<KYRClass>("Child").keys.count(), static_cast<unsigned int>(count));
  constexpr std::uint64_t stepsForOne = 20;
  EXPECT_LT(imported.steps, stepsForOne * count);
}

// Roles that share a name and lead nowhere cost each key a look at all of them: that ends in an error.
TEST(ForeignKeys, KeysThatSearchInVainWithoutEndEndTheImport) {
  constexpr int count = 3000;
  std::string elements;
  std::string features;
  std::string marks;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    elements += element("Class", "xmi:id='P" + number + "' name='P" + number + "'") +
                association("a" + number, "Child", "P" + number, "role");
    features += property("f" + number, "role.id" + number);
    marks += foreignKey("f" + number);
  }
  EXPECT_THROW(ImportedModel(file(elements + classWith("Child", features), marks)), KYRException);
}
