// Resolving references: both ends, both orders, and what is dropped in silence.
#include "tests/support/FailingAllocation.h"
#include "tests/support/MadeElement.h"
#include "tests/xmi/Reading.h"
#include "xmi/ReadObserver.h"

namespace {

TEST(Linker, ForwardTypeReferenceResolvesToTheElementDefinedLater) {
  const Reading reading(inModel(
      "<x xmi:type='uml:Property' xmi:id='p' type='later'/><x xmi:type='uml:Class' xmi:id='later'/>"));
  EXPECT_EQ(reading.get<UMLProperty>("p").type, reading.find("later"));
}

TEST(Linker, AReferenceToTheWrongClassIsDroppedInSilence) {
  const Reading reading(
      inModel("<x xmi:type='uml:Property' xmi:id='p' type='k'/><x xmi:type='uml:Comment' xmi:id='k'/>"));
  EXPECT_EQ(reading.get<UMLProperty>("p").type, nullptr);
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_F"), 0U);
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_W"), 0U);
}

TEST(Linker, AListOfIdsInOneAttributeIsOneUnknownId) {
  const Reading reading(inModel(
      "<x xmi:type='uml:Class' xmi:id='a'/><x xmi:type='uml:Class' xmi:id='b'/>"
      "<x xmi:type='uml:Dependency' xmi:id='d' supplier='a b'/>"
      "<x xmi:type='uml:Dependency' xmi:id='e'><supplier xmi:idref='a'/><supplier xmi:idref='b'/></x>"));
  EXPECT_EQ(idsOf(reading.get<UMLDependency>("d").supplier), "");
  EXPECT_EQ(idsOf(reading.get<UMLDependency>("e").supplier), "a b");
}

TEST(Linker, AReferenceGivenTwiceIsOneEntry) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a'/>"
              "<x xmi:type='uml:Dependency' xmi:id='d' supplier='a'><supplier xmi:idref='a'/></x>"));
  EXPECT_EQ(idsOf(reading.get<UMLDependency>("d").supplier), "a");
}

TEST(Linker, TheLastLinkOfASingleEndWins) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a'/><x xmi:type='uml:Class' xmi:id='b'/>"
              "<x xmi:type='uml:Property' xmi:id='p' type='a'><type xmi:idref='b'/></x>"));
  EXPECT_EQ(reading.get<UMLProperty>("p").type, reading.find("b"));
}

// A link is made at once when both objects are known, but never before one of its kind that waits.
TEST(Linker, AReferenceToALaterObjectKeepsItsPlace) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a'/>"
              "<x xmi:type='uml:Dependency' xmi:id='d' supplier='late'><supplier xmi:idref='a'/></x>"
              "<x xmi:type='uml:Property' xmi:id='p' type='late'><type xmi:idref='a'/></x>"
              "<x xmi:type='uml:Property' xmi:id='q' type='nowhere'><type xmi:idref='a'/></x>"
              "<x xmi:type='uml:Class' xmi:id='late'/>"));
  EXPECT_EQ(idsOf(reading.get<UMLDependency>("d").supplier), "late a");
  EXPECT_EQ(reading.get<UMLProperty>("p").type, reading.find("a"));
  EXPECT_EQ(reading.get<UMLProperty>("q").type, reading.find("a"));
}

// With an observer all links are made at the end. Whichever way, every field has the same content.
TEST(Linker, LinksMadeAtOnceAndAtTheEndGiveTheSame) {
  struct Unmoved : ReadObserver {
    void skippedType(const KYRString&, const KYRString&) override {}
    void unknownTag(const KYRString&, const KYRString&) override {}
    void link(const KYRString&, const KYRString&, int, LinkResult) override {}
  } observer;
  unsigned int state = 1;
  const auto random = [&state](unsigned int below) {
    state = state * 1664525U + 1013904223U;  // the usual generator of 32 bits
    return (state >> 16) % below;
  };
  constexpr unsigned int count = 120;
  const char* const types[] = {"Class", "Property", "Dependency", "Association", "Package", "Operation"};
  const char* const roles[] = {"type",     "supplier",       "client",         "memberEnd",   "general",
                               "ownedEnd", "ownedAttribute", "ownedOperation", "ownedMember", "member"};
  std::string content;
  for (unsigned int i = 0; i < count; ++i) {
    const std::string id = std::to_string(random(count));  // some twice, some never
    content += "<x xmi:type='uml:" + std::string(types[random(6)]) + "' xmi:id='" + id + "'";
    content += " " + std::string(roles[random(5)]) + "='" + std::to_string(random(count)) + "'>";
    for (unsigned int child = random(6); child > 0; --child) {
      content +=
          "<" + std::string(roles[random(10)]) + " xmi:idref='" + std::to_string(random(count)) + "'/>";
    }
    content += "</x>";
  }
  const Reading atOnce(inModel(content));
  const TemporaryFile file(inModel(content));
  RecordingLog log;
  XMIParser atEnd(&log);
  atEnd.setObserver(&observer);
  DispatchRows::resetForTests();
  atEnd.parse(file.file());
  const auto contentOf = [](UMLElement& element) {
    std::string text;
    for (const UMLMetamodel::LinkRow& row : UMLMetamodel::linkRows) {
      for (const UMLMetamodel::LinkEnd* end : {&row.first, &row.second}) {
        const void* const part = end->role == nullptr ? nullptr : umlCastTo(&element, end->owner);
        if (part == nullptr) continue;
        for (unsigned int i = 0; i < end->count(part); ++i) {
          text += std::string(end->role) + " " + std::to_string(end->at(part, i)->readingNumber) + ", ";
        }
      }
    }
    return text;
  };
  const UMLObjectTable& objects = atOnce.parser.getObjects();
  ASSERT_EQ(objects.getSlotCount(), atEnd.getObjects().getSlotCount());
  std::size_t length = 0;
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    EXPECT_EQ(contentOf(*objects.at(i)), contentOf(*atEnd.getObjects().at(i))) << i;
    length += contentOf(*objects.at(i)).size();
  }
  EXPECT_GT(length, 2000U);
}

TEST(Linker, AGeneralizationGetsBothItsEnds) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='g'/><x xmi:type='uml:Class' xmi:id='s'>"
              "<generalization xmi:type='uml:Generalization' xmi:id='e' general='g'/></x>"));
  EXPECT_EQ(idsOf(reading.get<UMLClass>("s").generalization), "e");
  EXPECT_EQ(reading.get<UMLGeneralization>("e").specific, reading.find("s"));
  EXPECT_EQ(reading.get<UMLGeneralization>("e").general, reading.find("g"));
  EXPECT_EQ(idsOf(reading.get<UMLClass>("g").generalization), "");
}

TEST(Linker, TheAttributeFormOfGeneralRunsInTheReversedSense) {
  const Reading reading(
      inModel("<x xmi:type='uml:Class' xmi:id='a' general='b' superClass='b'/>"
              "<x xmi:type='uml:Class' xmi:id='b'/>"
              "<x xmi:type='uml:Class' xmi:id='c'><general xmi:idref='d'/><superClass xmi:idref='d'/></x>"
              "<x xmi:type='uml:Class' xmi:id='d'/>"));
  EXPECT_EQ(idsOf(reading.get<UMLClass>("a").general), "");
  EXPECT_EQ(idsOf(reading.get<UMLClass>("b").general), "a");
  EXPECT_EQ(idsOf(reading.get<UMLClass>("b").superClass), "a");
  EXPECT_EQ(idsOf(reading.get<UMLClass>("c").general), "d");
  EXPECT_EQ(idsOf(reading.get<UMLClass>("c").superClass), "d");
}

TEST(Linker, OwnedElementMeansTheOppositeAsAttributeAndAsChild) {
  const Reading reading(
      "<uml:Model xmlns:uml='u' xmlns:xmi='x' name='M'>"  // its id is its name
      "<x xmi:type='uml:Class' xmi:id='e'><ownedElement xmi:idref='x1'/></x>"
      "<x xmi:type='uml:Class' xmi:id='f' ownedElement='x2'/>"
      "<x xmi:type='uml:Class' xmi:id='x1'/><x xmi:type='uml:Class' xmi:id='x2'/></uml:Model>");
  EXPECT_EQ(idsOf(reading.find("e")->ownedElement), "x1");
  EXPECT_EQ(idsOf(reading.find("x2")->ownedElement), "f");
}

TEST(Linker, AnObjectLinkedToItselfStandsInItsOwnList) {
  const Reading reading(inModel("<x xmi:type='uml:Class' xmi:id='a' general='a' owner='a'/>"));
  EXPECT_EQ(idsOf(reading.get<UMLClass>("a").general), "a");
  EXPECT_EQ(idsOf(reading.find("a")->ownedElement), "a");
  EXPECT_EQ(reading.find("a")->owner, reading.model);
}

TEST(Linker, OwnerRingsAreLeftAsTheyStand) {
  const Reading reading(
      inModel("<x xmi:type='uml:Package' xmi:id='a'><packagedElement xmi:idref='b'/></x>"
              "<x xmi:type='uml:Package' xmi:id='b'><packagedElement xmi:idref='a'/></x>"
              "<x xmi:type='uml:Class' xmi:id='c'><owner xmi:idref='d'/></x>"
              "<x xmi:type='uml:Class' xmi:id='d'><owner xmi:idref='c'/></x>"));
  EXPECT_EQ(idsOf(reading.get<UMLPackage>("a").packagedElement), "b");
  EXPECT_EQ(idsOf(reading.get<UMLPackage>("b").packagedElement), "a");
}

TEST(Linker, KindsOutOfRangeDoNothing) {
  const Reading reading(inModel(""));
  XMIParser parser(nullptr);
  EXPECT_FALSE(parser.linkRelationship(reading.model, reading.model, 169));
  EXPECT_FALSE(parser.linkRelationship(reading.model, reading.model, -1));
}

// Each row, with two plain objects of its classes: both ends filled as the row says, in either order
// of the two objects where the classes tell them apart.
TEST(Linker, EveryKindFillsItsEndsInBothOrders) {
  RecordingLog log;
  XMIParser parser(&log);
  int kind = 0;
  int sameClass = 0;
  for (const UMLMetamodel::LinkRow& row : UMLMetamodel::linkRows) {
    const auto holds = [](const UMLMetamodel::LinkEnd& end, UMLElement* owner, UMLElement* other) {
      if (end.role == nullptr) return true;
      const void* const part = umlCastTo(owner, end.owner);
      return end.count(part) == 1 && end.at(part, 0) == other;
    };
    const bool fitsBothWays = UMLLineage::isKindOf(row.first.owner, row.second.owner) &&
                              UMLLineage::isKindOf(row.second.owner, row.first.owner);
    if (fitsBothWays) ++sameClass;
    for (const bool swapped : {false, true}) {
      const auto first = madeElement(row.first.owner);
      const auto second = madeElement(row.second.owner);
      EXPECT_TRUE(swapped ? parser.linkRelationship(second.get(), first.get(), kind)
                          : parser.linkRelationship(first.get(), second.get(), kind));
      UMLElement* const inFirst = swapped && fitsBothWays ? second.get() : first.get();
      UMLElement* const inSecond = swapped && fitsBothWays ? first.get() : second.get();
      EXPECT_TRUE(holds(row.first, inFirst, inSecond)) << row.name << swapped;
      EXPECT_TRUE(holds(row.second, inSecond, inFirst)) << row.name << swapped;
    }
    ++kind;
  }
  EXPECT_EQ(sameClass, 16);
  EXPECT_TRUE(log.lines.empty());
}

TEST(Linker, ALinkThatRaisesIsLoggedByNameAndStopsNoOther) {
  RecordingLog log;
  XMIParser parser(&log);
  UMLClass owner("o", "");
  UMLProperty first("1", "");
  UMLProperty second("2", "");
  constexpr int ownedAttributeOfClass = 17;
  ASSERT_TRUE(parser.linkRelationship(&owner, &first, ownedAttributeOfClass));
  {
    const FailingAllocation failing(0);  // the second entry needs a list on the heap
    EXPECT_FALSE(parser.linkRelationship(&owner, &second, ownedAttributeOfClass));
  }
  ASSERT_EQ(log.lines.size(), 1U);
  EXPECT_EQ(
      log.lines.front(),
      "KBI_UML2XMI_F0005 An error occurred while creating a relationship: 'UML_A_OWNEDATTRIBUTE_CLASS'");
  EXPECT_EQ(idsOf(owner.ownedAttribute), "1");
  EXPECT_TRUE(parser.linkRelationship(&owner, &second, ownedAttributeOfClass));
  EXPECT_EQ(idsOf(owner.ownedAttribute), "1 2");
}

TEST(Linker, ObserversLearnWhatBecameOfEachReference) {
  struct Observer : ReadObserver {
    void skippedType(const KYRString& type, const KYRString&) override { skipped.emplace_back(type.view()); }
    void unknownTag(const KYRString& tag, const KYRString&) override { unknown.emplace_back(tag.view()); }
    void link(const KYRString&, const KYRString&, int, LinkResult result) override {
      ++results[static_cast<int>(result)];
    }
    std::vector<std::string> skipped;
    std::vector<std::string> unknown;
    int results[4] = {};
  } observer;
  const TemporaryFile file(
      inModel("<x xmi:type='uml:Property' xmi:id='p' type='nowhere'/><x xmi:type='uml:Property' xmi:id='q' "
              "type='k'/><x xmi:type='uml:Comment' xmi:id='k'/><y xmi:type='uml:Odd'/><strange/><a:b/>"));
  RecordingLog log;
  XMIParser parser(&log);
  parser.setObserver(&observer);
  parser.parse(file.file());
  EXPECT_EQ(observer.results[static_cast<int>(ReadObserver::LinkResult::linked)], 3);  // the three owners
  EXPECT_EQ(observer.results[static_cast<int>(ReadObserver::LinkResult::firstMissing)], 1);
  EXPECT_EQ(observer.results[static_cast<int>(ReadObserver::LinkResult::wrongClass)], 1);
  EXPECT_EQ(observer.skipped, std::vector<std::string>{"uml:Odd"});
  EXPECT_EQ(observer.unknown, (std::vector<std::string>{"strange", "a:b"}));
}

}  // namespace
