// KYRFile: a path is cut at its last "/"; only `exists` looks at the file system.
#include "foundation/KYRFile.h"

#include <sys/stat.h>

KYRString KYRFile::getFileName() const {
  return KYRString(path_.view().substr(path_.view().rfind('/') + 1));  // without "/" npos + 1 is 0
}

KYRString KYRFile::getDirectory() const {
  const std::size_t slash = path_.view().rfind('/');
  return slash == std::string_view::npos ? KYRString() : KYRString(path_.view().substr(0, slash));
}

bool KYRFile::exists() const {
  struct stat status = {};
  return stat(path_.getCharacters(), &status) == 0 && S_ISREG(status.st_mode);
}
