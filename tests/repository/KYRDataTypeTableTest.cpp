// The rules of a lookup on a small table of the test's own, then a walk over every row of every store.
#include "repository/datatypes/KYRDataTypeTable.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "repository/datatypes/KYRDataStores.h"

namespace {

constexpr const char* prefixes[] = {"x:", "Y"};
constexpr KYRTypeNameRow rows[] = {
    {"Word", KYRDataTypeCode::Varchar, 1U},
    {"two words", KYRDataTypeCode::Char, 1U | 2U},
    {"STAMP() WITH ZONE", KYRDataTypeCode::Timestamp},
    {"word()[]", KYRDataTypeCode::Array},
};

const KYRDataTypeTable& smallTable() {
  static const KYRDataTypeTable table({"A manual", rows, prefixes});
  return table;
}

TEST(KYRDataTypeTable, FindsANameInEveryFormThatALookupAllows) {
  const struct {
    const char* name;
    KYRDataTypeCode code;
  } found[] = {
      {"Word", KYRDataTypeCode::Varchar},
      {"WORD", KYRDataTypeCode::Varchar},
      {"word", KYRDataTypeCode::Varchar},
      {" \t\nword\r\f\v ", KYRDataTypeCode::Varchar},
      {"word(30)", KYRDataTypeCode::Varchar},
      {"word(10,2)", KYRDataTypeCode::Varchar},
      {"word (30) ", KYRDataTypeCode::Varchar},
      {"word()", KYRDataTypeCode::Varchar},
      {"word(a(b)c)", KYRDataTypeCode::Varchar},
      {"word(1) anything (2)", KYRDataTypeCode::Varchar},
      {"two words", KYRDataTypeCode::Char},
      {"X:WORD(3)", KYRDataTypeCode::Varchar},
      {"Ytwo words", KYRDataTypeCode::Char},
      {"stamp with zone", KYRDataTypeCode::Timestamp},
      {"stamp(6) with zone", KYRDataTypeCode::Timestamp},
      {"Stamp (6) With Zone", KYRDataTypeCode::Timestamp},
      {"stamp() with zone", KYRDataTypeCode::Timestamp},
      {"stamp with zone(6)", KYRDataTypeCode::Timestamp},
      {"word[]", KYRDataTypeCode::Array},
      {"word(30)[]", KYRDataTypeCode::Array},
  };
  for (const auto& row : found) {
    const auto code = smallTable().find(row.name);
    ASSERT_TRUE(code.has_value()) << row.name;
    EXPECT_EQ(*code, row.code) << row.name;
  }
}

TEST(KYRDataTypeTable, DoesNotFindWhatIsNotThere) {
  for (const char* name : {"",
                           " ",
                           "(",
                           ")",
                           "()",
                           "(30)",
                           "(30) word",
                           "word(30",
                           "word 30)",
                           ")word(",
                           "word)30(",
                           "words",
                           "two  words",
                           "twowords",
                           "Yword",
                           "x: word",
                           "stamp",
                           "stamp(6)",
                           "stamp(6) with",
                           "word(30) x",
                           "two(3) words",
                           "x:"}) {
    EXPECT_FALSE(smallTable().find(name).has_value()) << name;
  }
}

TEST(KYRDataTypeTable, FoldsTheCaseOfAsciiLettersOnly) {
  constexpr KYRTypeNameRow umlaut[] = {
      {"gr\xC3\xB6\xC3\x9F"
       "e",
       KYRDataTypeCode::Other}};
  const KYRDataTypeTable table({"A manual", umlaut});
  EXPECT_TRUE(table
                  .find("GR\xC3\xB6\xC3\x9F"
                        "E")
                  .has_value());
  EXPECT_FALSE(table
                   .find("gr\xC3\x96\xC3\x9F"
                         "e")
                   .has_value());
}

TEST(KYRDataTypeTable, PassesOverNamesThatNoFileShouldHold) {
  const std::string longName(1U << 20U, 'w');
  EXPECT_FALSE(smallTable().find(longName).has_value());
  EXPECT_TRUE(smallTable().find("word(" + longName + ")").has_value());
  EXPECT_TRUE(smallTable().find(std::string(1U << 20U, ' ') + "word").has_value());
  EXPECT_FALSE(smallTable().find(std::string(1U << 20U, '(')).has_value());
  using namespace std::string_view_literals;
  EXPECT_FALSE(smallTable().find("word\0"sv).has_value());
}

TEST(KYRDataTypeTable, ListsTheRowsInOrderEachFollowedByItsPrefixedNames) {
  std::vector<std::string> names;
  for (const auto& entry : smallTable().getEntries()) names.emplace_back(entry.name.getCharacters());
  EXPECT_EQ(names, (std::vector<std::string>{"Word", "x:Word", "two words", "x:two words", "Ytwo words",
                                             "STAMP() WITH ZONE", "word()[]"}));
  EXPECT_STREQ(smallTable().getSource(), "A manual");
}

// ---- every row of every store

class StoreTable : public testing::TestWithParam<KYRKnownDataStore> {
 protected:
  const KYRDataTypeTable& table() const { return GetParam().getTable(); }
};

std::string changeCase(std::string text, bool upper, unsigned int step) {
  for (std::size_t i = 0; i < text.size(); i += step) {
    char& character = text[i];
    if (upper && character >= 'a' && character <= 'z') character = static_cast<char>(character - 32);
    if (!upper && character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
  }
  return text;
}

/// `name` with `insert` in the place of its "()"; a name without one as it stands.
std::string fillMark(const std::string& name, const std::string& insert) {
  std::string filled = name;
  const std::size_t mark = filled.find("()");
  if (mark != std::string::npos) filled.replace(mark, 2, insert);
  return filled;
}

/// All the ways to write the name of a row.
std::vector<std::string> spellings(const std::string& name) {
  const std::string plain = fillMark(name, "");
  std::vector<std::string> all = {plain,
                                  changeCase(plain, true, 1),
                                  changeCase(plain, false, 1),
                                  changeCase(changeCase(plain, false, 1), true, 2),
                                  "  " + plain + "\t ",
                                  plain + "(10)",
                                  plain + " (10,2) "};
  if (plain != name) {
    for (const char* length : {"()", "(6)", " ( 10 , 2 ) "}) {
      all.push_back(fillMark(name, length));
      all.push_back(changeCase(fillMark(name, length), true, 1));
    }
  }
  return all;
}

TEST_P(StoreTable, EveryRowAnswersInEverySpelling) {
  for (const auto& entry : table().getEntries()) {
    for (const std::string& name : spellings(entry.name.getCharacters())) {
      const auto code = table().find(name);
      ASSERT_TRUE(code.has_value()) << name;
      EXPECT_EQ(*code, entry.code) << name;
    }
  }
}

TEST_P(StoreTable, NoNameStandsTwice) {
  std::map<std::string, int> seen;
  for (const auto& entry : table().getEntries()) {
    ++seen[changeCase(fillMark(entry.name.getCharacters(), ""), false, 1)];
  }
  for (const auto& [name, count] : seen) EXPECT_EQ(count, 1) << name;
}

TEST_P(StoreTable, EveryRowNamesACodeOfTheClosedList) {
  for (const auto& entry : table().getEntries()) {
    EXPECT_FALSE(isUndefined(getDataTypeText(entry.code))) << entry.name.getCharacters();
  }
}

TEST_P(StoreTable, RowsAreWrittenSoThatLookupsCanReachThem) {
  for (const auto& entry : table().getEntries()) {
    const std::string name = entry.name.getCharacters();
    const std::string plain = fillMark(name, "");
    EXPECT_FALSE(plain.empty());
    EXPECT_EQ(plain.find_first_of("()\t\n"), std::string::npos) << name << ": one mark, no other parentheses";
    EXPECT_EQ(plain.find("  "), std::string::npos) << name;
    EXPECT_NE(name.back(), ')') << name << ": a mark at the end is not needed";
    EXPECT_NE(name.front(), ' ') << name;
    EXPECT_NE(name.back(), ' ') << name;
  }
}

TEST_P(StoreTable, NamesItsSource) { EXPECT_GT(std::string(table().getSource()).size(), 10U); }

TEST_P(StoreTable, NamesOfNoTypeAreUnknown) {
  for (const char* name : {"", "undefined", "SQL_VARCHAR", "varcha", "varcharr", "integer integer", "void",
                           "Customer", "_m8qbBa86EdiEh75YJ_3n8g", "(10)"}) {
    EXPECT_FALSE(table().find(name).has_value()) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(KYRDataTypeTable, StoreTable, testing::ValuesIn(getKnownDataStores()),
                         [](const auto& store) { return std::string(store.param.name); });

}  // namespace
