// ImportCommand: `kyr import`, from the command line to the options of the plug-in and back.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/HostLog.h"
#include "host/LossSurvey.h"
#include "host/ModelSaver.h"
#include "host/NormalizeSummary.h"
#include "host/Output.h"

class JsonOut;
class KYROptionList;
class PhaseReport;
class PluginLibrary;
class ProgressWatch;
class TraceFile;

class ImportCommand {
 public:
  struct Settings {
    std::vector<std::string> files;  // as given
    std::string file;                // the one that is imported
    unsigned int jobs = 0;           // how many at a time; 0: as many as there are processors
    std::string output;              // empty: named after the file
    std::string rootPackage;
    std::string modificationTime;                 // ISO 8601; empty: the present
    std::string plugin;                           // empty: the one of this installation
    std::string logFile;                          // empty: none
    std::string traceFile;                        // empty: none
    std::optional<StoreModelFormat> modelFormat;  // nothing: as the name of the output says
    bool isAppending = false;
    NormalizeChoice normalize;
    bool isQuiet = false;
    bool isResultWanted = false;  // of a quiet import: its counts are asked for all the same
    bool withTiming = false;
    HostLog::Format format = HostLog::Format::text;
  };

  /// What there is to tell of an import that has succeeded.
  struct Result {
    double seconds = 0;
    std::optional<SavedModelCounts> counts;
  };

  /// The name that stands for the standard output.
  static constexpr const char* standardOutput = "-";
  /// Whether the model is written to the standard output, which says nothing else then.
  static bool isToOutput(const Settings& settings) { return settings.output == standardOutput; }
  /// Names the host as the origin of a model.
  static constexpr const char* originId = "kyr";
  /// The option of the plug-in that names the file to import.
  static constexpr const char* fileOption = "BP_FILE";
  /// Raises KYRException when the plug-in has no option of that name.
  static void setOption(KYROptionList& options, const PluginLibrary& library, const char* identifier,
                        const std::string& value);
  /// The file that a model is written to.
  static std::string targetOf(const Settings& settings);
  static KYRString inSeconds(double seconds);
  /// The members of the open object that tell the result.
  static void resultToJson(JsonOut& json, const std::string& target, const Result& result);

  /// `library` must outlive the handling of an exception, which may come from the plug-in.
  ImportCommand(Settings settings, PluginLibrary& library, Output& output, HostLog& log)
      : settings_(std::move(settings)), library_(library), output_(output), log_(log) {}
  /// The exit code. Raises KYRException for an import that fails; no output file is written then.
  int run();
  const Result& getResult() const noexcept { return result_; }

 private:
  static StoreModelFormat formatOf(const Settings& settings);
  bool isWrongUsage();
  bool filesClash();
  bool traceClashes() const;
  bool isTarget(const std::string& file) const;
  void fillOptions(KYROptionList& options);
  ModelSaver makeSaver();
  void importFile(KYROptionList& options);
  void summarize(const PhaseReport& phases, const TraceFile& trace, ProgressWatch& progress);
  void writeSummary(const PhaseReport& phases, const TraceFile& trace, ProgressWatch& progress,
                    Output& output);

  Settings settings_;
  PluginLibrary& library_;
  Output& output_;
  HostLog& log_;
  std::string target_;
  std::optional<Normalizer> normalizer_;  // when the step was asked for
  std::optional<LossSurvey> survey_;      // of an import without it that says something
  Result result_;
};
