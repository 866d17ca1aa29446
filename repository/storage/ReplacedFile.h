// ReplacedFile: a file that is written beside its target and takes the target's place at the end.
#pragma once

#include <string>

#include "foundation/KYRFile.h"
#include "repository/storage/BlockOutput.h"

/// Whatever happens before `commit` has returned, the target holds what it held. All operations raise
/// a KYRException that names the target and the reason.
class KYR_EXPORT ReplacedFile : public BlockSink {
 public:
  /// Makes the new file in the directory of the target. A target that exists must be a regular file;
  /// a link to one is followed, and its permissions are kept.
  explicit ReplacedFile(const KYRFile& target);
  /// Removes the new file when it has not taken the target's place. UnfinishedFiles knows it until then.
  ~ReplacedFile() override;
  void write(std::string_view block) override;
  /// The new file, for what writes to it by name.
  const std::string& getTemporaryPath() const noexcept { return temporary_; }
  /// Sees to it that the bytes have reached the disk, then renames.
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
  bool isModeKept_ = false;
  int descriptor_ = -1;
};
