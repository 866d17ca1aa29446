// KYRFile: the path of a file.
#pragma once

#include "foundation/KYRString.h"

class KYR_EXPORT KYRFile {
 public:
  KYRFile() = default;
  explicit KYRFile(const KYRString& path) : path_(path) {}
  KYRFile& operator=(const KYRString& path) {
    path_ = path;
    return *this;
  }
  /// The path as it was set.
  const KYRString& getPath() const noexcept { return path_; }
  /// The name as shown in messages: the path as it was set.
  const KYRString& getName() const noexcept { return path_; }
  /// The name behind the last "/", its extension kept.
  KYRString getFileName() const;
  /// The path up to the last "/", without it; empty when there is none.
  KYRString getDirectory() const;
  /// True for regular files only (links are followed).
  bool exists() const;

 private:
  KYRString path_;
};
