// Attributes, operations and arguments.
#include <gtest/gtest.h>

#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYROperation.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"
#include "uml/UMLValues.h"

namespace {

std::string inClass(const std::string& features) {
  return xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Class", "xmi:id='c' name='C'", features) + element("Class", "xmi:id='t' name='T'")));
}

std::string operationWith(const std::string& parameters) {
  return inClass("<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='run'>" + parameters +
                 "</ownedOperation>");
}

std::string parameter(const std::string& attributes) {
  return "<ownedParameter xmi:type='uml:Parameter' " + attributes + "/>";
}

// The names of an operation's arguments with position and direction.
std::vector<std::string> argumentsOf(const ImportedModel& imported) {
  std::vector<std::string> rows;
  for (const KYRArgument* argument : imported.get<KYROperation>("o").arguments) {
    rows.push_back(std::to_string(argument->position) + " " + text(argument->getName()) + " " +
                   std::to_string(argument->direction));
  }
  return rows;
}

using Rows = std::vector<std::string>;

// A bridge for conversions that are looked at before the release step.
struct Features : testing::Test {
  Features() { bridge.storeModel = &model; }
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge{&log};
};

}  // namespace

TEST(FeaturesOfFiles, AnAttributeTakesItsFlagsAndVisibility) {
  const ImportedModel imported(
      inClass("<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='A' isDerived='true' isStatic='true'"
              " visibility='private'/>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='b' name='B'/>"));
  const KYRAttribute& a = imported.get<KYRAttribute>("a");
  EXPECT_TRUE(a.isDerived);
  EXPECT_TRUE(a.isStatic);
  EXPECT_EQ(a.visibility, 2);
  const KYRAttribute& b = imported.get<KYRAttribute>("b");
  EXPECT_FALSE(b.isDerived);
  EXPECT_FALSE(b.isStatic);
  EXPECT_EQ(b.visibility, 0);
}

TEST(FeaturesOfFiles, TheDefaultValueIsTheInitialValueAndTheAttributeDefaultIsNot) {
  const ImportedModel imported(
      inClass("<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='A' default='no'>"
              "<defaultValue xmi:type='uml:LiteralString' xmi:id='v1' value='yes'/></ownedAttribute>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='b' name='B' default='no'/>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='d' name='D'>"
              "<defaultValue xmi:type='uml:OpaqueExpression' xmi:id='v2' body='1 + 1'/></ownedAttribute>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='e' name='E'>"
              "<defaultValue xmi:type='uml:LiteralInteger' xmi:id='v3' value='5'/></ownedAttribute>"));
  EXPECT_EQ(text(imported.get<KYRAttribute>("a").initialValue), "yes");
  EXPECT_EQ(text(imported.get<KYRAttribute>("b").initialValue), "");
  EXPECT_EQ(text(imported.get<KYRAttribute>("d").initialValue), "1 + 1");
  // Written under this tag an integer literal is read as a string literal.
  EXPECT_EQ(text(imported.get<KYRAttribute>("e").initialValue), "5");
}

TEST_F(Features, ADefaultThatIsAnIntegerLiteralLeavesTheInitialValueEmpty) {
  UMLLiteralInteger five("v", "");
  five.value = 5;
  UMLProperty element("a", "");
  element.defaultValue = &five;
  const auto attribute = bridge.convertProperty(&element);
  EXPECT_EQ(text(attribute->initialValue), "");
}

TEST_F(Features, OnlyTwoKindsOfValuesHaveAText) {
  UMLLiteralString string("", "");
  string.value = "s";
  UMLOpaqueExpression opaque("", "");
  opaque.body = "o";
  UMLLiteralInteger integer("", "");
  UMLLiteralBoolean boolean("", "");
  UMLInstanceValue instance("", "");
  UMLLiteralUnlimitedNatural natural("", "");
  natural.value = "*";
  UMLExpression expression("", "");
  expression.symbol = "e";
  EXPECT_EQ(text(bridge.valueSpecificationText(&string)), "s");
  EXPECT_EQ(text(bridge.valueSpecificationText(&opaque)), "o");
  for (const UMLValueSpecification* other : std::initializer_list<const UMLValueSpecification*>{
           &integer, &boolean, &instance, &natural, &expression}) {
    EXPECT_EQ(text(bridge.valueSpecificationText(other)), "") << other->getKind();
  }
}

TEST_F(Features, FeaturesWaitForTheirTypesInOrderOfMakingAndArgumentsBeforeTheirOperation) {
  UMLParameter first("p1", "");
  UMLParameter second("p2", "");
  UMLOperation element("o", "");
  element.UMLOperation::addOwnedParameter(&first);
  element.UMLOperation::addOwnedParameter(&second);
  UMLProperty property("a", "");
  const auto attribute = bridge.convertProperty(&property);
  const auto operation = bridge.convertOperation(&element);
  std::vector<std::string> ids;
  for (const KYRModelObject* feature : bridge.typedFeatures) ids.push_back(text(feature->sourceId));
  EXPECT_EQ(ids, (Rows{"a", "p1", "p2", "o"}));
  for (const char* id : {"a", "p1", "p2", "o"}) {
    ASSERT_NE(bridge.objects.find(id), nullptr) << id;
    EXPECT_EQ(bridge.objects.find(id)->umlElement->repositoryObject, bridge.objects.find(id)) << id;
  }
}

TEST(FeaturesOfFiles, DirectionsAreMappedAndAnAbsentOneIsNotSet) {
  const ImportedModel imported(operationWith(
      parameter("xmi:id='p0' name='a'") + parameter("xmi:id='p1' name='b' direction='in'") +
      parameter("xmi:id='p2' name='c' direction='inout'") +
      parameter("xmi:id='p3' name='d' direction='out'") +
      parameter("xmi:id='p4' name='e' direction='return'") +
      parameter("xmi:id='p5' name='d' direction='in'") + parameter("xmi:id='p6' direction='in'")));
  EXPECT_EQ(argumentsOf(imported), (Rows{"0 a 0", "1 b 1", "2 c 3", "3 d 2", "4 e 4", "5 d 1", "6  1"}));
}

TEST(FeaturesOfFiles, AReturnParameterIsNamelessOrCalledReturnOrTyped) {
  const struct {
    const char* attributes;
    bool isArgument;
  } rows[] = {
      {"direction='return'", false},
      {"name='return' direction='return'", false},
      {"name='Return' direction='return'", true},  // compared exactly
      {"name='result' direction='return'", true},
      {"name='result' direction='return' type='t'", false},
      {"name='Return' direction='return' type='t'", false},
      {"name='return' direction='out'", true},
      {"name='return'", true},
      {"", true},
  };
  for (const auto& row : rows) {
    const ImportedModel imported(operationWith(parameter(std::string("xmi:id='x' ") + row.attributes)));
    EXPECT_EQ(argumentsOf(imported).size(), row.isArgument ? 1U : 0U) << row.attributes;
    const bool isTyped = std::string(row.attributes).find("type=") != std::string::npos;
    EXPECT_EQ(imported.get<KYROperation>("o").returnType != nullptr, isTyped) << row.attributes;
  }
}

TEST_F(Features, TheTypeOfTheLastTypedReturnParameterIsThatOfTheOperation) {
  UMLClass ofFile("t0", "");
  UMLClass ofFirst("t1", "");
  UMLClass ofSecond("t2", "");
  UMLParameterDirectionKind back("return");
  UMLParameter parameters[] = {{"p1", ""}, {"p2", ""}, {"p3", ""}};
  UMLOperation element("o", "");
  element.type = &ofFile;
  for (UMLParameter& one : parameters) {
    one.direction = &back;
    element.UMLOperation::addOwnedParameter(&one);
  }
  const auto first = bridge.convertOperation(&element);
  EXPECT_EQ(element.type, static_cast<UMLType*>(&ofFile));  // none is typed
  parameters[0].type = &ofFirst;
  parameters[1].type = &ofSecond;
  const auto second = bridge.convertOperation(&element);
  EXPECT_EQ(element.type, static_cast<UMLType*>(&ofSecond));
}

TEST(FeaturesOfFiles, AnOperationTakesItsFlagAndVisibility) {
  const ImportedModel imported(
      inClass("<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='O' isStatic='true'"
              " visibility='package'/>"));
  EXPECT_TRUE(imported.get<KYROperation>("o").isStatic);
  EXPECT_EQ(imported.get<KYROperation>("o").visibility, 3);
}
