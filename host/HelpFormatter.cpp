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

// A description starts with a sentence that stands alone.
std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
  const std::string description = command->get_description();
  std::ostringstream line;
  CLI::detail::format_help(line, command->get_name(), description.substr(0, description.find('\n')),
                           leftColumn);
  return line.str();
}
