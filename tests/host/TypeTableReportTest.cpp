// The tables of type names as text and as JSON.
#include "host/TypeTableReport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

// What a report writes.
std::string written(const std::string& store, void (TypeTableReport::*write)(Output&) const) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
  Output output(fileno(file.get()));
  (TypeTableReport(store).*write)(output);
  output.flush();
  std::string text;
  std::rewind(file.get());
  for (int c = std::getc(file.get()); c != EOF; c = std::getc(file.get())) text += static_cast<char>(c);
  return text;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

TEST(TypeTableReport, EachNameStandsBesideItsDataTypeInColumns) {
  const KYRKnownDataStore& store = *findKnownDataStore("oracle");
  const std::vector<std::string> lines = linesOf(written("oracle", &TypeTableReport::writeText));
  const auto& entries = store.getTable().getEntries();
  ASSERT_EQ(lines.size(), entries.size() + 2);
  EXPECT_EQ(lines[0], "ORACLE  Oracle Database");
  EXPECT_EQ(lines[1], std::string("  from ") + store.getTable().getSource());
  const std::size_t column = lines[2].find("SQL_");
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::string& line = lines[i + 2];
    EXPECT_EQ(line.find(entries[i].name.getCharacters()), 2U) << line;
    EXPECT_EQ(line.substr(column), getDataTypeText(entries[i].code).getCharacters()) << line;
  }
}

TEST(TypeTableReport, WithoutANameAllStoresAreToldWithAnEmptyLineBetween) {
  const std::vector<std::string> lines = linesOf(written("", &TypeTableReport::writeText));
  std::size_t expected = getKnownDataStores().size() - 1;
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    expected += store.getTable().getEntries().size() + 2;
  }
  EXPECT_EQ(lines.size(), expected);
}

TEST(TypeTableReport, AStoreThatThereIsNotHasNoTable) {
  EXPECT_EQ(written("SQLITE", &TypeTableReport::writeText), "");
  EXPECT_EQ(written("SQLITE", &TypeTableReport::writeJson), "{\"dataStores\":[]}\n");
}

TEST(TypeTableReport, TheJsonIsOneObjectOnOneLine) {
  const std::vector<std::string> lines = linesOf(written("DERBY", &TypeTableReport::writeJson));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(
      lines[0].find(
          R"({"dataStores":[{"name":"DERBY","title":"Apache Derby, Cloudscape","source":"Derby Reference )"),
      0U);
  EXPECT_NE(lines[0].find(R"({"name":"CHAR() FOR BIT DATA","dataType":"SQL_BINARY"})"), std::string::npos);
}

}  // namespace
