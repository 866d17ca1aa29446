// Options made from their definitions.
#include "repository/plugin/KYRBridgeOptionLiteral.h"

#include <gtest/gtest.h>

namespace {

const KYRTextLiteral defaultText("X_DEFAULT", "usual");

}  // namespace

TEST(KYRBridgeOptionLiteral, AnOptionStartsAtItsDefault) {
  const KYRBridgeOptionLiteral literal("X", "An X", OptionType::text, "What X is.", nullptr, &defaultText);
  const auto option = literal.generateOption(true);
  EXPECT_STREQ(option->getIdentifier().getCharacters(), "X");
  EXPECT_STREQ(option->getDisplayName().getCharacters(), "An X");
  EXPECT_STREQ(option->getDescription().getCharacters(), "What X is.");
  EXPECT_STREQ(option->getValue().getCharacters(), "usual");
  EXPECT_TRUE(option->isMandatory());
  EXPECT_FALSE(literal.generateOption(false)->isMandatory());
}

TEST(KYRBridgeOptionLiteral, WithoutADefaultTheValueIsEmpty) {
  const KYRBridgeOptionLiteral literal("X", "", OptionType::text, "", nullptr, nullptr);
  EXPECT_TRUE(literal.generateOption(false)->getValue().isEmpty());
}

TEST(KYRBridgeOptionLiteral, AFileOptionBearsItsExtensionsAndMode) {
  const KYRBridgeOptionLiteral literal("X", "", OptionType::file, "", nullptr, nullptr);
  const char* const extensions[] = {"xml", "xmi", nullptr};
  const auto option = literal.generateOption(true, extensions, OpenMode::write, false);
  ASSERT_EQ(option->getFileExtensions().size(), 2U);
  EXPECT_STREQ(option->getFileExtensions()[1].getCharacters(), "xmi");
  EXPECT_EQ(option->getOpenMode(), OpenMode::write);
  EXPECT_FALSE(option->acceptsAnyFileName());
  EXPECT_TRUE(literal.generateOption(true, extensions, OpenMode::read, true)->acceptsAnyFileName());
}
