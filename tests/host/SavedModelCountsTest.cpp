// Counting a saved model without parsing it.
#include "host/SavedModelCounts.h"

#include <gtest/gtest.h>

#include "tests/support/TemporaryFile.h"

namespace {

TEST(SavedModelCounts, CountsObjectsByTheStartsOfTheirLines) {
  const TemporaryFile file(
      "{\"format\":\"kyr-store-model\",\"model\":\n"
      "{\"id\":1,\"class\":\"KYRStoreModel\",\"designPackages\":[\n"
      "{\"id\":2,\"class\":\"KYRDesignPackage\",\"elements\":[\n"
      "{\"id\":13,\"class\":\"KYRClass\",\"name\":\"A\",\"attributes\":[\n"
      "{\"id\":14,\"class\":\"KYRAttribute\"}],\"operations\":[\n"
      "{\"id\":15,\"class\":\"KYROperation\",\"arguments\":[\n"
      "{\"id\":16,\"class\":\"KYRArgument\"},\n"
      "{\"id\":17,\"class\":\"KYRArgument\"}]}]},\n"
      "{\"id\":18,\"class\":\"KYRClass\",\"name\":\"B\",\"classCategory\":9},\n"
      "{\"id\":19,\"class\":\"KYRClassType\"}],\"diagrams\":[\n"
      "{\"id\":20,\"class\":\"KYRClassDiagram\",\"name\":\"D\"}]}]}}\n");
  const auto counts = SavedModelCounts::read(file.path);
  ASSERT_TRUE(counts.has_value());
  EXPECT_EQ(counts->packages, 1U);
  EXPECT_EQ(counts->classes, 1U);
  EXPECT_EQ(counts->interfaces, 1U);
  EXPECT_EQ(counts->attributes, 1U);
  EXPECT_EQ(counts->operations, 1U);
  EXPECT_EQ(counts->arguments, 2U);
  EXPECT_EQ(counts->diagrams, 1U);
}

TEST(SavedModelCounts, IsNotMisledByTexts) {
  const TemporaryFile file(
      "{\"id\":1,\"class\":\"KYRClass\",\"name\":\"x,\\\"classCategory\\\":9,\\n{\\\"id\\\":2,"
      "\\\"class\\\":\\\"KYRClass\\\"\"}");
  const auto counts = SavedModelCounts::read(file.path);
  ASSERT_TRUE(counts.has_value());
  EXPECT_EQ(counts->classes, 1U);
  EXPECT_EQ(counts->interfaces, 0U);
}

TEST(SavedModelCounts, IsEmptyForAFileThatIsNotThere) {
  EXPECT_FALSE(SavedModelCounts::read("/tmp/kyr-no-such-file").has_value());
}

}  // namespace
