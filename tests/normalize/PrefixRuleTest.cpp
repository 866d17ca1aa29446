// Prefixes are mapped by what they mean where they stand, and nowhere else.
#include "normalize/PrefixRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

std::string changed(const std::string& text) {
  PrefixRule rule;
  return changedBy(rule, text).text;
}

constexpr char umlUri[] = "http://www.omg.org/spec/UML/20131001";
constexpr char xmiUri[] = "http://www.omg.org/spec/XMI/20131001";

TEST(PrefixRule, TagsAttributesAndTypesGetTheUsualPrefix) {
  const std::string uris = std::string("='") + umlUri + "'";
  EXPECT_EQ(changed(std::string("<x:XMI xmlns:x='") + xmiUri + "' xmlns:UML" + uris +
                    "><UML:Model x:id='m'><packagedElement x:type='UML:Class' x:id='c' name='x:y'/>"
                    "</UML:Model></x:XMI>"),
            plain(std::string("<xmi:XMI xmlns:x='") + xmiUri + "' xmlns:xmi='" + xmiUri + "' xmlns:UML" +
                  uris + " xmlns:uml" + uris +
                  "><uml:Model xmi:id='m'><packagedElement xmi:type='uml:Class' xmi:id='c' name='x:y'/>"
                  "</uml:Model></xmi:XMI>"));
}

TEST(PrefixRule, ScopesAreFollowed) {
  // Inside <b> the prefix means something else, and behind it what it meant before.
  EXPECT_EQ(
      changed(std::string("<a xmlns:p='") + umlUri + "'><b xmlns:p='urn:other'><p:Class/></b><p:Class/></a>"),
      plain(std::string("<a xmlns:p='") + umlUri + "' xmlns:uml='" + umlUri +
            "'><b xmlns:p='urn:other'><p:Class/></b><uml:Class/></a>"));
}

TEST(PrefixRule, APrefixIsLeftAloneWhereTheUsualOneMeansSomethingElse) {
  const std::string text =
      std::string("<a xmlns:uml='urn:other' xmlns:p='") + umlUri + "'><p:Class p:x='1'/><uml:Class/></a>";
  EXPECT_EQ(changed(text), plain(text));
}

TEST(PrefixRule, AnAttributeThatIsThereAlreadyIsNotWrittenTwice) {
  const std::string text =
      std::string("<a xmlns:xmi='") + xmiUri + "' xmlns:x='" + xmiUri + "' x:id='1' xmi:id='2'/>";
  EXPECT_EQ(changed(text), plain(text));
}

TEST(PrefixRule, WorksInsideTheDataOfToolsToo) {
  EXPECT_NE(changed(std::string("<a xmlns:xmi='") + xmiUri + "' xmlns:U='" + umlUri +
                    "'><xmi:Extension><U:Diagram/></xmi:Extension></a>")
                .find("<uml:Diagram/>"),
            std::string::npos);
}

TEST(PrefixRule, UmlAndXmiAreKnownByTheirNamespaces) {
  const struct {
    const char* uri;
    bool isUml;
    bool isXmi;
  } cases[] = {
      {"http://www.omg.org/spec/UML/20131001", true, false},
      {"http://schema.omg.org/spec/UML/2.1.2", true, false},
      {"http://www.eclipse.org/uml2/5.0.0/UML", true, false},
      {"http://www.omg.org/XMI", false, true},
      {"http://schema.omg.org/spec/XMI/2.1", false, true},
      {"http://www.omg.org/spec/UML/20131001/StandardProfile", false, false},
      {"http://www.omg.org/spec/UML/20131001/UMLDI", false, false},
      {"http://www.eclipse.org/uml2/5.0.0/UML/Profile/Standard", false, false},
      {"http://www.eclipse.org/uml2//UML", false, false},
      {"http://www.eclipse.org/uml2/UML", false, false},
      {"http://www.omg.org/spec/UML/", false, false},
      {"http://www.omg.org/spec/SysML/20181001/SysML", false, false},
      {"http://www.w3.org/2001/XMLSchema-instance", false, false},
      {"", false, false},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.uri);
    EXPECT_EQ(PrefixRule::isUmlNamespace(each.uri), each.isUml);
    EXPECT_EQ(PrefixRule::isXmiNamespace(each.uri), each.isXmi);
  }
}

TEST(PrefixRule, NothingIsDoneWhereOnlyTheUsualPrefixesAreUsed) {
  PrefixRule rule;
  const Changed result = changedBy(rule, xmi(element("Class", "xmi:id='c' name='C'")));
  EXPECT_FALSE(result.report.hasFired());
}

TEST(PrefixRule, TheImportedModelIsThatOfTheUsualPrefixes) {
  const std::string usual =
      xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'")));
  std::string other = usual;
  for (const std::string prefix : {"uml:", "xmi:"}) {
    for (std::size_t at = other.find(prefix); at != std::string::npos; at = other.find(prefix, at + 3)) {
      other.replace(at, 4, prefix == "uml:" ? "U2:" : "X2:");
    }
  }
  for (const std::string name : {"xmlns:uml", "xmlns:xmi"}) {
    other.replace(other.find(name), name.size(), name == "xmlns:uml" ? "xmlns:U2" : "xmlns:X2");
  }
  EXPECT_EQ(imported(normalized(other)), imported(usual));
}

}  // namespace
