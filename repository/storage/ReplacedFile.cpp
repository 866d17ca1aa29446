// POSIX: a name of its own made with O_EXCL, fsync before rename, and the directory synced behind it.
#include "repository/storage/ReplacedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <system_error>

#include "foundation/SignalHold.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/UnfinishedFiles.h"

namespace {

constexpr unsigned int newFileMode = 0666;  // as far as the process allows

std::string nextTemporaryName() {
  static std::atomic<unsigned int> counter{0};
  return ".kyr-save-" + std::to_string(getpid()) + "-" + std::to_string(++counter) + ".tmp";
}

}  // namespace

ReplacedFile::ReplacedFile(const KYRFile& target, Wait wait)
    : path_(target.getPath()), target_(target.getPath().view()), mode_(newFileMode), wait_(wait) {
  resolveTarget();
  const std::size_t slash = target_.rfind('/');
  if (slash != std::string::npos) directory_ = target_.substr(0, slash + 1);
  create();
}

ReplacedFile::~ReplacedFile() { abandon(); }

void ReplacedFile::abandon() noexcept {
  if (descriptor_ >= 0) ::close(descriptor_);
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
  UnfinishedFiles::drop(unfinished_);
}

void ReplacedFile::resolveTarget() {
  struct stat status {};
  if (target_.empty()) raise(ENOENT);
  if (::stat(target_.c_str(), &status) != 0) {
    if (errno != ENOENT) raise(errno);
    if (target_.back() == '/') raise(EISDIR);
    return;
  }
  if (!S_ISREG(status.st_mode)) KYRRepositoryMessages::CANNOT_SAVE_NOT_A_FILE.throwException(path_);
  mode_ = status.st_mode & 0777U;
  isModeKept_ = true;
  char* const resolved = ::realpath(target_.c_str(), nullptr);
  if (resolved == nullptr) raise(errno);
  target_ = resolved;
  std::free(resolved);
}

void ReplacedFile::create() {
  constexpr int mostTries = 1000;
  const SignalHold hold;  // between making the file and noting it
  for (int tries = 0; tries < mostTries && descriptor_ < 0; ++tries) {
    std::string name = directory_ + nextTemporaryName();
    descriptor_ = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, newFileMode);
    if (descriptor_ >= 0) {
      temporary_ = std::move(name);
      unfinished_ = UnfinishedFiles::add(temporary_);
    } else if (errno != EEXIST) {
      raise(errno);
    }
  }
  if (descriptor_ < 0) raise(EEXIST);
  if (!isModeKept_ || ::fchmod(descriptor_, mode_) == 0) return;
  const int error = errno;
  abandon();
  raise(error);
}

void ReplacedFile::write(std::string_view block) {
  while (!block.empty()) {
    const ssize_t written = ::write(descriptor_, block.data(), block.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) raise(errno);
    block.remove_prefix(static_cast<std::size_t>(written));
    written_ += written;
  }
  // The system shall not wait for the end before it begins to put large files on the disk.
  constexpr off_t worthIt = off_t{4} * 1024 * 1024;
  if (wait_ == Wait::untilOnDisk && written_ - handedOn_ >= worthIt) {
    (void)::sync_file_range(descriptor_, handedOn_, written_ - handedOn_, SYNC_FILE_RANGE_WRITE);
    handedOn_ = written_;
  }
}

void ReplacedFile::commit() {
  const bool waitsForDisk = wait_ == Wait::untilOnDisk;
  if (waitsForDisk && ::fsync(descriptor_) != 0) raise(errno);
  close();
  if (::rename(temporary_.c_str(), target_.c_str()) != 0) raise(errno);
  temporary_.clear();
  UnfinishedFiles::drop(unfinished_);
  unfinished_ = 0;
  if (!waitsForDisk) return;
  // The new name reaches the disk with the directory. The file itself is whole by now, so a file
  // system that cannot do this is no failure.
  const int directory = ::open(directory_.empty() ? "." : directory_.c_str(), O_RDONLY | O_CLOEXEC);
  if (directory < 0) return;
  (void)::fsync(directory);
  ::close(directory);
}

void ReplacedFile::close() {
  const int descriptor = descriptor_;
  descriptor_ = -1;
  if (::close(descriptor) != 0) raise(errno);
}

void ReplacedFile::raise(int error) const {
  const std::string reason = std::generic_category().message(error);
  KYRRepositoryMessages::CANNOT_SAVE.throwException(path_, KYRString(std::string_view(reason)));
}
