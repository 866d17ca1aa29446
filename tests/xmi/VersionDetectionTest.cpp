// Which tool and versions a file declares, and what the log says of it.
#include <map>

#include "tests/xmi/Reading.h"
#include "xmi/NamespaceVersions.h"

namespace {

using Lines = std::vector<std::string>;

std::string withRoot(const std::string& rootAttributes, const std::string& content) {
  return "<xmi:XMI " + rootAttributes + ">" + content + "</xmi:XMI>";
}

constexpr const char* bothNamespaces =
    "xmlns:uml='http://www.omg.org/spec/UML/20131001' xmlns:xmi='http://www.omg.org/spec/XMI/20131001'";

TEST(NamespaceVersions, KnowTheWholeOfBothTables) {
  const std::string schemaHost = "http://schema.omg.org/spec/";
  const std::string mainHost = "http://www.omg.org/spec/";
  const std::map<std::string, std::string> uml = {
      {schemaHost + "UML/2.0", "2.0"},      {schemaHost + "UML/2.0.0", "2.0.0"},
      {schemaHost + "UML/2.1", "2.1"},      {schemaHost + "UML/2.1.0", "2.1.0"},
      {schemaHost + "UML/2.1.1", "2.1.1"},  {schemaHost + "UML/2.1.2", "2.1.2"},
      {schemaHost + "UML/2.2", "2.2"},      {schemaHost + "UML/2.2.0", "2.2.0"},
      {mainHost + "UML/20090901", "2.3"},   {mainHost + "UML/20101101", "2.4"},
      {mainHost + "UML/20110701", "2.4.1"}, {mainHost + "UML/20131001", "2.5"},
  };
  const std::map<std::string, std::string> xmi = {
      {schemaHost + "XMI/2.1", "2.1"},
      {mainHost + "XMI/20101101", "2.4"},
      {mainHost + "XMI/20110701", "2.4.2"},
      {mainHost + "XMI/20131001", "2.5.1"},
  };
  for (const auto& [uri, version] : uml) {
    EXPECT_EQ(XMIParser::umlVersionOf(uri.c_str()).view(), version) << uri;
    EXPECT_TRUE(XMIParser::xmiVersionOf(uri.c_str()).isEmpty()) << uri;
  }
  for (const auto& [uri, version] : xmi) {
    EXPECT_EQ(XMIParser::xmiVersionOf(uri.c_str()).view(), version) << uri;
    EXPECT_TRUE(XMIParser::umlVersionOf(uri.c_str()).isEmpty()) << uri;
  }
}

TEST(NamespaceVersions, OtherUrisAreUnknown) {
  for (const char* const uri :
       {"", "http://schema.omg.org/spec/UML/20131001", "http://www.omg.org/spec/UML/20131001/",
        "https://www.omg.org/spec/UML/20131001", "http://www.omg.org/SPEC/UML/20131001",
        "http://www.omg.org/spec/UML/20161101", "http://www.eclipse.org/uml2/5.0.0/UML"}) {
    EXPECT_TRUE(XMIParser::umlVersionOf(uri).isEmpty()) << uri;
  }
}

TEST(VersionDetection, TheRootsNamespacesGiveTheVersions) {
  const Reading reading(withRoot(bothNamespaces, "<uml:Model xmi:id='m'/>"));
  EXPECT_EQ(
      Lines(reading.log.lines.begin(), reading.log.lines.begin() + 2),
      (Lines{"KBI_UML2XMI_S0010 Detected UML version 2.5", "KBI_UML2XMI_S0010 Detected xmi version 2.5.1"}));
  EXPECT_EQ(reading.model->umlVersion.view(), "2.5");
}

TEST(VersionDetection, TheDatedPathOnTheOtherHostIsUnknown) {
  const Reading reading(withRoot("xmlns:uml='http://schema.omg.org/spec/UML/20131001' xmlns:xmi='x'",
                                 "<uml:Model xmi:id='m'/>"));
  EXPECT_EQ(Lines(reading.log.lines.begin(), reading.log.lines.begin() + 2),
            (Lines{"KBI_UML2XMI_W0016 Can not detect the UML version",
                   "KBI_UML2XMI_W0016 Can not detect the xmi version"}));
  EXPECT_TRUE(reading.model->umlVersion.isEmpty());
}

TEST(VersionDetection, ATrailingSlashIsUnknown) {
  const Reading reading(
      withRoot("xmlns:uml='http://www.omg.org/spec/UML/20131001/' xmlns:xmi='x'", "<uml:Model xmi:id='m'/>"));
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_W0016 Can not detect the UML version"), 1U);
}

TEST(VersionDetection, AModelAsRootDeclaresItsOwnNamespaces) {
  const Reading reading("<uml:Model " + std::string(bothNamespaces) + " xmi:id='m'/>");
  EXPECT_EQ(reading.model->umlVersion.view(), "2.5");
}

TEST(VersionDetection, TheRootWinsOverTheModel) {
  const Reading reading(withRoot("xmlns:uml='http://schema.omg.org/spec/UML/2.1' xmlns:xmi='x'",
                                 "<uml:Model xmi:id='m' xmlns:uml='http://www.omg.org/spec/UML/20131001'/>"));
  EXPECT_EQ(reading.model->umlVersion.view(), "2.1");
}

TEST(VersionDetection, ASecondModelTagReportsTwoFailedDetections) {
  const Reading reading(
      withRoot(bothNamespaces, "<uml:Model xmi:id='m1'/><uml:Model xmi:id='m2' name='Second'/>"));
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0010"), 2U);
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_W0016"), 2U);
  EXPECT_EQ(reading.model->id.view(), "m2");
  EXPECT_TRUE(reading.model->umlVersion.isEmpty());
}

TEST(ExporterDetection, AttributesGiveToolAndVersion) {
  const Reading reading(
      withRoot(bothNamespaces,
               "<xmi:Documentation exporter='Some Tool' exporterVersion='6.5'/><uml:Model xmi:id='m'/>"));
  EXPECT_EQ(reading.log.lines.front(), "KBI_UML2XMI_S0009 This file follows Some Tool '6.5' conventions");
  EXPECT_EQ(reading.model->exporter.view(), "Some Tool");
  EXPECT_EQ(reading.model->exporterVersion.view(), "6.5");
}

TEST(ExporterDetection, AnAttributeWithoutAVersionClearsItAndIsNotAnnounced) {
  const Reading reading(withRoot(
      bothNamespaces,
      "<xmi:Documentation><exporter>First</exporter><exporterVersion>1</exporterVersion></xmi:Documentation>"
      "<xmi:Documentation exporter='Some Tool'/><uml:Model xmi:id='m'/>"));
  EXPECT_EQ(reading.log.countOf("KBI_UML2XMI_S0009"), 0U);
  EXPECT_EQ(reading.model->exporter.view(), "Some Tool");
  EXPECT_TRUE(reading.model->exporterVersion.isEmpty());
}

TEST(ExporterDetection, ChildElementsOverwriteTheAttributesWhenTheyHaveText) {
  const Reading reading(withRoot(
      bothNamespaces,
      "<xmi:Documentation exporter='Attribute' exporterVersion='1'><xmi:exporter>Child</xmi:exporter>"
      "<xmi:exporterVersion>2</xmi:exporterVersion><xmi:exporter/><exporterVersion></exporterVersion>"
      "</xmi:Documentation><uml:Model xmi:id='m'/>"));
  EXPECT_EQ(reading.model->exporter.view(), "Child");
  EXPECT_EQ(reading.model->exporterVersion.view(), "2");
}

TEST(ExporterDetection, WithoutAnExporterAttributeTheAttributesAreIgnored) {
  const Reading reading(withRoot(
      bothNamespaces, "<xmi:Documentation exporter='' exporterVersion='1'/><uml:Model xmi:id='m'/>"));
  EXPECT_TRUE(reading.model->exporter.isEmpty());
  EXPECT_TRUE(reading.model->exporterVersion.isEmpty());
}

TEST(ExporterDetection, DocumentationBehindTheModelComesTooLate) {
  const Reading reading(withRoot(
      bothNamespaces, "<uml:Model xmi:id='m'/><xmi:Documentation exporter='Late' exporterVersion='1'/>"));
  EXPECT_TRUE(reading.model->exporter.isEmpty());
  EXPECT_EQ(reading.parser.getExporter().view(), "Late");
}

}  // namespace
