// The literals of enumerations as values of types.
#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRTypeValue.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLValues.h"

namespace {

std::string literal(const std::string& id, const std::string& name, const std::string& content = "") {
  return "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='" + id + "' name='" + name + "'>" +
         content + "</ownedLiteral>";
}
// Each specification has an id of its own.
std::string specified(const std::string& type, const std::string& attributes) {
  static int count = 0;
  return "<specification xmi:type='uml:" + type + "' xmi:id='s" + std::to_string(count++) + "' " +
         attributes + "/>";
}
std::string enumeration(const std::string& id, const std::string& name, const std::string& literals) {
  return element("Enumeration", "xmi:id='" + id + "' name='" + name + "'", literals);
}
std::string property(const std::string& id, const std::string& type) {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "' name='" + id + "' type='" + type +
         "'/>";
}
std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", elements));
}

// The values of a type: position, name, value and id.
std::vector<std::string> valuesOf(const KYRDerivedType& type) {
  std::vector<std::string> rows;
  for (const KYRTypeValue* value : type.typeValues) {
    rows.push_back(std::to_string(value->position) + "|" + text(value->getName()) + "|" + text(value->value) +
                   "|" + text(value->sourceId));
  }
  return rows;
}

using Rows = std::vector<std::string>;

// The data type and the values of an enumeration with those literals.
Rows convert(const std::string& literals) {
  const ImportedModel imported(inPackage(enumeration("e", "Color", literals)));
  const KYRDerivedType& type = imported.get<KYRDerivedType>("e");
  Rows rows = valuesOf(type);
  rows.insert(rows.begin(), text(type.dataType) + " on " + text(type.baseConcreteType->getName()));
  return rows;
}

struct TypeValues : testing::Test {
  TypeValues() {
    bridge.storeModel = &model;
    bridge.dataTypeConverter = std::make_unique<KYRDataTypeConverter>(
        log, KYRDataStoreVersion(KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML, 1, 0, 0),
        KYRDataTypeConstants::TOOL_OMG_UML);
  }
  ~TypeValues() override { bridge.objects.empty(); }
  UMLEnumeration* makeEnumeration(const char* id, const char* name,
                                  const std::vector<std::string>& literalNames) {
    enumerations.push_back(std::make_unique<UMLEnumeration>(KYRString(id), KYRString(name)));
    UMLEnumeration* const result = enumerations.back().get();
    result->name = name;
    for (const std::string& literalName : literalNames) {
      const KYRString own(literalName);
      literals.push_back(std::make_unique<UMLEnumerationLiteral>(id + KYRString("-") + own, own));
      literals.back()->name = own;
      result->addOwnedLiteral(literals.back().get());
    }
    return result;
  }
  void specify(UMLEnumeration* element, unsigned int index, int value) {
    numbers.push_back(std::make_unique<UMLLiteralInteger>(KYRString(), KYRString()));
    numbers.back()->value = value;
    element->ownedLiteral.at(index)->specification = numbers.back().get();
  }

  RecordingLog log;
  KYRStoreModel model;
  std::vector<std::unique_ptr<UMLLiteralInteger>> numbers;
  std::vector<std::unique_ptr<UMLEnumerationLiteral>> literals;
  std::vector<std::unique_ptr<UMLEnumeration>> enumerations;
  KYROmgUml2XmiImportBridge bridge{&log};
};

}  // namespace

TEST(TypeValuesOfFiles, LiteralsWithoutASpecificationHaveTheirNamesAsValues) {
  EXPECT_EQ(convert(literal("a", "red") + literal("b", "green")),
            (Rows{"undefined on undefined", "0|red|red|a", "1|green|green|b"}));
}

TEST(TypeValuesOfFiles, IntegersMakeTheDataTypeButNotTheBase) {
  EXPECT_EQ(convert(literal("a", "one", specified("LiteralInteger", "value='1'")) +
                    literal("b", "two", specified("LiteralInteger", "value='2'")) +
                    literal("c", "three", specified("LiteralInteger", "value='-3'"))),
            (Rows{"SQL_INTEGER on undefined", "0|one|1|a", "1|two|2|b", "2|three|-3|c"}));
}

TEST(TypeValuesOfFiles, AnIntegerZeroCountsAsNoSpecification) {
  EXPECT_EQ(convert(literal("a", "none", specified("LiteralInteger", "value='0'"))),
            (Rows{"undefined on undefined", "0|none|none|a"}));
  EXPECT_EQ(convert(literal("a", "none", specified("LiteralInteger", "value='0'")) +
                    literal("b", "one", specified("LiteralInteger", "value='1'"))),
            (Rows{"SQL_INTEGER on undefined", "0|none|none|a", "1|one|1|b"}));
}

TEST(TypeValuesOfFiles, StringsGiveTheValueUnlessTheyAreEmpty) {
  EXPECT_EQ(convert(literal("a", "red", specified("LiteralString", "value='R'")) +
                    literal("b", "green", specified("LiteralString", "value=''"))),
            (Rows{"SQL_VARCHAR on undefined", "0|red|R|a", "1|green|green|b"}));
}

TEST(TypeValuesOfFiles, ABooleanMakesTheDataTypeAndLeavesTheName) {
  EXPECT_EQ(convert(literal("a", "yes", specified("LiteralBoolean", "value='true'"))),
            (Rows{"SQL_BOOLEAN on undefined", "0|yes|yes|a"}));
}

TEST(TypeValuesOfFiles, OtherSpecificationsSayNothing) {
  for (const char* kind : {"OpaqueExpression", "LiteralUnlimitedNatural", "LiteralNull", "InstanceValue"}) {
    EXPECT_EQ(convert(literal("a", "red", specified(kind, "value='5'"))),
              (Rows{"undefined on undefined", "0|red|red|a"}))
        << kind;
  }
}

TEST(TypeValuesOfFiles, TheLastLiteralWithASpecificationDecidesAboutTheDataType) {
  const std::string number = literal("a", "one", specified("LiteralInteger", "value='1'"));
  const std::string letter = literal("b", "two", specified("LiteralString", "value='II'"));
  const std::string plain = literal("c", "three");
  EXPECT_EQ(convert(number + letter + plain)[0], "SQL_VARCHAR on undefined");
  EXPECT_EQ(convert(letter + number + plain)[0], "SQL_INTEGER on undefined");
}

TEST(TypeValuesOfFiles, ANameLosesItsBlanksAndAValueKeepsThem) {
  EXPECT_EQ(convert(literal("a", "  light blue ")),
            (Rows{"undefined on undefined", "0|light blue|  light blue |a"}));
  EXPECT_EQ(convert(literal("a", " red ", specified("LiteralString", "value=' R '"))),
            (Rows{"SQL_VARCHAR on undefined", "0|red| R |a"}));
}

TEST(TypeValuesOfFiles, OfTwoLiteralsOfOneNameTheFirstIsKeptAndPositionsHaveNoGap) {
  EXPECT_EQ(convert(literal("a", "red") + literal("b", "red ") + literal("c", "Red") + literal("d", "") +
                    literal("e", " ")),
            (Rows{"undefined on undefined", "0|red|red|a", "1|Red|Red|c", "2|||d"}));
}

TEST(TypeValuesOfFiles, OnlyEnumerationLiteralsAreValues) {
  const ImportedModel imported(inPackage(enumeration(
      "e", "Color",
      "<ownedLiteral xmi:type='uml:InstanceSpecification' xmi:id='x' name='X'/>" + literal("a", "red"))));
  EXPECT_EQ(valuesOf(imported.get<KYRDerivedType>("e")), Rows{"0|red|red|a"});
}

TEST(TypeValuesOfFiles, AnEnumerationUsedByThreeAttributesHasEachLiteralOnce) {
  const ImportedModel imported(inPackage(
      enumeration("e", "Color", literal("a", "red") + literal("b", "green")) +
      element("Class", "xmi:id='c' name='C'", property("x", "e") + property("y", "e") + property("z", "e"))));
  EXPECT_EQ(valuesOf(imported.get<KYRDerivedType>("e")), (Rows{"0|red|red|a", "1|green|green|b"}));
  for (const char* id : {"x", "y", "z"}) {
    EXPECT_EQ(imported.get<KYRAttribute>(id).type, &imported.get<KYRDerivedType>("e")) << id;
  }
}

TEST(TypeValuesOfFiles, LiteralsBringDocumentationAlong) {
  const ImportedModel imported(inPackage(enumeration(
      "e", "Color",
      literal("a", "red",
              "<ownedComment xmi:type='uml:Comment' xmi:id='k' annotatedElement='a' body='Warm'/>"))));
  EXPECT_EQ(text(imported.get<KYRTypeValue>("a").description), "Warm");
}

TEST(TypeValuesOfFiles, EnumerationsOfOneNameShareAType) {
  const ImportedModel imported(
      inPackage(enumeration("e", "Color", literal("a", "red", specified("LiteralInteger", "value='1'"))) +
                enumeration("f", "COLOR", literal("b", "red") + literal("g", "green"))));
  EXPECT_EQ(valuesOf(imported.get<KYRDerivedType>("e")), (Rows{"0|red|1|a", "1|green|green|g"}));
  EXPECT_EQ(text(imported.get<KYRDerivedType>("e").dataType), "SQL_INTEGER");  // the second one tells none
  EXPECT_FALSE(imported.has("f"));
}

TEST_F(TypeValues, AcceptedValuesAreFoundByTheirIdsAndRefusedOnesAreNot) {
  UMLEnumeration* const color = makeEnumeration("e", "Color", {"red", "green", "red "});
  bridge.convertType(color);
  ASSERT_NE(bridge.objects.find("e-red"), nullptr);
  EXPECT_EQ(bridge.objects.find("e-red")->getElementType(), KYRElementType::typeValue);
  EXPECT_NE(bridge.objects.find("e-green"), nullptr);
  EXPECT_EQ(bridge.objects.find("e-red "), nullptr);
  EXPECT_EQ(bridge.objects.getCount(), 2U);
  bridge.convertType(color);
  bridge.convertType(makeEnumeration("f", "color", {"red", "green"}));
  EXPECT_EQ(bridge.objects.getCount(), 2U);
  EXPECT_EQ(bridge.objects.find("e"), nullptr);  // types are not in there
}

TEST_F(TypeValues, EachPassMovesTheElementAndWritesTheDataTypeThoughAllLiteralsAreRefused) {
  UMLEnumeration* const first = makeEnumeration("e", "Color", {"red"});
  UMLEnumeration* const second = makeEnumeration("f", "COLOR", {"red"});
  specify(second, 0, 7);
  auto* const type = dynamic_cast<KYRDerivedType*>(bridge.convertType(first));
  EXPECT_EQ(type->umlElement, first);
  EXPECT_EQ(text(type->dataType), "undefined");
  EXPECT_EQ(bridge.convertType(second), type);
  EXPECT_EQ(type->umlElement, second);
  EXPECT_EQ(text(type->dataType), "SQL_INTEGER");
  EXPECT_EQ(valuesOf(*type), Rows{"0|red|red|e-red"});
  bridge.convertType(first);
  EXPECT_EQ(type->umlElement, first);
  EXPECT_EQ(text(type->dataType), "SQL_INTEGER");  // the first one tells none
  type->dataType = "SQL_CHAR";
  bridge.convertType(second);
  EXPECT_EQ(text(type->dataType), "SQL_INTEGER");
}

TEST_F(TypeValues, ATypeThatIsThereWithoutABaseGetsOneByItsDataTypeAfterTheLiterals) {
  auto* const present = new KYRDerivedType();
  present->setName("Color");
  model.addType(present);
  UMLEnumeration* const color = makeEnumeration("e", "color", {"red"});
  specify(color, 0, 7);
  EXPECT_EQ(bridge.convertType(color), present);
  ASSERT_NE(present->baseConcreteType, nullptr);
  EXPECT_EQ(text(present->baseConcreteType->getName()), "INTEGER");
}

TEST_F(TypeValues, ATypeWithoutAnEnumerationHasNoLiterals) {
  KYRDerivedType* const type = bridge.getDerivedType("string", "id", 0, 0, true);
  bridge.convertEnumerationLiterals(type);
  EXPECT_TRUE(type->typeValues.isEmpty());
}

TEST_F(TypeValues, ALiteralThatFailsIsDestroyedAndTheImportGoesOn) {
  UMLEnumeration* const color = makeEnumeration("e", "Color", {"red", "green"});
  UMLTaggedValue tag("tag", "v");
  color->ownedLiteral.at(1)->taggedValues.add(&tag);
  bridge.stepLimit = bridge.stepCount;  // reading the tag is one step too many
  const auto* const type = dynamic_cast<KYRDerivedType*>(bridge.convertType(color));
  EXPECT_EQ(valuesOf(*type), Rows{"0|red|red|e-red"});
  EXPECT_EQ(bridge.objects.getCount(), 1U);
}

TEST_F(TypeValues, TagsOfARefusedLiteralAreStillKnownToTheModel) {
  UMLEnumeration* const color = makeEnumeration("e", "Color", {"red", "red "});
  UMLTaggedValue tag("tag", "v");
  color->ownedLiteral.at(1)->taggedValues.add(&tag);
  bridge.convertType(color);
  EXPECT_NE(model.getPropertyType(KYRElementType::typeValue, "tag"), nullptr);
}

// 1,000 literals, 50,000 attributes, and a second enumeration of the same name in between.
TEST_F(TypeValues, AThousandLiteralsForFiftyThousandAttributesAreLookedAtOnce) {
  constexpr unsigned int literalCount = 1000;
  constexpr unsigned int attributeCount = 50000;
  std::vector<std::string> names;
  for (unsigned int i = 0; i < literalCount; ++i) names.push_back("value" + std::to_string(i));
  UMLEnumeration* const first = makeEnumeration("e", "Color", names);
  UMLEnumeration* const second = makeEnumeration("f", "COLOR", names);
  UMLProperty byFirst(KYRString("x"), KYRString());
  byFirst.type = first;
  UMLProperty bySecond(KYRString("y"), KYRString());
  bySecond.type = second;
  std::vector<std::unique_ptr<KYRAttribute>> attributes;
  for (unsigned int i = 0; i < attributeCount; ++i) {
    attributes.push_back(std::make_unique<KYRAttribute>());
    attributes.back()->umlElement = i % 2 == 0 ? &byFirst : &bySecond;
    bridge.assignFeatureType(attributes.back().get());
  }
  const auto* const type = dynamic_cast<KYRDerivedType*>(attributes.front()->type);
  EXPECT_EQ(attributes.back()->type, type);
  EXPECT_EQ(type->typeValues.count(), literalCount);
  EXPECT_EQ(type->umlElement, static_cast<UMLElement*>(second));
  EXPECT_EQ(bridge.literalCount, 2 * literalCount);
  EXPECT_EQ(bridge.objects.getCount(), literalCount);
  constexpr std::uint64_t stepsForOne = 4;
  EXPECT_LT(bridge.typeIndex.getComparisonCount(), stepsForOne * attributeCount);
  EXPECT_LT(type->typeValues.getCollection()->getComparisonCount(), stepsForOne * attributeCount);
}
