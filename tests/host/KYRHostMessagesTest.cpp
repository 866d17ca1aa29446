// The catalogue of the command: codes that users know, texts, and their page in docs/.
#include "host/KYRHostMessages.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "foundation/KYRVector.h"
#include "host/KYRHostTexts.h"
#include "tests/support/RecordingLog.h"

namespace {

std::map<std::string, const KYRTextLiteral*> allLiterals() {
  KYRVector literals;
  KYRHostMessages::getAllLiterals(literals);
  std::map<std::string, const KYRTextLiteral*> found;
  for (unsigned int i = 0; i < literals.getCount(); ++i) {
    const auto* const literal = static_cast<const KYRTextLiteral*>(literals.getAt(i));
    found[literal->getIdentifier().getCharacters()] = literal;
  }
  return found;
}

TEST(KYRHostMessages, CodesStayWhatUsersKnow) {
  const std::set<std::string> expected = {
      "KYRHOST_F0001", "KYRHOST_F0002", "KYRHOST_F0003", "KYRHOST_F0004", "KYRHOST_F0005", "KYRHOST_F0006",
      "KYRHOST_F0007", "KYRHOST_F0008", "KYRHOST_F0009", "KYRHOST_F0010", "KYRHOST_F0011", "KYRHOST_W0012",
      "KYRHOST_F0013", "KYRHOST_F0014", "KYRHOST_F0015", "KYRHOST_F0016", "KYRHOST_F0017", "KYRHOST_F0030",
      "KYRHOST_F0031", "KYRHOST_F0032", "KYRHOST_F0033", "KYRHOST_F0034", "KYRHOST_F0035", "KYRHOST_F0036",
      "KYRHOST_W0037", "KYRHOST_F0038", "KYRHOST_W0041", "KYRHOST_W0042", "KYRHOST_F0043", "KYRHOST_F0050",
      "KYRHOST_F0051", "KYRHOST_F0052", "KYRHOST_F0053", "KYRHOST_W0054", "KYRHOST_F0060", "KYRHOST_F0061",
      "KYRHOST_S0044", "KYRHOST_S0045",
  };
  std::set<std::string> codes;
  for (const auto& [identifier, literal] : allLiterals()) {
    if (dynamic_cast<const KYRMessageLiteral*>(literal) != nullptr) codes.insert(identifier);
  }
  EXPECT_EQ(codes, expected);
}

TEST(KYRHostMessages, TheListOfMessagesInTheDocumentationIsWhole) {
  std::ifstream file(KYR_SOURCE_DIR "/docs/command-line.md");
  std::ostringstream page;
  page << file.rdbuf();
  for (const auto& [identifier, literal] : allLiterals()) {
    if (dynamic_cast<const KYRMessageLiteral*>(literal) == nullptr) continue;
    const std::string row = "| `" + identifier + "` | " + literal->getText().getCharacters() + " |\n";
    EXPECT_NE(page.str().find(row), std::string::npos) << row;
  }
}

TEST(KYRHostMessages, HoldsLabelsAndHelpToo) {
  EXPECT_EQ(KYRHostMessages::findTextLiteral("IMPORT_HELP"), &KYRHostTexts::IMPORT_HELP);
  EXPECT_EQ(KYRHostMessages::findTextLiteral("INSPECT_TOOL"), &KYRHostTexts::INSPECT_TOOL);
  EXPECT_EQ(KYRHostMessages::findTextLiteral("NO_SUCH_TEXT"), nullptr);
}

TEST(KYRHostMessages, NoTextIsEmpty) {
  for (const auto& [identifier, literal] : allLiterals()) {
    EXPECT_FALSE(literal->getText().isEmpty()) << identifier;
  }
}

TEST(KYRHostMessages, AnExceptionHasTheCodeInBracketsAndALogEventApart) {
  RecordingLog log;
  KYRHostMessages::PLUGIN_REFUSED.log(log);
  EXPECT_EQ(log.lines[0], "KYRHOST_F0010 The plug-in says that the import failed, and does not say why");
  try {
    KYRHostMessages::PLUGIN_NOT_A_FILE.throwException(KYRString("a{0}.so"));
    FAIL() << "nothing was raised";
  } catch (const KYRException& exception) {
    EXPECT_STREQ(exception.what(), "[KYRHOST_F0006] The plug-in 'a{0}.so' is no file");
  }
}

}  // namespace
