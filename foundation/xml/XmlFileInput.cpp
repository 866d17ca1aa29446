// POSIX files: asked what they are before and after opening, read without blocking on anything.
#include "foundation/xml/XmlFileInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "foundation/KYRStdMessages.h"

namespace {

KYRString describeError(int error) {
  return KYRString(std::string_view(std::generic_category().message(error)));
}

void requireRegularFile(const struct stat& status, const KYRString& path) {
  if (S_ISDIR(status.st_mode)) KYRStdMessages::FILE_IS_DIRECTORY.throwException(path);
  if (S_ISFIFO(status.st_mode)) KYRStdMessages::FILE_IS_FIFO.throwException(path);
  if (S_ISSOCK(status.st_mode)) KYRStdMessages::FILE_IS_SOCKET.throwException(path);
  if (!S_ISREG(status.st_mode)) KYRStdMessages::FILE_IS_DEVICE.throwException(path);
}

std::int64_t toNanoseconds(const struct timespec& time) noexcept {
  return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

XmlFileInput::Descriptor::~Descriptor() {
  if (number >= 0) ::close(number);
}

XmlFileInput::XmlFileInput(const KYRFile& file) : XmlInput(file.getPath()) {
  const char* const path = file.getPath().getCharacters();
  struct stat status = {};
  // Asked before opening, since opening alone can wake a device, and a socket cannot be opened at all.
  if (::stat(path, &status) == 0) requireRegularFile(status, getName());
  do {
    // Should a FIFO have taken the file's place meanwhile, it must not block.
    descriptor_.number = ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  } while (descriptor_.number < 0 && errno == EINTR);
  if (descriptor_.number < 0 || ::fstat(descriptor_.number, &status) != 0) {
    KYRStdMessages::FILE_CANNOT_OPEN.throwException(getName(), describeError(errno));
  }
  requireRegularFile(status, getName());
  size_ = static_cast<std::uint64_t>(status.st_size);
}

XmlFileInput::~XmlFileInput() {
  if (progress_ != nullptr) progress_->closeFile();
}

std::size_t XmlFileInput::read(char* buffer, std::size_t capacity) {
  if (!isRead_) beginReading();
  for (;;) {
    const ssize_t length = ::read(descriptor_.number, buffer, capacity);
    if (length >= 0) {
      if (progress_ != nullptr) progress_->addBytes(static_cast<std::uint64_t>(length));
      return static_cast<std::size_t>(length);
    }
    if (errno != EINTR) KYRStdMessages::FILE_CANNOT_READ.throwException(getName(), describeError(errno));
  }
}

void XmlFileInput::rewind() {
  if (::lseek(descriptor_.number, 0, SEEK_SET) < 0) {
    KYRStdMessages::FILE_CANNOT_READ.throwException(getName(), describeError(errno));
  }
  isRead_ = false;  // progress begins anew too
}

// A file that is only asked for its identity makes no progress.
void XmlFileInput::beginReading() noexcept {
  isRead_ = true;
  progress_ = KYRImportProgress::getCurrent();
  if (progress_ != nullptr) progress_->openFile(size_);
}

XmlFileIdentity XmlFileInput::getIdentity() const {
  struct stat status = {};
  if (::fstat(descriptor_.number, &status) != 0) {
    KYRStdMessages::FILE_CANNOT_READ.throwException(getName(), describeError(errno));
  }
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          toNanoseconds(status.st_mtim), toNanoseconds(status.st_ctim)};
}
