// ReportCommand: `kyr report`, a saved model as a page for a browser.
#pragma once

#include <string>

#include "host/HostLiteral.h"
#include "host/HostLog.h"
#include "host/Output.h"
#include "repository/model/KYRStoreModel.h"

class ReportCommand {
 public:
  /// Who says where the boxes of the pictures around classes go.
  enum class Layout { automatic, graphviz, simple };
  struct Settings {
    std::string file;    // a saved model
    std::string output;  // empty: the name of the model, in the current folder
    std::string log;     // what the import said; empty: nothing is shown of that
    Layout layout = Layout::automatic;
  };

  ReportCommand(Settings settings, Output& output, HostLog& log)
      : settings_(std::move(settings)), output_(output), log_(log) {}
  /// The exit code. Raises KYRException when the model cannot be read or the page not be written; the
  /// file is as it was then.
  int run();

 private:
  /// What the import said, as JSON; empty when no log is given.
  std::string messagesToJson() const;
  /// What Graphviz makes of the pictures, as JSON; empty when it is not there or does not work, which is told
  /// unless nobody has counted on it.
  std::string picturesToJson(const KYRStoreModel& model) const;
  void warn(const HostText<0>& reason) const;

  Settings settings_;
  Output& output_;
  HostLog& log_;
};
