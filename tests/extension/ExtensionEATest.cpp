// What an Enterprise Architect section adds to the UML objects.
#include "tests/extension/ExtensionReading.h"

namespace {

std::string withSection(const std::string& body, const std::string& section,
                        const std::string& extender = "Enterprise Architect") {
  return "<xmi:XMI xmlns:uml='http://schema.omg.org/spec/UML/2.1' "
         "xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'>"
         "<xmi:Documentation exporter='enterprise architect' exporterVersion='6.5'/>"
         "<uml:Model xmi:id='m' name='M'>" +
         body + "</uml:Model><xmi:Extension extender='" + extender + "' extenderID='6.5'>" + section +
         "</xmi:Extension></xmi:XMI>";
}

const std::string oneProperty =
    "<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'>"
    "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='A'/></packagedElement>";

const UMLType& typeOf(const Reading& reading, const char* id) {
  const UMLType* const type = reading.get<UMLTypedElement>(id).type;
  if (type == nullptr) throw std::runtime_error("no type");
  return *type;
}

std::string tagsOf(const UMLElement& element) {
  std::string result;
  for (const UMLTaggedValue* const tag : element.taggedValues) {
    result += std::string(tag->name.view()) + "=" + std::string(tag->value.view()) + ";";
  }
  return result;
}

TEST(ExtensionEA, LogsItsTwoStepsBehindTheRead) {
  const Reading reading(withSection("", ""));
  const std::vector<std::string> expected = {
      "KBI_UML2XMI_S0009 This file follows enterprise architect '6.5' conventions",
      "KBI_UML2XMI_S0010 Detected UML version 2.1", "KBI_UML2XMI_S0010 Detected xmi version 2.1",
      "KBI_UML2XMI_S0011 Parsing tool specific extensions",
      "KBI_UML2XMI_S0012 Importing tool specific extensions"};
  EXPECT_EQ(reading.log.lines, expected);
}

TEST(ExtensionEA, WithoutASectionItEndsAfterTheFirstMessage) {
  const Reading reading(withSection("", "", "Another Tool"));
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0011"), 1U);
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0012"), 0U);
}

TEST(ExtensionEA, OnlyTheFirstSectionInDocumentOrderCounts) {
  const Reading reading(
      "<xmi:XMI xmlns:uml='u' xmlns:xmi='x'><xmi:Documentation exporter='Enterprise Architect'/>"
      "<wrapper><xmi:Extension extender='Enterprise Architect'>"
      "<element xmi:idref='m'><properties documentation='first'/></element></xmi:Extension></wrapper>"
      "<uml:Model xmi:id='m'/><xmi:Extension extender='Enterprise Architect'>"
      "<element xmi:idref='m'><properties documentation='second'/></element></xmi:Extension></xmi:XMI>");
  EXPECT_EQ(reading.model->documentation.view(), "first");
}

TEST(ExtensionEA, TheExtenderIsToldWithoutRegardToCase) {
  const Reading reading(withSection("", "<element xmi:idref='m'><properties documentation='d'/></element>",
                                    "ENTERPRISE ARCHITECT"));
  EXPECT_EQ(reading.model->documentation.view(), "d");
}

TEST(ExtensionEA, ATypeInTheBodyStaysAndTheRestIsRead) {
  const Reading reading(
      withSection("<packagedElement xmi:type='uml:Class' xmi:id='c' name='C'>"
                  "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='A' type='c'/></packagedElement>",
                  "<attribute xmi:idref='a'><properties type='int'/><initial body='7'/>"
                  "<tags><tag name='t' value='v'/></tags></attribute>"));
  EXPECT_EQ(&typeOf(reading, "a"), reading.find("c"));
  EXPECT_EQ(umlCast<UMLLiteralString>(reading.get<UMLProperty>("a").defaultValue)->value.view(), "7");
  EXPECT_EQ(tagsOf(*reading.find("a")), "t=v;");
  EXPECT_EQ(reading.parser.getMadeObjects().getCount(), 1U);  // the default value
}

TEST(ExtensionEA, LengthBeatsPrecisionAndZeroCountsAsAbsent) {
  struct Row {
    const char* properties;
    int length;
  };
  for (const Row& row : std::initializer_list<Row>{{"length='0' precision='10'", 10},
                                                   {"length='5' precision='10'", 5},
                                                   {"length='' precision=''", 0},
                                                   {"length='00' precision='10'", 0},
                                                   {"length='abc' precision='10'", 0},
                                                   {"length='12x'", 12},
                                                   {"precision='0'", 0},
                                                   {"length='99999999999'", 2147483647}}) {
    const Reading reading(
        withSection(oneProperty, std::string("<attribute xmi:idref='a'><properties type='char' ") +
                                     row.properties + "/></attribute>"));
    EXPECT_EQ(typeOf(reading, "a").length, row.length) << row.properties;
    EXPECT_EQ(typeOf(reading, "a").scale, 0);
    EXPECT_EQ(typeOf(reading, "a").name.view(), "char");
    EXPECT_EQ(typeOf(reading, "a").getKind(), UMLPrimitiveType::kind);
    EXPECT_TRUE(typeOf(reading, "a").id.isEmpty());
  }
}

TEST(ExtensionEA, TheScaleStandsInCoords) {
  const Reading reading(
      withSection(oneProperty,
                  "<attribute xmi:idref='a'><properties type='decimal' precision='10'/><coords scale='2'/>"
                  "<coords scale='9'/></attribute>"));
  EXPECT_EQ(typeOf(reading, "a").length, 10);
  EXPECT_EQ(typeOf(reading, "a").scale, 2);
}

TEST(ExtensionEA, ATypeWithoutANameIsStillAType) {
  const Reading reading(withSection(oneProperty, "<attribute xmi:idref='a'><properties/></attribute>"));
  EXPECT_TRUE(typeOf(reading, "a").name.isEmpty());
}

TEST(ExtensionEA, WithoutPropertiesThereIsNoType) {
  const Reading reading(withSection(
      oneProperty, "<attribute xmi:idref='a'><Properties type='int'/><coords scale='2'/></attribute>"));
  EXPECT_EQ(reading.get<UMLProperty>("a").type, nullptr);
}

TEST(ExtensionEA, ParametersGetTypesToo) {
  const Reading reading(withSection("<packagedElement xmi:type='uml:Parameter' xmi:id='p'/>",
                                    "<parameter xmi:idref='p'><properties type='date'/></parameter>"));
  EXPECT_EQ(typeOf(reading, "p").name.view(), "date");
}

TEST(ExtensionEA, AnInitialElementReplacesTheDefaultOfTheBody) {
  const std::string body =
      "<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:type='uml:Property' xmi:id='a'>"
      "<defaultValue xmi:type='uml:LiteralString' xmi:id='v' "
      "value='body'/></ownedAttribute></packagedElement>";
  const Reading replaced(withSection(body, "<attribute xmi:idref='a'><initial/></attribute>"));
  EXPECT_TRUE(umlCast<UMLLiteralString>(replaced.get<UMLProperty>("a").defaultValue)->value.isEmpty());
  const Reading kept(withSection(body, "<attribute xmi:idref='a'><properties/></attribute>"));
  EXPECT_EQ(kept.get<UMLProperty>("a").defaultValue, kept.find("v"));
}

TEST(ExtensionEA, TheFirstTagOfANameWinsAcrossTheWholeEntry) {
  const Reading reading(withSection(
      "",
      "<element xmi:idref='m'><tags><tag name='a' value='1'/><tag name='a' value='2'/><TAG name='A' "
      "value='3'/><other name='b' value='4'/><tag value='5'/></tags><Tags><tag name='a' value='6'/>"
      "<tag name='' value='7'/><tag name='c' value='8'/></Tags></element>"));
  EXPECT_EQ(tagsOf(*reading.model), "a=1;A=3;=5;c=8;");
}

TEST(ExtensionEA, TheLastDocumentationTextWins) {
  const auto documentation = [](const std::string& children) {
    const Reading reading(withSection("", "<element xmi:idref='m'>" + children + "</element>"));
    return std::string(reading.model->documentation.view());
  };
  EXPECT_EQ(documentation("<properties documentation='x'/><documentation value='y'/>"), "y");
  EXPECT_EQ(documentation("<documentation value='y'/><properties documentation='x'/>"), "x");
  EXPECT_EQ(documentation("<DOCUMENTATION value='y'/><properties documentation=''/>"), "y");
  EXPECT_EQ(documentation("<other documentation='x' value='y'/>"), "");
}

TEST(ExtensionEA, ABoundaryIsAClassThatSaysSo) {
  const Reading reading(withSection(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'/><packagedElement xmi:type='uml:Class' xmi:id='d'/>"
      "<packagedElement xmi:type='uml:Interface' xmi:id='i'/>",
      "<element xmi:idref='c' xmi:type='UML:boundary'/><element xmi:idref='d' xmi:type='uml:Class'/>"
      "<element xmi:idref='i' xmi:type='uml:Boundary'/>"));
  EXPECT_TRUE(reading.get<UMLClass>("c").isBoundary);
  EXPECT_FALSE(reading.get<UMLClass>("d").isBoundary);
}

TEST(ExtensionEA, EntriesMayNestAndAnyObjectGetsTagsAndDocumentation) {
  const Reading reading(withSection(
      "<packagedElement xmi:type='uml:Package' xmi:id='p'/>",
      "<elements><element xmi:idref='m'><attributes><attribute xmi:idref='p'><properties documentation='d'/>"
      "<tags><tag name='t' value='v'/></tags></attribute></attributes></element></elements>"));
  EXPECT_EQ(reading.find("p")->documentation.view(), "d");
  EXPECT_EQ(tagsOf(*reading.find("p")), "t=v;");
}

TEST(ExtensionEA, OfSeveralEntriesOfOneIdTheFirstServes) {
  const Reading reading(withSection(
      "", "<element xmi:idref='m'/><element xmi:idref='m'><properties documentation='d'/></element>"));
  EXPECT_TRUE(reading.model->documentation.isEmpty());
}

TEST(ExtensionEA, DocumentationBehindTheModelTakesThePathOfAnyOtherTool) {
  const std::string documentation =
      "<xmi:Documentation exporter='Enterprise Architect' exporterVersion='6.5'/>";
  const std::string model =
      "<uml:Model xmi:id='m'><packagedElement xmi:type='uml:Class' xmi:id='c'/></uml:Model>";
  const std::string section =
      "<xmi:Extension extender='Enterprise Architect'><element xmi:idref='c'><properties documentation='d'/>"
      "</element></xmi:Extension></xmi:XMI>";
  const std::string root = "<xmi:XMI xmlns:uml='u' xmlns:xmi='x'>";
  EXPECT_EQ(Reading(root + documentation + model + section).find("c")->documentation.view(), "d");
  EXPECT_EQ(Reading(root + model + documentation + section).find("c")->documentation.view(), "");
}

TEST(ExtensionEA, TheSectionItselfCanBeAnEntry) {
  const Reading reading(
      "<xmi:XMI xmlns:uml='u' xmlns:xmi='x'><xmi:Documentation exporter='Enterprise Architect'/>"
      "<uml:Model xmi:id='m'/><xmi:Extension extender='Enterprise Architect' xmi:idref='m'>"
      "<properties documentation='d'/></xmi:Extension></xmi:XMI>");
  EXPECT_EQ(reading.model->documentation.view(), "d");
}

TEST(ExtensionEA, WhatIsMissingIsPassedOver) {
  for (const char* content :
       {"", "<properties/>", "<tags/>", "<tags><other name='a'/></tags>", "<documentation/>",
        "<documentation body='d'/>", "<properties value='d'/>", "text"}) {
    const Reading reading(withSection("", std::string("<element xmi:idref='m'>") + content + "</element>"));
    EXPECT_EQ(tagsOf(*reading.model), "") << content;
    EXPECT_TRUE(reading.model->documentation.isEmpty()) << content;
  }
  const Reading named(withSection("", "<element xmi:idref='m'><tags><tag/></tags></element>"));
  EXPECT_EQ(tagsOf(*named.model), "=;");
  const Reading unscaled(
      withSection(oneProperty, "<attribute xmi:idref='a'><properties type='t'/><coords/></attribute>"));
  EXPECT_EQ(typeOf(unscaled, "a").scale, 0);
  EXPECT_EQ(unscaled.get<UMLProperty>("a").defaultValue, nullptr);
}

TEST(ExtensionEA, AScaleIsReadAsANumberAsFarAsItGoes) {
  struct Row {
    const char* scale;
    int expected;
  };
  for (const Row& row : std::initializer_list<Row>{{"2", 2},
                                                   {"0", 0},
                                                   {"00", 0},
                                                   {"", 0},
                                                   {"x", 0},
                                                   {"3.7", 3},
                                                   {" -4", -4},
                                                   {"99999999999", 2147483647},
                                                   {"-99999999999", -2147483647 - 1}}) {
    const Reading reading(withSection(
        oneProperty, std::string("<attribute xmi:idref='a'><properties type='t'/><coords scale='") +
                         row.scale + "'/></attribute>"));
    EXPECT_EQ(typeOf(reading, "a").scale, row.expected) << row.scale;
  }
}

TEST(ExtensionEA, AnEntryGivesOnlyWhatFitsTheObject) {
  const Reading reading(withSection(
      "<packagedElement xmi:type='uml:Package' xmi:id='p'/><packagedElement xmi:type='uml:Parameter' "
      "xmi:id='q'/>"
      "<packagedElement xmi:type='uml:AssociationClass' xmi:id='ac'/>" +
          oneProperty,
      "<element xmi:idref='p' xmi:type='uml:Boundary'><properties type='t'/><initial body='b'/></element>"
      "<element xmi:idref='q' xmi:type='uml:Class'><properties type='t'/><initial body='b'/></element>"
      "<element xmi:idref='ac' xmi:type='uml:Boundary'/><element xmi:idref='a' xmi:type='uml:Boundary'/>"));
  EXPECT_EQ(typeOf(reading, "q").name.view(), "t");
  EXPECT_EQ(reading.get<UMLParameter>("q").defaultValue, nullptr);
  EXPECT_FALSE(reading.get<UMLClass>("ac").isBoundary);
  EXPECT_EQ(reading.get<UMLProperty>("a").type, nullptr);
  EXPECT_EQ(reading.parser.getMadeObjects().getCount(), 1U);
}

TEST(ExtensionEA, ASectionAsDeepAsAFileMayBeNeedsNoStack) {
  constexpr unsigned int depth = 100000;
  const DeeperFiles deeper(depth + 10);
  std::string open;
  std::string close;
  for (unsigned int i = 0; i < depth; ++i) {
    open += "<e xmi:idref='e" + std::to_string(i) + "'>";
    close += "</e>";
  }
  const Reading reading(
      withSection("", open + "<e xmi:idref='m'><properties documentation='d'/></e>" + close));
  EXPECT_EQ(reading.model->documentation.view(), "d");
}

TEST(ExtensionEA, AnyOtherExceptionBecomesTheMessageOfTheReader) { expectUnknownError(withSection("", "")); }

}  // namespace
