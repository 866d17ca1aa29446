// NormalizeCommand: `kyr normalize`, the rewritten form of a file as a file.
#pragma once

#include <string>

#include "host/HostLog.h"
#include "host/NormalizeSummary.h"
#include "host/Output.h"

class XmlDocument;

class NormalizeCommand {
 public:
  struct Settings {
    std::string file;
    std::string output;
    bool isAll = false;
  };

  NormalizeCommand(Settings settings, Output& output, HostLog& log)
      : settings_(std::move(settings)), output_(output), log_(log) {}
  /// The exit code. Raises KYRException for a file that cannot be read or written; nothing is written then.
  int run();

 private:
  void write(const XmlDocument& document) const;

  Settings settings_;
  Output& output_;
  HostLog& log_;
};
