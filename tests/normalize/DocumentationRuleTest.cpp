// The element that names the tool is found in other spellings.
#include "normalize/DocumentationRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

std::string file(const std::string& documentation) { return xmi("", "M", documentation); }

TEST(DocumentationRule, OtherSpellingsBecomeTheUsualOne) {
  const struct {
    const char* before;
    const char* after;
  } cases[] = {
      {"<documentation xmi:type='xmi:Documentation' exporter='T'/>", "<xmi:Documentation exporter='T'/>"},
      {"<xmi:documentation xmi:type='xmi:Documentation'><xmi:exporter>T</xmi:exporter></xmi:documentation>",
       "<xmi:Documentation><xmi:exporter>T</xmi:exporter></xmi:Documentation>"},
      {"<xmi:Documentation xmi:type='xmi:Documentation'/>", "<xmi:Documentation/>"},
      {"<xmi:Documentation><xmi:Exporter>T</xmi:Exporter><xmi:ExporterVersion>1</xmi:ExporterVersion>"
       "</xmi:Documentation>",
       "<xmi:Documentation><xmi:exporter>T</xmi:exporter><xmi:exporterVersion>1</xmi:exporterVersion>"
       "</xmi:Documentation>"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.before);
    DocumentationRule rule;
    const Changed changed = changedBy(rule, file(each.before));
    EXPECT_EQ(changed.text, plain(file(each.after)));
    EXPECT_EQ(changed.report.of(NormalizeRule::documentation).fired, 1U);
  }
}

TEST(DocumentationRule, OtherElementsOfTheNameStay) {
  for (const char* text : {"<documentation value='x'/>", "<xmi:Documentation exporter='T'/>",
                           "<S:documentation xmi:type='xmi:Documentation'/>",
                           "<xmi:Extension><documentation xmi:type='xmi:Documentation'/></xmi:Extension>",
                           "<xmi:Extension><xmi:Exporter/></xmi:Extension>"}) {
    SCOPED_TRACE(text);
    DocumentationRule rule;
    EXPECT_EQ(changedBy(rule, file(text)).text, plain(file(text)));
  }
}

TEST(DocumentationRule, TheToolIsKnownThen) {
  const std::string text = file(
      "<xmi:documentation xmi:type='xmi:Documentation'><xmi:Exporter>Some Tool</xmi:Exporter>"
      "<xmi:ExporterVersion>7</xmi:ExporterVersion></xmi:documentation>");
  EXPECT_EQ(ImportedModel(text).log.countOf("KBI_UML2XMI_S0009"), 0U);
  EXPECT_EQ(ImportedModel(normalized(text)).log.countOf("KBI_UML2XMI_S0009"), 1U);
}

}  // namespace
