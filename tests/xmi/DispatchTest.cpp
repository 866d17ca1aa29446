// What a tag means: by its type, in the context of its parent, or generally.
#include "tests/xmi/Reading.h"

namespace {

constexpr const char* unknownTagCode = "KBI_UML2XMI_W0001";

TEST(Dispatch, APackageTagNeedsATypeOrTheRootRule) {
  DispatchRows& rows = DispatchRows::get();
  for (const auto* const table : {&rows.context, &rows.general}) {
    for (const TagHandler& row : *table) EXPECT_STRNE(row.tag == nullptr ? "" : row.tag, "uml:Package");
  }
  const Reading reading(inModel("<uml:Package xmi:type='uml:Package' xmi:id='p'/>"));
  EXPECT_EQ(reading.find("p")->getKind(), UMLPackage::kind);
}

TEST(Dispatch, AnUntypedMemberOfAPackageIsAPackageableElement) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Package' xmi:id='p'><packagedElement xmi:id='x' name='X'/>"
              "</packagedElement>"));
  EXPECT_EQ(reading.find("x")->getKind(), UMLPackageableElement::kind);
  EXPECT_EQ(reading.get<UMLPackageableElement>("x").name.view(), "X");
}

TEST(Dispatch, AnUntypedMemberWithNoObjectOpenIsIgnoredInSilence) {
  const Reading reading(
      "<xmi:XMI xmlns:xmi='x' xmlns:uml='u'><packagedElement xmi:id='x'/><uml:Model xmi:id='m'/></xmi:XMI>");
  EXPECT_EQ(reading.find("x"), nullptr);
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(Dispatch, ANameAsChildElementIsDroppedOnAClassAndStoredOnAPlainNamedElement) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c' name='Kept'><name>Dropped</name>"
              "<qualifiedName>M::Dropped</qualifiedName></packagedElement>"
              "<packagedElement xmi:type='uml:NamedElement' xmi:id='n' name='Old'><name>New</name>"
              "<qualifiedName>M::New</qualifiedName></packagedElement>"));
  EXPECT_EQ(reading.get<UMLClass>("c").name.view(), "Kept");
  EXPECT_TRUE(reading.get<UMLClass>("c").qualifiedName.isEmpty());
  EXPECT_EQ(reading.get<UMLNamedElement>("n").name.view(), "New");
  EXPECT_EQ(reading.get<UMLNamedElement>("n").qualifiedName.view(), "M::New");
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(Dispatch, AToolExtensionInsideAClassIsSkippedWhole) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'><xmi:Extension extender='T'>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='hidden'/><strange/></xmi:Extension>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='a'/></packagedElement>"));
  EXPECT_EQ(reading.find("hidden"), nullptr);
  EXPECT_EQ(idsOf(reading.get<UMLClass>("c").ownedAttribute), "a");
  EXPECT_EQ(reading.log.countOf(unknownTagCode), 0U);
}

TEST(Dispatch, TheTextRowsStoreTheirFields) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:LiteralString' xmi:id='v'><value>a</value></packagedElement>"
      "<packagedElement xmi:type='uml:ElementImport' xmi:id='i'><alias>b</alias></packagedElement>"
      "<packagedElement xmi:type='uml:Parameter' xmi:id='p'><default>c</default></packagedElement>"
      "<packagedElement xmi:type='uml:Expression' xmi:id='e'><symbol>d</symbol></packagedElement>"
      "<packagedElement xmi:type='uml:OpaqueExpression' xmi:id='o'><body>e</body><language>f</language>"
      "</packagedElement>"
      "<packagedElement xmi:type='uml:OpaqueBehavior' xmi:id='b'><body>g</body><language>h</language>"
      "</packagedElement>"
      "<packagedElement xmi:type='uml:OpaqueAction' xmi:id='a'><body>i</body><language>j</language>"
      "</packagedElement>"
      "<packagedElement xmi:type='uml:Property' xmi:id='q'><default>k</default></packagedElement>"
      "<viewpoint>l</viewpoint>"));
  EXPECT_EQ(reading.get<UMLLiteralString>("v").value.view(), "a");
  EXPECT_EQ(reading.get<UMLElementImport>("i").alias.view(), "b");
  EXPECT_EQ(reading.get<UMLParameter>("p").default_.view(), "c");
  EXPECT_EQ(reading.get<UMLExpression>("e").symbol.view(), "d");
  EXPECT_EQ(reading.get<UMLOpaqueExpression>("o").body.view(), "e");
  EXPECT_EQ(reading.get<UMLOpaqueExpression>("o").language.view(), "f");
  EXPECT_EQ(reading.get<UMLOpaqueBehavior>("b").body.view(), "g");
  EXPECT_EQ(reading.get<UMLOpaqueBehavior>("b").language.view(), "h");
  EXPECT_EQ(reading.get<UMLOpaqueAction>("a").body.view(), "i");
  EXPECT_EQ(reading.get<UMLOpaqueAction>("a").language.view(), "j");
  EXPECT_EQ(reading.get<UMLProperty>("q").default_.view(), "k");
  EXPECT_EQ(reading.model->viewpoint.view(), "l");
}

TEST(Dispatch, ATextRowOfAnExactKindDoesNotReachDerivedClasses) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:FunctionBehavior' xmi:id='f' body='kept'><body>dropped</body>"
              "</packagedElement>"));
  EXPECT_EQ(reading.get<UMLOpaqueBehavior>("f").body.view(), "kept");
}

TEST(Dispatch, OfTwoRowsTheMostDerivedClassServes) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>"
              "<ownedOperation xmi:type='uml:Operation' xmi:id='o'><ownedParameter xmi:idref='p'/>"
              "<raisedException xmi:idref='c'/></ownedOperation>"
              "<ownedReception xmi:type='uml:Reception' xmi:id='r'><ownedParameter xmi:idref='p'/>"
              "</ownedReception></packagedElement>"
              "<packagedElement xmi:type='uml:Parameter' xmi:id='p'/>"
              "<packagedElement xmi:type='uml:StateInvariant' xmi:id='s'><covered xmi:idref='l'/>"
              "</packagedElement>"
              "<packagedElement xmi:type='uml:OccurrenceSpecification' xmi:id='x'><covered xmi:idref='l'/>"
              "<event xmi:idref='e'/></packagedElement>"
              "<packagedElement xmi:type='uml:ExecutionOccurrenceSpecification' xmi:id='y'>"
              "<event xmi:idref='e'/></packagedElement>"
              "<packagedElement xmi:type='uml:ExecutionEvent' xmi:id='e'/>"
              "<packagedElement xmi:type='uml:Lifeline' xmi:id='l'/>"));
  const auto& operation = reading.get<UMLOperation>("o");
  EXPECT_EQ(idsOf(operation.ownedParameter), "p");
  EXPECT_EQ(idsOf(operation.UMLBehavioralFeature::ownedParameter), "");
  EXPECT_EQ(idsOf(operation.raisedException), "c");
  EXPECT_EQ(idsOf(reading.get<UMLReception>("r").ownedParameter), "p");
  EXPECT_EQ(reading.get<UMLStateInvariant>("s").covered, reading.find("l"));
  EXPECT_EQ(idsOf(reading.get<UMLStateInvariant>("s").UMLInteractionFragment::covered), "");
  EXPECT_EQ(reading.get<UMLOccurrenceSpecification>("x").covered, reading.find("l"));
  EXPECT_EQ(reading.get<UMLOccurrenceSpecification>("x").event, reading.find("e"));
  EXPECT_EQ(reading.get<UMLExecutionOccurrenceSpecification>("y").event, reading.find("e"));
  EXPECT_EQ(reading.get<UMLExecutionOccurrenceSpecification>("y").UMLOccurrenceSpecification::event, nullptr);
}

TEST(Dispatch, EveryTypeMakesAnObjectOfItsKindAndPopsIt) {
  std::string content;
  std::vector<int> expected{UMLModel::kind};
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    if (kind == UMLModel::kind) continue;  // that value is ignored on other tags
    content += std::string("<x xmi:type='") +
               UMLMetamodel::classRows[static_cast<std::size_t>(kind)].xmiType + "' xmi:id='k" +
               std::to_string(kind) + "'/>";
    expected.push_back(kind);
  }
  const Reading reading(inModel(content));
  EXPECT_EQ(reading.kindsRead(), expected);
  for (unsigned int i = 1; i < reading.parser.getObjects().getSlotCount(); ++i) {
    EXPECT_EQ(reading.parser.getObjects().at(i)->owner, reading.model);
  }
}

}  // namespace
