// Types that the reader does not know become the ones they stand for.
#include "normalize/ReplacedTypeRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

Changed change(ReplacedTypeRule&& rule, const std::string& elements) {
  return changedBy(rule, xmi(elements));
}

TEST(ReplacedTypeRule, PortsAndSpecialEndsAreProperties) {
  const struct {
    const char* before;
    const char* after;
  } cases[] = {
      {"<ownedAttribute xmi:type='uml:Port' xmi:id='p'/>",
       "<ownedAttribute xmi:type='uml:Property' xmi:id='p'/>"},
      {"<ownedEnd xmi:type='uml:ExtensionEnd'/>", "<ownedEnd xmi:type='uml:Property'/>"},
      {"<ownedEnd xmi:type='uml:AssociationEnd'/>", "<ownedEnd xmi:type='uml:Property'/>"},
      {"<ownedPort xmi:type='uml:Port'/>", "<ownedAttribute xmi:type='uml:Property'/>"},
      {"<ownedPort xmi:id='p'/>", "<ownedAttribute xmi:id='p'/>"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.before);
    const Changed changed = change(ReplacedTypeRule::forProperties(), each.before);
    EXPECT_EQ(changed.text, plain(xmi(each.after)));
    EXPECT_EQ(changed.report.of(NormalizeRule::replacedType).fired, 1U);
  }
}

TEST(ReplacedTypeRule, OtherTypesAndTheDataOfToolsStay) {
  for (const char* elements :
       {"<a xmi:type='uml:Class'/>", "<a xmi:type='uml:Component'/>", "<a xmi:type='uml:Profile'/>",
        "<a type='uml:Port'/>", "<xmi:Extension><ownedPort xmi:type='uml:Port'/></xmi:Extension>"}) {
    SCOPED_TRACE(elements);
    const Changed changed = change(ReplacedTypeRule::forProperties(), elements);
    EXPECT_EQ(changed.text, plain(xmi(elements)));
    EXPECT_FALSE(changed.report.hasFired());
  }
}

TEST(ReplacedTypeRule, ProfilesAndComponentsHaveRulesOfTheirOwn) {
  EXPECT_EQ(change(ReplacedTypeRule::forProfiles(), "<packagedElement xmi:type='uml:Profile'/>").text,
            plain(xmi("<packagedElement xmi:type='uml:Package'/>")));
  for (const char* profile : {"<uml:Profile/>", "<uml:Profile xmi:type='uml:Profile'/>"}) {
    EXPECT_EQ(change(ReplacedTypeRule::forProfiles(), profile).text,
              plain(xmi("<packagedElement xmi:type='uml:Package'/>")));
  }
  for (const char* type : {"Component", "Node", "Device", "ExecutionEnvironment"}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(change(ReplacedTypeRule::forComponents(), element(type, "xmi:id='c'")).text,
              plain(xmi(element("Class", "xmi:id='c'"))));
  }
}

TEST(ReplacedTypeRule, WhatAnImportDropsOnPurposeComesInWithAllRulesAlone) {
  const std::string text =
      xmi(element("Profile", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'")) +
          element("Package", "xmi:id='q' name='Q'",
                  element("Component", "xmi:id='d' name='D'",
                          "<nestedClassifier xmi:type='uml:Class' xmi:id='e' name='E'/>")));
  const ImportedModel usual(normalized(text));
  EXPECT_FALSE(usual.has("c") || usual.has("d") || usual.has("e"));
  const ImportedModel all(normalized(text, nullptr, Normalizer::Extent::all));
  EXPECT_EQ(all.pathOf("c"), "P/C");
  EXPECT_EQ(all.pathOf("d"), "Q/D");
  EXPECT_EQ(all.pathOf("e"), "Q/E");
}

TEST(ReplacedTypeRule, APortArrivesAsAnAttribute) {
  const std::string text = xmi(element(
      "Package", "xmi:id='p' name='P'",
      element("Class", "xmi:id='c' name='C'", "<ownedAttribute xmi:type='uml:Port' xmi:id='a' name='a'/>")));
  DispatchRows::resetForTests();
  EXPECT_FALSE(ImportedModel(text).has("a"));
  std::string property = text;
  property.replace(property.find("uml:Port"), 8, "uml:Property");
  EXPECT_EQ(imported(normalized(text)), imported(property));
}

}  // namespace
