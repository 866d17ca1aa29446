// What differs from the layout of the library.
#include "host/HelpFormatter.h"

#include <sstream>

#include "host/KYRHostTexts.h"

namespace {

constexpr std::size_t leftColumn = 30;
constexpr std::size_t rightColumn = 62;

// Breaks lines at blanks; a word that is wider than the column gets a line of its own.
std::string wrap(const std::string& text, std::size_t width) {
  std::istringstream words(text);
  std::string result;
  std::size_t lineLength = 0;
  for (std::string word; words >> word; lineLength += word.size()) {
    if (lineLength != 0 && lineLength + 1 + word.size() > width) {
      result += '\n';
      lineLength = 0;
    } else if (lineLength != 0) {
      result += ' ';
      ++lineLength;
    }
    result += word;
  }
  return result;
}

}  // namespace

HelpFormatter::HelpFormatter() {
  column_width(leftColumn);
  label("SUBCOMMAND", KYRHostTexts::HELP_COMMAND.getText().getCharacters());
  label("Positionals", KYRHostTexts::HELP_ARGUMENTS.getText().getCharacters());
  label("REQUIRED", "");
}

std::string HelpFormatter::make_description(const CLI::App* app) const {
  return CLI::Formatter::make_description(app) + '\n';
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return wrap(option->get_description(), rightColumn);
}

// A flag that may have a value says so in the way it is to be written: "--flag[=value]".
std::string HelpFormatter::make_option_name(const CLI::Option* option, bool isPositional) const {
  std::string name = CLI::Formatter::make_option_name(option, isPositional);
  const std::size_t brace = name.find('{');
  return brace == std::string::npos ? name : name.substr(0, brace) + option->get_type_name();
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
  return option->get_type_name().starts_with('[') ? std::string() : CLI::Formatter::make_option_opts(option);
}

// A description starts with a sentence that stands alone.
std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  const std::string description = command->get_description();
  std::ostringstream line;
  CLI::detail::format_help(line, command->get_name(), description.substr(0, description.find('\n')),
                           leftColumn);
  return line.str();
}
