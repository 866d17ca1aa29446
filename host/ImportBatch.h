// ImportBatch: `kyr import` of several files, each in a process of its own, some at a time. The results
// are told in the order of the files, whatever the order in which they come.
#pragma once

#include <csignal>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/ImportChild.h"
#include "host/ImportReport.h"

class ImportBatch {
 public:
  /// `settings` holds for each of the files; its `output` is a folder, or the database to append to.
  ImportBatch(ImportCommand::Settings settings, Output& output, HostLog& log);
  ImportBatch(const ImportBatch&) = delete;
  ImportBatch& operator=(const ImportBatch&) = delete;
  /// Ends the children that are still at work.
  ~ImportBatch();
  /// The exit code: failed when one of the imports has. A signal that ends the process ends the children
  /// first; the call does not return then.
  int run();

 private:
  bool isWrongUsage();
  bool outputsClash();
  void holdSignals();
  void startSome();
  void showProgress();
  int awaitSignal() const;
  void await();
  void stopChildren() noexcept;
  void tellFinished();

  ImportCommand::Settings settings_;
  std::vector<std::string> files_;
  HostLog& log_;
  ImportReport report_;
  std::vector<std::unique_ptr<ImportChild>> children_;
  sigset_t before_ = {};
  sigset_t awaited_ = {};
  bool areSignalsHeld_ = false;
  std::size_t started_ = 0;
  std::map<pid_t, ImportChild*> running_;
  std::size_t finished_ = 0;
  std::size_t told_ = 0;
};
