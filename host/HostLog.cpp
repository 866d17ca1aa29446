// How a line of the log is made and where it goes.
#include "host/HostLog.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "host/KYRHostMessages.h"
#include "host/TerminalText.h"

/// An open log file.
class HostLog::File {
 public:
  explicit File(const std::string& path)
      : path_(path),
        descriptor_(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOCTTY, permissions)),
        output_(descriptor_) {
    if (descriptor_ >= 0) return;
    const KYRString reason(std::strerror(errno));
    KYRHostMessages::LOG_FILE_CANNOT_OPEN.throwException(KYRString(path_), reason);
  }
  explicit File(int descriptor) : descriptor_(descriptor), output_(descriptor_) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { ::close(descriptor_); }

  const std::string& getPath() const noexcept { return path_; }
  Output& getOutput() noexcept { return output_; }

 private:
  static constexpr mode_t permissions = 0666;  // less what the umask takes away
  std::string path_;
  int descriptor_;
  Output output_;
};

namespace {

// "[CODE] text", as exceptions of catalogue messages read.
struct CodedText {
  explicit CodedText(std::string_view message) : text(message) {
    const std::size_t end = message.find("] ");
    if (!message.starts_with('[') || end == std::string_view::npos) return;
    code = message.substr(1, end - 1);
    text = message.substr(end + 2);
  }
  std::string_view code;
  std::string_view text;
};

}  // namespace

HostLog::HostLog(Format format, int lightestShown)
    : format_(format), lightestShown_(lightestShown), terminal_(STDERR_FILENO) {}

HostLog::~HostLog() = default;

void HostLog::openFile(const std::string& path) { file_ = std::make_unique<File>(path); }

void HostLog::openFile(int descriptor) { file_ = std::make_unique<File>(descriptor); }

void HostLog::passOn(std::string_view shown, std::string_view logged) {
  terminal_.write(shown);
  terminal_.flush();
  if (file_ == nullptr) return;
  file_->getOutput().write(logged);
  file_->getOutput().flush();
}

void HostLog::log(const KYRLogEvent& event) {
  const char* const level = KYRLogLevel::toName(event.getLevel());
  if (format_ == Format::json) {
    jsonLine(level, event.getCode().view(), event.getText().view());
    send(json_.endLine(), event.getLevel());
    return;
  }
  std::string line = level;
  line += ' ';
  line += event.getCode().view();
  line += ' ';
  line += TerminalText::escape(event.getText().view());
  line += '\n';
  send(line, event.getLevel());
}

void HostLog::fail(const KYRString& message) {
  if (format_ == Format::json) {
    const CodedText parts(message.view());
    jsonLine(KYRLogLevel::toName(KYRLogLevel::fatal), parts.code, parts.text);
    send(json_.endLine(), KYRLogLevel::fatal);
  } else {
    send(TerminalText::escape(message.view()) + '\n', KYRLogLevel::fatal);
  }
}

void HostLog::finish() {
  if (file_ == nullptr || file_->getOutput().getError() == 0) return;
  const std::unique_ptr<File> file = std::move(file_);
  KYRHostMessages::LOG_FILE_INCOMPLETE.log(*this, KYRString(file->getPath()),
                                           KYRString(std::strerror(file->getOutput().getError())));
}

void HostLog::jsonLine(std::string_view level, std::string_view code, std::string_view text) {
  json_.beginLine();
  json_.beginObject();
  json_.key("level").text(level);
  json_.key("code").text(code);
  json_.key("text").text(text);
  json_.endObject();
}

// Each line is on its way at once: an import can take long, and its end can be sudden.
void HostLog::send(std::string_view line, int level) {
  if (level <= lightestShown_) {
    terminal_.write(line);
    terminal_.flush();
  }
  if (file_ != nullptr) {
    file_->getOutput().write(line);
    file_->getOutput().flush();
  }
}
