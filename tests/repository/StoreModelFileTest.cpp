#include "repository/storage/StoreModelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "foundation/KYRException.h"
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

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// A folder of its own that goes with the test.
class StoreModelFile : public testing::Test {
 protected:
  StoreModelFile() {
    char name[] = "/tmp/kyr-model-XXXXXX";
    folder_ = mkdtemp(name);
  }
  ~StoreModelFile() override { std::filesystem::remove_all(folder_); }

  std::string path(const char* name = "model.json") const { return folder_ + "/" + name; }
  KYRFile file(const char* name = "model.json") const { return KYRFile(path(name).c_str()); }
  static std::string read(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
  }
  std::string content(const char* name = "model.json") const { return read(path(name)); }
  void write(const std::string& text, const char* name = "model.json") const {
    std::ofstream(path(name), std::ios::binary) << text;
  }
  std::string save(const KYRStoreModel& model) const {
    saveStoreModelFile(file(), model);
    return content();
  }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator all(folder_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

  std::string folder_;
};

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

std::string failureOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const KYRException& exception) {
    return exception.getMessage().getCharacters();
  }
  return "nothing raised";
}

TEST_F(StoreModelFile, ATargetThatIsNoFileIsRefused) {
  const KYRStoreModel model;
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(folder_.c_str()), model); }),
            "[KYRSTD_F0121] The model cannot be saved to '" + folder_ + "': it is not a regular file");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile("/dev/null"), model); }),
            "[KYRSTD_F0121] The model cannot be saved to '/dev/null': it is not a regular file");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(""), model); }),
            "[KYRSTD_F0120] The model cannot be saved to '': No such file or directory");
  const std::string nowhere = path("no/such/folder.json");
  EXPECT_EQ(failureOf([&] { saveStoreModelFile(KYRFile(nowhere.c_str()), model); }),
            "[KYRSTD_F0120] The model cannot be saved to '" + nowhere + "': No such file or directory");
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

TEST_F(StoreModelFile, AFileCutAnywhereIsRefused) {
  const std::string whole = save(*makeFullModel());
  for (std::size_t length = 0; length + 1 < whole.size(); length += 37) {
    write(whole.substr(0, length));
    EXPECT_THROW(loadStoreModel(file()), KYRException) << "cut at " << length;
  }
}

TEST_F(StoreModelFile, BytesBehindTheDocumentAreRefused) {
  const std::string whole = save(KYRStoreModel());
  for (const std::string& tail : {std::string("x"), std::string("{}"), std::string("\0junk", 5)}) {
    write(whole + tail);
    EXPECT_THAT(failureOf([&] { loadStoreModel(file()); }), HasSubstr("KYRSTD_F0131"));
  }
}

// A document with `members` in its model, and what is said of it.
struct Damage {
  const char* text;
  const char* message;
};

TEST_F(StoreModelFile, DamagedDocumentsAreRefusedWithTheReason) {
  const std::string head = "{\"format\":\"kyr-store-model\",\"version\":1,\"designLevel\":0,\"storeType\":0,";
  const std::string inModel = head + "\"origins\":[],\"model\":{\"id\":1,\"class\":\"KYRStoreModel\",";
  const Damage head_[] = {
      {"", "F0131"},
      {"{}", "the member 'format' is missing"},
      {"[]", "this is not a saved model"},
      {"5", "this is not a saved model"},
      {"{\"version\":1}", "this is not a saved model"},
      {"{\"format\":\"other\"}", "this is not a saved model"},
      {"{\"format\":[]}", "the value of 'format'"},
      {"{\"format\":\"kyr-store-model\",\"version\":2}", "the version 2 of the format is not known"},
      {"{\"format\":\"kyr-store-model\",\"designLevel\":1}", "the member 'version' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1}", "the member 'designLevel' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"version\":1}",
       "the member 'version' stands here twice"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"designLevel\":2}", "the value of 'designLevel'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"storeType\":\"3\"}", "the value of 'storeType'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"extra\":1}", "there can be no member 'extra' here"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"origins\":[1]}", "the value of 'origins'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"origins\":[{\"tool\":1}]}", "no member 'tool'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"origins\":[{\"originCode\":\"346\"}]}",
       "the value of 'originCode'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":[]}", "the value of 'model'"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{}}", "the member 'id' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"class\":\"KYRStoreModel\"}}",
       "the member 'id' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"id\":0}}", "'id' is not an id"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"id\":4294967296}}", "'id' is not an id"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"id\":1}}",
       "the member 'class' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"id\":1,\"name\":\"x\"}}",
       "the member 'class' is missing"},
      {"{\"format\":\"kyr-store-model\",\"version\":1,\"model\":{\"id\":1,\"class\":\"KYRClass\"}}",
       "'model' cannot hold a KYRClass"},
  };
  for (const Damage& damage : head_) {
    write(damage.text);
    EXPECT_THAT(failureOf([&] { loadStoreModel(file()); }), HasSubstr(damage.message)) << damage.text;
  }
  const Damage inside[] = {
      {"\"nmae\":\"x\"}}", "there can be no member 'nmae' here"},
      {"\"name\":1}}", "the value of 'name'"},
      {"\"name\":null}}", "the value of 'name'"},
      {"\"name\":{}}}", "the value of 'name'"},
      {"\"name\":[]}}", "the value of 'name'"},
      {"\"name\":\"a\",\"name\":\"b\"}}", "the member 'name' stands here twice"},
      {"\"types\":{}}}", "the value of 'types'"},
      {"\"types\":[1]}}", "the value of 'types'"},
      {"\"types\":[[]]}}", "the value of 'types'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRClass\"}]}}", "'types' cannot hold a KYRClass"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRType\"}]}}", "there is no class 'KYRType'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRStoreModel\"}]}}", "'types' cannot hold a KYRStoreModel"},
      {"\"types\":[{\"id\":1,\"class\":\"KYRClassType\"}]}}", "the id 1 stands here a second time"},
      {"\"types\":[{\"id\":9,\"class\":\"KYRClassType\"},{\"id\":9,\"class\":\"KYRClassType\"}]}}",
       "the id 9 stands here a second time"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRConcreteType\",\"length\":2147483648}]}}",
       "the value of 'length'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRConcreteType\",\"length\":1.5}]}}", "the value of 'length'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRConcreteType\",\"length\":18446744073709551615}]}}",
       "the value of 'length'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRDerivedType\",\"userDefined\":1}]}}",
       "the value of 'userDefined'"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRDerivedType\",\"baseConcreteType\":7}]}}",
       "no object has the id 7"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRDerivedType\",\"baseConcreteType\":1}]}}",
       "'baseConcreteType' cannot refer to the object with the id 1"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRDerivedType\",\"name\":\"T\",\"baseConcreteType\":2}]}}",
       "the type 'T' rests on itself over other types"},
      {"\"types\":[{\"id\":2,\"class\":\"KYRDerivedType\",\"name\":\"T\",\"baseConcreteType\":3},"
       "{\"id\":3,\"class\":\"KYRDerivedType\",\"name\":\"U\",\"baseConcreteType\":2}]}}",
       "the type 'T' rests on itself over other types"},
      {"\"propertyTypes\":[{\"id\":2,\"class\":\"KYRPropertyType\",\"elementType\":\"KYRClas\"}]}}",
       "the value of 'elementType'"},
      {"\"propertyValues\":[{\"propertyType\":1}]}}",
       "'propertyValues' cannot refer to the object with the id 1"},
      {"\"propertyValues\":[{\"value\":\"x\"}]}}", "the member 'propertyType' is missing"},
      {"\"propertyValues\":[{\"values\":\"x\"}]}}", "there can be no member 'values' here"},
      {"\"propertyValues\":[{\"propertyType\":2,\"value\":1}]}}", "the value of 'value'"},
      {"\"propertyValues\":1}}", "the value of 'propertyValues'"},
      {"\"propertyTypes\":[{\"id\":2,\"class\":\"KYRPropertyType\",\"elementType\":\"KYRStoreModel\"}],"
       "\"propertyValues\":[{\"propertyType\":2},{\"propertyType\":2}]}}",
       "'propertyValues' cannot refer to the object with the id 2"},
      {"\"designPackages\":[{\"id\":2,\"class\":\"KYRDesignPackage\",\"diagrams\":[{\"id\":3,"
       "\"class\":\"KYRClassDiagram\",\"modelElements\":[\"2\"]}]}]}}",
       "'modelElements' is not an id"},
      {"\"designPackages\":[{\"id\":2,\"class\":\"KYRDesignPackage\",\"elements\":[{\"id\":3,"
       "\"class\":\"KYRClass\",\"primaryKey\":5},{\"id\":4,\"class\":\"KYRClass\",\"keys\":[{\"id\":5,"
       "\"class\":\"KYRCandidateKey\"}]}]}]}}",
       "'primaryKey' cannot refer to the object with the id 5"},
      {"\"designPackages\":[{\"id\":2,\"class\":\"KYRDesignPackage\",\"elements\":[{\"id\":3,"
       "\"class\":\"KYRClass\",\"attributes\":[{\"id\":4,\"class\":\"KYRAttribute\",\"position\":65536}]}]}]}"
       "}",
       "the value of 'position'"},
      {"\"name\":\"\xE9\"}}", "F0131"},
      {"\"name\":\"x\"}", "F0131"},
  };
  for (const Damage& damage : inside) {
    write(inModel + damage.text);
    EXPECT_THAT(failureOf([&] { loadStoreModel(file()); }), HasSubstr(damage.message)) << damage.text;
  }
}

TEST_F(StoreModelFile, RefusalsNameFileAndByte) {
  write("{\"format\":\"kyr-store-model\",\"version\":7}");
  EXPECT_EQ(failureOf([&] { loadStoreModel(file()); }),
            "[KYRSTD_F0133] File '" + path() + "', byte 39: the version 7 of the format is not known");
}

TEST_F(StoreModelFile, IdsNeedNotBeInOrder) {
  write(
      "{\"format\":\"kyr-store-model\",\"version\":1,\"designLevel\":1,\"storeType\":3,\"origins\":[],"
      "\"model\":{\"id\":77,\"class\":\"KYRStoreModel\",\"types\":["
      "{\"id\":4000000000,\"class\":\"KYRDerivedType\",\"name\":\"d\",\"baseConcreteType\":5},"
      "{\"id\":5,\"class\":\"KYRConcreteType\",\"name\":\"b\"}]}}");
  const auto model = loadStoreModel(file());
  const auto* derived = dynamic_cast<KYRDerivedType*>(model->types.get("d"));
  ASSERT_NE(derived, nullptr);
  EXPECT_EQ(derived->baseConcreteType, model->types.get("b"));
}

TEST_F(StoreModelFile, NestingWithoutMeaningIsRefusedAtOnce) {
  write(std::string(1000000, '['));
  EXPECT_THAT(failureOf([&] { loadStoreModel(file()); }), HasSubstr("byte 0: this is not a saved model"));
}

}  // namespace
