// The rows of the catalogue. They are built in the order in which they stand here, when the module is
// loaded; a row that another one names stands before it.
#include "bridge/messages/KBI_UML2XMI.h"

#include "bridge/messages/BridgeDescriptions.h"

namespace {

constexpr const char* fatal = "FATAL";
constexpr const char* warning = "WARNING";
constexpr const char* status = "STATUS";

}  // namespace

KBI_UML2XMI::TextInstance KBI_UML2XMI::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION(
    "OmgUml2XmiNoMagicMagicDrawImportDescription", BridgeDescriptions::magicDraw);
KBI_UML2XMI::TextInstance KBI_UML2XMI::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION(
    "OmgUml2XmiImportDescription", BridgeDescriptions::general);

KBI_UML2XMI::TextInstance KBI_UML2XMI::BP_FILE_DEFAULT("BP_FILE_DEFAULT", "");
KBI_UML2XMI::ParameterInstance KBI_UML2XMI::BP_FILE(
    "BP_FILE", "File", OptionType::file,
    "This bridge imports an XML file compliant to the Object Management Group (OMG) Unified Modeling "
    "Language (UML) XML Metadata Interchange (XMI) file format. The bridge imports versions of the UML 2.1 "
    "metamodel and XMI 2.1 format, therefore make sure you identify the exact OMG UML XMI version produced "
    "by your source tool.",
    nullptr, &BP_FILE_DEFAULT);
KBI_UML2XMI::TextInstance KBI_UML2XMI::BP_ROOT_PACKAGE_DEFAULT("BP_ROOT_PACKAGE_DEFAULT", "");
KBI_UML2XMI::ParameterInstance KBI_UML2XMI::BP_ROOT_PACKAGE(
    "BP_ROOT_PACKAGE", "Top Package", OptionType::text,
    "This option is used for two purposes:\n"
    "\n"
    "First, the Repository metamodel requires that all model elements (Classes, Associations...) belong to "
    "a Package. So whenever an Object is not explicitly associated to a Package it is stored in a special "
    "Package and this option specifies the name of the Package.\n"
    "\n"
    "Second, if there is a single top level Package by that name in the Model, we mark the Package as "
    "optional so that it will not appear in the destination Model if the destination tool does not require "
    "all objects to be in a Package. ",
    nullptr, &BP_ROOT_PACKAGE_DEFAULT);

KBI_UML2XMI::MessageInstance_String_String KBI_UML2XMI::UML2_I_UNKNOWN_TAG(
    1, "{0} : Skipping the unknown tag '{1}'", warning);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_I_COULD_NOT_PARSE_FILE(3, "Could not parse file '{0}'",
                                                                             warning);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_I_DBG_HANDLER_ERROR(
    4, "Could not add a handler for \"{0}\"", fatal);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED(
    5, "An error occurred while creating a relationship: '{0}'", fatal);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_I_XML_ERROR(
    7, "An XML parsing error occurred '{0}'. This file may not be a valid XML file", fatal);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_I_BAD_HEADERUML2_ERROR(
    8, "This file may not be a valid UML2 file.", fatal);
KBI_UML2XMI::MessageInstance_String_String KBI_UML2XMI::UML2_I_TARGET_TOOL(
    9, "This file follows {0} '{1}' conventions", status);
KBI_UML2XMI::MessageInstance_String_String KBI_UML2XMI::UML2_I_DETECTED_VERSION(10,
                                                                                "Detected {0} version {1}",
                                                                                status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_PARSING_EXTENSIONS(11, "Parsing tool specific extensions",
                                                                    status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_PROCESSING_EXTENSIONS(12,
                                                                       "Importing tool specific extensions",
                                                                       status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_PROCESSING_ELEMENTS(13, "Importing elements...", status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_PROCESSING_TYPES(14, "Importing types...", status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_PROCESSING_RELATIONSHIPS(15, "Importing relations...",
                                                                          status);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_I_CAN_NOT_DETECT(16, "Can not detect the {0} version",
                                                                       warning);
KBI_UML2XMI::MessageInstance_String KBI_UML2XMI::UML2_S_PARSING_FILE(17, "Parsing file '{0}'", status);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_CREATING_DIAGRAMS(18, "Importing diagrams...", status);
KBI_UML2XMI::MessageInstance_String_String KBI_UML2XMI::UML2_W_COULD_NOT_ADD_OBJECT_TO_SCHEMA(
    19, "Could not add '{0}' to owner schema '{1}' because it already contains an object with the same name.",
    warning);
KBI_UML2XMI::MessageInstance KBI_UML2XMI::UML2_S_CREATING_KEYS(20, "Importing keys...", status);

KBI_UML2XMI::KBI_UML2XMI() : KYRTextLiteralsCollection("KYROmgUml2XmiImport", "KBI_UML2XMI") {
  KYRTextLiteral* const literals[] = {
      &BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION,
      &BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION,
      &BP_FILE_DEFAULT,
      &BP_FILE,
      &BP_ROOT_PACKAGE_DEFAULT,
      &BP_ROOT_PACKAGE,
      &UML2_I_UNKNOWN_TAG,
      &UML2_I_COULD_NOT_PARSE_FILE,
      &UML2_I_DBG_HANDLER_ERROR,
      &UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED,
      &UML2_I_XML_ERROR,
      &UML2_I_BAD_HEADERUML2_ERROR,
      &UML2_I_TARGET_TOOL,
      &UML2_I_DETECTED_VERSION,
      &UML2_S_PARSING_EXTENSIONS,
      &UML2_S_PROCESSING_EXTENSIONS,
      &UML2_S_PROCESSING_ELEMENTS,
      &UML2_S_PROCESSING_TYPES,
      &UML2_S_PROCESSING_RELATIONSHIPS,
      &UML2_I_CAN_NOT_DETECT,
      &UML2_S_PARSING_FILE,
      &UML2_S_CREATING_DIAGRAMS,
      &UML2_W_COULD_NOT_ADD_OBJECT_TO_SCHEMA,
      &UML2_S_CREATING_KEYS,
  };
  for (KYRTextLiteral* literal : literals) add(literal);
  init();
}

KBI_UML2XMI::~KBI_UML2XMI() = default;

KBI_UML2XMI& KBI_UML2XMI::initLiterals() {
  static KBI_UML2XMI catalogue;
  return catalogue;
}

const KYRTextLiteral* KBI_UML2XMI::findTextLiteral(const KYRString& identifier) {
  return initLiterals().get(identifier);
}

void KBI_UML2XMI::getAllLiterals(KYRVector& out) { initLiterals().listAllLiterals(out); }
