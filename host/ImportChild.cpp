// A fork without exec: nothing of the plug-in is loaded before it.
#include "host/ImportChild.h"

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <type_traits>

#include "host/ExitCode.h"
#include "host/FailureHint.h"
#include "host/KYRHostMessages.h"
#include "host/PluginLibrary.h"
#include "host/ProgressLine.h"

namespace {

/// A file without a name, gone when it is closed.
class ScratchFile {
 public:
  ScratchFile() : descriptor_(memfd_create("kyr", MFD_CLOEXEC)) {}
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ~ScratchFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  int getDescriptor() const noexcept { return descriptor_; }
  std::string read() const {
    std::string content;
    char block[64 * 1024];
    for (;;) {
      const ssize_t count = ::pread(descriptor_, block, sizeof block, static_cast<off_t>(content.size()));
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return content;
      content.append(block, static_cast<std::size_t>(count));
    }
  }

 private:
  int descriptor_;
};

/// A page that the process and its parent both see.
class SharedProgress {
 public:
  SharedProgress()
      : page_(mmap(nullptr, sizeof(KYRImportProgress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1,
                   0)),
        progress_(page_ == MAP_FAILED ? nullptr : new (page_) KYRImportProgress) {}
  SharedProgress(const SharedProgress&) = delete;
  SharedProgress& operator=(const SharedProgress&) = delete;
  ~SharedProgress() {
    if (progress_ != nullptr) munmap(page_, sizeof(KYRImportProgress));
  }
  /// Null when the system had no page to give.
  KYRImportProgress* get() const noexcept { return progress_; }

 private:
  void* page_;
  KYRImportProgress* progress_;
};

}  // namespace

struct ImportChild::Channels {
  ScratchFile shown;
  ScratchFile logged;
  ScratchFile result;
  SharedProgress progress;
  bool areOpen() const noexcept {
    return shown.getDescriptor() >= 0 && logged.getDescriptor() >= 0 && result.getDescriptor() >= 0;
  }
};

ImportChild::ImportChild(ImportCommand::Settings settings) : settings_(std::move(settings)) {}

ImportChild::~ImportChild() = default;

void ImportChild::start(const sigset_t& mask) {
  channels_ = std::make_unique<Channels>();
  const pid_t parent = getpid();
  process_ = channels_->areOpen() ? fork() : -1;
  if (process_ == 0) work(mask, parent);
  if (process_ > 0) return;
  KYRHostMessages::CANNOT_START.throwException(KYRString(settings_.file), KYRString(std::strerror(errno)));
}

void ImportChild::work(const sigset_t& mask, pid_t parent) {
  // A parent that is killed must not leave children behind; it may be gone already.
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) _exit(ExitCode::failed);
  ProgressLine::forget();
  dup2(channels_->shown.getDescriptor(), STDERR_FILENO);
  sigprocmask(SIG_SETMASK, &mask, nullptr);
  int code = ExitCode::failed;
  try {
    code = import();
  } catch (...) {
    // Not even a message could be made; the parent tells that the file was not imported.
  }
  _exit(code);
}

int ImportChild::import() {
  HostLog log(settings_.format, settings_.isQuiet ? KYRLogLevel::warning : KYRLogLevel::status);
  if (!settings_.logFile.empty()) log.openFile(channels_->logged.getDescriptor());
  Output output(STDOUT_FILENO);
  PluginLibrary library;
  ImportCommand::Settings settings = settings_;
  settings.isQuiet = true;  // the parent tells the result
  settings.isResultWanted = !settings_.isQuiet;
  settings.logFile.clear();
  KYRImportProgress::setCurrent(channels_->progress.get());
  ImportCommand command(settings, library, output, log);
  const bool isHintWanted = !settings_.isQuiet && !settings_.normalize.isWanted();
  const int code =
      FailureHint::runWith(log, settings_.file, isHintWanted, [&command] { return command.run(); });
  const ImportCommand::Result& result = command.getResult();
  static_assert(std::is_trivially_copyable_v<ImportCommand::Result>);
  const ssize_t written = ::write(channels_->result.getDescriptor(), &result, sizeof result);
  return written == ssize_t{sizeof result} ? code : ExitCode::failed;
}

void ImportChild::finish(int status) {
  isFinished_ = true;
  process_ = 0;
  status_ = status;
  shown_ = channels_->shown.read();
  logged_ = channels_->logged.read();
  const std::string bytes = channels_->result.read();
  if (bytes.size() == sizeof result_) std::memcpy(&result_, bytes.data(), sizeof result_);
  channels_.reset();
}

bool ImportChild::isDone() const noexcept {
  return WIFEXITED(status_) && WEXITSTATUS(status_) == ExitCode::done;
}

KYRImportProgress::State ImportChild::getProgress() const noexcept {
  const KYRImportProgress* const progress = channels_ ? channels_->progress.get() : nullptr;
  return progress != nullptr ? progress->getState() : KYRImportProgress::State();
}

int ImportChild::getSignal() const noexcept { return WIFSIGNALED(status_) ? WTERMSIG(status_) : 0; }
