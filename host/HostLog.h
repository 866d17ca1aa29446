// HostLog: the log of an import, as lines on the standard error output and in a log file.
//
// A line of text reads "STATUS KBI_UML2XMI_S0017 Parsing file 'model.xmi'", a line of JSON
// {"level":"STATUS","code":"KBI_UML2XMI_S0017","text":"Parsing file 'model.xmi'"}. The log file gets
// every line; the terminal only those that its user wants.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "foundation/KYRLog.h"
#include "host/JsonOut.h"
#include "host/Output.h"

class HostLog final : public KYRLog {
 public:
  enum class Format { text, json };

  /// Lines of a level number above `lightestShown` do not reach the terminal.
  HostLog(Format format, int lightestShown);
  ~HostLog() override;
  void setLightestShown(int level) noexcept { lightestShown_ = level; }

  /// Writes every further line to that file too, which starts empty. Raises KYRException when it
  /// cannot be opened.
  void openFile(const std::string& path);
  /// The same with a file that is open already, which it closes.
  void openFile(int descriptor);
  void log(const KYRLogEvent& event) override;
  /// The end of the work by an exception. As text the message stands as the exception says it.
  void fail(const KYRString& message);
  /// Lines that another log has made: those for the terminal, and those for the file.
  void passOn(std::string_view shown, std::string_view logged);
  /// Reports a log file that could not be written to its end. Called once, after the last line.
  void finish();

 private:
  class File;
  void jsonLine(std::string_view level, std::string_view code, std::string_view text);
  void send(std::string_view line, int level);

  Format format_;
  int lightestShown_;
  Output terminal_;
  JsonOut json_;
  std::unique_ptr<File> file_;
};
