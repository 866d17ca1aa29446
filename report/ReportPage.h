// ReportPage: the texts of the page itself, which stand in report/page and become constants when the
// program is built.
//
// The page is the texts in this order: before the style, the style, before the model, the model, before
// the script, the script, the end. Style and script must go in as they stand: the policy in the head of
// the page lets run what has their hashes, and nothing else.
#pragma once

#include <span>
#include <string_view>

struct ReportPage {
  static const std::string_view beforeStyle;
  static const std::string_view style;
  static const std::string_view beforeModel;
  static const std::string_view beforeScript;
  static const std::span<const std::string_view> script;  // in pieces
  static const std::string_view afterScript;
};
