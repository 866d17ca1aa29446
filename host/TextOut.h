// TextOut: the lines of a report for people. Arguments may come from files, so they are made fit for a
// terminal.
#pragma once

#include <concepts>
#include <string>

#include "host/HostLiteral.h"
#include "host/Output.h"
#include "host/TerminalText.h"

class TextOut {
 public:
  explicit TextOut(Output& output) : output_(output) {}

  /// The text with its arguments, and a newline.
  template <unsigned int argumentCount, class... Argument>
  void line(const HostText<argumentCount>& text, const Argument&... arguments) {
    paragraph(text.toString(shown(arguments)...).view());
  }
  /// A text of our own as it stands, and a newline.
  void paragraph(std::string_view text) {
    output_.write(text);
    output_.write("\n");
  }

 private:
  static KYRString shown(std::string_view text) { return KYRString(TerminalText::escape(text)); }
  static KYRString shown(const KYRString& text) { return shown(text.view()); }
  static KYRString shown(const std::string& text) { return shown(std::string_view(text)); }
  static KYRString shown(const char* text) { return shown(std::string_view(text)); }
  static KYRString shown(std::integral auto number) { return KYRString(std::to_string(number)); }

  Output& output_;
};
