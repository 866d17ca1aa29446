// What a reader does with the attributes, the id and the place of one element.
#include "tests/xmi/Reading.h"
#include "xmi/ReadObserver.h"

namespace {

// The links that a text notes, in their order: "first second kind" each.
std::vector<std::string> linksOf(const std::string& xml) {
  struct Observer : ReadObserver {
    void skippedType(const KYRString&, const KYRString&) override {}
    void unknownTag(const KYRString&, const KYRString&) override {}
    void link(const KYRString& first, const KYRString& second, int kind, LinkResult) override {
      links.push_back(std::string(first.view()) + " " + std::string(second.view()) + " " +
                      std::to_string(kind));
    }
    std::vector<std::string> links;
  } observer;
  DispatchRows::resetForTests();
  const TemporaryFile file(xml);
  RecordingLog log;
  XMIParser parser(&log);
  parser.setObserver(&observer);
  parser.parse(file.file());
  return observer.links;
}

TEST(Readers, AnElementWithoutAnIdIsMadeButNotOwned) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' name='NoId'>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='a'/></packagedElement>"));
  EXPECT_EQ(reading.kindsRead(), (std::vector<int>{UMLModel::kind, UMLClass::kind, UMLProperty::kind}));
  EXPECT_TRUE(reading.model->ownedElement.isEmpty());
  EXPECT_EQ(reading.find("a")->owner, nullptr);
  EXPECT_EQ(reading.find(""), nullptr);
}

TEST(Readers, AnEmptyIdrefIsAnInlineElement) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:idref='' xmi:id='a'/>"
              "</packagedElement>"));
  EXPECT_EQ(reading.find("a")->getKind(), UMLProperty::kind);
}

TEST(Readers, AnIdrefUnderAnOwnedAttributeTiesTheClassToTheProperty) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:idref='p'/></packagedElement>"
      "<packagedElement xmi:type='uml:Property' xmi:id='p'/>"));
  EXPECT_EQ(reading.parser.getObjects().getCount(), 3U);
  EXPECT_EQ(idsOf(reading.get<UMLClass>("c").ownedAttribute), "p");
  EXPECT_EQ(reading.get<UMLProperty>("p").class_, reading.find("c"));
  EXPECT_EQ(reading.find("p")->owner, reading.model);
}

TEST(Readers, ATypeAsAttributeAndAsChildIsOneType) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'>"
      "<ownedAttribute xmi:type='uml:Property' xmi:id='p' type='c'><type xmi:idref='c'/></ownedAttribute>"
      "</packagedElement>"));
  EXPECT_EQ(reading.get<UMLProperty>("p").type, reading.find("c"));
}

TEST(Readers, BothFormsOfAReferenceAreNotedInOppositeOrders) {
  EXPECT_EQ(linksOf(inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>"
                            "<ownedAttribute xmi:type='uml:Property' xmi:id='p' type='c'>"
                            "<type xmi:idref='c'/></ownedAttribute></packagedElement>")),
            (std::vector<std::string>{"m c 0", "m c 45", "c p 4", "c p 0", "c p 17", "p c 4"}));
  EXPECT_EQ(linksOf(inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:idref='p'/>"
                            "</packagedElement>")),
            (std::vector<std::string>{"m c 0", "m c 45", "c p 17"}));
}

TEST(Readers, ReferenceAttributesAreNotedAlongTheLineage) {
  EXPECT_EQ(
      linksOf(inModel("<packagedElement xmi:type='uml:Abstraction' xmi:id='a' namespace='n' "
                      "clientDependency='n' ownedComment='n' owner='n' ownedElement='n' "
                      "relatedElement='n' target='n' source='n' client='n' supplier='n' mapping='n'/>")),
      (std::vector<std::string>{"n a 96", "n a 99", "n a 100", "n a 1", "n a 2", "n a 36", "n a 0", "n a 0",
                                "n a 13", "n a 100", "n a 101", "m a 0", "m a 45"}));
}

TEST(Readers, AModelWithoutAnIdHasItsNameAsId) {
  const Reading reading("<uml:Model xmlns:uml='u' name='Shop'/>");
  EXPECT_EQ(reading.model->id.view(), "Shop");
  EXPECT_EQ(reading.find("Shop"), reading.model);
}

TEST(Readers, ADefaultValueKeepsItsTextWhateverLiteralItIs) {
  const Reading reading(inModel(
      "<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:type='uml:Property' xmi:id='p'>"
      "<defaultValue xmi:type='uml:LiteralInteger' xmi:id='i' value='5'/></ownedAttribute>"
      "<ownedAttribute xmi:type='uml:Property' xmi:id='q'>"
      "<defaultValue xmi:type='uml:LiteralBoolean' xmi:id='b' value='true'/>"
      "<lowerValue xmi:type='uml:LiteralInteger' xmi:id='l' value='5'/>"
      "<upperValue xmi:type='uml:LiteralUnlimitedNatural' xmi:id='u' value='*'/></ownedAttribute>"
      "</packagedElement>"));
  EXPECT_EQ(reading.get<UMLLiteralString>("i").value.view(), "5");
  EXPECT_EQ(reading.get<UMLLiteralString>("b").value.view(), "true");
  EXPECT_EQ(reading.get<UMLProperty>("p").defaultValue, reading.find("i"));
  EXPECT_EQ(reading.get<UMLLiteralInteger>("l").value, 5);
  EXPECT_EQ(reading.get<UMLLiteralUnlimitedNatural>("u").value.view(), "*");
  EXPECT_EQ(reading.get<UMLProperty>("q").lowerValue, reading.find("l"));
  EXPECT_EQ(reading.get<UMLProperty>("q").upperValue, reading.find("u"));
}

TEST(Readers, BooleansAreTrueForTheWordAlone) {
  const Reading reading(
      inModel("<x xmi:type='uml:Property' xmi:id='a' isStatic='TRUE'/><x xmi:type='uml:Property' xmi:id='b' "
              "isStatic='True'/><x xmi:type='uml:Property' xmi:id='c' isStatic='1'/>"
              "<x xmi:type='uml:Property' xmi:id='d' isStatic='yes'/><x xmi:type='uml:Property' xmi:id='e'/>"
              "<x xmi:type='uml:Class' xmi:id='f' isAbstract='True'/>"
              "<x xmi:type='uml:Class' xmi:id='g' isAbstract='1'/>"));
  EXPECT_TRUE(reading.get<UMLProperty>("a").isStatic);
  EXPECT_TRUE(reading.get<UMLProperty>("b").isStatic);
  EXPECT_FALSE(reading.get<UMLProperty>("c").isStatic);
  EXPECT_FALSE(reading.get<UMLProperty>("d").isStatic);
  EXPECT_FALSE(reading.get<UMLProperty>("e").isStatic);
  EXPECT_TRUE(reading.get<UMLClass>("f").UMLClass::isAbstract);
  EXPECT_FALSE(reading.get<UMLClass>("f").UMLClassifier::isAbstract);
  EXPECT_FALSE(reading.get<UMLClass>("g").UMLClass::isAbstract);
}

TEST(Readers, KindsAreNullWhenTheAttributeIsMissingOrEmpty) {
  const Reading reading(
      inModel("<x xmi:type='uml:Property' xmi:id='a' aggregation='COMPOSITE' visibility=''/>"
              "<x xmi:type='uml:Property' xmi:id='b' aggregation='none' visibility='public'/>"
              "<x xmi:type='uml:Property' xmi:id='c'/>"
              "<x xmi:type='uml:Parameter' xmi:id='d' direction='OUT'/>"
              "<x xmi:type='uml:Parameter' xmi:id='e' direction='in'/>"
              "<x xmi:type='uml:Message' xmi:id='f' messageSort='synchCall'/>"
              "<x xmi:type='uml:Message' xmi:id='g' messageSort='asynchcall' messageKind='lost'/>"
              "<x xmi:type='uml:Operation' xmi:id='h' concurrency='guarded'/>"));
  EXPECT_EQ(reading.get<UMLProperty>("a").aggregation->getValue(), UMLAggregationKind::composite);
  EXPECT_EQ(reading.get<UMLProperty>("a").UMLNamedElement::visibility, nullptr);
  EXPECT_EQ(reading.get<UMLProperty>("b").aggregation->getValue(), UMLAggregationKind::none);
  EXPECT_EQ(reading.get<UMLProperty>("b").UMLNamedElement::visibility->getValue(), 0);
  EXPECT_EQ(reading.get<UMLProperty>("c").aggregation, nullptr);
  EXPECT_EQ(reading.get<UMLParameter>("d").direction->getValue(), 2);
  EXPECT_EQ(reading.get<UMLParameter>("e").direction->getValue(), 0);
  EXPECT_EQ(reading.get<UMLMessage>("f").messageSort->getValue(), 0);
  EXPECT_EQ(reading.get<UMLMessage>("g").messageSort->getValue(), 1);
  EXPECT_EQ(reading.get<UMLMessage>("g").messageKind->getValue(), 1);
  EXPECT_EQ(reading.get<UMLOperation>("h").concurrency->getValue(), 1);
}

TEST(Readers, VisibilityOfAPackageableElementIsOnThatField) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='c' visibility='private'/>"
              "<x xmi:type='uml:Operation' xmi:id='o' visibility='private'/>"
              "<x xmi:type='uml:ElementImport' xmi:id='e' visibility='private'/>"
              "<x xmi:type='uml:PackageImport' xmi:id='p' visibility='private'/>"));
  EXPECT_EQ(reading.get<UMLClass>("c").UMLNamedElement::visibility, nullptr);
  EXPECT_EQ(reading.get<UMLClass>("c").UMLPackageableElement::visibility->getValue(), 1);
  EXPECT_EQ(reading.get<UMLOperation>("o").UMLNamedElement::visibility->getValue(), 1);
  EXPECT_EQ(reading.get<UMLElementImport>("e").visibility->getValue(), 1);
  EXPECT_EQ(reading.get<UMLPackageImport>("p").visibility->getValue(), 1);
}

TEST(Readers, BoundsAreReadInTheirTwoForms) {
  const Reading reading(
      inModel("<x xmi:type='uml:Property' xmi:id='a' lower='*' upper='*'/>"
              "<x xmi:type='uml:Property' xmi:id='b' lower='3x' upper='-1'/>"
              "<x xmi:type='uml:Operation' xmi:id='c' lower='2' upper='4' isOrdered='true' isUnique='true'/>"
              "<x xmi:type='uml:LiteralInteger' xmi:id='d' value='abc'/>"
              "<x xmi:type='uml:LiteralInteger' xmi:id='e'/>"
              "<x xmi:type='uml:LiteralInteger' xmi:id='f' value='99999999999'/>"));
  EXPECT_EQ(reading.get<UMLProperty>("a").lower, 0);
  EXPECT_EQ(reading.get<UMLProperty>("a").upper.view(), "*");
  EXPECT_EQ(reading.get<UMLProperty>("b").lower, 3);
  EXPECT_EQ(reading.get<UMLProperty>("b").upper.view(), "-1");
  EXPECT_EQ(reading.get<UMLOperation>("c").lower, 2);
  EXPECT_EQ(reading.get<UMLOperation>("c").upper.view(), "4");
  EXPECT_TRUE(reading.get<UMLOperation>("c").isOrdered);
  EXPECT_EQ(reading.get<UMLLiteralInteger>("d").value, 0);
  EXPECT_EQ(reading.get<UMLLiteralInteger>("e").value, 0);
  EXPECT_EQ(reading.get<UMLLiteralInteger>("f").value, 2147483647);
}

TEST(Readers, ATagWithoutARowForTheClassStillGivesOwnership) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'><oddTag xmi:type='uml:Comment' xmi:id='k'/>"
              "</packagedElement>"));
  EXPECT_EQ(reading.find("k")->owner, reading.find("c"));
  EXPECT_EQ(idsOf(reading.find("c")->ownedElement), "k");
}

TEST(Readers, AnOwnerAttributeGivesASecondOwnerListAndLosesThePointer) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'/>"
              "<packagedElement xmi:type='uml:Class' xmi:id='d' owner='c'/>"));
  EXPECT_EQ(idsOf(reading.find("c")->ownedElement), "d");
  EXPECT_EQ(idsOf(reading.model->ownedElement), "c d");
  EXPECT_EQ(reading.find("d")->owner, reading.model);
}

TEST(Readers, ATypeBesideAnIdrefMakesAnEmptyObject) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>"
              "<ownedAttribute xmi:type='uml:Property' xmi:idref='p'/></packagedElement>"
              "<packagedElement xmi:type='uml:Property' xmi:id='p'/>"));
  EXPECT_EQ(reading.parser.getObjects().getCount(), 4U);
  EXPECT_TRUE(reading.get<UMLClass>("c").ownedAttribute.isEmpty());
}

TEST(Readers, EveryFittingNestedRowGivesALink) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'>"
              "<ownedOperation xmi:type='uml:Operation' xmi:id='o'>"
              "<ownedParameter xmi:type='uml:Parameter' xmi:id='p'/></ownedOperation></packagedElement>"));
  const auto& operation = reading.get<UMLOperation>("o");
  EXPECT_EQ(idsOf(operation.ownedParameter), "p");
  EXPECT_EQ(idsOf(operation.UMLBehavioralFeature::ownedParameter), "p");
  EXPECT_EQ(reading.get<UMLParameter>("p").operation, &operation);
}

TEST(Readers, DuplicateIdsLinkToTheFirstBearer) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='twin' name='First'/>"
              "<packagedElement xmi:type='uml:Class' xmi:id='twin' name='Second'/>"
              "<x xmi:type='uml:Property' xmi:id='p' type='twin'/>"));
  EXPECT_EQ(reading.get<UMLClass>("twin").name.view(), "First");
  EXPECT_EQ(reading.get<UMLProperty>("p").type, reading.find("twin"));
  EXPECT_EQ(idsOf(reading.model->packagedElement), "twin");
}

}  // namespace
