// InspectCommand: `kyr inspect`, what the reader makes of a file.
//
// It drives the reader itself, and for what would become of the elements the plug-in. Nothing is saved.
#pragma once

#include <optional>
#include <string>

#include "host/NormalizeSummary.h"
#include "host/Output.h"

class InspectDiagrams;
class InspectImport;
class InspectReport;
class KYRLog;
class PluginLibrary;
class XMIParser;

class InspectCommand {
 public:
  struct Settings {
    std::string file;
    bool isJson = false;
    bool listsObjects = false;
    bool isQuick = false;  // without the import
    NormalizeChoice normalize;
  };

  /// `library` must outlive the handling of an exception, which may come from the plug-in.
  InspectCommand(Settings settings, PluginLibrary& library, Output& output, KYRLog& log)
      : settings_(std::move(settings)), library_(library), output_(output), log_(log) {}
  /// Reads the file and writes the report or the objects. Raises KYRException for a file that the
  /// reader refuses; nothing is written then.
  void run();

 private:
  void listObjects();
  void report();
  void writeText(const XMIParser& parser, const InspectReport& report, const InspectDiagrams& diagrams,
                 const InspectImport* import);
  void writeJson(const XMIParser& parser, const InspectReport& report, const InspectDiagrams& diagrams,
                 const InspectImport* import);

  Settings settings_;
  PluginLibrary& library_;
  Output& output_;
  KYRLog& log_;
  std::optional<Normalizer> normalizer_;  // when the step was asked for
};
