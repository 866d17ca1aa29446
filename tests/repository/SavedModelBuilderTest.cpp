#include "repository/storage/SavedModelBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "repository/model/KYRDerivedType.h"
#include "repository/storage/JsonStoreModelWriter.h"
#include "tests/repository/FullModel.h"
#include "tests/repository/ModelFolder.h"

namespace {

using testing::HasSubstr;

class SavedModels : public ModelFolder {};

TEST_F(SavedModels, AFileCutAnywhereIsRefused) {
  const std::string whole = save(*makeFullModel());
  for (std::size_t length = 0; length + 1 < whole.size(); length += 37) {
    write(whole.substr(0, length));
    EXPECT_THROW(loadStoreModel(file()), KYRException) << "cut at " << length;
  }
}

TEST_F(SavedModels, BytesBehindTheDocumentAreRefused) {
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

TEST_F(SavedModels, DamagedDocumentsAreRefusedWithTheReason) {
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

TEST_F(SavedModels, RefusalsNameFileAndByte) {
  write("{\"format\":\"kyr-store-model\",\"version\":7}");
  EXPECT_EQ(failureOf([&] { loadStoreModel(file()); }),
            "[KYRSTD_F0133] File '" + path() + "', byte 39: the version 7 of the format is not known");
}

// Keeps what is written in memory.
class MemorySink : public BlockSink {
 public:
  void write(std::string_view block) override { text += block; }
  std::string text;
};

std::string saveToMemory(const KYRStoreModel& model) {
  MemorySink sink;
  JsonStoreModelWriter writer(sink);
  writeStoreModel(model, writer);
  return sink.text;
}

TEST_F(SavedModels, AMutatedDocumentIsRefusedOrComesBackAsItIsSaved) {
  const std::string whole = saveToMemory(*makeFullModel());
  const std::string bytes = "0123456789\"{}[]:,-.eE\\tfnKYR\xC3\n";
  std::mt19937 random(2026);
  int loaded = 0;
  for (int i = 0; i < 3000; ++i) {
    std::string text = whole;
    const std::size_t at = random() % text.size();
    switch (random() % 4) {
      case 0:
        text.erase(at, 1 + random() % 20);
        break;
      case 1:
        text.insert(at, 1, bytes[random() % bytes.size()]);
        break;
      case 2:
        text.insert(at, text.substr(random() % text.size(), random() % 200));
        break;
      default:
        text[at] = bytes[random() % bytes.size()];
    }
    write(text);
    try {
      const std::string saved = saveToMemory(*loadStoreModel(file()));
      ++loaded;
      write(saved);
      ASSERT_EQ(saveToMemory(*loadStoreModel(file())), saved) << "mutation " << i;
    } catch (const KYRException&) {  // refused, as most are
    }
  }
  EXPECT_GT(loaded, 100);
}

TEST_F(SavedModels, IdsNeedNotBeInOrder) {
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

TEST_F(SavedModels, NestingWithoutMeaningIsRefusedAtOnce) {
  write(std::string(1000000, '['));
  EXPECT_THAT(failureOf([&] { loadStoreModel(file()); }), HasSubstr("byte 0: this is not a saved model"));
}

}  // namespace
