// SqliteSearch: every way of filling the table of words gives what the objects hold.
#include "repository/storage/SqliteSearch.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRNote.h"
#include "repository/storage/SqliteStoreModelWriter.h"
#include "tests/repository/ModelFolder.h"
#include "tests/repository/SqliteFile.h"

namespace {

constexpr const char* integrityCheck = "INSERT INTO search(search, rank) VALUES ('integrity-check', 1)";

// More than a block of the search holds.
constexpr int manyClasses = 20000;

std::unique_ptr<KYRStoreModel> modelOfClasses(int count, const std::string& description = {}) {
  auto model = std::make_unique<KYRStoreModel>();
  auto* origin = new KYRMetadataOrigin();
  model->addMetadataOrigin(origin);
  origin->filePath = "many";
  auto* package = new KYRDesignPackage();
  package->setName("P");
  model->addDesignPackage(package);
  for (int i = 0; i < count; ++i) {
    auto* made = new KYRClass();
    made->setName(KYRString(std::string_view("Class " + std::to_string(i))));
    made->description = KYRString(std::string_view(description));
    package->addNamespaceElementUniqueName(made, '/');
  }
  return model;
}

class SqliteSearches : public ModelFolder {
 protected:
  void save(const KYRStoreModel& model, const char* name = "m.sqlite") const {
    saveStoreModelFile(file(name), model, StoreModelFormat::sqlite);
  }
  std::string ask(const std::string& query, const char* name = "m.sqlite") const {
    return SqliteFile(path(name)).ask(query);
  }
};

TEST_F(SqliteSearches, SmallAndLargeModelsAreSearchedAlike) {
  for (const int count : {0, 1, 8191, 8192, manyClasses}) {
    save(*modelOfClasses(count));
    const std::string classes = std::to_string(count);
    EXPECT_EQ(ask("SELECT count(*) FROM search WHERE search MATCH 'class'"), classes);
    EXPECT_EQ(ask("SELECT count(*) FROM search"), ask("SELECT count(*) FROM objects"));
    EXPECT_EQ(ask(integrityCheck), "") << count;
    EXPECT_EQ(ask("PRAGMA integrity_check"), "ok");
    if (count == 0) continue;
    const std::string last = std::to_string(count - 1);
    EXPECT_EQ(ask("SELECT s.kind, c.name FROM search s JOIN classes c ON c.id = s.rowid"
                  " WHERE search MATCH '" +
                  last + "'"),
              "class|Class " + last);
  }
}

TEST_F(SqliteSearches, TheWordsOfALargeModelAreTheSameBytesEachTime) {
  const auto model = modelOfClasses(manyClasses);
  save(*model);
  save(*model, "again.sqlite");
  EXPECT_TRUE(content("m.sqlite") == content("again.sqlite"));
}

TEST_F(SqliteSearches, ALargeModelIsAddedToAndReplaced) {
  appendStoreModelFile(file("m.sqlite"), *modelOfClasses(manyClasses));
  appendStoreModelFile(file("m.sqlite"), KYRStoreModel());
  appendStoreModelFile(file("m.sqlite"), *modelOfClasses(manyClasses, "second"));
  EXPECT_EQ(ask("SELECT count(*) FROM search WHERE search MATCH 'class AND second'"), "20000");
  EXPECT_EQ(ask("SELECT count(*) FROM search WHERE search MATCH 'class'"), "20000");
  EXPECT_EQ(ask(integrityCheck), "");
  EXPECT_EQ(ask("PRAGMA integrity_check"), "ok");
}

// A trigger may look away from what is there already, and at what a row refers to.
TEST_F(SqliteSearches, TriggersOfTheUserSeeWhatIsAdded) {
  appendStoreModelFile(file("m.sqlite"), KYRStoreModel());
  EXPECT_EQ(ask("CREATE TABLE seen(word UNIQUE); CREATE TABLE orphans(id);"
                "CREATE TRIGGER added AFTER INSERT ON classes BEGIN"
                "  INSERT OR IGNORE INTO seen VALUES (new.visibility);"
                "  INSERT INTO orphans SELECT new.id WHERE new.package_id NOT IN (SELECT id FROM packages);"
                "END"),
            "");
  appendStoreModelFile(file("m.sqlite"), *modelOfClasses(1000));
  EXPECT_EQ(ask("SELECT count(*) FROM seen"), "1");
  EXPECT_EQ(ask("SELECT count(*) FROM orphans"), "0");
  EXPECT_EQ(ask("SELECT count(*) FROM classes"), "1000");
}

// Texts that had to be mended are no texts of the model, and go when there are many of them.
TEST_F(SqliteSearches, MendedTextsAreKeptUntilTheyAreIn) {
  const std::string damaged = std::string(1000, 'w') + " \xFF mended";
  save(*modelOfClasses(5000, damaged));
  EXPECT_EQ(ask("SELECT count(*) FROM search WHERE search MATCH 'mended'"), "5000");
  EXPECT_EQ(ask("SELECT count(*), count(DISTINCT description), max(length(description)) FROM classes"),
            "5000|1|1009");
  EXPECT_EQ(ask("SELECT count(*) FROM classes WHERE name <> 'Class ' || (id - 3)"), "0");
  EXPECT_EQ(ask(integrityCheck), "");
}

// The thread that gathers the words still reads them when the saving ends early.
TEST_F(SqliteSearches, MendedTextsLiveAsLongAsTheThreadThatReadsThem) {
  const auto model = modelOfClasses(9400, "a few damaged words \xFF");
  int failed = 0;
  for (int pages = 150; pages < 420; pages += 10) {
    const std::string place = path("full.sqlite");
    std::filesystem::remove(place);
    SqliteDatabase database(place, KYRString("full"));
    database.run("PRAGMA journal_mode = OFF; PRAGMA max_page_count = " + std::to_string(pages) + "; BEGIN");
    try {
      SqliteStoreModelWriter writer(database, KYRString("full"));
      writeStoreModel(*model, writer);
    } catch (const KYRException& error) {
      EXPECT_NE(error.getMessage().view().find("full"), std::string_view::npos);
      ++failed;
    }
  }
  EXPECT_GT(failed, 10);
}

TEST_F(SqliteSearches, ANoteIsFoundByItsText) {
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  auto* note = new KYRNote();
  note->noteText = "written";
  note->description = "unseen";
  package->addNote(note);
  save(model);
  EXPECT_EQ(ask("SELECT kind, description FROM search WHERE search MATCH 'written'"), "note|written");
  EXPECT_EQ(ask("SELECT count(*) FROM search WHERE search MATCH 'unseen'"), "0");
  EXPECT_EQ(ask(integrityCheck), "");
}

}  // namespace
