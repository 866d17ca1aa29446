// ImportReport: what is said of an import: a summary of one, or a line for each of several and a table.
#pragma once

#include <string>
#include <vector>

#include "host/HostLog.h"
#include "host/ImportCommand.h"
#include "host/Output.h"
#include "host/ProgressLine.h"
#include "host/SavedModelCounts.h"

class ImportChild;

class ImportReport {
 public:
  ImportReport(bool isQuiet, HostLog::Format format, std::size_t fileCount, Output& output, HostLog& log);

  /// Passes on what the child said, and tells how it ended.
  void tell(const ImportChild& child);
  /// The table, after the last child.
  void close();
  /// Whether there is a terminal to show progress on.
  bool showsProgress() const noexcept { return progress_.isOn(); }
  /// How many files are done and where those are that are being imported, in the last line of a terminal.
  void showProgress(std::size_t done, const std::vector<const ImportChild*>& running);

 private:
  void tellDone(const ImportChild& child);
  void tellFailed(const ImportChild& child);
  void addRow(const ImportChild& child);

  bool isQuiet_;
  HostLog::Format format_;
  std::size_t fileCount_;
  Output& output_;
  HostLog& log_;
  ProgressLine progress_;
  std::string rows_;
  std::size_t failed_ = 0;
  double seconds_ = 0;
  SavedModelCounts sum_;
};
