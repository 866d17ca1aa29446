#include "repository/datatypes/KYRDataStoreVersion.h"

#include <gtest/gtest.h>

#include <limits>

#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/model/KYRStoreModel.h"

namespace {

TEST(KYRDataStoreVersion, KeepsTheStoreAndTheThreeNumbers) {
  const KYRDataStoreVersion version(KYRDataTypeConstants::DATASTORE_ORACLE, 12, 1, 3);
  EXPECT_STREQ(version.getDataStore().getCharacters(), "ORACLE");
  EXPECT_EQ(version.getMajorVersion(), 12);
  EXPECT_EQ(version.getMinorVersion(), 1);
  EXPECT_EQ(version.getReleaseVersion(), 3);
}

TEST(KYRDataStoreVersion, WritesItsNumbersWithDots) {
  EXPECT_STREQ(KYRDataStoreVersion("ORACLE", 12, 0, 0).getVersionText().getCharacters(), "12.0.0");
  EXPECT_STREQ(KYRDataStoreVersion("", 0, 0, 0).getVersionText().getCharacters(), "0.0.0");
  constexpr int highest = std::numeric_limits<int>::max();
  EXPECT_STREQ(KYRDataStoreVersion("MYSQL", highest, -1, 7).getVersionText().getCharacters(),
               "2147483647.-1.7");
}

TEST(KYRDataStoreVersion, ACopyOutlivesItsOriginal) {
  auto* original = new KYRDataStoreVersion("A_DATA_STORE_WITH_A_LONG_NAME", 5, 0, 0);
  const KYRDataStoreVersion copy(*original);
  delete original;
  EXPECT_STREQ(copy.getDataStore().getCharacters(), "A_DATA_STORE_WITH_A_LONG_NAME");
  EXPECT_EQ(copy.getMajorVersion(), 5);
}

TEST(KYRDataStoreVersion, AModelTakesTheStoreAndTheVersionText) {
  KYRStoreModel model;
  EXPECT_TRUE(model.dataStore.isEmpty());
  setDataStore(model, KYRDataStoreVersion(KYRDataTypeConstants::DATASTORE_MICROSOFT_SQL_SERVER, 11, 0, 0));
  EXPECT_STREQ(model.dataStore.getCharacters(), "MICROSOFT_SQL_SERVER");
  EXPECT_STREQ(model.dataStoreVersion.getCharacters(), "11.0.0");
  setDataStore(model, KYRDataStoreVersion(KYRDataTypeConstants::DATASTORE_DERBY, 1, 0, 0));
  EXPECT_STREQ(model.dataStore.getCharacters(), "DERBY");
  EXPECT_STREQ(model.dataStoreVersion.getCharacters(), "1.0.0");
}

}  // namespace
