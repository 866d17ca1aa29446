// Options and the list that owns them.
#include "foundation/KYROption.h"

#include <gtest/gtest.h>

namespace {

KYROption* makeOption(const char* identifier, const char* value) {
  return new KYROption(identifier, "Name", OptionType::text, "", value, false);
}

TEST(KYROption, HasItsDefaultAsValueUntilOneIsSet) {
  KYROption option("BP_FILE", "File", OptionType::file, "The file", "default.xmi", true);
  EXPECT_EQ(option.getIdentifier().view(), "BP_FILE");
  EXPECT_EQ(option.getDisplayName().view(), "File");
  EXPECT_EQ(option.getType(), OptionType::file);
  EXPECT_EQ(option.getDescription().view(), "The file");
  EXPECT_TRUE(option.isMandatory());
  EXPECT_EQ(option.getValue().view(), "default.xmi");
  option.setValue("model.xmi");
  EXPECT_EQ(option.getValue().view(), "model.xmi");
  EXPECT_EQ(option.getDefaultValue().view(), "default.xmi");
}

TEST(KYROption, AFileOptionTellsTheChooserItsExtensions) {
  KYROption option("BP_FILE", "File", OptionType::file, "", "", true);
  EXPECT_TRUE(option.getFileExtensions().empty());
  EXPECT_EQ(option.getOpenMode(), OpenMode::read);
  option.setFileChoice({"xml", "xmi"}, OpenMode::write);
  ASSERT_EQ(option.getFileExtensions().size(), 2U);
  EXPECT_EQ(option.getFileExtensions()[1].view(), "xmi");
  EXPECT_EQ(option.getOpenMode(), OpenMode::write);
}

TEST(KYROption, TypesHaveTheNumbersThatHostsKnow) {
  EXPECT_EQ(static_cast<int>(OptionType::text), 0);
  EXPECT_EQ(static_cast<int>(OptionType::file), 5);
}

TEST(KYROptionList, FindsOptionsByExactIdentifier) {
  KYROptionList options;
  KYROption* const first = makeOption("A", "1");
  EXPECT_TRUE(options.add(first));
  EXPECT_TRUE(options.add(makeOption("B", "2")));
  EXPECT_EQ(options.get("A"), first);
  EXPECT_EQ(options.get("a"), nullptr);
  EXPECT_EQ(options.getValue("B").view(), "2");
  EXPECT_TRUE(options.getValue("C").isEmpty());
  EXPECT_EQ(options.getCount(), 2U);
  EXPECT_EQ(options.getAt(0), first);
  EXPECT_EQ(options.getAt(2), nullptr);
}

TEST(KYROptionList, RefusesAndDeletesASecondOptionOfOneIdentifier) {
  KYROptionList options;
  EXPECT_TRUE(options.add(makeOption("A", "1")));
  EXPECT_FALSE(options.add(makeOption("A", "2")));
  EXPECT_FALSE(options.add(nullptr));
  EXPECT_EQ(options.getValue("A").view(), "1");
  options.removeAll();
  EXPECT_EQ(options.getCount(), 0U);
  EXPECT_TRUE(options.add(makeOption("A", "3")));
}

}  // namespace
