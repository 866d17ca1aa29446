// The list of stores, and a comparison of their tables with each other: a name that means one thing in
// one dialect and another thing elsewhere is rare enough to be written down here.
#include "repository/datatypes/KYRDataStores.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "repository/datatypes/KYRDataTypeConstants.h"

namespace {

using Constants = KYRDataTypeConstants;

std::string folded(const KYRString& text) {
  std::string result;
  for (const char character : text.view()) result += foldCase(character);
  return result;
}

TEST(KYRDataStores, ListsEveryStoreOnceWithTheUmlOnesLast) {
  std::vector<std::string> names;
  for (const KYRKnownDataStore& store : getKnownDataStores()) names.emplace_back(store.name);
  EXPECT_EQ(names, (std::vector<std::string>{"ACCESS", "DB2_UDB", "DERBY", "INFORMIX", "INGRES", "INTERBASE",
                                             "MICROSOFT_SQL_SERVER", "MYSQL", "ORACLE", "POSTGRESQL",
                                             "SYBASE_AS_ANYWHERE", "SYBASE_SQL_SERVER", "OMG_UML_OMG_UML",
                                             "OMG_UML_OMG_UML_SEA"}));
}

TEST(KYRDataStores, FindsAStoreByItsNameWithoutRegardToCase) {
  for (const char* name : {"ORACLE", "oracle", "Oracle"}) {
    const KYRKnownDataStore* store = findKnownDataStore(name);
    ASSERT_NE(store, nullptr) << name;
    EXPECT_STREQ(store->name, Constants::DATASTORE_ORACLE);
    EXPECT_STREQ(store->title, "Oracle Database");
  }
  EXPECT_EQ(findKnownDataStore(""), nullptr);
  EXPECT_EQ(findKnownDataStore("ORACLE "), nullptr);
  EXPECT_EQ(findKnownDataStore("DATASTORE_ORACLE"), nullptr);
}

TEST(KYRDataStores, BothUmlStoresShareOneTableAndNoOtherTwoDo) {
  std::map<const KYRDataTypeTable*, std::set<std::string>> stores;
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    EXPECT_EQ(&store.getTable(), &store.getTable()) << store.name << ": made once";
    stores[&store.getTable()].insert(store.name);
  }
  EXPECT_EQ(stores.size(), 13U);
  EXPECT_EQ(stores[&findKnownDataStore("OMG_UML_OMG_UML")->getTable()],
            (std::set<std::string>{"OMG_UML_OMG_UML", "OMG_UML_OMG_UML_SEA"}));
}

TEST(KYRDataStores, ANameMeansTheSameEverywhereButForTheKnownHomonyms) {
  // "*" stands for all the other stores that have the name.
  const std::map<std::string, std::map<std::string, std::string>> homonyms = {
      {"anytype", {{"*", "SQL_XML"}, {"ORACLE", "SQL_OTHER"}}},
      // Bits in a row, not one of them.
      {"bit", {{"*", "SQL_BIT"}, {"DERBY", "SQL_BINARY"}}},
      {"byte", {{"*", "SQL_TINYINT"}, {"INGRES", "SQL_BINARY"}, {"INFORMIX", "SQL_LONGVARBINARY"}}},
      // With the time of day in it.
      {"date", {{"*", "SQL_DATE"}, {"ACCESS", "SQL_TIMESTAMP"}, {"ORACLE", "SQL_TIMESTAMP"}}},
      {"time", {{"*", "SQL_TIME"}, {"ACCESS", "SQL_TIMESTAMP"}}},
      // Eight bytes in databases, eight bits in languages.
      {"int8",
       {{"*", "SQL_BIGINT"}, {"OMG_UML_OMG_UML", "SQL_TINYINT"}, {"OMG_UML_OMG_UML_SEA", "SQL_TINYINT"}}},
      {"long",
       {{"*", "SQL_BIGINT"},
        {"ACCESS", "SQL_INTEGER"},
        {"MYSQL", "SQL_LONGVARCHAR"},
        {"ORACLE", "SQL_LONGVARCHAR"}}},
      {"number", {{"*", "SQL_NUMERIC"}, {"ACCESS", "SQL_DOUBLE"}}},
      {"real", {{"*", "SQL_REAL"}, {"MYSQL", "SQL_DOUBLE"}}},
      {"serial", {{"*", "SQL_INTEGER"}, {"MYSQL", "SQL_BIGINT"}}},
      // A collection, and some of a list of texts.
      {"set", {{"INFORMIX", "SQL_ARRAY"}, {"MYSQL", "SQL_VARCHAR"}}},
      {"sysname", {{"*", "SQL_VARCHAR"}, {"MICROSOFT_SQL_SERVER", "SQL_WVARCHAR"}}},
      {"text", {{"*", "SQL_LONGVARCHAR"}, {"ACCESS", "SQL_VARCHAR"}, {"INGRES", "SQL_VARCHAR"}}},
      // A row version, not a time.
      {"timestamp",
       {{"*", "SQL_TIMESTAMP"},
        {"MICROSOFT_SQL_SERVER", "SQL_BINARY"},
        {"SYBASE_SQL_SERVER", "SQL_VARBINARY"}}},
  };
  std::map<std::string, std::map<std::string, std::string>> meanings;  // name, store, text
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    for (const auto& entry : store.getTable().getEntries()) {
      meanings[folded(entry.name)][store.name] = getDataTypeText(entry.code).getCharacters();
    }
  }
  for (const auto& [name, byStore] : meanings) {
    const auto homonym = homonyms.find(name);
    for (const auto& [store, text] : byStore) {
      std::string expected = byStore.begin()->second;
      if (homonym != homonyms.end()) {
        const auto own = homonym->second.find(store);
        expected = own == homonym->second.end() ? homonym->second.at("*") : own->second;
      }
      EXPECT_EQ(text, expected) << name << " of " << store;
    }
  }
}

}  // namespace
