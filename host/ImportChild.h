// ImportChild: one import in a process of its own.
//
// The dispatch of the reader keeps changes from one import to the next, and what a broken file may do to a
// process stays in that process. What the child says goes into files without names, so that the parent
// shows it when it is its turn.
#pragma once

#include <sys/types.h>

#include <csignal>
#include <memory>
#include <string>

#include "foundation/KYRImportProgress.h"
#include "host/ImportCommand.h"

class ImportChild {
 public:
  /// Takes what the child has to do; `settings.file` is the one file.
  explicit ImportChild(ImportCommand::Settings settings);
  ImportChild(const ImportChild&) = delete;
  ImportChild& operator=(const ImportChild&) = delete;
  ~ImportChild();

  /// Starts the process, in which the signals of `mask` are as they were. Raises KYRException when there
  /// can be none.
  void start(const sigset_t& mask);
  pid_t getProcess() const noexcept { return process_; }
  /// The process has ended with that status, as `waitpid` tells it.
  void finish(int status);

  bool isFinished() const noexcept { return isFinished_; }
  bool isDone() const noexcept;
  /// The signal that has ended the process; 0 when none has.
  int getSignal() const noexcept;
  const ImportCommand::Settings& getSettings() const noexcept { return settings_; }
  const std::string& getFile() const noexcept { return settings_.file; }
  /// What it said on the terminal, and what for the log file.
  const std::string& getShown() const noexcept { return shown_; }
  const std::string& getLogged() const noexcept { return logged_; }
  const ImportCommand::Result& getResult() const noexcept { return result_; }
  /// Where the process is at this moment; empty when none runs or nothing is known.
  KYRImportProgress::State getProgress() const noexcept;

 private:
  struct Channels;
  [[noreturn]] void work(const sigset_t& mask, pid_t parent);
  int import();

  ImportCommand::Settings settings_;
  std::unique_ptr<Channels> channels_;  // while the process runs
  pid_t process_ = 0;
  int status_ = 0;
  bool isFinished_ = false;
  std::string shown_;
  std::string logged_;
  ImportCommand::Result result_;
};
