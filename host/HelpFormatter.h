// HelpFormatter: the layout of the help: lines of at most 92 characters, and in the list of commands one
// line for each.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

class HelpFormatter final : public CLI::Formatter {
 public:
  HelpFormatter();
  std::string make_description(const CLI::App* app) const override;
  std::string make_option_name(const CLI::Option* option, bool isPositional) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
  std::string make_subcommand(const CLI::App* command) const override;
};
