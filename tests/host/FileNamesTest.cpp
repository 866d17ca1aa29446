// Where the model goes, and which paths are one file.
#include "host/FileNames.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFile.h"

namespace {

TEST(FileNames, TheOutputIsNamedAfterTheInput) {
  struct Case {
    const char* input;
    const char* output;
    const char* expected;
  };
  const Case cases[] = {
      {"shop.xmi", "", "shop.json"},
      {"models/shop.xmi", "", "shop.json"},
      {"/models/shop.v2.uml", "", "shop.v2.json"},
      {"shop", "", "shop.json"},
      {".shop", "", ".shop.json"},
      {"shop.xmi", "any.name", "any.name"},
      {"shop.xmi", "no/such/folder/", "no/such/folder/"},
      {"models/shop.xmi", "/tmp", "/tmp/shop.json"},
      {"models/shop.xmi", "/tmp/", "/tmp/shop.json"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(FileNames::outputOf(test.input, test.output, StoreModelFormat::json), test.expected);
  }
  EXPECT_EQ(FileNames::outputOf("shop.xmi", "", StoreModelFormat::sqlite), "shop.sqlite");
}

TEST(FileNames, APageIsNamedAfterItsModel) {
  EXPECT_EQ(FileNames::pageOf("models/shop.json", ""), "shop.html");
  EXPECT_EQ(FileNames::pageOf("models/shop.json", "a/page.htm"), "a/page.htm");
  EXPECT_EQ(FileNames::pageOf("shop.json", "/tmp"), "/tmp/shop.html");
}

TEST(FileNames, TheExtensionOfTheOutputTellsTheFormat) {
  EXPECT_EQ(FileNames::formatOf("shop.sqlite"), StoreModelFormat::sqlite);
  EXPECT_EQ(FileNames::formatOf("a.b/shop.sqlite3"), StoreModelFormat::sqlite);
  EXPECT_EQ(FileNames::formatOf("shop.sql"), StoreModelFormat::sql);
  for (const char* name :
       {"", "shop", "shop.json", "shop.xyz", "shop.", "sqlite", ".sqlite", "a.sqlite/shop"}) {
    EXPECT_EQ(FileNames::formatOf(name), StoreModelFormat::json) << name;
  }
}

TEST(FileNames, AFolderOfThatNameIsNoFile) {
  const TemporaryFile place("");
  const std::string folder = place.path + ".sqlite";
  ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
  EXPECT_EQ(FileNames::formatOf(folder), StoreModelFormat::json);
  EXPECT_EQ(rmdir(folder.c_str()), 0);
}

TEST(FileNames, TheFolderThatIsMissingIsNamed) {
  EXPECT_EQ(FileNames::missingFolderOf("shop.json"), "");
  EXPECT_EQ(FileNames::missingFolderOf("/tmp/shop.json"), "");
  EXPECT_EQ(FileNames::missingFolderOf("/shop.json"), "");
  EXPECT_EQ(FileNames::missingFolderOf("no/such/"), "no/such/");
  EXPECT_EQ(FileNames::missingFolderOf("no/such/shop.json"), "no/such/");
}

TEST(FileNames, OneFileUnderTwoNamesIsTheSame) {
  const TemporaryFile file("");
  const std::string link = file.path + ".link";
  ASSERT_EQ(symlink(file.path.c_str(), link.c_str()), 0);
  EXPECT_TRUE(FileNames::isSame(file.path, file.path));
  EXPECT_TRUE(FileNames::isSame(file.path, "/tmp/../" + file.path));
  EXPECT_TRUE(FileNames::isSame(file.path, link));
  EXPECT_FALSE(FileNames::isSame(file.path, file.path + ".other"));
  unlink(link.c_str());
}

TEST(FileNames, AllPathsOfAFileHaveOneIdentity) {
  const TemporaryFile file("");
  EXPECT_EQ(FileNames::identityOf(file.path), FileNames::identityOf("/tmp/../" + file.path));
  EXPECT_NE(FileNames::identityOf(file.path), FileNames::identityOf(file.path + ".other"));
  EXPECT_EQ(FileNames::identityOf("/tmp/kyr-none"), FileNames::identityOf("/tmp/./kyr-none"));
}

TEST(FileNames, FilesThatAreNotThereYetAreComparedByTheirPlace) {
  EXPECT_TRUE(FileNames::isSame("/tmp/kyr-none.json", "/tmp/./kyr-none.json"));
  EXPECT_FALSE(FileNames::isSame("/tmp/kyr-none.json", "/tmp/kyr-nil.json"));
}

}  // namespace
