#include "repository/storage/SqlRowWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRNote.h"

namespace {

using testing::ElementsAre;

// Each row as "table column=value ...", without what is at its default.
class Rows : public SqlRowWriter {
 public:
  explicit Rows(std::int64_t firstId = 1) { setFirstId(firstId); }
  std::vector<std::string> lines;
  bool isAnyTextPassing = false;
  using SqlRowWriter::getLastId;

 protected:
  void beginRow(const SqlTable& table) override {
    EXPECT_EQ(open_.count(&table), 0U) << table.name;
    open_[&table].assign(table.columns.size(), "");
  }
  void putNumber(const SqlTable& table, std::size_t column, std::int64_t value) override {
    if (value != 0) open_.at(&table).at(column) = std::to_string(value);
  }
  void putText(const SqlTable& table, std::size_t column, std::string_view value, bool isPassing) override {
    isAnyTextPassing |= isPassing;
    open_.at(&table).at(column) = "'" + std::string(value) + "'";
  }
  void endRow(const SqlTable& table) override {
    std::string line(table.name);
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      const std::string& value = open_.at(&table)[i];
      if (!value.empty()) line += " " + table.columns[i].name + "=" + value;
    }
    lines.push_back(line);
    open_.erase(&table);
  }

 private:
  std::map<const SqlTable*, std::vector<std::string>> open_;
};

void fill(KYRStoreModel& model) {
  model.setName("M");
  auto* origin = new KYRMetadataOrigin();
  origin->filePath = "a.xmi";
  origin->originCode = 346;
  model.addMetadataOrigin(origin);
  auto* package = new KYRDesignPackage();
  package->setName("P");
  model.addDesignPackage(package);
  auto* made = new KYRClass();
  made->setName("C");
  package->addNamespaceElementUniqueName(made, '/');
  auto* attribute = new KYRAttribute();
  attribute->isOptional = true;
  made->addFeatureUniqueName(attribute, '/');
  auto* note = new KYRNote();
  note->noteText = "N";
  made->addNote(note);
  auto* key = new KYRCandidateKey();
  made->addPrimaryCandidateKey(key);
  key->addAttribute(attribute);
}

TEST(SqlRowWriter, EachObjectIsARowBehindItsOwnersRow) {
  KYRStoreModel model;
  fill(model);
  Rows rows;
  writeStoreModel(model, rows);
  EXPECT_THAT(rows.lines, ElementsAre("models id=1 origin_path='a.xmi' name='M'",
                                      "origins model_id=1 origin_code=346 file_path='a.xmi'",
                                      "packages id=2 model_id=1 kind='package' name='P'",
                                      "classes id=3 model_id=1 package_id=2 name='C' primary_key_id=6",
                                      "notes id=4 model_id=1 object_id=3 note_text='N'",
                                      "attributes id=5 model_id=1 class_id=3 is_optional=1",
                                      "key_attributes key_id=6 attribute_id=5",
                                      "keys id=6 model_id=1 kind='candidate key' class_id=3"));
  EXPECT_EQ(rows.getLastId(), 6);
}

TEST(SqlRowWriter, AllIdsFollowTheFirst) {
  KYRStoreModel model;
  fill(model);
  Rows rows(101);
  writeStoreModel(model, rows);
  EXPECT_EQ(rows.lines[3], "classes id=103 model_id=101 package_id=102 name='C' primary_key_id=106");
  EXPECT_EQ(rows.lines[6], "key_attributes key_id=106 attribute_id=105");
  EXPECT_EQ(rows.getLastId(), 106);
}

TEST(SqlRowWriter, TextsAreBorrowedUnlessTheyMustBeRepaired) {
  KYRStoreModel model;
  model.setName("plain \"and\" \n escaped");
  Rows fine;
  writeStoreModel(model, fine);
  EXPECT_FALSE(fine.isAnyTextPassing);
  model.setName("\xFF");
  Rows damaged;
  writeStoreModel(model, damaged);
  EXPECT_TRUE(damaged.isAnyTextPassing);
  EXPECT_EQ(damaged.lines[0], "models id=1 name='\xEF\xBF\xBD'");
}

TEST(SqlRowWriter, ATextOfADatabaseIsUtf8WithoutZeros) {
  struct Case {
    std::string_view text;
    const char* expected;
  };
  const Case cases[] = {
      {"", ""},
      {"caf\xC3\xA9", "caf\xC3\xA9"},
      {{"a\0b\0", 4},
       "a\xEF\xBF\xBD"
       "b\xEF\xBF\xBD"},
      {{"\xC3\0", 2}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const Case& test : cases) EXPECT_EQ(sqlText(test.text), test.expected);
}

}  // namespace
