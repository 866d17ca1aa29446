// The scan over names and values, against the plain walk that it stands for.
#include "xmi/AttributeScan.h"

#include <gtest/gtest.h>

#include <random>

#include "xmi/ReaderNames.h"
#include "xmi/XMIParser.h"

namespace {

KYRStringArray array(std::initializer_list<const char*> entries) {
  KYRStringArray result;
  for (const char* const entry : entries) result.add(entry);
  return result;
}

TEST(GetAttribute, FindsANameWithoutRegardToCase) {
  const KYRStringArray attributes = array({"xmi:id", "1", "NAME", "n"});
  EXPECT_EQ(XMIParser::getAttribute(attributes, "xmi:ID").view(), "1");
  EXPECT_EQ(XMIParser::getAttribute(attributes, "name").view(), "n");
  EXPECT_EQ(&XMIParser::getAttribute(attributes, "absent"), &KYRString::getEmptyString());
}

TEST(GetAttribute, AValueThatEqualsTheNameIsTakenAsAMatch) {
  const KYRStringArray attributes =
      array({"name", "xmi:type", "visibility", "public", "xmi:type", "uml:Class"});
  EXPECT_EQ(XMIParser::getAttribute(attributes, "xmi:type").view(), "visibility");
}

TEST(GetAttribute, AMatchOnTheLastEntryAnswersTheEmptyText) {
  const KYRStringArray attributes = array({"xmi:id", "1", "value", "name"});
  EXPECT_EQ(XMIParser::getAttribute(attributes, "name").view(), "");
}

TEST(ReaderNames, TellAttributesThatHoldIds) {
  const ReaderNames& names = ReaderNames::get();
  for (const char* name : {"xmi:id", "xmi:idref", "type", "TYPE", "memberEnd", "supplier", "general"}) {
    EXPECT_TRUE(names.holdsId(names.findIgnoringCase(name))) << name;
  }
  for (const char* name : {"name", "visibility", "xmi:type", "isAbstract", "nobody asks for this"}) {
    EXPECT_FALSE(names.holdsId(names.findIgnoringCase(name))) << name;
  }
}

TEST(AttributeScan, AnswersAsTheWalkDoesForEveryNameAndManyLists) {
  const ReaderNames& names = ReaderNames::get();
  std::minstd_rand engine(7);
  const auto random = [&engine] { return static_cast<unsigned int>(engine()); };
  AttributeScan scan;
  for (int round = 0; round < 300; ++round) {
    KYRStringArray attributes;
    const unsigned int entries = 2 * (random() % 6);
    for (unsigned int i = 0; i < entries; ++i) {
      std::string text(
          names.getName(static_cast<int>(random() % static_cast<unsigned int>(names.getCount()))));
      if (random() % 4 == 0) text = "other" + std::to_string(i);
      if (random() % 4 == 0 && !text.empty()) text[0] = static_cast<char>(std::toupper(text[0]));
      attributes.add(text.c_str());
    }
    scan.scan(attributes);
    for (int name = 0; name < names.getCount(); ++name) {
      const std::string text(names.getName(name));
      ASSERT_EQ(scan.get(name), XMIParser::getAttribute(attributes, text.c_str())) << text;
    }
  }
}

TEST(ReaderNames, KnowEveryNameOnceAndTellCaseWhereItCounts) {
  const ReaderNames& names = ReaderNames::get();
  for (int i = 0; i < names.getCount(); ++i) {
    EXPECT_EQ(names.find(names.getName(i)), i);
    EXPECT_EQ(names.findIgnoringCase(names.getName(i)), i);
  }
  EXPECT_EQ(names.find("OWNEDATTRIBUTE"), ReaderNames::none);
  EXPECT_NE(names.findIgnoringCase("OWNEDATTRIBUTE"), ReaderNames::none);
  EXPECT_EQ(names.find(""), ReaderNames::none);
  EXPECT_EQ(names.find("ownedAttribut"), ReaderNames::none);
}

}  // namespace
