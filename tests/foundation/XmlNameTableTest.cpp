// XmlNameTable: numbers in order of first occurrence, whatever the hash does.
#include "foundation/xml/XmlNameTable.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(XmlNameTable, NamesAreNumberedInOrderOfFirstOccurrence) {
  XmlTextArena arena;
  XmlNameTable table;
  EXPECT_EQ(table.intern("xmi:id", arena), 0U);
  EXPECT_EQ(table.intern("name", arena), 1U);
  EXPECT_EQ(table.intern("xmi:id", arena), 0U);
  EXPECT_EQ(table.getText(1).view(), "name");
  EXPECT_EQ(table.getCount(), 2U);
  EXPECT_EQ(table.find("name"), 1U);
  EXPECT_EQ(table.find("nam"), XmlNameTable::none);
  EXPECT_EQ(table.find(""), XmlNameTable::none);
}

TEST(XmlNameTable, ManyNamesOfEveryLengthStayApart) {
  XmlTextArena arena;
  XmlNameTable table;
  constexpr std::uint32_t count = 20000;
  const auto nameOf = [](std::uint32_t i) { return std::string(i % 40, 'n') + std::to_string(i); };
  for (std::uint32_t i = 0; i < count; ++i) ASSERT_EQ(table.intern(nameOf(i), arena), i);
  for (std::uint32_t i = 0; i < count; ++i) {
    ASSERT_EQ(table.intern(nameOf(i), arena), i);
    ASSERT_EQ(table.find(nameOf(i)), i);
    ASSERT_EQ(table.getText(i).view(), nameOf(i));
  }
  EXPECT_EQ(table.getCount(), count);
}

}  // namespace
