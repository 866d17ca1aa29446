// FailureHint: what may help when the reader finds no model in a file, which is said behind the error.
//
// Nobody is sent to try what does not help: the file is read once more, in memory, as the normalising step
// hands it on, and the step is named only when a class, an attribute or an association would arrive then.
#pragma once

#include <functional>
#include <string>

class HostLog;

namespace FailureHint {

/// Does the work on the file, which it reads as it is written, and returns its exit code. An exception
/// becomes a message (`runGuarded`) and, when a hint is wanted, at most one line more.
int runWith(HostLog& log, const std::string& file, bool isHintWanted, const std::function<int()>& work);

}  // namespace FailureHint
