// docs/messages.md: every message of the plug-in, the library and the command, as the catalogues have them.
// With KYR_UPDATE_DOCS set in the environment the page is written anew; review the difference.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRStdMessages.h"
#include "foundation/KYRVector.h"
#include "host/KYRHostMessages.h"
#include "repository/plugin/KBCM.h"

namespace {

constexpr const char* page = KYR_SOURCE_DIR "/docs/messages.md";
constexpr const char* firstTable = "\n## Of the plug-in\n";

void listLibrary(KYRVector& out) {
  out.add(static_cast<const KYRTextLiteral*>(&KBCM::UNSUPPORTED_BRIDGE_OPERATION), false, nullptr);
  KYRStdMessages::getAllLiterals(out);
}

// By catalogue and number.
std::string tableOf(void (*list)(KYRVector&)) {
  KYRVector literals;
  list(literals);
  std::vector<const KYRMessageLiteral*> messages;
  for (unsigned int i = 0; i < literals.getCount(); ++i) {
    const auto* const literal = static_cast<const KYRTextLiteral*>(literals.getAt(i));
    if (const auto* const message = dynamic_cast<const KYRMessageLiteral*>(literal))
      messages.push_back(message);
  }
  const auto key = [](const KYRMessageLiteral* message) {
    const std::string_view code = message->getCode().view();
    return std::pair(code.substr(0, code.find('_')), message->getNumber());
  };
  std::sort(messages.begin(), messages.end(),
            [&key](const auto* first, const auto* second) { return key(first) < key(second); });
  std::string table = "\n| Code | Level | Text |\n|---|---|---|\n";
  for (const KYRMessageLiteral* message : messages) {
    table += std::string("| `") + message->getCode().getCharacters() + "` | " +
             KYRLogLevel::toName(message->getLevel()) + " | " + message->getText().getCharacters() + " |\n";
  }
  return table;
}

std::string expectedTables() {
  return firstTable + tableOf(&KBI_UML2XMI::getAllLiterals) + "\n## Of the library\n" +
         tableOf(&listLibrary) + "\n## Of the command\n" + tableOf(&KYRHostMessages::getAllLiterals);
}

std::string readPage() {
  std::ifstream file(page);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace

TEST(MessageReference, ThePageShowsWhatTheCataloguesHold) {
  const std::string text = readPage();
  const std::size_t start = text.find(firstTable);
  ASSERT_NE(start, std::string::npos);
  const std::string expected = expectedTables();
  if (std::getenv("KYR_UPDATE_DOCS") != nullptr) {
    std::ofstream(page) << text.substr(0, start) << expected;
    return;
  }
  EXPECT_EQ(text.substr(start), expected) << "KYR_UPDATE_DOCS=1 with this test writes the page anew";
}
