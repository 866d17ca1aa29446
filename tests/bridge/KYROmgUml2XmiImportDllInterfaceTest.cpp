// The plug-in object as a host sees it.
#include "bridge/KYROmgUml2XmiImportDllInterface.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "BuildTime.h"
#include "bridge/SpecificationText.h"
#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRDate.h"
#include "foundation/KYRException.h"
#include "foundation/KYROption.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/plugin/KYRBridgeSpecification.h"
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"
#include "repository/plugin/KYRDataStoreList.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/convert/ImportedModel.h"

namespace {

KYRImportBridgeDllInterface& plugin() { return *getKYROmgUml2XmiImportInterface(); }

// A folder for the output of one test, removed with it.
class OutputFolder {
 public:
  OutputFolder() {
    char name[] = "/tmp/kyr-output-XXXXXX";
    path = mkdtemp(name);
  }
  ~OutputFolder() { std::filesystem::remove_all(path); }
  bool isEmpty() const { return std::filesystem::is_empty(path); }
  std::string path;
};

bool runOn(const std::string& input, const std::string& output) {
  KYROptionList options;
  plugin().getOptionList(options);
  options.get("BP_FILE")->setValue(input.c_str());
  KYRFile outputFile(output.c_str());
  RecordingLog log;
  return plugin().run("origin", outputFile, options, log);
}

}  // namespace

TEST(KYROmgUml2XmiImportDllInterface, TheEntryReturnsTheSameObjectEachTime) {
  EXPECT_EQ(getKYROmgUml2XmiImportInterface(), getKYROmgUml2XmiImportInterface());
}

TEST(KYROmgUml2XmiImportDllInterface, TheBuildVersionIsTheBuildTimeInPacificTimeAndIsCached) {
  const KYRString& version = plugin().getBuildVersion();
  EXPECT_EQ(text(version), "10.0.1 - " + text(KYRDate(buildTime).getPstTimestamp()));
  EXPECT_EQ(&plugin().getBuildVersion(), &version);
  EXPECT_EQ(text(plugin().getBuildVersion()), text(version));
}

TEST(KYROmgUml2XmiImportDllInterface, TheSpecificationIsThatOfTheNamedBridge) {
  KYRBridgeSpecification specification;
  plugin().getSpecification("OmgUml2XmiNoMagicMagicDrawImport", specification);
  EXPECT_EQ(text(specification.getDescription()),
            text(KBI_UML2XMI::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT_DESCRIPTION.getText()));
  plugin().getSpecification("OmgUml2XmiImport", specification);
  EXPECT_EQ(text(specification.getDescription()),
            text(KBI_UML2XMI::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION.getText()));
  const KYRBridgeSpecificationLiteral& literal = KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT;
  EXPECT_EQ(text(specification.getToolWeb()), text(literal.getTool_Web()));
  EXPECT_EQ(text(specification.getVendorName()), text(literal.getVendor_Name()));
  EXPECT_EQ(text(specification.getToolName()), text(literal.getTool_Name()));
  EXPECT_EQ(text(specification.getToolVersions()), text(literal.getTool_Versions()));
  EXPECT_EQ(text(specification.getMethodologySummary()), text(literal.getMethodology_Summary()));
  EXPECT_EQ(text(specification.getBuildVersion()), text(plugin().getBuildVersion()));
  EXPECT_FALSE(specification.isRetired());
}

TEST(KYROmgUml2XmiImportDllInterface, AnUnknownBridgeNameGetsTheGeneralSpecification) {
  KYRBridgeSpecification specification;
  plugin().getSpecification("no such bridge", specification);
  EXPECT_EQ(text(specification.getDescription()),
            text(KBI_UML2XMI::BRIDGE_SPEC_OMGUML2XMI_IMPORT_DESCRIPTION.getText()));
}

TEST(KYROmgUml2XmiImportDllInterface, TheOptionListHoldsTheFileAndTheRootPackage) {
  KYROptionList options;
  options.add(new KYROption("STALE", "", OptionType::text, "", "", false));
  plugin().getOptionList(options);
  ASSERT_EQ(options.getCount(), 2U);
  const KYROption& file = *options.getAt(0);
  EXPECT_EQ(text(file.getIdentifier()), "BP_FILE");
  EXPECT_TRUE(file.isMandatory());
  EXPECT_EQ(file.getType(), OptionType::file);
  EXPECT_EQ(file.getOpenMode(), OpenMode::read);
  EXPECT_TRUE(file.acceptsAnyFileName());
  std::vector<std::string> extensions;
  for (const KYRString& extension : file.getFileExtensions()) extensions.push_back(text(extension));
  EXPECT_EQ(extensions, (std::vector<std::string>{"xml", "xmi", "uml", "uml2"}));
  const KYROption& rootPackage = *options.getAt(1);
  EXPECT_EQ(text(rootPackage.getIdentifier()), "BP_ROOT_PACKAGE");
  EXPECT_FALSE(rootPackage.isMandatory());
  EXPECT_EQ(rootPackage.getType(), OptionType::text);
  EXPECT_EQ(text(rootPackage.getValue()), "");
}

TEST(KYROmgUml2XmiImportDllInterface, TheDataStoresAreTheTwoOfUml) {
  KYRDataStoreList list;
  plugin().getDataStoreList(list);
  ASSERT_EQ(list.getCount(), 2U);
  EXPECT_EQ(text(list.getAt(0)->name), "all");
  EXPECT_EQ(text(list.getAt(0)->dataStore), KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML);
  EXPECT_EQ(text(list.getAt(1)->name), "all");
  EXPECT_EQ(text(list.getAt(1)->dataStore), KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML_SEA);
  for (unsigned int i = 0; i < list.getCount(); ++i) {
    EXPECT_EQ(list.getAt(i)->majorVersion, 1);
    EXPECT_EQ(list.getAt(i)->minorVersion, 0);
    EXPECT_EQ(list.getAt(i)->releaseVersion, 0);
  }
  EXPECT_EQ(list.getAt(2), nullptr);
}

TEST(KYROmgUml2XmiImportDllInterface, TheMappingDocumentHasTheNameOfThePlugin) {
  EXPECT_EQ(text(plugin().getMappingSpecificationXmlFile()), "KYROmgUml2XmiImport");
}

TEST(KYROmgUml2XmiImportDllInterface, TheTestSucceedsForAFileThatDoesNotExistAndForNoOptions) {
  KYROptionList options;
  RecordingLog log;
  EXPECT_TRUE(plugin().test("/no/such/file.xmi", options, log));
  EXPECT_TRUE(log.lines.empty());
}

TEST(KYROmgUml2XmiImportDllInterface, BrowsingRaisesAndNamesBridgeAndOperation) {
  KYROptionList options;
  RecordingLog log;
  try {
    plugin().browse("any", "thing", options, log);
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(text(exception.getMessage()),
              "[KBCM_F0001] The bridge 'OmgUml2XmiImport' does not support the operation 'browse'");
  }
}

TEST(KYROmgUml2XmiImportDllInterface, ARunSavesTheModelAndReturnsTrue) {
  const TemporaryFile input(
      xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"))));
  const OutputFolder folder;
  EXPECT_TRUE(runOn(input.path, folder.path + "/out.json"));
  const auto model = loadStoreModel(KYRFile((folder.path + "/out.json").c_str()));
  EXPECT_EQ(text(model->getName()), "Model");
  ASSERT_EQ(model->designPackages.count(), 1U);
  EXPECT_FALSE(model->modificationTime.isEmpty());
}

TEST(KYROmgUml2XmiImportDllInterface, AFailedRunRaisesAndLeavesNoFile) {
  const OutputFolder folder;
  const TemporaryFile broken("<xmi:XMI>");
  EXPECT_THROW(runOn(broken.path, folder.path + "/out.json"), KYRException);
  EXPECT_TRUE(folder.isEmpty());
  const TemporaryFile noModel("<xmi:XMI/>");
  try {
    runOn(noModel.path, folder.path + "/out.json");
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(text(exception.getMessage()), "[KBI_UML2XMI_F0008] This file may not be a valid UML2 file.");
  }
  EXPECT_TRUE(folder.isEmpty());
}

TEST(KYROmgUml2XmiImportDllInterface, AFailureInTheConversionSavesNothing) {
  struct FailingLog : RecordingLog {
    void log(const KYRLogEvent& event) override {
      if (event.getCode().view() == "KBI_UML2XMI_S0015") throw KYRException("this is meant", "");
    }
  } log;
  const OutputFolder folder;
  const TemporaryFile input(xmi(element("Class", "xmi:id='c' name='C'")));
  KYROptionList options;
  plugin().getOptionList(options);
  options.get("BP_FILE")->setValue(input.path.c_str());
  KYRFile output((folder.path + "/out.json").c_str());
  EXPECT_THROW(plugin().run("origin", output, options, log), KYRException);
  EXPECT_TRUE(folder.isEmpty());
}

TEST(SpecificationText, ATextThatTheCatalogueDoesNotKnowShowsAsAMark) {
  const KYRBridgeSpecificationLiteral literal({"some bridge", "no such id", "", "", "", "", ""});
  EXPECT_EQ(text(descriptionOf(literal)), "*** no such id");
}

TEST(KYROmgUml2XmiImportDllInterface, OneObjectServesManyRuns) {
  const TemporaryFile input(
      xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"))));
  const OutputFolder folder;
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(runOn(input.path, folder.path + "/out.json"));
}
