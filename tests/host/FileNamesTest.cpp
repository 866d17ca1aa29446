// Where the model goes, and which paths are one file.
#include "host/FileNames.h"

#include <gtest/gtest.h>

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
  for (const Case& test : cases) EXPECT_EQ(FileNames::outputOf(test.input, test.output), test.expected);
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

TEST(FileNames, FilesThatAreNotThereYetAreComparedByTheirPlace) {
  EXPECT_TRUE(FileNames::isSame("/tmp/kyr-none.json", "/tmp/./kyr-none.json"));
  EXPECT_FALSE(FileNames::isSame("/tmp/kyr-none.json", "/tmp/kyr-nil.json"));
}

}  // namespace
