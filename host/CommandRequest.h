// CommandRequest: what a command line asks for.
#pragma once

#include <string>

#include "foundation/xml/XmlLimits.h"
#include "host/DiagramCommand.h"
#include "host/DiffCommand.h"
#include "host/ImportCommand.h"
#include "host/InfoCommand.h"
#include "host/InspectCommand.h"
#include "host/NormalizeCommand.h"
#include "host/ReportCommand.h"

struct CommandRequest {
  enum class Kind {
    import,
    info,
    inspect,
    diagram,
    normalize,
    diff,
    report,
    answer,      // help or version: `text` is to be printed
    wrongUsage,  // `text` says why, and `command` which words were understood
  };

  Kind kind = Kind::wrongUsage;
  ImportCommand::Settings import;
  InfoCommand::Settings info;
  InspectCommand::Settings inspect;
  DiagramCommand::Settings diagram;
  NormalizeCommand::Settings normalize;
  DiffCommand::Settings diff;
  ReportCommand::Settings report;
  std::string encoding;  // empty: as each file says
  XmlLimits limits;
  std::string text;
  std::string command;  // "kyr", "kyr import"
};

/// Reads the arguments; the first one is the name of the program.
CommandRequest readCommandLine(int argumentCount, const char* const* arguments);
