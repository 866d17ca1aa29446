// The driver: its phases, what they write into the model, and what is left after success and failure.
#include <gtest/gtest.h>

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRException.h"
#include "repository/datatypes/KYRDataStoreVersion.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "tests/convert/ImportedModel.h"

namespace {

const std::string oneClass =
    element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"));

std::string documentationOf(const std::string& exporter) {
  return "<xmi:Documentation exporter='" + exporter + "' exporterVersion='6.5'/>";
}

// An import that can be watched at each of its messages.
struct WatchedImport {
  explicit WatchedImport(const std::string& content) : input(content) {
    getKYROmgUml2XmiImportInterface()->getOptionList(options);
    options.get("BP_FILE")->setValue(input.path.c_str());
  }
  void run() { bridge.importModel(model, options, "origin"); }

  TemporaryFile input;
  KYROptionList options;
  WatchingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge{&log};
};

void expectReleased(const KYROmgUml2XmiImportBridge& bridge) {
  EXPECT_EQ(bridge.objects.getCount(), 0U);
  EXPECT_TRUE(bridge.typedFeatures.isEmpty());
  EXPECT_TRUE(bridge.associationClasses.empty());
  EXPECT_TRUE(bridge.pendingAssociations.isEmpty());
  EXPECT_TRUE(bridge.pendingGeneralizations.isEmpty());
  EXPECT_TRUE(bridge.pendingRealizations.isEmpty());
  EXPECT_TRUE(bridge.pendingDependencies.isEmpty());
  EXPECT_EQ(bridge.unplacedObjects.getCount(), 0U);
  EXPECT_EQ(bridge.dom, nullptr);
  EXPECT_EQ(bridge.domRoot, nullptr);
  EXPECT_EQ(bridge.domModel, nullptr);
}

}  // namespace

TEST(ImportDriver, TheOriginTellsFileFormatAndTool) {
  const ImportedModel imported(xmi(oneClass, "Model", documentationOf("Some Tool")));
  ASSERT_EQ(imported.model.getMetadataOriginCount(), 1U);
  const KYRMetadataOrigin& origin = *imported.model.metadataOrigin;
  EXPECT_EQ(text(origin.formatName), "OMG UML2 XMI");
  EXPECT_EQ(text(origin.formatVersion), "2.1");
  EXPECT_EQ(text(origin.filePath), imported.filePath());
  EXPECT_EQ(text(origin.fileEncoding), "UTF-8");
  EXPECT_EQ(origin.originCode, 346);
  EXPECT_EQ(text(origin.toolName), "Some Tool");
  EXPECT_EQ(text(origin.toolVersion), "6.5");
  EXPECT_EQ(text(origin.toolDetail), "");
  EXPECT_EQ(text(origin.originId), "origin");
  EXPECT_EQ(text(origin.buildVersion), text(getKYROmgUml2XmiImportInterface()->getBuildVersion()));
}

TEST(ImportDriver, AnUndetectedVersionLeavesTheAssumedOne) {
  const ImportedModel imported("<uml:Model xmi:id='m' xmlns:uml='urn:unknown'>" + oneClass + "</uml:Model>");
  EXPECT_EQ(text(imported.model.metadataOrigin->formatVersion), "UML 2.1");
  EXPECT_EQ(text(imported.model.metadataOrigin->toolName), "");
}

TEST(ImportDriver, ADeclaredVersionIsTheFormatVersion) {
  const ImportedModel imported("<uml:Model xmi:id='m' xmlns:uml='http://www.omg.org/spec/UML/20131001'>" +
                               oneClass + "</uml:Model>");
  EXPECT_EQ(text(imported.model.metadataOrigin->formatVersion), "2.5");
}

TEST(ImportDriver, PhasesAreLoggedInTheirOrder) {
  const ImportedModel imported(xmi(oneClass));
  std::vector<std::string> phases;
  for (const std::string& line : imported.log.lines) {
    for (const char* code : {"S0013", "S0014", "S0015", "S0017", "S0018", "S0020"}) {
      if (line.find(code) != std::string::npos) phases.push_back(code);
    }
  }
  EXPECT_EQ(phases, (std::vector<std::string>{"S0017", "S0013", "S0015", "S0020", "S0014", "S0018"}));
  EXPECT_EQ(imported.log.lines.front(), "KBI_UML2XMI_S0017 Parsing file '" + imported.filePath() + "'");
}

TEST(ImportDriver, OnlyTheTwoToolsGetATreeWhateverTheCaseOfTheirNames) {
  const struct {
    const char* exporter;
    bool hasTree;
  } rows[] = {{"Enterprise Architect", true},
              {"enterprise architect", true},
              {"MagicDraw UML", true},
              {"MAGICDRAW uml", true},
              {"MagicDraw", false},
              {"Other", false},
              {"", false}};
  for (const auto& row : rows) {
    WatchedImport watched(xmi(oneClass, "Model", documentationOf(row.exporter)));
    bool isSeen = false;
    watched.log.watch = [&](const std::string& code) {
      if (code != "KBI_UML2XMI_S0013") return;
      isSeen = true;
      EXPECT_EQ(watched.bridge.dom != nullptr, row.hasTree) << row.exporter;
      EXPECT_EQ(watched.bridge.domRoot != nullptr, row.hasTree) << row.exporter;
      EXPECT_EQ(watched.bridge.domModel != nullptr, row.hasTree) << row.exporter;
      if (row.hasTree) {
        EXPECT_EQ(text(watched.bridge.domRoot->getTagName()), "xmi:XMI");
        EXPECT_EQ(text(watched.bridge.domModel->getAttribute("xmi:id")), "model");
      }
    };
    watched.run();
    EXPECT_TRUE(isSeen);
    expectReleased(watched.bridge);
  }
}

TEST(ImportDriver, ANamelessModelIsNamedAfterItsFile) {
  const ImportedModel imported(xmi(oneClass, ""));
  EXPECT_EQ("/tmp/" + text(imported.model.getName()), imported.filePath());
}

TEST(ImportDriver, WithoutADataStoreTheModelIsLogical) {
  const ImportedModel imported(xmi(oneClass));
  EXPECT_EQ(imported.model.designLevel, 1);
  EXPECT_EQ(imported.model.storeType, 3);
  EXPECT_EQ(text(imported.model.dataStore), "OMG_UML_OMG_UML");
}

TEST(ImportDriver, WithADataStoreTheModelIsPhysicalAndBearsIt) {
  WatchedImport watched(xmi(oneClass));
  const KYRDataStoreVersion oracle(KYRDataTypeConstants::DATASTORE_ORACLE, 12, 0, 0);
  watched.log.watch = [&](const std::string& code) {
    if (code != "KBI_UML2XMI_S0013") return;
    watched.bridge.targetDataStore = &oracle;
    watched.bridge.dataTypeConverter =
        std::make_unique<KYRDataTypeConverter>(watched.log, oracle, KYRDataTypeConstants::TOOL_KYRGENERIC);
  };
  watched.run();
  EXPECT_EQ(watched.model.designLevel, 0);
  EXPECT_EQ(watched.model.storeType, 0);
  EXPECT_EQ(text(watched.model.dataStore), "ORACLE");
}

// The parser and the document are gone by then.
TEST(ImportDriver, NamesAndIdsShowTheCharactersOfTheFileWhichTheModelKeeps) {
  const ImportedModel imported(xmi(oneClass));
  const KYRDesignPackage* const package = imported.model.designPackages.get("P");
  ASSERT_NE(package, nullptr);
  const KYRObject* const converted = package->elements.get("C");
  ASSERT_NE(converted, nullptr);
  EXPECT_TRUE(package->getName().isBorrowed());
  EXPECT_TRUE(converted->sourceId.isBorrowed());
  EXPECT_EQ(converted->sourceId, "c");
}

TEST(ImportDriver, AMissingFileOptionIsAnExceptionThatNamesIt) {
  WatchedImport watched(xmi(oneClass));
  watched.options.removeAll();
  try {
    watched.run();
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(
        text(exception.getMessage()),
        "[KYRSTD_F0146] The bridge 'OmgUml2XmiImport' needs the option 'BP_FILE', which the option list "
        "does not hold");
  }
  EXPECT_EQ(watched.model.metadataOrigin, nullptr);
}

TEST(ImportDriver, AMissingRootPackageOptionCountsAsEmpty) {
  WatchedImport watched(xmi(oneClass));
  const std::string path = watched.input.path;
  watched.options.removeAll();
  watched.options.add(new KYROption("BP_FILE", "", OptionType::file, "", path.c_str(), true));
  watched.run();
  EXPECT_EQ(watched.model.designPackages.count(), 1U);
}

TEST(ImportDriver, AFailureInTheConversionStillRunsTheReleaseStep) {
  for (const char* failing : {"KBI_UML2XMI_S0013", "KBI_UML2XMI_S0015", "KBI_UML2XMI_S0018"}) {
    WatchedImport watched(xmi(oneClass + element("Package", "xmi:id='e' name='Empty'") +
                                  element("AssociationClass", "xmi:id='ac' name='Loose'"),
                              "Model", documentationOf("Enterprise Architect")));
    watched.log.watch = [&](const std::string& code) {
      if (code == failing) KBI_UML2XMI::UML2_I_DBG_HANDLER_ERROR.throwException("this is meant");
    };
    EXPECT_THROW(watched.run(), KYRException) << failing;
    expectReleased(watched.bridge);
    EXPECT_EQ(watched.model.designPackages.get("Empty"), nullptr);
  }
}

TEST(ImportDriver, AFailureInTheReaderPassesThroughAndRunsTheReleaseStep) {
  WatchedImport watched("<xmi:XMI><uml:Model xmi:id='m'></xmi:XMI>");
  auto* const empty = new KYRDesignPackage();
  watched.model.addDesignPackage(empty);
  EXPECT_THROW(watched.run(), KYRException);
  expectReleased(watched.bridge);
  EXPECT_EQ(watched.model.designPackages.count(), 0U);  // pruned, the import having failed or not
}

TEST(ImportDriver, AnExceptionOfAnotherKindPassesThroughAsItIs) {
  WatchedImport watched(xmi(oneClass));
  watched.log.watch = [](const std::string& code) {
    if (code == "KBI_UML2XMI_S0020") throw std::runtime_error("this is meant");
  };
  EXPECT_THROW(watched.run(), std::runtime_error);
  expectReleased(watched.bridge);
}
