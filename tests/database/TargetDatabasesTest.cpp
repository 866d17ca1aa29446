// The table of known database systems, row by row.
#include "database/TargetDatabases.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

TEST(TargetDatabases, EveryRowIsAsTheToolsWriteIt) {
  struct Row {
    const char* store;
    int version;
    const char* ea;
    const char* magicDraw;
  };
  const std::vector<Row> expected = {
      {"DB2_UDB", 1, "DB2", "DB2"},
      {"INTERBASE", 1, "Firebird", ""},
      {"INFORMIX", 1, "Informix", ""},
      {"INGRES", 1, "Ingres", ""},
      {"INTERBASE", 1, "InterBase", ""},
      {"ACCESS", 1, "", "MSAccess"},
      {"ACCESS", 11, "MSAccess", ""},
      {"ACCESS", 12, "MSAccess 2007", ""},
      {"MYSQL", 1, "", "MySQL"},
      {"MYSQL", 5, "MySql", ""},
      {"ORACLE", 1, "", "Oracle Extensions Profile"},
      {"ORACLE", 12, "Oracle", ""},
      {"POSTGRESQL", 1, "PostgreSQL", "PostgreSQL"},
      {"MICROSOFT_SQL_SERVER", 1, "", "MSServer"},
      {"MICROSOFT_SQL_SERVER", 7, "SQLServer7", ""},
      {"MICROSOFT_SQL_SERVER", 8, "SQL Server 2000", ""},
      {"MICROSOFT_SQL_SERVER", 9, "SQL Server 2005", ""},
      {"MICROSOFT_SQL_SERVER", 10, "SQL Server 2008", ""},
      {"MICROSOFT_SQL_SERVER", 11, "SQL Server 2012", ""},
      {"SYBASE_AS_ANYWHERE", 1, "Sybase", "Sybase"},
      {"SYBASE_SQL_SERVER", 1, "Sybase ASE", ""},
      {"DERBY", 1, "", "Cloudscape"},
  };
  const targetDatabaseInfo* row = targetDatabases;
  for (const Row& wanted : expected) {
    ASSERT_NE(row->eaName, nullptr) << wanted.store;
    EXPECT_EQ(std::string(row->getDataStore().view()), wanted.store);
    EXPECT_EQ(row->getMajorVersion(), wanted.version) << wanted.store;
    EXPECT_EQ(row->getMinorVersion(), 0);
    EXPECT_EQ(row->getReleaseVersion(), 0);
    EXPECT_EQ(std::string(row->eaName), wanted.ea);
    EXPECT_EQ(std::string(row->magicDrawName), wanted.magicDraw);
    ++row;
  }
  EXPECT_EQ(row->eaName, nullptr);
  EXPECT_EQ(row->magicDrawName, nullptr);
  EXPECT_TRUE(row->getDataStore().isEmpty());
  EXPECT_EQ(row->getMajorVersion(), 0);
}
