// ExitCode: what the command tells the shell that started it.
#pragma once

namespace ExitCode {
constexpr int done = 0;
/// The work was begun and failed; nothing was written over.
constexpr int failed = 1;
/// The command line makes no sense; nothing was begun.
constexpr int wrongUsage = 2;
}  // namespace ExitCode
