// InspectCommand: `kyr inspect`, what the reader makes of a file.
//
// It drives the reader itself and no plug-in: nothing is converted or saved.
#pragma once

#include <optional>
#include <string>

#include "host/NormalizeSummary.h"
#include "host/Output.h"

class InspectDiagrams;
class InspectReport;
class KYRLog;
class XMIParser;

class InspectCommand {
 public:
  struct Settings {
    std::string file;
    bool isJson = false;
    bool listsObjects = false;
    NormalizeChoice normalize;
  };

  InspectCommand(Settings settings, Output& output, KYRLog& log)
      : settings_(std::move(settings)), output_(output), log_(log) {}
  /// Reads the file and writes the report or the objects. Raises KYRException for a file that the
  /// reader refuses; nothing is written then.
  void run();

 private:
  void writeText(const XMIParser& parser, const InspectReport& report, const InspectDiagrams& diagrams);
  void writeJson(const XMIParser& parser, const InspectReport& report, const InspectDiagrams& diagrams);

  Settings settings_;
  Output& output_;
  KYRLog& log_;
  std::optional<Normalizer> normalizer_;  // when the step was asked for
};
