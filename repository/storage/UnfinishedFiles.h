// UnfinishedFiles: the names of files that must not stay when the process ends before they are finished.
//
// A process that a signal ends runs no destructors. So the names stand in memory of fixed size, where a
// handler of the signal finds them without locks and without allocation.
#pragma once

#include <string>

#include "foundation/Export.h"

class KYR_EXPORT UnfinishedFiles {
 public:
  UnfinishedFiles() = delete;
  /// Notes the file. A number above 0, or -1 when there is no room: the file is then
  /// not removed by `removeAll`.
  static int add(const std::string& path) noexcept;
  /// Forgets it, when it is finished or gone.
  static void drop(int place) noexcept;
  /// Removes the files that are noted. May be called by a handler of a signal that ends the process.
  static void removeAll() noexcept;
};
