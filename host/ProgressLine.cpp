// There is one terminal, so what stands on it is known once for the process.
#include "host/ProgressLine.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>

#include "host/TerminalText.h"

namespace {

// Back to the start of the line, and erase to its end (ECMA-48).
constexpr std::string_view clearLine = "\r\x1b[K";
constexpr std::size_t usualWidth = 80;

std::mutex terminalMutex;
std::atomic<bool> isLineShown{false};

bool isTerminal() {
  const char* const kind = std::getenv("TERM");
  const bool isDumb = kind != nullptr && std::string_view(kind) == "dumb";
  return !isDumb && isatty(STDERR_FILENO) == 1;
}

// A job in the background must not write into what is done in the foreground.
bool isInForeground() noexcept {
  const pid_t owner = tcgetpgrp(STDERR_FILENO);
  return owner < 0 || owner == getpgrp();
}

std::size_t terminalWidth() noexcept {
  winsize size = {};
  return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col != 0 ? size.ws_col : usualWidth;
}

// A line that cannot be drawn is not missed.
void put(std::string_view bytes) noexcept {
  [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, bytes.data(), bytes.size());
}

void wipeLine() noexcept {
  if (isLineShown.exchange(false)) put(clearLine);
}

}  // namespace

ProgressLine::ProgressLine(bool isWanted)
    : isOn_(isWanted && isTerminal()), due_(std::chrono::steady_clock::now() + patience) {}

ProgressLine::~ProgressLine() {
  if (isOn_) const Pause pause;
}

void ProgressLine::show(std::string_view text) {
  if (!isOn_ || text.empty() || std::chrono::steady_clock::now() < due_ || !isInForeground()) return;
  // The last column stays free: some terminals begin a new line when it is written to.
  std::string line = fit(text, terminalWidth() - 1);
  const std::lock_guard lock(terminalMutex);
  if (isLineShown && line == shown_) return;
  shown_ = std::move(line);
  isLineShown = true;
  put(std::string(clearLine) + shown_);
}

// A character beyond ASCII may take two columns.
std::string ProgressLine::fit(std::string_view text, std::size_t columns) {
  std::string fitting;
  while (!text.empty()) {
    const TerminalText::Character character = TerminalText::take(text);
    const std::size_t width = character.code < 0x80 ? 1 : 2;
    if (width > columns) break;
    columns -= width;
    fitting += character.bytes;
  }
  return fitting;
}

ProgressLine::Pause::Pause() : lock_(terminalMutex) { wipeLine(); }

void ProgressLine::forget() noexcept { isLineShown = false; }

void ProgressLine::wipeAtSignal() noexcept { wipeLine(); }
