// The frame around every command: output, log, plug-in, and the handling of what is raised.
#include "host/CommandLine.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "foundation/xml/XmlLimits.h"
#include "host/CommandRequest.h"
#include "host/ExitCode.h"
#include "host/FailureHint.h"
#include "host/GuardedRun.h"
#include "host/HostLog.h"
#include "host/ImportBatch.h"
#include "host/KYRHostMessages.h"
#include "host/PluginLibrary.h"

namespace {

using Kind = CommandRequest::Kind;

// What a command works with. The plug-in stays loaded while an exception out of it is handled.
struct Tools {
  explicit Tools(const CommandRequest& request) : log(request.import.format, lightestShown(request)) {}
  static int lightestShown(const CommandRequest& request) {
    // The report of an inspection says what lesser messages would.
    if (request.kind == Kind::inspect) return KYRLogLevel::fatal;
    return request.import.isQuiet ? KYRLogLevel::warning : KYRLogLevel::status;
  }

  Output output{STDOUT_FILENO};
  HostLog log;
  PluginLibrary library;
};

int perform(const CommandRequest& request, Tools& tools) {
  XmlLimits::set(request.limits);
  if (!request.encoding.empty()) forceXmlEncoding(request.encoding.c_str());
  switch (request.kind) {
    case Kind::import:
      if (request.import.files.size() > 1) return ImportBatch(request.import, tools.output, tools.log).run();
      return FailureHint::runWith(
          tools.log, request.import.file, !request.import.isQuiet && !request.import.normalize.isWanted(),
          [&] { return ImportCommand(request.import, tools.library, tools.output, tools.log).run(); });
    case Kind::info:
      InfoCommand(request.info, tools.library, tools.output).run();
      return ExitCode::done;
    case Kind::inspect:
      return FailureHint::runWith(
          tools.log, request.inspect.file, !request.inspect.normalize.isWanted(), [&] {
            InspectCommand(request.inspect, tools.library, tools.output, tools.log).run();
            return ExitCode::done;
          });
    case Kind::diagram:
      DiagramCommand(request.diagram, tools.output).run();
      return ExitCode::done;
    case Kind::normalize:
      return NormalizeCommand(request.normalize, tools.output, tools.log).run();
    case Kind::report:
      return ReportCommand(request.report, tools.output, tools.log).run();
    case Kind::diff:
      return DiffCommand(request.diff, tools.output).run();
    case Kind::answer:
      tools.output.write(request.text);
      return ExitCode::done;
    case Kind::wrongUsage:
      break;
  }
  tools.log.fail(
      KYRHostMessages::WRONG_USAGE.getMessage(KYRString(request.text), KYRString(request.command)));
  return ExitCode::wrongUsage;
}

int failureCode(const CommandRequest& request) {
  return request.kind == Kind::diff ? ExitCode::cannotCompare : ExitCode::failed;
}

int performSafely(const CommandRequest& request, Tools& tools) {
  return runGuarded(tools.log, failureCode(request), [&request, &tools] { return perform(request, tools); });
}

// Where the output is the result, a command that cannot write it has failed. The result of an import
// is its file, unless that is the output.
int finish(const CommandRequest& request, Tools& tools, int code) {
  tools.output.flush();
  const int error = tools.output.getError();
  if (error != 0) {
    tools.log.fail(KYRHostMessages::CANNOT_WRITE_OUTPUT.getMessage(KYRString(std::strerror(error))));
    if (request.kind != Kind::import || ImportCommand::isToOutput(request.import))
      code = failureCode(request);
  }
  tools.log.finish();
  return code;
}

}  // namespace

int runCommandLine(int argumentCount, const char* const* arguments) noexcept {
  try {
    const CommandRequest request = readCommandLine(argumentCount, arguments);
    Tools tools(request);
    return finish(request, tools, performSafely(request, tools));
  } catch (...) {
    sayOutOfMemory();  // not even a message could be made
    return ExitCode::failed;
  }
}

void sayOutOfMemory() noexcept {
  std::fputs(KYRHostMessages::outOfMemoryText, stderr);
  std::fputs("\n", stderr);
}
