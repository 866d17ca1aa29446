// Buffered writes with their errors kept.
#include "host/Output.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "host/ProgressLine.h"

namespace {
constexpr std::size_t bufferSize = std::size_t{64} * 1024;
}

void Output::write(std::string_view bytes) {
  if (isClosed_ || error_ != 0) return;
  if (buffer_.size() + bytes.size() > bufferSize) flush();
  if (bytes.size() >= bufferSize) {
    send(bytes);
  } else {
    buffer_ += bytes;
  }
}

void Output::flush() {
  send(buffer_);
  buffer_.clear();
}

void Output::send(std::string_view bytes) {
  if (bytes.empty()) return;
  std::optional<ProgressLine::Pause> pause;
  if (descriptor_ == STDOUT_FILENO || descriptor_ == STDERR_FILENO) pause.emplace();
  while (!bytes.empty() && !isClosed_ && error_ == 0) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EPIPE) {
      isClosed_ = true;
    } else if (errno == EAGAIN) {  // whoever shares the file made it non-blocking
      pollfd room = {descriptor_, POLLOUT, 0};
      poll(&room, 1, -1);
    } else if (errno != EINTR) {
      error_ = errno;
    }
  }
}
