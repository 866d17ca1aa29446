// ReplacedFile: a file that is written beside its target and takes the target's place at the end.
#pragma once

#include <sys/types.h>

#include <string>

#include "foundation/KYRFile.h"
#include "repository/storage/BlockOutput.h"

/// Whatever happens before `commit` has returned, the target holds what it held. All operations raise
/// a KYRException that names the target and the reason.
class KYR_EXPORT ReplacedFile : public BlockSink {
 public:
  /// What `commit` waits for. A file that can be made again at any time, such as a picture, needs no more
  /// than its name; a crash of the machine may then leave it incomplete.
  enum class Wait { untilOnDisk, untilNamed };
  /// Makes the new file in the directory of the target. A target that exists must be a regular file;
  /// a link to one is followed, and its permissions are kept.
  explicit ReplacedFile(const KYRFile& target, Wait wait = Wait::untilOnDisk);
  /// Removes the new file when it has not taken the target's place. UnfinishedFiles knows it until then.
  ~ReplacedFile() override;
  void write(std::string_view block) override;
  /// The new file, for what writes to it by name.
  const std::string& getTemporaryPath() const noexcept { return temporary_; }
  /// Sees to it that the bytes have reached the disk, unless nobody waits for that, then renames.
  void commit();

 private:
  void resolveTarget();
  void create();
  void abandon() noexcept;
  [[noreturn]] void raise(int error) const;
  void close();

  KYRString path_;         // as the host gave it, for messages
  std::string target_;     // behind links
  std::string directory_;  // of the target, with the "/"
  std::string temporary_;  // empty while there is no such file
  int unfinished_ = 0;     // its place among the unfinished files
  unsigned int mode_;
  Wait wait_;
  bool isModeKept_ = false;
  int descriptor_ = -1;
  off_t written_ = 0;   // bytes
  off_t handedOn_ = 0;  // of these, the ones that are on their way to the disk
};
