// The rows of the list of bridges.
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"

namespace {

constexpr const char* web = "";  // the project has no site of its own
constexpr const char* vendor = "KYR";
constexpr const char* tool = "KYR UML/XMI import bridge";
constexpr const char* versions = "UML 2.x, XMI 2.x";
constexpr const char* methodology =
    "Class models: packages, classes, relations, types, keys and class diagrams";

constexpr KYRBridgeSpecificationLiteral::Facts anyTool = {
    "OmgUml2XmiImport", "OmgUml2XmiImportDescription", web, vendor, tool, versions, methodology};
constexpr KYRBridgeSpecificationLiteral::Facts magicDraw = {"OmgUml2XmiNoMagicMagicDrawImport",
                                                            "OmgUml2XmiNoMagicMagicDrawImportDescription",
                                                            web,
                                                            vendor,
                                                            tool,
                                                            versions,
                                                            methodology};

}  // namespace

KYRBridgeSpecificationLiteral::KYRBridgeSpecificationLiteral(const Facts& facts)
    : name_(KYRString::borrowed(facts.name)),
      descriptionLiteralId_(KYRString::borrowed(facts.descriptionLiteralId)),
      toolWeb_(KYRString::borrowed(facts.toolWeb)),
      vendorName_(KYRString::borrowed(facts.vendorName)),
      toolName_(KYRString::borrowed(facts.toolName)),
      toolVersions_(KYRString::borrowed(facts.toolVersions)),
      methodologySummary_(KYRString::borrowed(facts.methodologySummary)) {}

KYRBridgeSpecificationLiteral KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT(anyTool);
KYRBridgeSpecificationLiteral KBLST::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT(magicDraw);

KYRBridgeSpecificationLiteral* getBridgeSpecification(const KYRString& name) {
  for (KYRBridgeSpecificationLiteral* literal :
       {&KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT, &KBLST::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT}) {
    if (literal->getName() == name) return literal;
  }
  return nullptr;
}
