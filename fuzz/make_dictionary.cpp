// Prints the dictionary of the fuzzers: the words of our own tables, one a line in quotes.
#include <cstdio>
#include <set>
#include <string>

#include "fuzz/Vocabulary.h"

int main() {
  const Vocabulary& words = Vocabulary::get();
  std::set<std::string> all = {"<?xml version=\"1.0\" encoding=\"",
                               "UTF-16",
                               "windows-1252",
                               "Shift_JIS",
                               "<![CDATA[",
                               "]]>",
                               "<!--",
                               "-->",
                               "&#x",
                               "&amp;",
                               "<!DOCTYPE",
                               "<!ENTITY",
                               "\xEF\xBB\xBF",
                               "\xFF\xFE",
                               "\xFE\xFF"};
  for (const auto* const list : {&words.types, &words.tags, &words.attributes, &words.values}) {
    all.insert(list->begin(), list->end());
  }
  for (const std::string& word : all) {
    if (word.empty()) continue;
    std::putchar('"');
    for (const char letter : word) {
      const auto byte = static_cast<unsigned char>(letter);
      if (letter == '"' || letter == '\\' || byte < 0x20 || byte > 0x7E) {
        std::printf("\\x%02X", static_cast<unsigned int>(byte));
      } else {
        std::putchar(letter);
      }
    }
    std::puts("\"");
  }
  return std::ferror(stdout) != 0 ? 1 : 0;
}
