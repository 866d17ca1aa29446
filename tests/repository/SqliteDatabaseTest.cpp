#include "repository/storage/SqliteDatabase.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "tests/repository/ModelFolder.h"

namespace {

using testing::HasSubstr;

class SqliteDatabases : public ModelFolder {
 protected:
  std::string shown_ = "shown.sqlite";
  KYRString shown() const { return KYRString(std::string_view(shown_)); }
};

TEST_F(SqliteDatabases, ValuesGoInAndOut) {
  SqliteDatabase database(path("d"), shown());
  database.run("CREATE TABLE t (n INTEGER, s TEXT); INSERT INTO t VALUES (1, 'one')");
  {
    SqliteStatement insert(database, "INSERT INTO t VALUES (?, ?)");
    insert.bind(1, std::int64_t{1} << 40);
    insert.bind(2, std::string("passing"), true);
    EXPECT_FALSE(insert.step());
    insert.reset();
    insert.bind(2, std::string_view(), false);
    EXPECT_FALSE(insert.step());
  }
  EXPECT_EQ(database.getNumber("SELECT max(n) FROM t"), std::int64_t{1} << 40);
  EXPECT_EQ(database.getNumber("SELECT count(*) FROM t WHERE s = 'passing'"), 1);
  EXPECT_EQ(database.getNumber("SELECT count(*) FROM t WHERE s = ''"), 1);
  EXPECT_EQ(database.getNumber("SELECT n FROM t WHERE n = 5"), 0);
  database.close();
}

TEST_F(SqliteDatabases, WhatIsRefusedNamesTheFileAndTheReason) {
  EXPECT_EQ(failureOf([this] { SqliteDatabase(folder_ + "/no/d", shown()); }),
            "[KYRSTD_F0120] The file 'shown.sqlite' cannot be saved: unable to open database file");
  SqliteDatabase database(path("d"), shown());
  EXPECT_THAT(failureOf([&] { database.run("SELECT * FROM nowhere"); }), HasSubstr("no such table: nowhere"));
  EXPECT_THAT(failureOf([&] { SqliteStatement(database, "nonsense"); }), HasSubstr("syntax error"));
  database.run("CREATE TABLE t (n INTEGER UNIQUE)");
  SqliteStatement insert(database, "INSERT INTO t VALUES (?)");
  insert.bind(1, 7);
  insert.step();
  insert.reset();
  EXPECT_THAT(failureOf([&] { insert.step(); }), HasSubstr("UNIQUE constraint failed: t.n"));
  EXPECT_THAT(failureOf([&] { insert.bind(2, 7); }), HasSubstr("column index out of range"));
}

TEST_F(SqliteDatabases, WhatWasNotCommittedIsTakenBack) {
  {
    SqliteDatabase database(path("d"), shown());
    database.run("CREATE TABLE t (n INTEGER)");
    database.run("BEGIN; INSERT INTO t VALUES (1)");
  }
  EXPECT_EQ(SqliteDatabase(path("d"), shown()).getNumber("SELECT count(*) FROM t"), 0);
}

TEST_F(SqliteDatabases, ANameThatSqliteKnowsIsAFileAllTheSame) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_);
  SqliteDatabase(":memory:", shown()).run("CREATE TABLE t (n INTEGER)");
  std::filesystem::current_path(before);
  EXPECT_TRUE(std::filesystem::exists(path(":memory:")));
}

TEST_F(SqliteDatabases, ARemovedFileIsNoticed) {
  SqliteDatabase database(path("d"), shown());
  database.run("CREATE TABLE t (n INTEGER)");
  EXPECT_FALSE(database.hasMoved());
  std::filesystem::remove(path("d"));
  EXPECT_TRUE(database.hasMoved());
}

}  // namespace
