// SqliteRowFeed: what statements read is what the blocks hold.
#include "repository/storage/SqliteRowFeed.h"

#include <gmock/gmock.h>

#include "tests/repository/ModelFolder.h"

namespace {

using testing::HasSubstr;

SqliteCell number(std::int64_t value) { return SqliteCell(value); }
SqliteCell text(std::string_view value) { return SqliteCell(value); }

class SqliteRowFeeds : public ModelFolder {
 protected:
  SqliteDatabase database_{path("d"), KYRString("shown.sqlite")};
};

TEST_F(SqliteRowFeeds, CellsAreNumbersTextsOrNull) {
  EXPECT_TRUE(SqliteCell().isNull());
  EXPECT_FALSE(SqliteCell().isNumber());
  EXPECT_EQ(SqliteCell().getText(), "");
  EXPECT_TRUE(number(-7).isNumber());
  EXPECT_EQ(number(-7).getNumber(), -7);
  EXPECT_EQ(number(-7).getText(), "");
  EXPECT_EQ(text("seven").getText(), "seven");
  EXPECT_FALSE(text("seven").isNumber());
  EXPECT_FALSE(text({}).isNull());
  EXPECT_FALSE(text({}).isNumber());
}

TEST_F(SqliteRowFeeds, ABlockGoesInByOneStatement) {
  database_.run("CREATE TABLE t (n INTEGER PRIMARY KEY, s TEXT)");
  SqliteRowFeed feed(database_, 3);
  SqliteStatement insert(database_, "INSERT INTO t " + SqliteRowFeed::select(2));
  SqliteRowBlock block(2);
  const SqliteCell rows[][2] = {
      {number(1), text("one")}, {number(std::int64_t{1} << 40), SqliteCell()}, {number(3), text({})}};
  for (const auto& row : rows) block.add(row);
  EXPECT_EQ(block.getCount(), 3U);
  feed.run(insert, block);
  block.clear();
  feed.run(insert, block);
  EXPECT_EQ(database_.getNumber("SELECT count(*) FROM t"), 3);
  EXPECT_EQ(database_.getNumber("SELECT n FROM t WHERE s = 'one'"), 1);
  EXPECT_EQ(database_.getNumber("SELECT n FROM t WHERE s IS NULL"), std::int64_t{1} << 40);
  EXPECT_EQ(database_.getNumber("SELECT n FROM t WHERE s = ''"), 3);
  block.add(rows[0]);
  EXPECT_THAT(failureOf([&] { feed.run(insert, block); }), HasSubstr("UNIQUE constraint failed: t.n"));
}

TEST_F(SqliteRowFeeds, LeaveNothingInTheDatabase) {
  {
    const SqliteRowFeed feed(database_, 2);
    EXPECT_EQ(database_.getNumber("SELECT count(*) FROM sqlite_master"), 0);
    EXPECT_THAT(failureOf([this] { SqliteStatement(database_, SqliteRowFeed::select(3)); }),
                HasSubstr("no such column: c2"));
  }
  EXPECT_THAT(failureOf([this] { SqliteStatement(database_, SqliteRowFeed::select(1)); }),
              HasSubstr("no such table"));
}

}  // namespace
