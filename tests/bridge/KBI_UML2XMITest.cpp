// The catalogue against a table written out once more: every text, code, level and number.
#include "bridge/messages/KBI_UML2XMI.h"

#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "foundation/KYRVector.h"
#include "tests/support/RecordingLog.h"

namespace {

std::string text(const KYRString& value) { return std::string(value.view()); }

struct Row {
  const KYRMessageLiteral& message;
  int number;
  const char* code;
  int level;
  const char* text;
};

using M = KBI_UML2XMI;
constexpr int fatal = KYRLogLevel::fatal;
constexpr int warning = KYRLogLevel::warning;
constexpr int status = KYRLogLevel::status;

const Row rows[] = {
    {M::UML2_I_UNKNOWN_TAG, 1, "KBI_UML2XMI_W0001", warning, "{0} : Skipping the unknown tag '{1}'"},
    {M::UML2_I_COULD_NOT_PARSE_FILE, 3, "KBI_UML2XMI_W0003", warning, "Could not parse file '{0}'"},
    {M::UML2_I_DBG_HANDLER_ERROR, 4, "KBI_UML2XMI_F0004", fatal, "Could not add a handler for \"{0}\""},
    {M::UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED, 5, "KBI_UML2XMI_F0005", fatal,
     "An error occurred while creating a relationship: '{0}'"},
    {M::UML2_I_XML_ERROR, 7, "KBI_UML2XMI_F0007", fatal,
     "An XML parsing error occurred '{0}'. This file may not be a valid XML file"},
    {M::UML2_I_BAD_HEADERUML2_ERROR, 8, "KBI_UML2XMI_F0008", fatal,
     "This file may not be a valid UML2 file."},
    {M::UML2_I_TARGET_TOOL, 9, "KBI_UML2XMI_S0009", status, "This file follows {0} '{1}' conventions"},
    {M::UML2_I_DETECTED_VERSION, 10, "KBI_UML2XMI_S0010", status, "Detected {0} version {1}"},
    {M::UML2_S_PARSING_EXTENSIONS, 11, "KBI_UML2XMI_S0011", status, "Parsing tool specific extensions"},
    {M::UML2_S_PROCESSING_EXTENSIONS, 12, "KBI_UML2XMI_S0012", status, "Importing tool specific extensions"},
    {M::UML2_S_PROCESSING_ELEMENTS, 13, "KBI_UML2XMI_S0013", status, "Importing elements..."},
    {M::UML2_S_PROCESSING_TYPES, 14, "KBI_UML2XMI_S0014", status, "Importing types..."},
    {M::UML2_S_PROCESSING_RELATIONSHIPS, 15, "KBI_UML2XMI_S0015", status, "Importing relations..."},
    {M::UML2_I_CAN_NOT_DETECT, 16, "KBI_UML2XMI_W0016", warning, "Can not detect the {0} version"},
    {M::UML2_S_PARSING_FILE, 17, "KBI_UML2XMI_S0017", status, "Parsing file '{0}'"},
    {M::UML2_S_CREATING_DIAGRAMS, 18, "KBI_UML2XMI_S0018", status, "Importing diagrams..."},
    {M::UML2_W_COULD_NOT_ADD_OBJECT_TO_SCHEMA, 19, "KBI_UML2XMI_W0019", warning,
     "Could not add '{0}' to owner schema '{1}' because it already contains an object with the same name."},
    {M::UML2_S_CREATING_KEYS, 20, "KBI_UML2XMI_S0020", status, "Importing keys..."},
};

}  // namespace

TEST(KBI_UML2XMI, EachMessageHasItsNumberCodeLevelAndText) {
  for (const Row& row : rows) {
    EXPECT_EQ(row.message.getNumber(), row.number) << row.code;
    EXPECT_EQ(text(row.message.getCode()), row.code);
    EXPECT_EQ(row.message.getLevel(), row.level) << row.code;
    EXPECT_EQ(text(row.message.getText()), row.text);
  }
}

TEST(KBI_UML2XMI, TheCatalogueHoldsItsLiteralsInOrderAndNothingElse) {
  KYRVector literals;
  KBI_UML2XMI::getAllLiterals(literals);
  std::vector<const KYRTextLiteral*> expected = {
      &M::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION,
      &M::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION,
      &M::BP_FILE_DEFAULT,
      &M::BP_FILE,
      &M::BP_ROOT_PACKAGE_DEFAULT,
      &M::BP_ROOT_PACKAGE};
  // The order of the table above is that of the numbers, and so is the catalogue's.
  for (const Row& row : rows) expected.push_back(&row.message);
  ASSERT_EQ(literals.getCount(), expected.size());
  EXPECT_EQ(expected.size(), 24U);
  for (unsigned int i = 0; i < literals.getCount(); ++i) {
    EXPECT_EQ(static_cast<const KYRTextLiteral*>(literals.getAt(i)), expected[i]) << i;
  }
}

TEST(KBI_UML2XMI, TheCatalogueIsOneObjectThatKnowsItsLibrary) {
  EXPECT_EQ(&KBI_UML2XMI::initLiterals(), &KBI_UML2XMI::initLiterals());
  EXPECT_EQ(text(KBI_UML2XMI::initLiterals().getLibraryName()), "KYROmgUml2XmiImport");
  EXPECT_EQ(text(KBI_UML2XMI::initLiterals().getCatalogueName()), "KBI_UML2XMI");
}

TEST(KBI_UML2XMI, LiteralsAreFoundByIdentifierAndAnUnknownOneIsNull) {
  EXPECT_EQ(KBI_UML2XMI::findTextLiteral("OmgUml2XmiImportDescription"),
            &M::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION);
  EXPECT_EQ(KBI_UML2XMI::findTextLiteral("OmgUml2XmiNoMagicMagicDrawImportDescription"),
            &M::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION);
  EXPECT_EQ(KBI_UML2XMI::findTextLiteral("KBI_UML2XMI_F0008"), &M::UML2_I_BAD_HEADERUML2_ERROR);
  EXPECT_EQ(KBI_UML2XMI::findTextLiteral("omguml2xmiimportdescription"), nullptr);
  EXPECT_EQ(KBI_UML2XMI::findTextLiteral(""), nullptr);
}

TEST(KBI_UML2XMI, ARaisedMessageBearsItsCodeInBrackets) {
  try {
    M::UML2_I_BAD_HEADERUML2_ERROR.throwException();
  } catch (const KYRException& exception) {
    EXPECT_EQ(text(exception.getMessage()), "[KBI_UML2XMI_F0008] This file may not be a valid UML2 file.");
  }
  try {
    M::UML2_I_XML_ERROR.throwException("Unknown error");
  } catch (const KYRException& exception) {
    EXPECT_EQ(text(exception.getMessage()),
              "[KBI_UML2XMI_F0007] An XML parsing error occurred 'Unknown error'. This file may not be a "
              "valid XML file");
  }
  EXPECT_THROW(M::UML2_I_DETECTED_VERSION.throwException("UML", "2.5"), KYRException);
}

TEST(KBI_UML2XMI, ALoggedMessageHasNoCodeInItsTextAndAnEmptyDetail) {
  class DetailLog : public RecordingLog {
   public:
    void log(const KYRLogEvent& event) override {
      RecordingLog::log(event);
      EXPECT_TRUE(event.getDetail().isEmpty());
      texts.push_back(std::string(event.getText().view()));
    }
    std::vector<std::string> texts;
  } log;
  M::UML2_I_UNKNOWN_TAG.log(log, "line 3, column 5", "wrong");
  M::UML2_S_PARSING_FILE.log(log, "a.xmi");
  M::UML2_S_CREATING_KEYS.log(log);
  EXPECT_EQ(log.texts, (std::vector<std::string>{"line 3, column 5 : Skipping the unknown tag 'wrong'",
                                                 "Parsing file 'a.xmi'", "Importing keys..."}));
  EXPECT_EQ(log.levels, (std::vector<int>{warning, status, status}));
  EXPECT_EQ(log.countOf("KBI_UML2XMI_W0001 "), 1U);
}

TEST(KBI_UML2XMI, AnArgumentThatLooksLikeAPlaceholderStaysAsItIs) {
  EXPECT_EQ(text(M::UML2_I_UNKNOWN_TAG.toString("{1}", "{0}")), "{1} : Skipping the unknown tag '{0}'");
  EXPECT_EQ(text(M::UML2_I_DETECTED_VERSION.getMessage("XMI", "2.1")),
            "[KBI_UML2XMI_S0010] Detected XMI version 2.1");
}

TEST(KBI_UML2XMI, OptionsAreDefinedWithNameTypeDescriptionAndDefault) {
  EXPECT_EQ(text(M::BP_FILE.getIdentifier()), "BP_FILE");
  EXPECT_EQ(text(M::BP_FILE.getDisplayName()), "File");
  EXPECT_EQ(static_cast<int>(M::BP_FILE.getType()), 5);
  EXPECT_EQ(text(M::BP_FILE.getDefaultValue()), "");
  EXPECT_EQ(M::BP_FILE.getEnumeration(), nullptr);
  EXPECT_EQ(
      text(M::BP_FILE.getDescription()),
      "This bridge imports an XML file compliant to the Object Management Group (OMG) Unified Modeling "
      "Language (UML) XML Metadata Interchange (XMI) file format. The bridge imports versions of the UML "
      "2.1 metamodel and XMI 2.1 format, therefore make sure you identify the exact OMG UML XMI version "
      "produced by your source tool.");
  EXPECT_EQ(text(M::BP_ROOT_PACKAGE.getIdentifier()), "BP_ROOT_PACKAGE");
  EXPECT_EQ(text(M::BP_ROOT_PACKAGE.getDisplayName()), "Top Package");
  EXPECT_EQ(static_cast<int>(M::BP_ROOT_PACKAGE.getType()), 0);
  EXPECT_EQ(text(M::BP_ROOT_PACKAGE.getDefaultValue()), "");
  EXPECT_EQ(
      text(M::BP_ROOT_PACKAGE.getDescription()),
      "This option is used for two purposes:\n\nFirst, the Repository metamodel requires that all model "
      "elements (Classes, Associations...) belong to a Package. So whenever an Object is not explicitly "
      "associated to a Package it is stored in a special Package and this option specifies the name of "
      "the Package.\n\nSecond, if there is a single top level Package by that name in the Model, we mark "
      "the Package as optional so that it will not appear in the destination Model if the destination "
      "tool does not require all objects to be in a Package. ");
}

TEST(KBI_UML2XMI, TheGeneralDescriptionTellsHowEachToolExportsAndWhatIsMissing) {
  const std::string description = text(M::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION.toString());
  const std::string opening =
      "This bridge imports an XML file compliant to the Object Management Group (OMG) Unified Modeling "
      "Language "
      "(UML) 2.x XML Metadata Interchange (XMI)  2.x file format.  While the OMG specification is clear on "
      "some "
      "metadata concepts, some concepts are not fully defined, including:";
  EXPECT_EQ(description.substr(0, opening.size()), opening);
  for (const char* piece :
       {"diagram information", "that may be mapped consistently to the KYR metamodel", "Borland Together",
        "IBM Rational Software Architect", "Sparx Enterprise Architect", "VISUAL PARADIGM FOR UML",
        "User defined properties are not exported", "Choose 'XMI 2.1' in the 'XMI Type' combo box"}) {
    EXPECT_NE(description.find(piece), std::string::npos) << piece;
  }
  std::size_t told = 0;
  const std::string limitation = "Diagramming information is not imported";
  for (std::size_t at = description.find(limitation); at != std::string::npos;
       at = description.find(limitation, at + 1)) {
    ++told;
  }
  EXPECT_EQ(told, 4U);
}

TEST(KBI_UML2XMI, TheMagicDrawDescriptionTellsItsMenuItemAndWhatIsImported) {
  const std::string description =
      text(M::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION.toString());
  for (const char* piece : {"'Export To -> UML 2.5 XMI File'", "Diagram information",
                            "The 'PrimaryKey' and 'ForeignKey' stereotypes (Cameo Data Modeler plugin)",
                            "Database schema details (Cameo Data Modeler plugin)"}) {
    EXPECT_NE(description.find(piece), std::string::npos) << piece;
  }
}
