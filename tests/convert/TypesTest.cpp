// Types of features: which are shared, which are made, and what they rest on.
#include <gtest/gtest.h>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYROperation.h"
#include "tests/database/DatabaseFiles.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLNamespaces.h"

namespace {

std::string property(const std::string& id, const std::string& type = "") {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "' name='" + id + "'" +
         (type.empty() ? "" : " type='" + type + "'") + "/>";
}

std::string inClass(const std::string& features, const std::string& others = "") {
  return xmi(
      element("Package", "xmi:id='p' name='P'", others + element("Class", "xmi:id='c' name='C'", features)));
}

std::string primitive(const std::string& id, const std::string& name) {
  return element("PrimitiveType", "xmi:id='" + id + "' name='" + name + "'");
}

// Each type of the model that is no base type: name, data type, native data type, id, base.
std::vector<std::string> typesOf(const ImportedModel& imported) {
  std::vector<std::string> rows;
  for (const KYRDerivedType* type : imported.all<KYRDerivedType>()) {
    rows.push_back(text(type->getName()) + "|" + text(type->dataType) + "|" + text(type->nativeDataType) +
                   "|" + text(type->sourceId) + "|" +
                   (type->baseConcreteType == nullptr ? "none" : text(type->baseConcreteType->getName())));
  }
  return rows;
}

KYRType* typeOf(const ImportedModel& imported, const std::string& attribute) {
  return imported.get<KYRAttribute>(attribute).type;
}

using Rows = std::vector<std::string>;

// A bridge with a converter, for types that no file of these tools gives.
struct Types : testing::Test {
  Types() {
    bridge.storeModel = &model;
    bridge.dataTypeConverter = std::make_unique<KYRDataTypeConverter>(
        log, KYRDataStoreVersion(KYRDataTypeConstants::DATASTORE_ORACLE, 12, 0, 0),
        KYRDataTypeConstants::TOOL_KYRGENERIC);
  }
  KYRDerivedType* derived(const char* name, int length, int scale) {
    return bridge.getDerivedType(name, "id", length, scale, true);
  }
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge{&log};
};

}  // namespace

TEST(TypesOfFiles, FeaturesWithoutATypeShareOneThatIsUndefined) {
  const ImportedModel imported(
      inClass(property("a") + property("b") +
              "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'>"
              "<ownedParameter xmi:type='uml:Parameter' xmi:id='q' name='q'/></ownedOperation>"));
  EXPECT_EQ(typesOf(imported), Rows{"undefined|undefined|undefined||undefined"});
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "b"));
  EXPECT_EQ(typeOf(imported, "a"), imported.get<KYRArgument>("q").type);
  EXPECT_EQ(imported.get<KYROperation>("o").returnType, nullptr);
  EXPECT_TRUE(imported.all<KYRDerivedType>()[0]->userDefined);
}

TEST(TypesOfFiles, AnOperationReturnsTheTypeOfItsReturnParameter) {
  const ImportedModel imported(inClass(
      "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'><ownedParameter xmi:type='uml:Parameter'"
      " xmi:id='r' direction='return' type='s'/></ownedOperation>",
      primitive("s", "string")));
  ASSERT_NE(imported.get<KYROperation>("o").returnType, nullptr);
  EXPECT_EQ(text(imported.get<KYROperation>("o").returnType->getName()), "string");
  EXPECT_EQ(typesOf(imported), Rows{"string|SQL_VARCHAR|string|s|VARCHAR"});
}

TEST(TypesOfFiles, NamesPassThroughTheConverterOfTheStore) {
  const std::string types = primitive("i", "int") + primitive("n", "NUMBER") + primitive("x", "Whatever");
  EXPECT_EQ(typesOf(ImportedModel(inClass("", types))),
            (Rows{"int|SQL_INTEGER|int|i|INTEGER", "NUMBER|SQL_NUMERIC|NUMBER|n|NUMERIC",
                  "Whatever|undefined|Whatever|x|undefined"}));
  const ImportedModel oracle(fileOfEA(
      element("Package", "xmi:id='p' name='P'", primitive("v", "VARCHAR2") + primitive("s", "xsd:string")) +
      dbms("Oracle")));
  EXPECT_EQ(typesOf(oracle),
            (Rows{"VARCHAR2|SQL_VARCHAR|VARCHAR2|v|VARCHAR", "xsd:string|undefined|xsd:string|s|undefined"}));
}

TEST(TypesOfFiles, AClassInThePlaceOfATypeBecomesAClassTypeThatIsShared) {
  const ImportedModel imported(
      inClass(property("a", "t") + property("b", "t") + property("d", "i"),
              element("Class", "xmi:id='t' name='T'") + element("Interface", "xmi:id='i' name='I'")));
  const auto* const type = dynamic_cast<KYRClassType*>(typeOf(imported, "a"));
  ASSERT_NE(type, nullptr);
  EXPECT_EQ(text(type->getName()), "T");
  EXPECT_EQ(text(type->physicalName), "undefined");
  EXPECT_EQ(text(type->sourceId), "t_type");
  EXPECT_EQ(type->associatedClass, &imported.get<KYRClass>("t"));
  EXPECT_EQ(imported.get<KYRClass>("t").classType, type);
  EXPECT_EQ(typeOf(imported, "b"), type);
  EXPECT_EQ(text(typeOf(imported, "d")->sourceId), "i_type");
  EXPECT_TRUE(typesOf(imported).empty());
  EXPECT_EQ(imported.model.types.count(), 2U);
}

TEST(TypesOfFiles, AClassCanBeTheTypeOfItsOwnAttribute) {
  const ImportedModel imported(inClass(property("a", "c")));
  EXPECT_EQ(text(typeOf(imported, "a")->sourceId), "c_type");
}

TEST(TypesOfFiles, AClassThatWasDroppedLivesOnAsATypeOfItsName) {
  const ImportedModel imported(
      inClass(property("a", "nested") + property("b", "nested"),
              element("Class", "xmi:id='outer' name='Outer'",
                      "<nestedClassifier xmi:type='uml:Class' xmi:id='nested' name='Nested'/>")));
  EXPECT_EQ(typesOf(imported), Rows{"Nested|undefined|Nested|nested|undefined"});
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "b"));
}

TEST(TypesOfFiles, AnAssociationClassAndOtherKindsAreDerivedTypes) {
  const ImportedModel imported(
      inClass(property("a", "ac") + property("b", "d") + property("e", "x") + property("f", "s"),
              element("AssociationClass", "xmi:id='ac' name='Link'") +
                  element("DataType", "xmi:id='d' name='Purse'") +
                  element("Actor", "xmi:id='x' name='Clerk'") + element("Signal", "xmi:id='s' name='Bell'")));
  EXPECT_EQ(typesOf(imported),
            (Rows{"Link|undefined|Link|ac|undefined", "Purse|undefined|Purse|d|undefined",
                  "Clerk|undefined|Clerk|x|undefined", "Bell|undefined|Bell|s|undefined"}));
  const std::vector<KYRClass*> classes = imported.all<KYRClass>();
  EXPECT_EQ(classes.size(), 2U);
  for (const KYRClass* object : classes) EXPECT_EQ(object->classType, nullptr);
}

TEST(TypesOfFiles, ANamelessTypeIsUndefinedUnderTheIdThatCameFirst) {
  const ImportedModel imported(inClass(property("a", "n") + property("b", "m") + property("d"),
                                       element("DataType", "xmi:id='n'") + element("Class", "xmi:id='m'")));
  EXPECT_EQ(typesOf(imported), Rows{"undefined|undefined|undefined|n|undefined"});
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "b"));
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "d"));
}

TEST(TypesOfFiles, NamesThatDifferInCaseShareTheTypeThatCameFirst) {
  const ImportedModel imported(
      inClass(property("a", "one") + property("b", "two"),
              element("DataType", "xmi:id='two' name='PURSE'") + primitive("one", "Purse")));
  EXPECT_EQ(typesOf(imported), Rows{"Purse|undefined|Purse|one|undefined"});
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "b"));
}

TEST(TypesOfFiles, TypesAreConvertedInPackagesOnlyWithANameAndAtTheTopAlways) {
  const ImportedModel inside(
      inClass("", primitive("a", "") + element("Enumeration", "xmi:id='e'") + primitive("b", "B")));
  EXPECT_EQ(typesOf(inside), Rows{"B|undefined|B|b|undefined"});
  const ImportedModel top(
      xmi(element("Enumeration", "xmi:id='e'",
                  "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l' name='L'/>") +
          primitive("a", "") + primitive("b", "B")));
  EXPECT_EQ(typesOf(top), (Rows{"undefined|undefined|undefined|e|undefined", "B|undefined|B|b|undefined"}));
  EXPECT_TRUE(top.get<KYRDerivedType>("e").typeValues.isEmpty());
}

TEST(TypesOfFiles, ATypeThatRefersToItselfOrToNothingIsNoTrouble) {
  const ImportedModel imported(inClass(
      property("a", "a") + property("b", "nowhere") + property("d", "p") + property("e", "t"),
      element("PrimitiveType", "xmi:id='t' name='T' owner='t' package='t' namespace='t'") +
          element("DataType", "xmi:id='u' name='U'",
                  "<ownedAttribute xmi:type='uml:Property' xmi:id='v' name='V' type='u' datatype='u'/>")));
  EXPECT_EQ(typesOf(imported),
            (Rows{"T|undefined|T|t|undefined", "undefined|undefined|undefined||undefined"}));
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "b"));
  EXPECT_EQ(typeOf(imported, "a"), typeOf(imported, "d"));
}

TEST(TypesOfFiles, ATypeThatHoldsItselfIsNoTrouble) {
  const ImportedModel imported(inClass(
      property("a", "d") + property("b", "n") + property("f", "e"),
      element("DataType", "xmi:id='d' name='D'",
              "<ownedAttribute xmi:idref='d'/><nestedClassifier xmi:idref='d'/><ownedMember xmi:idref='d'/>"
              "<packagedElement xmi:idref='d'/>") +
          element("Class", "xmi:id='n' name='N'",
                  "<nestedClassifier xmi:idref='n'/>" + property("own", "n") +
                      "<ownedAttribute xmi:idref='n'/>") +
          element("Enumeration", "xmi:id='e' name='E'",
                  "<ownedLiteral xmi:idref='e'/><ownedAttribute xmi:idref='e'/>"
                  "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l' name='L' classifier='e' "
                  "specification='l'/>")));
  EXPECT_EQ(typesOf(imported), (Rows{"E|undefined|E|e|undefined", "D|undefined|D|d|undefined"}));
  EXPECT_EQ(imported.get<KYRDerivedType>("e").typeValues.count(), 1U);
  EXPECT_EQ(text(typeOf(imported, "own")->sourceId), "n_type");
  EXPECT_EQ(typeOf(imported, "own"), typeOf(imported, "b"));
}

TEST(TypesOfFiles, BaseTypesAreSharedAndBelongToTheModel) {
  const ImportedModel imported(inClass("", primitive("a", "int") + primitive("b", "Integer") +
                                               primitive("d", "Odd") + primitive("e", "Even")));
  std::vector<std::string> bases;
  for (const KYRType* type : imported.model.types) {
    if (type->getElementType() == KYRElementType::baseType) bases.push_back(text(type->getName()));
  }
  EXPECT_EQ(bases, (Rows{"INTEGER", "undefined"}));
  EXPECT_EQ(imported.get<KYRDerivedType>("a").baseConcreteType,
            imported.get<KYRDerivedType>("b").baseConcreteType);
}

TEST(TypesOfFiles, TypesThatTheModelHoldsAlreadyAreFound) {
  const ImportedModel imported(
      inClass(property("a", "t") + property("b", "u"), primitive("t", "Purse") + primitive("u", "Sum")), "",
      [](KYRStoreModel& model) {
        auto* const money = new KYRDerivedType();
        money->setName("PURSE");
        money->sourceId = "before";
        model.addType(money);
        auto* const undefined = createBaseType("undefined");
        undefined->sourceId = "base";
        model.addType(undefined);
        auto* const sum = new KYRDerivedType();
        sum->setName("Sum");
        sum->length = 5;  // not the one that is asked for
        model.addType(sum);
      });
  EXPECT_EQ(text(typeOf(imported, "a")->sourceId), "before");
  EXPECT_EQ(text(typeOf(imported, "b")->sourceId), "u");
  EXPECT_EQ(imported.get<KYRDerivedType>("u").baseConcreteType, &imported.get<KYRConcreteType>("base"));
}

TEST_F(Types, LengthAndScaleAreInTheNameAndOnTheType) {
  struct Row {
    const char* name;
    int length;
    int scale;
    const char* logicalName;
  };
  for (const Row& row : std::vector<Row>{{"varchar2", 30, 0, "varchar2_30"},
                                         {"number", 10, 2, "number_10_2"},
                                         {"number", 0, 3, "number"},
                                         {"number", -1, -2, "number_-1_-2"},
                                         {"date", 0, 0, "date"}}) {
    const KYRDerivedType* const type = derived(row.name, row.length, row.scale);
    EXPECT_EQ(text(type->getName()), row.logicalName);
    EXPECT_EQ(text(type->nativeDataType), row.name);
    EXPECT_EQ(type->length, row.length);
    EXPECT_EQ(type->scale, row.scale);
    EXPECT_EQ(derived(row.name, row.length, row.scale), type);
  }
  EXPECT_EQ(text(derived("varchar2", 30, 0)->dataType), "SQL_VARCHAR");
  EXPECT_NE(derived("varchar2", 40, 0), derived("varchar2", 30, 0));
  EXPECT_EQ(text(derived("varchar2", 40, 0)->getName()), "varchar2_40");
  EXPECT_EQ(derived("VarChar2", 40, 0), derived("varchar2", 40, 0));
  EXPECT_NE(derived("number", 0, 3), derived("number", 0, 0));
}

TEST_F(Types, AnUndefinedTypeStoresNoLengthSoThatItHasTwinsUntilTypesAreMerged) {
  KYRDerivedType* const first = derived("odd", 30, 2);
  EXPECT_EQ(text(first->getName()), "odd_30_2");
  EXPECT_EQ(first->length, 0);
  EXPECT_EQ(first->scale, 0);
  KYRAttribute attribute;
  KYRDerivedType* const twin = derived("odd", 30, 2);
  EXPECT_NE(twin, first);
  attribute.addType(twin);
  // A type of that very name without a length finds the first of them.
  EXPECT_EQ(derived("odd_30_2", 0, 0), first);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(attribute.type, first);
  EXPECT_EQ(model.types.count(), 2U);  // with the base type
}

TEST_F(Types, ATypeOfAnEmptyNameIsCalledUndefinedAndNeverFoundAgain) {
  const KYRDerivedType* const first = derived("", 0, 0);
  EXPECT_EQ(text(first->getName()), "undefined");
  EXPECT_EQ(text(first->nativeDataType), "");
  EXPECT_NE(derived("", 0, 0), first);
  EXPECT_EQ(derived("Undefined", 0, 0), first);
}

TEST_F(Types, ABaseIsAddedOnlyWhenAskedFor) {
  const KYRDerivedType* const type = bridge.getDerivedType("number", "id", 0, 0, false);
  EXPECT_EQ(type->baseConcreteType, nullptr);
  EXPECT_EQ(derived("number", 0, 0), type);  // found as it is
  EXPECT_EQ(type->baseConcreteType, nullptr);
  EXPECT_EQ(text(bridge.getBaseType("SQL_NUMERIC")->getName()), "NUMERIC");
  EXPECT_EQ(bridge.getBaseType("SQL_NUMERIC"), bridge.getBaseType("SQL_NUMERIC"));
  EXPECT_EQ(text(bridge.getBaseType("nonsense")->getName()), "undefined");
  EXPECT_EQ(bridge.getBaseType(""), bridge.getBaseType("undefined"));
}

TEST_F(Types, TypesAreFoundByTheirElementTypeToo) {
  derived("NUMERIC", 0, 0);
  const auto find = [this](const char* name, int elementType) {
    return bridge.findDerivedType(&model, name, 0, 0, elementType);
  };
  ASSERT_NE(find("numeric", KYRElementType::derivedType), nullptr);
  ASSERT_NE(find("numeric", KYRElementType::baseType), nullptr);
  EXPECT_NE(find("numeric", KYRElementType::baseType), find("numeric", KYRElementType::derivedType));
  EXPECT_EQ(find("numeric", KYRElementType::classType), nullptr);
  EXPECT_EQ(find("other", KYRElementType::derivedType), nullptr);
}

TEST_F(Types, TheLengthAndScaleOfAUMLTypeCountUnlessItIsAnEnumeration) {
  UMLPrimitiveType varchar("v", "VARCHAR2");
  varchar.name = "VARCHAR2";
  varchar.length = 30;
  UMLEnumeration color("e", "Color");
  color.name = "Color";
  color.length = 30;
  EXPECT_EQ(text(bridge.convertType(&varchar)->getName()), "VARCHAR2_30");
  EXPECT_EQ(text(bridge.convertType(&color)->getName()), "Color");
}

TEST_F(Types, WithoutAClassThereIsNoClassType) { EXPECT_EQ(bridge.getClassType(nullptr), nullptr); }

TEST_F(Types, OtherObjectsAreGivenNoType) {
  KYRClass object;
  bridge.assignFeatureType(&object);
  EXPECT_TRUE(model.types.isEmpty());
}

// 100,000 attributes over 5,000 types, a fifth of them without a known data type.
TEST_F(Types, AHundredThousandAttributesOverFiveThousandTypesAreLinear) {
  constexpr int typeCount = 5000;
  constexpr int attributeCount = 100000;
  constexpr int knownShare = 5;
  std::vector<std::unique_ptr<UMLPrimitiveType>> types;
  for (int i = 0; i < typeCount; ++i) {
    const bool isKnown = i % knownShare != 0;
    const KYRString name(isKnown ? std::string("varchar2") : "odd" + std::to_string(i));
    types.push_back(std::make_unique<UMLPrimitiveType>(KYRString(i), name));
    types.back()->name = name;
    if (isKnown) types.back()->length = i;
  }
  std::vector<std::unique_ptr<UMLProperty>> properties;
  std::vector<std::unique_ptr<KYRAttribute>> attributes;
  for (int i = 0; i < attributeCount; ++i) {
    properties.push_back(std::make_unique<UMLProperty>(KYRString(), KYRString()));
    properties.back()->type = types[static_cast<std::size_t>(i % typeCount)].get();
    attributes.push_back(std::make_unique<KYRAttribute>());
    attributes.back()->umlElement = properties.back().get();
  }
  for (const auto& attribute : attributes) bridge.assignFeatureType(attribute.get());
  EXPECT_EQ(model.types.count(), typeCount + 2U);
  constexpr std::uint64_t stepsForOne = 4;
  EXPECT_LT(bridge.typeIndex.getComparisonCount(), stepsForOne * attributeCount);
  EXPECT_LT(model.types.getCollection()->getComparisonCount(), stepsForOne * attributeCount);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), typeCount + 2U);
  EXPECT_LT(model.types.getCollection()->getComparisonCount(), stepsForOne * attributeCount);
}

// Each use of an undefined type with a length makes a twin; there can be as many as attributes.
TEST_F(Types, ManyTwinsAreMadeAndMergedInLinearTime) {
  constexpr int count = 20000;
  std::vector<std::unique_ptr<KYRAttribute>> attributes;
  for (int i = 0; i < count; ++i) {
    attributes.push_back(std::make_unique<KYRAttribute>());
    attributes.back()->addType(derived("odd", 1, 0));
  }
  EXPECT_EQ(model.types.count(), count + 1U);
  constexpr std::uint64_t stepsForOne = 4;
  EXPECT_LT(bridge.typeIndex.getComparisonCount(), stepsForOne * count);
  factorizeTypes(&model, 0, 0);
  EXPECT_EQ(model.types.count(), 2U);
  EXPECT_EQ(attributes.front()->type, attributes.back()->type);
}
