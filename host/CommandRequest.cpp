// The definition of the command line: commands, options and their checks.
#include "host/CommandRequest.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

#include "BuildTime.h"
#include "foundation/KYRDate.h"
#include "host/FileNames.h"
#include "host/HelpFormatter.h"
#include "host/KYRHostTexts.h"
#include "repository/datatypes/KYRDataStores.h"

namespace {

constexpr const char* programName = "kyr";
constexpr const char* jsonFormat = "json";
constexpr const char* textFormat = "text";
constexpr unsigned int mostJobs = 1000;

std::string textOf(const HostText<0>& literal) { return std::string(literal.getText().view()); }

// Empty for a text that is a time, else what is wrong with it.
std::string checkTime(const std::string& text) {
  std::int64_t time = 0;
  if (KYRDate::parseIsoTimestamp(KYRString(text), time)) return {};
  return std::string(KYRHostTexts::NOT_A_TIME.toString(KYRString(text)).view());
}

// Empty for the name of a data store, else the names that there are.
std::string checkStore(const std::string& name) {
  if (findKnownDataStore(KYRString(name)) != nullptr) return {};
  KYRString known;
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    if (!known.isEmpty()) known += ", ";
    known += store.name;
  }
  return std::string(KYRHostTexts::NO_SUCH_STORE.toString(KYRString(name), known).view());
}

std::string checkName(const std::string& text) { return text.empty() ? textOf(KYRHostTexts::NO_NAME) : ""; }

class Definition {
 public:
  explicit Definition(CommandRequest& request);
  void read(int argumentCount, const char* const* arguments);

 private:
  CLI::App& addCommand(const char* name, const HostText<0>& help, const HostText<0>& examples);
  void defineImport();
  void defineModelFormat(CLI::App& command);
  void defineLogFormat(CLI::App& command);
  void defineInfo();
  void defineInspect();
  void defineDiagram();
  void defineDiff();
  void defineReport();
  void defineLayout(CLI::App& command);
  void defineNormalize();
  static void addNormalize(CLI::App& command, NormalizeChoice& choice);
  static CLI::Option& addPlugin(CLI::App& command, std::string& path);
  void addReading(CLI::App& command);
  static void addLimit(CLI::App& command, const char* name, std::size_t& value, const HostText<1>& help,
                       const char* unit);

  CommandRequest& request_;
  CLI::App app_;
};

Definition::Definition(CommandRequest& request)
    : request_(request), app_(textOf(KYRHostTexts::HELP), programName) {
  app_.formatter(std::make_shared<HelpFormatter>());  // commands take it over
  app_.footer(textOf(KYRHostTexts::HELP_EXAMPLES));
  app_.set_help_flag("-h,--help", textOf(KYRHostTexts::HELP_HELP));
  const KYRString version = KYRHostTexts::VERSION.toString(KYRString(projectVersion));
  app_.set_version_flag("--version", version.getCharacters(), textOf(KYRHostTexts::HELP_VERSION));
  app_.require_subcommand(1, 1);
  defineImport();
  defineInfo();
  defineInspect();
  defineDiagram();
  defineReport();
  defineDiff();
  defineNormalize();
}

CLI::App& Definition::addCommand(const char* name, const HostText<0>& help, const HostText<0>& examples) {
  CLI::App* const command = app_.add_subcommand(name, textOf(help));
  command->group(textOf(KYRHostTexts::HELP_COMMANDS));
  command->footer(textOf(examples));
  command->set_help_flag("-h,--help", textOf(KYRHostTexts::HELP_HELP));
  return *command;
}

void Definition::defineImport() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("import", IMPORT_HELP, IMPORT_HELP_EXAMPLES);
  ImportCommand::Settings& settings = request_.import;
  command.add_option("FILE", settings.files, textOf(IMPORT_HELP_FILE))->required()->type_name("");
  command.add_option("-j,--jobs", settings.jobs, textOf(IMPORT_HELP_JOBS))
      ->type_name("N")
      ->check(CLI::Range(1U, mostJobs).description(""));
  command.add_option("-o,--output", settings.output, textOf(IMPORT_HELP_OUTPUT))
      ->type_name("PATH")
      ->check(CLI::Validator(checkName, ""));
  defineModelFormat(command);
  command.add_option("--root-package", settings.rootPackage, textOf(IMPORT_HELP_ROOT_PACKAGE))
      ->type_name("NAME");
  command.add_option("--modification-time", settings.modificationTime, textOf(IMPORT_HELP_MODIFICATION_TIME))
      ->type_name("TIME")
      ->check(CLI::Validator(checkTime, ""));
  addNormalize(command, settings.normalize);
  addReading(command);
  command.add_flag("-q,--quiet", settings.isQuiet, textOf(IMPORT_HELP_QUIET));
  command.add_flag("--timing", settings.withTiming, textOf(IMPORT_HELP_TIMING));
  defineLogFormat(command);
  command.add_option("--log-file", settings.logFile, textOf(IMPORT_HELP_LOG_FILE))->type_name("PATH");
  command.add_option("--trace", settings.traceFile, textOf(IMPORT_HELP_TRACE))->type_name("PATH");
  addPlugin(command, settings.plugin);
}

void Definition::defineModelFormat(CLI::App& command) {
  const auto set = [this](const std::string& name) {
    request_.import.modelFormat = FileNames::findFormat(name);
  };
  command.add_option_function<std::string>("--format", set, textOf(KYRHostTexts::IMPORT_HELP_FORMAT))
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"json", "sqlite", "sql"}).description(""));
  command.add_flag("--append", request_.import.isAppending, textOf(KYRHostTexts::IMPORT_HELP_APPEND));
}

void Definition::defineLogFormat(CLI::App& command) {
  const auto set = [this](const std::string& name) {
    request_.import.format = name == jsonFormat ? HostLog::Format::json : HostLog::Format::text;
  };
  command.add_option_function<std::string>("--log-format", set, textOf(KYRHostTexts::IMPORT_HELP_LOG_FORMAT))
      ->type_name("FORMAT")
      ->check(CLI::IsMember({textFormat, jsonFormat}).description(""));
}

void Definition::defineInfo() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("info", INFO_HELP, INFO_HELP_EXAMPLES);
  command.add_flag("--json", request_.info.isJson, textOf(INFO_HELP_JSON));
  CLI::Option& plugin = addPlugin(command, request_.info.plugin);
  CLI::Option* const types =
      command.add_flag("--types", request_.info.listsTypes, textOf(INFO_HELP_TYPES))->excludes(&plugin);
  command.add_option("STORE", request_.info.store, textOf(INFO_HELP_STORE))
      ->type_name("")
      ->needs(types)
      ->check(CLI::Validator(checkStore, ""));
}

void Definition::defineInspect() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("inspect", INSPECT_HELP, INSPECT_HELP_EXAMPLES);
  InspectCommand::Settings& settings = request_.inspect;
  command.add_option("FILE", settings.file, textOf(INSPECT_HELP_FILE))->required()->type_name("");
  command.add_flag("--json", settings.isJson, textOf(INSPECT_HELP_JSON));
  command.add_flag("--objects", settings.listsObjects, textOf(INSPECT_HELP_OBJECTS));
  command.add_flag("--quick", settings.isQuick, textOf(INSPECT_HELP_QUICK));
  addNormalize(command, settings.normalize);
  addReading(command);
}

void Definition::defineDiagram() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("diagram", DIAGRAM_HELP, DIAGRAM_HELP_EXAMPLES);
  DiagramCommand::Settings& settings = request_.diagram;
  command.add_option("FILE", settings.file, textOf(DIAGRAM_HELP_FILE))->required()->type_name("");
  command.add_option("--name", settings.name, textOf(DIAGRAM_HELP_NAME))->type_name("NAME");
  command.add_option("-o,--output", settings.folder, textOf(DIAGRAM_HELP_OUTPUT))->type_name("FOLDER");
}

void Definition::defineReport() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("report", REPORT_HELP, REPORT_HELP_EXAMPLES);
  command.add_option("FILE", request_.report.file, textOf(REPORT_HELP_FILE))->required()->type_name("");
  command.add_option("-o,--output", request_.report.output, textOf(REPORT_HELP_OUTPUT))
      ->type_name("PATH")
      ->check(CLI::Validator(checkName, ""));
  command.add_option("--messages", request_.report.log, textOf(REPORT_HELP_MESSAGES))
      ->type_name("PATH")
      ->check(CLI::Validator(checkName, ""));
  defineLayout(command);
}

void Definition::defineLayout(CLI::App& command) {
  using Layout = ReportCommand::Layout;
  const auto set = [this](const std::string& name) {
    request_.report.layout = name == "graphviz" ? Layout::graphviz
                             : name == "simple" ? Layout::simple
                                                : Layout::automatic;
  };
  command.add_option_function<std::string>("--layout", set, textOf(KYRHostTexts::REPORT_HELP_LAYOUT))
      ->type_name("LAYOUT")
      ->check(CLI::IsMember({"auto", "graphviz", "simple"}).description(""));
}

void Definition::defineDiff() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("diff", DIFF_HELP, DIFF_HELP_EXAMPLES);
  command.add_option("OLD", request_.diff.before, textOf(DIFF_HELP_OLD))->required()->type_name("");
  command.add_option("NEW", request_.diff.after, textOf(DIFF_HELP_NEW))->required()->type_name("");
  command.add_flag("--json", request_.diff.isJson, textOf(DIFF_HELP_JSON));
}

void Definition::defineNormalize() {
  using namespace KYRHostTexts;
  CLI::App& command = addCommand("normalize", NORMALIZE_HELP, NORMALIZE_HELP_EXAMPLES);
  NormalizeCommand::Settings& settings = request_.normalize;
  command.add_option("FILE", settings.file, textOf(NORMALIZE_HELP_FILE))->required()->type_name("");
  command.add_option("-o,--output", settings.output, textOf(NORMALIZE_HELP_OUTPUT))
      ->required()
      ->type_name("PATH");
  command.add_flag("--all", settings.isAll, textOf(NORMALIZE_HELP_ALL));
  addReading(command);
}

// A flag, so that a file name behind it is not taken for its value.
void Definition::addNormalize(CLI::App& command, NormalizeChoice& choice) {
  command.add_flag("--normalize{usual}", choice.value, textOf(KYRHostTexts::HELP_NORMALIZE))
      ->type_name("[=all]")
      ->check(CLI::IsMember({NormalizeChoice::usual, NormalizeChoice::all}).description(""));
}

CLI::Option& Definition::addPlugin(CLI::App& command, std::string& path) {
  return *command.add_option("--plugin", path, textOf(KYRHostTexts::HELP_PLUGIN))->type_name("PATH");
}

// What tells how a file of the outer world is read.
void Definition::addReading(CLI::App& command) {
  using namespace KYRHostTexts;
  XmlLimits& limits = request_.limits;
  command.add_option("--encoding", request_.encoding, textOf(HELP_ENCODING))->type_name("NAME");
  addLimit(command, "--max-depth", limits.maxDepth, HELP_MAX_DEPTH, "N");
  addLimit(command, "--max-attribute", limits.maxTextBytes, HELP_MAX_ATTRIBUTE, "BYTES");
  addLimit(command, "--max-attribute-count", limits.maxAttributes, HELP_MAX_ATTRIBUTE_COUNT, "N");
  addLimit(command, "--max-name", limits.maxNameBytes, HELP_MAX_NAME, "BYTES");
}

void Definition::addLimit(CLI::App& command, const char* name, std::size_t& value, const HostText<1>& help,
                          const char* unit) {
  constexpr std::size_t most = 0xFFFFFFFEU;  // of the texts and numbers that hold what is read
  const KYRString usual(std::to_string(value).c_str());
  command.add_option(name, value, std::string(help.toString(usual).view()))
      ->type_name(unit)
      ->check(CLI::Range(std::size_t{1}, most).description(""));
}

void Definition::read(int argumentCount, const char* const* arguments) {
  try {
    app_.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    request_.command = programName;
    for (const CLI::App* const command : app_.get_subcommands())
      request_.command += ' ' + command->get_name();
    const bool isAnswer = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success);
    request_.kind = isAnswer ? CommandRequest::Kind::answer : CommandRequest::Kind::wrongUsage;
    std::ostringstream answer;
    if (isAnswer) app_.exit(error, answer, answer);
    request_.text = isAnswer ? answer.str() : error.what();
    if (!isAnswer && argumentCount < 2) request_.text = KYRHostTexts::NO_COMMAND.toString().view();
    const bool isCommandMissing = !isAnswer && app_.get_subcommands().empty();
    if (isCommandMissing && argumentCount > 1 && arguments[1][0] != '-') {
      request_.text = KYRHostTexts::UNKNOWN_COMMAND.toString(KYRString(arguments[1])).view();
    }
    return;
  }
  // A tag must be able to hold what its attributes may.
  request_.limits.maxMarkupBytes = std::max(request_.limits.maxMarkupBytes, request_.limits.maxTextBytes * 2);
  using Kind = CommandRequest::Kind;
  if (!request_.import.files.empty()) request_.import.file = request_.import.files.front();
  request_.kind = app_.got_subcommand("import")      ? Kind::import
                  : app_.got_subcommand("diff")      ? Kind::diff
                  : app_.got_subcommand("info")      ? Kind::info
                  : app_.got_subcommand("diagram")   ? Kind::diagram
                  : app_.got_subcommand("report")    ? Kind::report
                  : app_.got_subcommand("normalize") ? Kind::normalize
                                                     : Kind::inspect;
}

}  // namespace

CommandRequest readCommandLine(int argumentCount, const char* const* arguments) {
  CommandRequest request;
  Definition(request).read(argumentCount, arguments);
  return request;
}
