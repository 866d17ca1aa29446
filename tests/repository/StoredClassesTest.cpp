#include "repository/storage/StoredClasses.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "repository/model/KYRElementType.h"
#include "repository/storage/StoreModelWriter.h"
#include "repository/storage/StoredOrigin.h"
#include "tests/repository/FullModel.h"

namespace {

using Members = std::map<std::string, std::set<std::string>>;

// What the tables know, with the members that stand outside of them.
Members membersOfTables() {
  Members members;
  for (const StoredClass& stored : StoredClasses::getAll()) {
    std::set<std::string>& names = members[std::string(stored.name)];
    for (const auto* rows : {&stored.values, &stored.lists}) {
      for (const StoredField* row : *rows) EXPECT_TRUE(names.emplace(row->name).second) << row->name;
    }
    for (int type = stored.elementType; type != 0; type = KYRElementType::getBase(type)) {
      if (type == KYRElementType::element) names.insert("propertyValues");
    }
  }
  return members;
}

// A writer of another format: it only notes what it is told.
class Recorder : public StoreModelWriter {
 public:
  void beginDocument(const KYRStoreModel&) override {}
  void endDocument() override { isComplete = classes_.empty(); }
  void beginObject(unsigned int id, std::string_view className) override {
    EXPECT_EQ(id, ++lastId_);
    classes_.emplace_back(className);
    members[classes_.back()];
  }
  void endObject() override { classes_.pop_back(); }
  void beginList(std::string_view name) override { note(name); }
  void endList() override {}
  void text(std::string_view name, std::string_view) override { note(name); }
  void number(std::string_view name, std::int64_t) override { note(name); }
  void flag(std::string_view name) override { note(name); }
  void reference(std::string_view name, unsigned int) override { note(name); }
  void beginReferences(std::string_view name) override { note(name); }
  void reference(unsigned int) override {}
  void endReferences() override {}
  void beginPropertyValues() override { note("propertyValues"); }
  void propertyValue(unsigned int, std::string_view) override {}
  void endPropertyValues() override {}

  Members members;
  bool isComplete = false;

 private:
  void note(std::string_view name) { members[classes_.back()].emplace(name); }
  std::vector<std::string> classes_;
  unsigned int lastId_ = 0;
};

TEST(StoredClasses, AFullModelUsesEveryMemberOfEveryClass) {
  Recorder recorder;
  writeStoreModel(*makeFullModel(), recorder);
  EXPECT_TRUE(recorder.isComplete);
  const Members known = membersOfTables();
  for (const auto& [name, members] : known) {
    ASSERT_EQ(recorder.members.count(name), 1U) << name;
    for (const std::string& member : members) {
      EXPECT_EQ(recorder.members[name].count(member), 1U) << name << " " << member;
    }
  }
}

TEST(StoredClasses, AreFoundByNumberAndName) {
  for (const StoredClass& stored : StoredClasses::getAll()) {
    EXPECT_EQ(&StoredClasses::get(stored.elementType), &stored);
    EXPECT_EQ(StoredClasses::find(stored.name), &stored);
  }
  EXPECT_EQ(StoredClasses::find("KYRType"), nullptr);
  EXPECT_EQ(StoredClasses::find(""), nullptr);
}

// The schema spells out every class; this holds it and the tables together.
TEST(StoredClasses, TheJsonSchemaHasExactlyTheirMembers) {
  std::ifstream in(KYR_SOURCE_DIR "/docs/saved-model.schema.json");
  std::stringstream text;
  text << in.rdbuf();
  rapidjson::Document schema;
  ASSERT_FALSE(schema.Parse(text.str().c_str()).HasParseError());
  const auto& definitions = schema["$defs"];
  const auto namesIn = [&](const char* definition) {
    std::set<std::string> names;
    for (const auto& member : definitions[definition]["properties"].GetObject()) {
      names.insert(member.name.GetString());
    }
    EXPECT_FALSE(definitions[definition]["additionalProperties"].GetBool()) << definition;
    return names;
  };
  for (auto [name, members] : membersOfTables()) {
    ASSERT_TRUE(definitions.HasMember(name.c_str())) << name;
    members.insert({"id", "class"});
    EXPECT_EQ(namesIn(name.c_str()), members) << name;
  }
  std::set<std::string> origin;
  for (const StoredOriginField& field : storedOriginFields) origin.emplace(field.name);
  EXPECT_EQ(namesIn("origin"), origin);
}

}  // namespace
