// What the extension of every other tool adds: types by reference, multiplicities, custom properties.
#include <sys/stat.h>

#include <cstdio>
#include <fstream>

#include "tests/extension/ExtensionReading.h"

namespace {

std::string propertyWithType(const std::string& id, const std::string& href) {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "'><type href='" + href +
         "'/></ownedAttribute>";
}

std::string inClass(const std::string& content) {
  return inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>" + content + "</packagedElement>");
}

// "type(id)" of a property, or "none".
std::string typeOf(const Reading& reading, const char* id) {
  const UMLType* const type = reading.get<UMLProperty>(id).type;
  if (type == nullptr) return "none";
  return std::string(type->name.view()) + "(" + std::string(type->id.view()) + ")";
}

// A folder for an input and the module beside it.
class ExtensionWithModule : public ::testing::Test {
 protected:
  void SetUp() override {
    char name[] = "/tmp/kyr-module-XXXXXX";
    ASSERT_NE(mkdtemp(name), nullptr);
    folder_ = name;
  }
  void TearDown() override {
    for (const std::string& file : files_) std::remove((folder_ + "/" + file).c_str());
    std::remove(folder_.c_str());
  }
  void write(const std::string& name, const std::string& content) {
    std::ofstream(folder_ + "/" + name) << content;
    files_.push_back(name);
  }
  void readInput(const std::string& content) {
    write("input.xmi", content);
    DispatchRows::resetForTests();
    parser = std::make_unique<XMIParser>(&log);
    parser->parse(KYRFile((folder_ + "/input.xmi").c_str()));
  }
  std::string typeOf(const char* id) const {
    auto* const property = umlCast<UMLProperty>(parser->getObjects().find(id));
    if (property == nullptr || property->type == nullptr) return "none";
    return std::string(property->type->name.view()) + "(" + std::string(property->type->id.view()) + ")";
  }

  std::string folder_;
  std::vector<std::string> files_;
  RecordingLog log;
  std::unique_ptr<XMIParser> parser;
};

const std::string module =
    "<library><type xmi:id='other' xmlns:xmi='x' name='Lib.Other'/>"
    "<type xmi:id='MONEY_1' xmlns:xmi='x' name='Lib.Types.Money'/></library>";

TEST_F(ExtensionWithModule, AReferenceIntoAFileBesideTheInputFindsTheNameThere) {
  write("types.xml", module);
  readInput(inClass(propertyWithType("a", "types.xml#money_1") + propertyWithType("b", "types.xml#nowhere")));
  EXPECT_EQ(typeOf("a"), "Money(money_1)");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_S0017 Parsing file 'types.xml'"), 1U);
}

TEST_F(ExtensionWithModule, ASecondFileIsNotOpenedAndItsFragmentsAreSearchedInTheFirst) {
  write("types.xml", module);
  write("second.xml", "<library><type xmi:id='money_1' xmlns:xmi='x' name='Wrong'/></library>");
  readInput(inClass(propertyWithType("a", "types.xml#other") + propertyWithType("b", "second.xml#money_1")));
  EXPECT_EQ(typeOf("a"), "Other(other)");
  EXPECT_EQ(typeOf("b"), "Money(money_1)");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_S0017"), 1U);
}

TEST_F(ExtensionWithModule, AMissingFileIsReportedOnceAndEndsAllAttempts) {
  write("types.xml", module);
  readInput(inClass(propertyWithType("a", "missing.xml#_m8qbBa86EdiEh75YJ_3n8g") +
                    propertyWithType("b", "types.xml#money_1")));
  EXPECT_EQ(typeOf("a"), "Integer(_m8qbBa86EdiEh75YJ_3n8g)");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003 Could not parse file '" + folder_ + "/missing.xml'"), 1U);
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003"), 1U);
}

TEST_F(ExtensionWithModule, AMissingFileWithAColonLeavesTheNextReferenceItsTurn) {
  write("types.xml", module);
  readInput(inClass(propertyWithType("a", "http://example.invalid/x#other") +
                    propertyWithType("b", "types.xml#money_1")));
  EXPECT_EQ(typeOf("a"), "none");
  EXPECT_EQ(typeOf("b"), "Money(money_1)");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003"), 0U);
}

TEST_F(ExtensionWithModule, AnEscapedBlankIsABlank) {
  write("my types.xml", module);
  readInput(inClass(propertyWithType("a", "my%20types.xml#other")));
  EXPECT_EQ(typeOf("a"), "Other(other)");
}

TEST_F(ExtensionWithModule, AKnownTypeNameOpensNoFile) {
  readInput(inClass(propertyWithType("a", "missing.xml#Integer") + propertyWithType("b", "missing.xml#int")));
  EXPECT_EQ(typeOf("a"), "Integer(_m8qbBa86EdiEh75YJ_3n8g)");
  EXPECT_EQ(typeOf("b"), "int()");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003"), 0U);
}

TEST_F(ExtensionWithModule, OnlyARegularFileIsEverOpened) {
  ASSERT_EQ(mkfifo((folder_ + "/pipe.xml").c_str(), 0600), 0);
  files_.push_back("pipe.xml");
  ASSERT_EQ(mkdir((folder_ + "/folder.xml").c_str(), 0700), 0);
  files_.push_back("folder.xml");
  ASSERT_EQ(symlink("nowhere", (folder_ + "/link.xml").c_str()), 0);
  files_.push_back("link.xml");
  for (const std::string name :
       {"pipe.xml", "folder.xml", "link.xml", "../../dev/zero", "../../dev/null", "."}) {
    log.lines.clear();
    readInput(inClass(propertyWithType("a", name + "#other")));
    EXPECT_EQ(typeOf("a"), "none") << name;
    EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003 Could not parse file '" + folder_ + "/" + name + "'"), 1U)
        << name;
  }
}

TEST_F(ExtensionWithModule, AReferenceWithoutAHashOpensItsFile) {
  write("types.xml", "<library><type xmi:id='TYPES.xml' xmlns:xmi='x' name='Found'/></library>");
  readInput(inClass(propertyWithType("a", "types.xml")));
  EXPECT_EQ(typeOf("a"), "Found(types.xml)");
}

TEST_F(ExtensionWithModule, AnEmptyFragmentOrFilePartFindsNothing) {
  write("types.xml", "<library><type xmi:id='' xmlns:xmi='x' name='Empty'/></library>");
  readInput(
      inClass(propertyWithType("a", "#other") + propertyWithType("b", "#") + propertyWithType("d", "")));
  EXPECT_EQ(typeOf("a"), "none");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0003"), 0U);
  readInput(inClass(propertyWithType("a", "types.xml#")));
  EXPECT_EQ(typeOf("a"), "none");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_S0017 Parsing file 'types.xml'"), 1U);
}

TEST_F(ExtensionWithModule, AnElementWithoutANameLeavesTheStandardTypes) {
  const std::string integer = "_m8qbBa86EdiEh75YJ_3n8g";
  write("types.xml",
        "<library xmlns:xmi='x'><type xmi:id='" + integer +
            "' name='Lib.'/><type xmi:id='nameless'/><type xmi:id='plain' name='Plain'/></library>");
  readInput(inClass(propertyWithType("a", "types.xml#" + integer) +
                    propertyWithType("b", "types.xml#nameless") + propertyWithType("d", "types.xml#plain")));
  EXPECT_EQ(typeOf("a"), "Integer(" + integer + ")");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(typeOf("d"), "Plain(plain)");
}

TEST_F(ExtensionWithModule, AModuleThatIsNoXmlEndsTheImport) {
  write("types.xml", "this is no XML");
  EXPECT_THROW(readInput(inClass(propertyWithType("a", "types.xml#other"))), KYRException);
}

TEST_F(ExtensionWithModule, TheInputCanBeItsOwnModule) {
  readInput(inModel("<packagedElement xmi:type='uml:Class' xmi:id='c' name='Lib.Self'>" +
                    propertyWithType("a", "input.xmi#C") + propertyWithType("b", "input.xmi#C2") +
                    "</packagedElement>"));
  EXPECT_EQ(typeOf("a"), "Self(C)");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(log.countOf("KBI_UML2XMI_S0017"), 1U);
}

// Whatever an element is, its name makes a type; one without a name makes none.
TEST_F(ExtensionWithModule, AReferenceMayLeadToItselfOrToWhatIsNoType) {
  readInput(
      inClass("<ownedAttribute xmi:type='uml:Property' xmi:id='self' name='Own'>"
              "<type href='input.xmi#self'/></ownedAttribute>" +
              propertyWithType("a", "input.xmi#t") + propertyWithType("b", "input.xmi#c") +
              propertyWithType("d", "input.xmi#o") + propertyWithType("e", "input.xmi#") +
              propertyWithType("f", "#self") + propertyWithType("g", "#") +
              "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='Do.It'/>"));
  EXPECT_EQ(typeOf("self"), "Own(self)");
  EXPECT_EQ(typeOf("a"), "none");
  EXPECT_EQ(typeOf("b"), "none");
  EXPECT_EQ(typeOf("d"), "It(o)");
  EXPECT_EQ(typeOf("e"), "none");
  EXPECT_EQ(typeOf("f"), "none");
  EXPECT_EQ(typeOf("g"), "none");
}

TEST_F(ExtensionWithModule, ChildrenComeBeforeTheElementInTheSearch) {
  write("types.xml",
        "<library><type xmi:id='X' xmlns:xmi='x' name='Outer'><type xmi:id='x' "
        "name='Inner'/></type></library>");
  readInput(inClass(propertyWithType("a", "types.xml#X")));
  EXPECT_EQ(typeOf("a"), "Inner(X)");
}

TEST(Extension, RunsForEveryOtherExporterAndReadsCustomProperties) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'>"
      "<eAnnotations source='Custom Properties'><details key='k' value='1'/><Details key='k' value='2'/>"
      "<other key='x' value='y'/></eAnnotations><eAnnotations source='other'><details key='z'/>"
      "</eAnnotations></packagedElement>"));
  std::string tags;
  for (const UMLTaggedValue* const tag : reading.find("c")->taggedValues) {
    tags += std::string(tag->name.view()) + "=" + std::string(tag->value.view()) + ";";
  }
  EXPECT_EQ(tags, "k=1;k=2;");
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0011"), 1U);
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0012"), 1U);
}

TEST(Extension, PackedFilesAreNeverTouched) {
  const Reading reading(inClass(propertyWithType("a", "missing.mdzip#_m8qbB686EdiEh75YJ_3n8g") +
                                propertyWithType("b", "missing.MDZIP#unknown") +
                                propertyWithType("d", "missing%2Emdzip#unknown")));
  EXPECT_EQ(typeOf(reading, "a"), "String(_m8qbB686EdiEh75YJ_3n8g)");
  EXPECT_EQ(typeOf(reading, "b"), "none");
  EXPECT_EQ(typeOf(reading, "d"), "none");
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_W0003"), 0U);
}

TEST(Extension, WithoutAHashTheWholeReferenceIsBothParts) {
  const Reading reading(inClass(propertyWithType("a", "Boolean") + propertyWithType("b", "missing.xml")));
  EXPECT_EQ(typeOf(reading, "a"), "Boolean(_m8qbBq86EdiEh75YJ_3n8g)");
  EXPECT_EQ(typeOf(reading, "b"), "none");
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_W0003 Could not parse file '/tmp/missing.xml'"), 1U);
}

TEST(Extension, ATypeOfTheBodyStays) {
  const Reading reading(
      inClass("<ownedAttribute xmi:type='uml:Property' xmi:id='a' type='c'>"
              "<type href='x#Integer'/></ownedAttribute>"));
  EXPECT_EQ(reading.get<UMLProperty>("a").type, reading.find("c"));
}

const std::string bounds =
    "<xmi:Extension extender='MagicDraw UML 17.0'><modelExtension>"
    "<lowerValue xmi:type='uml:LiteralInteger' xmi:id='l' name='n' value='2x'/>"
    "<upperValue xmi:type='UML:literalUnlimitedNatural' xmi:id='u' "
    "value='*'/></modelExtension></xmi:Extension>";

std::string associationWithEnd(const std::string& extensions, const std::string& type = " type='c'") {
  return inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"
      "<packagedElement xmi:type='uml:Association' xmi:id='s'>"
      "<memberEnd xmi:idref='e'/><ownedEnd xmi:type='uml:Property' xmi:id='e'" +
      type + ">" + extensions + "</ownedEnd></packagedElement>");
}

TEST(Extension, AnEndOfAnAssociationGetsItsMultiplicity) {
  const Reading reading(associationWithEnd(bounds));
  const auto& end = reading.get<UMLProperty>("e");
  EXPECT_EQ(umlCast<UMLLiteralInteger>(end.lowerValue)->value, 2);
  EXPECT_EQ(end.lowerValue->id.view(), "l");
  EXPECT_EQ(end.lowerValue->name.view(), "n");
  EXPECT_EQ(umlCast<UMLLiteralUnlimitedNatural>(end.upperValue)->value.view(), "*");
}

TEST(Extension, ALaterSectionOverwritesAndOtherTypesOfBoundsAreLeftOut) {
  const Reading reading(associationWithEnd(
      bounds +
      "<xmi:Extension extender='magicdraw uml 18'><modelExtension>"
      "<lowerValue xmi:type='uml:LiteralInteger' value='5'/><upperValue xmi:type='uml:LiteralString'/>"
      "</modelExtension></xmi:Extension>"));
  const auto& end = reading.get<UMLProperty>("e");
  EXPECT_EQ(umlCast<UMLLiteralInteger>(end.lowerValue)->value, 5);
  EXPECT_EQ(end.upperValue->id.view(), "u");
}

TEST(Extension, TheExtenderNeedsTheBlankBehindItsName) {
  const Reading reading(associationWithEnd(
      "<xmi:Extension extender='MagicDraw UML'><modelExtension>"
      "<lowerValue xmi:type='uml:LiteralInteger' value='5'/></modelExtension></xmi:Extension>"));
  EXPECT_EQ(reading.get<UMLProperty>("e").lowerValue, nullptr);
}

TEST(Extension, WithoutAnAssociationNoMultiplicityIsRead) {
  const Reading reading(
      inClass("<ownedAttribute xmi:type='uml:Property' xmi:id='e' type='c'>" + bounds + "</ownedAttribute>"));
  EXPECT_EQ(reading.get<UMLProperty>("e").lowerValue, nullptr);
}

TEST(Extension, APropertyWhoseTypeIsReadHereGetsNoMultiplicity) {
  const Reading reading(associationWithEnd("<type href='x#Integer'/>" + bounds, ""));
  EXPECT_EQ(typeOf(reading, "e"), "Integer(_m8qbBa86EdiEh75YJ_3n8g)");
  EXPECT_EQ(reading.get<UMLProperty>("e").lowerValue, nullptr);
}

TEST(Extension, AParameterGetsItsTypeByReferenceAndNoMultiplicity) {
  const Reading reading(
      inClass("<ownedOperation xmi:type='uml:Operation' xmi:id='o'><ownedParameter xmi:type='uml:Parameter' "
              "xmi:id='p'>"
              "<type href='x#Boolean'/>" +
              bounds + "</ownedParameter></ownedOperation>"));
  const auto& parameter = reading.get<UMLParameter>("p");
  ASSERT_NE(parameter.type, nullptr);
  EXPECT_EQ(parameter.type->name.view(), "Boolean");
  EXPECT_EQ(parameter.lowerValue, nullptr);
}

TEST(Extension, OfSeveralTypesTheFirstServes) {
  const Reading reading(inClass(
      "<ownedAttribute xmi:type='uml:Property' xmi:id='a'><type/><type href='x#Integer'/></ownedAttribute>"
      "<ownedAttribute xmi:type='uml:Property' xmi:id='b'><Type href='x#Integer'/></ownedAttribute>"));
  EXPECT_EQ(typeOf(reading, "a"), "none");
  EXPECT_EQ(typeOf(reading, "b"), "none");
}

TEST(Extension, MissingPartsOfAMultiplicityArePassedOver) {
  const std::string lower = "<lowerValue xmi:type='uml:LiteralInteger' value='5'/>";
  const auto section = [](const std::string& content) {
    return "<xmi:Extension extender='MagicDraw UML 17.0'>" + content + "</xmi:Extension>";
  };
  for (const std::string& content :
       {section(""), section(lower), section("<modelExtension/>"),
        section("<modelExtension><lowerValue/></modelExtension>"),
        section("<modelExtension><lowerValue value='5'/></modelExtension>"),
        section("<modelExtension><lowerValue xmi:type='uml:LiteralString' value='5'/></modelExtension>"),
        section("<modelExtension><nested>" + lower + "</nested></modelExtension>"),
        section("<modelExtension/><modelExtension>" + lower + "</modelExtension>"),
        section("<modelExtension><lowerValue/>" + lower + "</modelExtension>"),
        "<xmi:Extension><modelExtension>" + lower + "</modelExtension></xmi:Extension>",
        "<nested>" + section("<modelExtension>" + lower + "</modelExtension>") + "</nested>"}) {
    const Reading reading(associationWithEnd(content));
    EXPECT_EQ(reading.get<UMLProperty>("e").lowerValue, nullptr) << content;
    EXPECT_EQ(reading.get<UMLProperty>("e").upperValue, nullptr) << content;
  }
}

TEST(Extension, ABoundIsReadAsFarAsItsValueGoes) {
  struct Row {
    const char* value;
    int expected;
  };
  for (const Row& row :
       std::initializer_list<Row>{{"", 0}, {"*", 0}, {"-1", -1}, {" 7 ", 7}, {"99999999999", 2147483647}}) {
    const std::string value = std::string(" value='") + row.value + "'/>";
    const Reading reading(
        associationWithEnd("<xmi:Extension extender='MagicDraw UML x'><modelExtension>"
                           "<lowerValue xmi:type='ULM:no'/></modelExtension><modelExtension/></xmi:Extension>"
                           "<xmi:Extension extender='MagicDraw UML x'><modelExtension><lowerValue "
                           "xmi:type='uml:LiteralInteger'" +
                           value + "<upperValue xmi:type='uml:LiteralUnlimitedNatural'" + value +
                           "</modelExtension></xmi:Extension>"));
    const auto& end = reading.get<UMLProperty>("e");
    EXPECT_EQ(umlCast<UMLLiteralInteger>(end.lowerValue)->value, row.expected) << row.value;
    EXPECT_EQ(umlCast<UMLLiteralUnlimitedNatural>(end.upperValue)->value.view(), row.value);
    EXPECT_TRUE(end.lowerValue->id.isEmpty());
  }
}

TEST(Extension, ABoundOfTheBodyIsReplacedAndStaysWhereNoneIsGiven) {
  const std::string body =
      "<lowerValue xmi:type='uml:LiteralInteger' xmi:id='bl' value='1'/>"
      "<upperValue xmi:type='uml:LiteralInteger' xmi:id='bu' value='1'/>";
  const Reading reading(associationWithEnd(body + "<xmi:Extension extender='MagicDraw UML x'><modelExtension>"
                                                  "<upperValue xmi:type='uml:LiteralUnlimitedNatural' "
                                                  "xmi:id='u' value='*'/></modelExtension></xmi:Extension>"));
  const auto& end = reading.get<UMLProperty>("e");
  EXPECT_EQ(end.lowerValue, reading.find("bl"));
  EXPECT_EQ(end.upperValue->id.view(), "u");
}

TEST(Extension, MissingPartsOfCustomPropertiesAreEmptyOrPassedOver) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'><e source='custom properties'/>"
      "<e source='custom properties'><details/><details key='k'/><details value='v'/></e>"
      "<e><details key='no'/></e><nested><e source='custom properties'><details key='no'/></e></nested>"
      "</packagedElement>"));
  std::string tags;
  for (const UMLTaggedValue* const tag : reading.find("c")->taggedValues) {
    tags += std::string(tag->name.view()) + "=" + std::string(tag->value.view()) + ";";
  }
  EXPECT_EQ(tags, "=;k=;=v;");
}

TEST(Extension, AnIdThatComesAgainElsewhereIsAnotherElement) {
  const std::string again =
      "<e xmi:id='c' source='x'><e source='custom properties'><details key='k'/></e></e>";
  const Reading reading(
      "<xmi:XMI xmlns:uml='u' xmlns:xmi='x'><xmi:Extension>" + again +
      "</xmi:Extension><uml:Model xmi:id='m'><packagedElement xmi:type='uml:Class' xmi:id='c'/>"
      "<packagedElement xmi:type='uml:Package' xmi:id='p'><xmi:Extension>" +
      again + "</xmi:Extension></packagedElement></uml:Model></xmi:XMI>");
  EXPECT_TRUE(reading.find("c")->taggedValues.isEmpty());
}

TEST(Extension, AnyOtherExceptionBecomesTheMessageOfTheReader) { expectUnknownError(inModel("")); }

TEST(Extension, AnObjectWhoseOwnersRunInACircleFindsNothing) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a'><e source='custom properties'><details key='k'/></e>"
              "<x xmi:type='uml:Class' xmi:id='b'><owner xmi:idref='a'/></x></x>"));
  // The child form of "owner" makes the referenced object the owned one, so the two own each other.
  EXPECT_EQ(reading.find("a")->owner, reading.find("b"));
  EXPECT_EQ(reading.find("b")->owner, reading.find("a"));
  EXPECT_TRUE(reading.find("a")->taggedValues.isEmpty());
}

TEST(Extension, AnObjectOwnedElsewhereFindsNoElement) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a'><e source='custom properties'><details key='k'/></e></x>"
              "<x xmi:type='uml:Package' xmi:id='p'><ownedElement xmi:idref='a'/></x>"));
  EXPECT_EQ(reading.find("a")->owner, reading.find("p"));
  EXPECT_TRUE(reading.find("a")->taggedValues.isEmpty());
}

}  // namespace
