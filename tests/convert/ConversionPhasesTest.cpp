// The choice of the root package, and what the phases write into the model itself.
#include <gtest/gtest.h>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "tests/convert/ImportedModel.h"

namespace {

const std::string packageWithClass =
    element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"));

std::vector<std::string> topPackages(const KYRStoreModel& model) {
  std::vector<std::string> names;
  for (const KYRDesignPackage* package : model.designPackages) names.push_back(text(package->getName()));
  return names;
}

using Names = std::vector<std::string>;

}  // namespace

TEST(ConversionPhases, ALooseClassGetsTheRootPackageLogicalView) {
  const ImportedModel imported(xmi(element("Class", "xmi:id='c' name='C'")));
  EXPECT_EQ(topPackages(imported.model), Names{"Logical View"});
  EXPECT_FALSE(imported.model.designPackages[0]->isModelPackage);
  EXPECT_EQ(imported.pathOf("c"), "Logical View/C");
}

TEST(ConversionPhases, ALooseAssociationMakesARootPackageThatTakesThePackages) {
  const ImportedModel imported(xmi(packageWithClass + element("Association", "xmi:id='a'")));
  EXPECT_EQ(topPackages(imported.model), Names{"Logical View"});
  EXPECT_EQ(imported.pathOf("c"), "Logical View/P/C");
}

TEST(ConversionPhases, OtherLooseElementsMakeNoRootPackage) {
  const ImportedModel imported(xmi(packageWithClass + element("Interface", "xmi:id='i' name='I'") +
                                   element("Enumeration", "xmi:id='e' name='E'") +
                                   element("AssociationClass", "xmi:id='ac' name='AC'") +
                                   element("Dependency", "xmi:id='d' client='c' supplier='c'")));
  EXPECT_EQ(topPackages(imported.model), Names{"P"});
  EXPECT_FALSE(imported.has("i"));
  EXPECT_FALSE(imported.has("ac"));
  EXPECT_EQ(imported.pathOf("d"), "P/");  // a relation goes where its supplier is
}

TEST(ConversionPhases, WithoutLooseElementsThereIsNoRootPackage) {
  const ImportedModel imported(xmi(packageWithClass));
  EXPECT_EQ(topPackages(imported.model), Names{"P"});
  EXPECT_TRUE(imported.model.designPackages[0]->isModelPackage);
}

TEST(ConversionPhases, ANamedRootPackageTakesEverything) {
  const ImportedModel imported(xmi(packageWithClass + element("Class", "xmi:id='l' name='L'") +
                                   element("Interface", "xmi:id='i' name='I'")),
                               "Mine");
  EXPECT_EQ(topPackages(imported.model), Names{"Mine"});
  EXPECT_FALSE(imported.model.designPackages[0]->isModelPackage);
  EXPECT_EQ(imported.pathOf("c"), "Mine/P/C");
  EXPECT_EQ(imported.pathOf("l"), "Mine/L");
  EXPECT_EQ(imported.pathOf("i"), "Mine/I");
}

TEST(ConversionPhases, TheDisplayNameOfTheOptionNeverNamesAPackage) {
  const ImportedModel imported(xmi(element("Class", "xmi:id='c' name='C'")), "");
  EXPECT_EQ(imported.model.designPackages.get("Top Package"), nullptr);
}

TEST(ConversionPhases, ANamedRootPackageThatIsThereIsJoinedAndKeepsItsMark) {
  const ImportedModel imported(xmi(packageWithClass), "Mine", [](KYRStoreModel& model) {
    for (const char* name : {"Other", "Mine"}) {
      auto* const package = new KYRDesignPackage();
      package->setName(name);
      package->isModelPackage = true;
      model.addDesignPackage(package);
    }
  });
  EXPECT_EQ(topPackages(imported.model), Names{"Mine"});  // "Other" is empty and pruned
  EXPECT_TRUE(imported.model.designPackages[0]->isModelPackage);
  EXPECT_EQ(imported.pathOf("c"), "Mine/P/C");
}

TEST(ConversionPhases, APackageThatStaysEmptyIsNotInTheResult) {
  const ImportedModel imported(
      xmi(packageWithClass +
          element("Package", "xmi:id='e' name='E'",
                  element("Package", "xmi:id='f' name='F'", element("Class", "xmi:id='nameless'")))),
      "Mine");
  EXPECT_FALSE(imported.has("e"));
  EXPECT_FALSE(imported.has("f"));
  EXPECT_TRUE(imported.has("p"));
  const ImportedModel nothing(xmi(""), "Mine");
  EXPECT_TRUE(nothing.model.designPackages.isEmpty());
}

TEST(ConversionPhases, TheStoreModelTakesNameAndIdOfTheModel) {
  const ImportedModel imported(
      xmi("<ownedComment xmi:type='uml:Comment' xmi:id='k' annotatedElement='model'"
          " body='About it'/>" +
          packageWithClass));
  EXPECT_EQ(text(imported.model.getName()), "Model");
  EXPECT_EQ(text(imported.model.sourceId), "model");
  EXPECT_EQ(text(imported.model.description), "About it");
}

TEST(ConversionPhases, AnExporterWithoutAVersionLeavesTheVersionEmpty) {
  const ImportedModel imported(xmi(packageWithClass, "M", "<xmi:Documentation exporter='Tool'/>"));
  EXPECT_EQ(text(imported.model.metadataOrigin->toolName), "Tool");
  EXPECT_EQ(text(imported.model.metadataOrigin->toolVersion), "");
}

TEST(ConversionPhases, ADataPackageThatTheModelRefusesIsPassedOver) {
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  std::vector<std::unique_ptr<KYRDataPackage>> packages;
  for (const char* name : {"A", "A", "B"}) {
    packages.push_back(std::make_unique<KYRDataPackage>());
    packages.back()->setName(name);
    bridge.dataPackages.add(packages.back().get());
  }
  bridge.addDataPackages();
  ASSERT_EQ(model.dataPackages.count(), 2U);
  EXPECT_EQ(model.dataPackages[0], packages[0].release());
  EXPECT_EQ(model.dataPackages[1], packages[2].release());
  EXPECT_EQ(packages[1]->getParent(), nullptr);
  EXPECT_TRUE(log.lines.empty());
}

TEST(ConversionPhases, ImportingTwiceInOneProcessGivesTheSameModel) {
  const std::string file = xmi(packageWithClass + element("Class", "xmi:id='l' name='L'"));
  const ImportedModel first(file);
  const ImportedModel second(file);
  EXPECT_EQ(first.pathOf("c"), second.pathOf("c"));
  EXPECT_EQ(first.all<KYRObject>().size(), second.all<KYRObject>().size());
}
