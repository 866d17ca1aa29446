// Signals are not handled but waited for: those of children that end, and those that end the program.
#include "host/ImportBatch.h"

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <map>
#include <thread>

#include "host/EndingSignals.h"
#include "host/ExitCode.h"
#include "host/FileNames.h"
#include "host/KYRHostMessages.h"

ImportBatch::ImportBatch(ImportCommand::Settings settings, Output& output, HostLog& log)
    : settings_(std::move(settings)),
      files_(std::move(settings_.files)),
      log_(log),
      report_(settings_.isQuiet, settings_.format, files_.size(), output, log) {
  settings_.files.clear();
  if (settings_.jobs == 0) settings_.jobs = std::max(1U, std::thread::hardware_concurrency());
}

ImportBatch::~ImportBatch() {
  stopChildren();
  if (areSignalsHeld_) sigprocmask(SIG_SETMASK, &before_, nullptr);
}

int ImportBatch::run() {
  if (isWrongUsage()) return ExitCode::wrongUsage;
  if (!settings_.logFile.empty()) log_.openFile(settings_.logFile);
  for (const std::string& file : files_) {
    ImportCommand::Settings settings = settings_;
    settings.file = file;
    children_.push_back(std::make_unique<ImportChild>(std::move(settings)));
  }
  holdSignals();
  while (told_ < children_.size()) {
    startSome();
    await();
    tellFinished();
  }
  report_.close();
  const bool isDone =
      std::all_of(children_.begin(), children_.end(), [](const auto& child) { return child->isDone(); });
  return isDone ? ExitCode::done : ExitCode::failed;
}

bool ImportBatch::isWrongUsage() {
  if (!settings_.traceFile.empty()) {
    log_.fail(KYRHostMessages::TRACE_OF_ONE_FILE.getMessage());
    return true;
  }
  std::error_code failure;
  const bool needsFolder = !settings_.output.empty() && !settings_.isAppending;
  if (needsFolder && !std::filesystem::is_directory(settings_.output, failure)) {
    log_.fail(KYRHostMessages::OUTPUT_NOT_A_FOLDER.getMessage(KYRString(settings_.output)));
    return true;
  }
  return outputsClash();
}

bool ImportBatch::outputsClash() {
  std::map<std::string, std::string> inputs;
  std::map<std::string, std::string> outputs;
  for (const std::string& file : files_) inputs.emplace(FileNames::identityOf(file), file);
  for (const std::string& file : files_) {
    ImportCommand::Settings settings = settings_;
    settings.file = file;
    const std::string target = ImportCommand::targetOf(settings);
    const std::string identity = FileNames::identityOf(target);
    if (inputs.count(identity) != 0) {
      log_.fail(KYRHostMessages::OUTPUT_IS_INPUT.getMessage(KYRString(target)));
      return true;
    }
    const auto [other, isNew] = outputs.emplace(identity, file);
    if (!isNew && !settings_.isAppending) {
      log_.fail(KYRHostMessages::OUTPUTS_CLASH.getMessage(KYRString(other->second), KYRString(file),
                                                          KYRString(target)));
      return true;
    }
  }
  return false;
}

void ImportBatch::holdSignals() {
  sigemptyset(&awaited_);
  sigaddset(&awaited_, SIGCHLD);
  for (const int signal : EndingSignals::all) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler != SIG_IGN) sigaddset(&awaited_, signal);
  }
  std::signal(SIGCHLD, SIG_DFL);  // whoever started the program may have left it ignored
  sigprocmask(SIG_BLOCK, &awaited_, &before_);
  areSignalsHeld_ = true;
}

void ImportBatch::startSome() {
  for (; started_ < children_.size() && running_.size() < settings_.jobs; ++started_) {
    ImportChild& child = *children_[started_];
    child.start(before_);
    running_.emplace(child.getProcess(), &child);
  }
  showProgress();
}

void ImportBatch::showProgress() {
  if (!report_.showsProgress()) return;
  std::vector<const ImportChild*> running;
  for (std::size_t i = told_; i < started_; ++i) {
    if (!children_[i]->isFinished()) running.push_back(children_[i].get());
  }
  report_.showProgress(finished_, running);
}

// A terminal is looked after in between; without one nothing happens until a process ends.
int ImportBatch::awaitSignal() const {
  if (!report_.showsProgress()) return sigwaitinfo(&awaited_, nullptr);
  const auto wait = std::chrono::nanoseconds(ProgressLine::interval);
  const timespec interval = {0, static_cast<long>(wait.count())};
  return sigtimedwait(&awaited_, nullptr, &interval);
}

void ImportBatch::await() {
  if (running_.empty()) return;
  const int signal = awaitSignal();
  if (signal > 0 && signal != SIGCHLD) {
    stopChildren();
    ProgressLine::wipeAtSignal();
    EndingSignals::endBy(signal);
  }
  // One SIGCHLD can stand for several children.
  int status = 0;
  for (pid_t process = 0; (process = waitpid(-1, &status, WNOHANG)) > 0;) {
    const auto child = running_.find(process);
    if (child == running_.end()) continue;
    child->second->finish(status);
    running_.erase(child);
    ++finished_;
  }
}

void ImportBatch::stopChildren() noexcept {
  for (const auto& [process, child] : running_) kill(process, SIGTERM);
  for (const auto& [process, child] : running_) {
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
}

void ImportBatch::tellFinished() {
  for (; told_ < children_.size() && children_[told_]->isFinished(); ++told_) report_.tell(*children_[told_]);
}
