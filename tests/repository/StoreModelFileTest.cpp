#include "repository/storage/StoreModelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"
#include "repository/model/KYRTypeValue.h"
#include "tests/repository/FullModel.h"
#include "tests/repository/ModelFolder.h"

namespace {

class StoreModelFile : public ModelFolder {};

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(StoreModelFile, AModelOfEveryClassAndFieldComesBackByteForByte) {
  const auto model = makeFullModel();
  const std::string first = save(*model);
  const auto loaded = loadStoreModel(file());
  EXPECT_EQ(save(*loaded), first);
}

// `tests/repository/data/full-model.json` is the format as others rely on it: a difference is a change of
// the format. KYR_UPDATE_GOLDEN in the environment writes it anew.
TEST_F(StoreModelFile, TheFormatIsTheOneOfTheGoldenFile) {
  const std::string golden = KYR_SOURCE_DIR "/tests/repository/data/full-model.json";
  if (std::getenv("KYR_UPDATE_GOLDEN") != nullptr)
    saveStoreModelFile(KYRFile(golden.c_str()), *makeFullModel());
  EXPECT_EQ(save(*makeFullModel()), read(golden));
}

// The golden files of the samples, with keys, schemas, diagrams and all, as imports write them.
TEST_F(StoreModelFile, TheModelsOfAllSamplesComeBackByteForByte) {
  std::size_t count = 0;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(KYR_SOURCE_DIR "/tests/samples/golden")) {
    if (entry.path().extension() != ".json") continue;
    ++count;
    const std::string golden = entry.path().string();
    EXPECT_EQ(save(*loadStoreModel(KYRFile(golden.c_str()))), read(golden)) << golden;
  }
  EXPECT_GT(count, 0U);
}

TEST_F(StoreModelFile, TheExampleOfTheDocumentationIsASavedModel) {
  const std::string page = read(KYR_SOURCE_DIR "/docs/saved-format.md");
  const std::string fence = "```json\n";
  const std::size_t begin = page.find(fence) + fence.size();
  const std::string example = page.substr(begin, page.find("```", begin) - begin);
  write(example);
  EXPECT_EQ(save(*loadStoreModel(file())), example);
}

TEST_F(StoreModelFile, AnEmptyModelIsJustItsHead) {
  EXPECT_EQ(save(KYRStoreModel()),
            "{\"format\":\"kyr-store-model\",\"version\":1,\"designLevel\":0,\"storeType\":0,\"origins\":[],"
            "\"model\":\n{\"id\":1,\"class\":\"KYRStoreModel\"}}\n");
}

TEST_F(StoreModelFile, EachObjectBeginsOnALineOfItsOwn) {
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  package->setName("P");
  model.addDesignPackage(package);
  package->addNamespaceElementUniqueName(new KYRClass(), '/');
  package->addNamespaceElementUniqueName(new KYRClass(), '/');
  EXPECT_THAT(save(model), EndsWith("\"model\":\n"
                                    "{\"id\":1,\"class\":\"KYRStoreModel\",\"designPackages\":[\n"
                                    "{\"id\":2,\"class\":\"KYRDesignPackage\",\"name\":\"P\",\"elements\":[\n"
                                    "{\"id\":3,\"class\":\"KYRClass\"},\n"
                                    "{\"id\":4,\"class\":\"KYRClass\"}]}]}}\n"));
}

TEST_F(StoreModelFile, TwoSavesGiveTheSameBytes) {
  const auto model = makeFullModel();
  const std::string first = save(*model);
  EXPECT_EQ(save(*model), first);
  EXPECT_EQ(save(*makeFullModel()), first);
}

TEST_F(StoreModelFile, WhatIsLoadedHasItsTiesOnBothSides) {
  saveStoreModelFile(file(), *makeFullModel());
  const auto model = loadStoreModel(file());
  EXPECT_EQ(model->getName(), "Shop");
  ASSERT_EQ(model->getMetadataOriginCount(), 2U);
  EXPECT_EQ(model->metadataOrigin, model->getMetadataOrigin(1));
  EXPECT_EQ(model->metadataOrigin->filePath, "shop2");
  KYRDesignPackage* package = model->designPackages.get("Sales");
  ASSERT_NE(package, nullptr);
  auto* order = dynamic_cast<KYRClass*>(package->elements.get("Order"));
  auto* item = dynamic_cast<KYRClass*>(package->elements.get("Item"));
  ASSERT_NE(order, nullptr);
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(order->classType->associatedClass, order);
  EXPECT_EQ(order->association->associationClass, order);
  EXPECT_EQ(order->associationRoles.count(), 1U);
  EXPECT_EQ(order->getAttribute("id")->owner, order);
  EXPECT_EQ(order->getDataPackage(), model->dataPackages.get("SCHEMA"));
  EXPECT_EQ(model->dataPackages.get("SCHEMA")->dataElements.count(), 2U);
  EXPECT_EQ(package->diagrams[0]->getPresentationElement(order), order->presentationElements[0]);
  KYRPropertyType* author = model->getPropertyType(KYRElementType::class_, "author");
  ASSERT_NE(author, nullptr);
  EXPECT_EQ(order->getPropertyValue(author)->value, "value of author");
  EXPECT_EQ(order->notes[0]->noteText, "Text of the note");
  EXPECT_EQ(item->getAttribute("order")->initialValue, "\"quoted\"\\\n\t\x01 caf\xC3\xA9");
}

TEST_F(StoreModelFile, ReferencesToWhatTheModelDoesNotHoldAreLeftOut) {
  KYRClass outside;
  outside.setName("outside");
  KYRStoreModel other;
  auto* foreign = new KYRDerivedType();
  other.addType(foreign);
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  auto* inside = new KYRClass();
  package->addNamespaceElementUniqueName(inside, '/');
  auto* attribute = new KYRAttribute();
  inside->addFeatureUniqueName(attribute, '/');
  attribute->addType(foreign);
  save(other);  // leaves its own numbers behind
  const std::string text = save(model);
  EXPECT_THAT(text, HasSubstr("{\"id\":4,\"class\":\"KYRAttribute\"}"));
}

TEST_F(StoreModelFile, BytesThatAreNoUtf8BecomeReplacementCharacters) {
  KYRStoreModel model;
  model.setName("caf\xE9 \"\xC3\"");
  EXPECT_THAT(save(model), HasSubstr("\"name\":\"caf\xEF\xBF\xBD \\\"\xEF\xBF\xBD\\\"\""));
  EXPECT_EQ(save(*loadStoreModel(file())), content());
}

TEST_F(StoreModelFile, TextsWithZeroBytesComeBack) {
  KYRStoreModel model;
  model.description = KYRString(std::string_view("a\0b", 3));
  EXPECT_THAT(save(model), HasSubstr("a\\u0000b"));
  EXPECT_EQ(loadStoreModel(file())->description.view(), std::string_view("a\0b", 3));
}

TEST_F(StoreModelFile, NamesThatClashComeBackAsTheyAre) {
  KYRStoreModel model;
  for (int i = 0; i < 2; ++i) {
    auto* package = new KYRDesignPackage();
    package->setName("Same");
    model.addDesignPackage(package);
    auto* schema = new KYRDataPackage();
    model.addDataPackage(schema);
    schema->setName("Schema");
    if (i == 1) continue;
    auto* type = new KYRDerivedType();
    model.addType(type);
    for (int j = 0; j < 2; ++j) {
      auto* value = new KYRTypeValue();
      value->setName(j == 0 ? "one" : "two");
      type->addTypeValue(value);
      value->setName("twin");
    }
    for (int j = 0; j < 2; ++j) {
      auto* made = new KYRClass();
      package->addNamespaceElementUniqueName(made, '/');
      made->addDataPackage(schema);
      if (j == 0) made->setName("twin");
    }
    package->elements[1]->setName("twin");
  }
  const std::string first = save(model);
  EXPECT_EQ(save(*loadStoreModel(file())), first);
}

TEST_F(StoreModelFile, PackagesCanNestAsDeepAsMemoryAllows) {
  constexpr int depth = 100000;
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  for (int i = 1; i < depth; ++i) {
    auto* inner = new KYRDesignPackage();
    package->addNamespaceElementUniqueName(inner, '/');
    package = inner;
  }
  const std::string first = save(model);
  EXPECT_EQ(save(*loadStoreModel(file())), first);
}

TEST_F(StoreModelFile, AnOldFileIsReplacedAndKeepsItsPermissions) {
  write("old");
  chmod(path().c_str(), 0640);
  save(KYRStoreModel());
  EXPECT_THAT(content(), StartsWith("{\"format\""));
  struct stat status = {};
  stat(path().c_str(), &status);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(StoreModelFile, ALinkIsFollowed) {
  write("old", "real.json");
  std::filesystem::create_symlink("real.json", path());
  save(KYRStoreModel());
  EXPECT_TRUE(std::filesystem::is_symlink(path()));
  EXPECT_THAT(content("real.json"), StartsWith("{\"format\""));
}

TEST_F(StoreModelFile, ATargetThatIsNoFileIsRefused) {
  const KYRStoreModel model;
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(folder_.c_str()), model); }),
            "[KYRSTD_F0121] The file '" + folder_ + "' cannot be saved: it is not a regular file");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile("/dev/null"), model); }),
            "[KYRSTD_F0121] The file '/dev/null' cannot be saved: it is not a regular file");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(""), model); }),
            "[KYRSTD_F0120] The file '' cannot be saved: No such file or directory");
  const std::string nowhere = path("no/such/folder.json");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(nowhere.c_str()), model); }),
            "[KYRSTD_F0120] The file '" + nowhere + "' cannot be saved: No such file or directory");
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(StoreModelFile, WhatCannotBeReadIsRefusedWithPathAndReason) {
  EXPECT_EQ(
      failureOf([&] { loadStoreModel(file("none.json")); }),
      "[KYRSTD_F0130] The model '" + path("none.json") + "' cannot be loaded: No such file or directory");
  EXPECT_EQ(failureOf([&] { loadStoreModel(KYRFile(folder_.c_str())); }),
            "[KYRSTD_F0145] The model '" + folder_ + "' cannot be loaded: it is not a regular file");
  ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
  EXPECT_THAT(failureOf([&] { loadStoreModel(file("fifo")); }), HasSubstr("it is not a regular file"));
}

}  // namespace
