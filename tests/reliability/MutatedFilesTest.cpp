// Files that are broken in one place: cut off anywhere, one byte changed, one element taken out, doubled or
// moved, one attribute emptied or doubled. Each is imported, saved, loaded and drawn in memory of this
// process, and is refused or gives a model that comes back; a sanitizer build sees that nothing is touched
// that should not be, and that nothing is left. Here is a part of the cases; `make soak` goes through all.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "fuzz/FuzzEntries.h"
#include "fuzz/XmlPieces.h"
#include "tests/reliability/Soak.h"

namespace {

class MutatedFiles : public testing::TestWithParam<const char*> {
 protected:
  MutatedFiles() {
    std::ifstream in(std::string(KYR_SOURCE_DIR) + "/" + GetParam(), std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    text_ = out.str();
  }
  void SetUp() override { ASSERT_TRUE(importWholly(text_)); }
  void TearDown() override {
    std::cout << "  " << cases_ << " files, " << imported_ << " imported, the others refused\n";
  }

  /// Whether the file was imported.
  bool import(const std::string& text, std::size_t number) {
    ++cases_;
    bool isImported = false;
    try {
      isImported = importWholly(text);
    } catch (const std::exception& exception) {
      ADD_FAILURE() << "case " << number << ": " << exception.what();
    }
    imported_ += isImported ? 1U : 0U;
    return isImported;
  }

  std::string text_;
  std::size_t cases_ = 0;
  std::size_t imported_ = 0;
};

TEST_P(MutatedFiles, EveryPrefixIsRefused) {
  const std::size_t end = text_.rfind('>');
  for (std::size_t length = 0; length < end + 1; length += stepOf(211)) {
    EXPECT_FALSE(import(text_.substr(0, length), length)) << length;
  }
}

TEST_P(MutatedFiles, AnyByteMayBeFlipped) {
  for (std::size_t at = 0; at < text_.size(); at += stepOf(157)) {
    std::string changed = text_;
    changed[at] = static_cast<char>(changed[at] ^ (1 << (at % 8)));
    import(changed, at);
  }
  EXPECT_GT(imported_, 0U);  // in a name, for one
}

TEST_P(MutatedFiles, AnyElementMayBeMissing) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 1; i < pieces.elements.size(); i += stepOf(5)) {
    import(withReplaced(text_, pieces.elements[i].whole, ""), i);
  }
  EXPECT_GT(imported_, cases_ / 2);
}

TEST_P(MutatedFiles, AnyElementMayStandTwice) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 1; i < pieces.elements.size(); i += stepOf(5)) {
    const TextSpan span = pieces.elements[i].whole;
    EXPECT_TRUE(import(withCopyAt(text_, span, span.end), i)) << i;
  }
}

// Before another one: three places for each, spread over the file.
TEST_P(MutatedFiles, AnyElementMayStandSomewhereElse) {
  const XmlPieces pieces(text_);
  const std::size_t count = pieces.elements.size();
  for (std::size_t i = 1; i < count; i += stepOf(11)) {
    const TextSpan span = pieces.elements[i].whole;
    for (const std::size_t other : {i * 7919 % count, (i + count / 2) % count, count - 1}) {
      const std::size_t place = pieces.elements[other].whole.begin;
      if (other == 0 || (place >= span.begin && place <= span.end)) continue;
      import(withMoved(text_, span, place), i);
    }
  }
  EXPECT_GT(imported_, cases_ / 2);
}

// An element in itself: the ids of all that it holds stand twice, one time as their own descendants.
TEST_P(MutatedFiles, AnyElementMayHoldItsOwnCopy) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 1; i < pieces.elements.size(); i += stepOf(11)) {
    const TextSpan span = pieces.elements[i].whole;
    const std::string_view whole = span.of(text_);
    const std::size_t end = whole.ends_with("/>") ? std::string_view::npos : whole.rfind("</");
    if (end != std::string_view::npos) import(withCopyAt(text_, span, span.begin + end), i);
  }
  EXPECT_GT(imported_, cases_ / 2);
}

TEST_P(MutatedFiles, AnyAttributeMayBeEmpty) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 0; i < pieces.attributes.size(); i += stepOf(11)) {
    import(withReplaced(text_, pieces.attributes[i].value, ""), i);
  }
  EXPECT_GT(imported_, cases_ / 2);
}

TEST_P(MutatedFiles, AValueMayStandTwiceInItsAttribute) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 0; i < pieces.attributes.size(); i += stepOf(11)) {
    const TextSpan span = pieces.attributes[i].value;
    const std::string value(span.of(text_));
    import(withReplaced(text_, span, value + " " + value), i);
  }
  EXPECT_GT(imported_, cases_ / 2);
}

TEST_P(MutatedFiles, AnAttributeThatStandsTwiceIsRefused) {
  const XmlPieces pieces(text_);
  for (std::size_t i = 0; i < pieces.attributes.size(); i += stepOf(31)) {
    const TextSpan span = pieces.attributes[i].whole;
    EXPECT_FALSE(import(withCopyAt(text_, span, span.end), i)) << i;
  }
}

// Every reference to something else: the value of one attribute in another.
TEST_P(MutatedFiles, AnAttributeMayHaveTheValueOfAnother) {
  const XmlPieces pieces(text_);
  const std::size_t count = pieces.attributes.size();
  for (std::size_t i = 0; i < count; i += stepOf(11)) {
    for (const std::size_t step : {1, 2, 17}) {
      const std::string other(pieces.attributes[(i + step) % count].value.of(text_));
      if (other.find_first_of("\"'") != std::string::npos) continue;
      import(withReplaced(text_, pieces.attributes[i].value, other), i);
    }
  }
  EXPECT_GT(imported_, cases_ / 2);
}

INSTANTIATE_TEST_SUITE_P(Tools, MutatedFiles,
                         testing::Values("tests/reliability/data/enterprise-architect.xmi",
                                         "samples/magicdraw.xmi"),
                         [](const auto& parameter) {
                           const bool isMagicDraw =
                               std::string(parameter.param).find("magic") != std::string::npos;
                           return std::string(isMagicDraw ? "MagicDraw" : "EnterpriseArchitect");
                         });

}  // namespace
