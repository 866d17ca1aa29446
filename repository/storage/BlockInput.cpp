// A FIFO is opened without waiting for its other end, so that it can be refused.
#include "repository/storage/BlockInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "repository/KYRRepositoryMessages.h"

BlockInput::BlockInput(const KYRFile& file)
    : path_(file.getPath()),
      block_(new char[blockSize]),
      descriptor_(::open(path_.getCharacters(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
  if (descriptor_ < 0) raise(errno);
  struct stat status = {};
  try {
    if (::fstat(descriptor_, &status) != 0) raise(errno);
    if (!S_ISREG(status.st_mode)) KYRRepositoryMessages::CANNOT_LOAD_NOT_A_FILE.throwException(path_);
    fill();
  } catch (...) {
    ::close(descriptor_);
    throw;
  }
}

BlockInput::~BlockInput() { ::close(descriptor_); }

void BlockInput::fill() {
  before_ += end_;
  at_ = 0;
  end_ = 0;
  ssize_t count = 0;
  do {
    count = ::read(descriptor_, block_.get(), blockSize);
  } while (count < 0 && errno == EINTR);
  if (count < 0) raise(errno);
  end_ = static_cast<std::size_t>(count);
}

void BlockInput::raise(int error) const {
  const std::string reason = std::generic_category().message(error);
  KYRRepositoryMessages::CANNOT_LOAD.throwException(path_, KYRString(std::string_view(reason)));
}
