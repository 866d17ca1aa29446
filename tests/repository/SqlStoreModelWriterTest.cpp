#include "repository/storage/SqlStoreModelWriter.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "repository/model/KYRDesignPackage.h"
#include "tests/repository/FullModel.h"
#include "tests/repository/ModelFolder.h"

namespace {

using testing::HasSubstr;
using testing::Not;

class SqlStoreModel : public ModelFolder {
 protected:
  std::string saveAsSql(const KYRStoreModel& model) const {
    saveStoreModelFile(file("m.sql"), model, StoreModelFormat::sql);
    return content("m.sql");
  }
};

// `tests/repository/data/full-model.sql` is also what the test of PostgreSQL loads. KYR_UPDATE_GOLDEN in the
// environment writes it anew.
TEST_F(SqlStoreModel, TheStatementsAreThoseOfTheGoldenFile) {
  const std::string golden = KYR_SOURCE_DIR "/tests/repository/data/full-model.sql";
  if (std::getenv("KYR_UPDATE_GOLDEN") != nullptr) {
    saveStoreModelFile(KYRFile(golden.c_str()), *makeFullModel(), StoreModelFormat::sql);
  }
  EXPECT_EQ(saveAsSql(*makeFullModel()), read(golden));
}

TEST_F(SqlStoreModel, TextsCannotLeaveTheirQuotes) {
  KYRStoreModel model;
  model.setName("'); DROP TABLE models; --");
  model.description = "back\\slash\nand 'quotes'";
  const std::string sql = saveAsSql(model);
  EXPECT_THAT(sql, HasSubstr("'''); DROP TABLE models; --'"));
  EXPECT_THAT(sql, HasSubstr("'back\\slash\nand ''quotes'''"));
}

TEST_F(SqlStoreModel, AnIndexIsLeftOutWhereATextIsTooLongForIt) {
  KYRStoreModel model;
  auto* package = new KYRDesignPackage();
  model.addDesignPackage(package);
  package->setName(KYRString(std::string_view(std::string(2600, 'x'))));
  EXPECT_THAT(saveAsSql(model), HasSubstr("packages_by_name"));
  package->setName(KYRString(std::string_view(std::string(2601, 'x'))));
  const std::string sql = saveAsSql(model);
  EXPECT_THAT(sql, Not(HasSubstr("packages_by_name")));
  EXPECT_THAT(sql, HasSubstr("classes_by_name"));
}

TEST_F(SqlStoreModel, ManyRowsAreSeveralStatements) {
  KYRStoreModel model;
  constexpr int count = 3000;
  for (int i = 0; i < count; ++i) {
    auto* package = new KYRDesignPackage();
    package->setName("P");
    model.addDesignPackage(package);
  }
  const std::string sql = saveAsSql(model);
  std::size_t statements = 0;
  for (std::size_t at = 0; (at = sql.find("INSERT INTO packages ", at)) != std::string::npos; ++at)
    ++statements;
  EXPECT_GT(statements, 1U);
  EXPECT_LT(statements, 20U);
  EXPECT_THAT(sql, HasSubstr("UPDATE models SET last_id = 3001;\n"));
}

}  // namespace
