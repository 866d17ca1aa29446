// GuardedRun: the one place where what is raised becomes a message and an exit code.
#pragma once

#include <functional>

class HostLog;

/// Does the work and returns its exit code; when it raises anything, tells that to the log and returns
/// `failureCode`. Whatever the exception may come from, such as a plug-in, must outlive the call.
int runGuarded(HostLog& log, int failureCode, const std::function<int()>& work);
