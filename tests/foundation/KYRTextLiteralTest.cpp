// Text literals: substitution, codes, and catalogues.
#include "foundation/KYRTextLiteral.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "foundation/KYRDOM.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRVector.h"

namespace {

struct Parameterized : KYRParameterizedTextLiteral {
  using KYRParameterizedTextLiteral::KYRParameterizedTextLiteral;
  std::string fill(const std::vector<const char*>& arguments) const {
    KYRStringArray array;
    for (const char* argument : arguments) array.add(argument);
    return std::string(createParameterizedText(array).view());
  }
};

struct Message : KYRMessageLiteral {
  Message(int number, const char* text, const char* levelName, const char* catalogueName = "LIB_CATALOGUE")
      : KYRMessageLiteral(number, text, levelName) {
    setCode(catalogueName, levelName);
  }
};

// Literals are made while a library is loaded, where nobody can be told that there is no memory.
TEST(KYRTextLiteral, BorrowsIdentifierAndText) {
  const KYRTextLiteral literal("id", "text");
  EXPECT_EQ(literal.getIdentifier().view(), "id");
  EXPECT_EQ(literal.getText().view(), "text");
  const Message message(8, "text", "FATAL");
  for (const KYRString* text : {&literal.getIdentifier(), &literal.getText(), &message.getIdentifier(),
                                &message.getText(), &message.getCode()}) {
    EXPECT_TRUE(text->isBorrowed()) << text->view();
  }
}

TEST(KYRParameterizedTextLiteral, PlaceholdersAreReplacedInOnePass) {
  struct Row {
    const char* text;
    std::vector<const char*> arguments;
    const char* expected;
  };
  const Row rows[] = {{"no placeholder", {"a"}, "no placeholder"},
                      {"", {"a"}, ""},
                      {"{0}", {"a"}, "a"},
                      {"Detected {0} version {1}", {"UML", "2.5"}, "Detected UML version 2.5"},
                      {"{1} before {0}", {"a", "b"}, "b before a"},
                      {"{0}{0} and {0}", {"x"}, "xx and x"},
                      {"{0} {1}", {"{1}", "{0}"}, "{1} {0}"},
                      {"{0}{1}", {"{", "0}"}, "{0}"},
                      {"{0} {1}", {"only"}, "only {1}"},
                      {"{0}", {}, "{0}"},
                      {"{0}", {""}, ""},
                      {"{} {x} {-1} {0", {"a"}, "{} {x} {-1} {0"},
                      {"{{0}}", {"a"}, "{a}"},
                      {"{99999999999999999999}", {"a"}, "{99999999999999999999}"},
                      {"{10}", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "ten"}, "ten"},
                      {"'{0}'\nnext", {"a"}, "'a'\nnext"}};
  for (const Row& row : rows) EXPECT_EQ(Parameterized("id", row.text).fill(row.arguments), row.expected);
}

TEST(KYRParameterizedTextLiteral, UpdateTakesTheValueOfAnElementForItsOwnIdentifier) {
  const auto path = std::filesystem::temp_directory_path() / ("kyrliteral-" + std::to_string(getpid()));
  std::ofstream(path) << "<text>Datei {0}</text>";
  KYRDOM dom(nullptr);
  const std::unique_ptr<KYRDOMElement> root(dom.parseFile(KYRFile(KYRString(path.c_str()))));
  std::filesystem::remove(path);
  ASSERT_NE(root, nullptr);
  Parameterized literal("id", "File {0}");
  literal.update("other", root.get());
  literal.update("id", nullptr);
  EXPECT_EQ(literal.fill({"a"}), "File a");
  literal.update("id", root.get());
  EXPECT_EQ(literal.fill({"a"}), "Datei a");
}

TEST(KYRMessageLiteral, KeepsNumberLevelAndText) {
  const Message message(8, "Not valid.", "FATAL");
  EXPECT_EQ(message.getNumber(), 8);
  EXPECT_EQ(message.getLevel(), KYRLogLevel::fatal);
  EXPECT_EQ(message.getText().view(), "Not valid.");
  EXPECT_EQ(message.getCode().view(), "LIB_CATALOGUE_F0008");
  EXPECT_TRUE(KYRMessageLiteral(1, "text", "STATUS").getCode().isEmpty());
}

TEST(KYRMessageLiteral, CodesFillTheNumberUpToFourDigits) {
  struct Row {
    const char* level;
    int number;
    const char* expected;
  };
  const Row rows[] = {{"WARNING", 1, "CAT_W0001"},
                      {"WARNING", 19, "CAT_W0019"},
                      {"STATUS", 100, "CAT_S0100"},
                      {"FATAL", 1234, "CAT_F1234"},
                      {"FATAL", 0, "CAT_F0000"},
                      {"FATAL", 12345, "CAT_F000012345"}};  // a negative count of zeros takes all four
  for (const Row& row : rows) {
    const Message message(row.number, "", row.level, "CAT");
    EXPECT_EQ(message.getCode().view(), row.expected);
    EXPECT_EQ(message.getIdentifier().view(), row.expected);
  }
}

TEST(KYRTextLiteralsCollection, FindsLiteralsByExactIdentifier) {
  KYRTextLiteralsCollection catalogue("Library", "CATALOGUE");
  EXPECT_EQ(catalogue.getLibraryName().view(), "Library");
  EXPECT_EQ(catalogue.getCatalogueName().view(), "CATALOGUE");
  EXPECT_EQ(catalogue.get("id"), nullptr);
  Parameterized first("first", "text");
  Message second(2, "message", "WARNING");
  Parameterized again("first", "another text");
  EXPECT_TRUE(catalogue.add(&first));
  EXPECT_TRUE(catalogue.add(&second));
  EXPECT_FALSE(catalogue.add(&again));
  EXPECT_FALSE(catalogue.add(nullptr));
  catalogue.init();
  EXPECT_EQ(catalogue.get("first"), &first);
  EXPECT_EQ(catalogue.get("LIB_CATALOGUE_W0002"), &second);
  EXPECT_EQ(catalogue.get("FIRST"), nullptr);
  EXPECT_EQ(catalogue.get(""), nullptr);
}

TEST(KYRTextLiteralsCollection, ListsAllLiteralsInOrderOfAdding) {
  KYRTextLiteralsCollection catalogue("Library", "CATALOGUE");
  std::vector<std::unique_ptr<Parameterized>> literals;
  std::vector<std::string> identifiers(200);
  for (int i = 0; i < 200; ++i) {
    std::string& identifier = identifiers[static_cast<std::size_t>(i)] = std::to_string(i * 7919 % 1000);
    literals.push_back(std::make_unique<Parameterized>(identifier.c_str(), "text"));
    ASSERT_TRUE(catalogue.add(literals.back().get()));
  }
  catalogue.init();
  KYRVector out;
  out.add(nullptr, false, nullptr);
  catalogue.listAllLiterals(out);
  ASSERT_EQ(out.getCount(), 201U);
  for (unsigned int i = 0; i < 200; ++i) {
    EXPECT_EQ(static_cast<const KYRTextLiteral*>(out.getAt(i + 1)), literals[i].get());
  }
}

}  // namespace
