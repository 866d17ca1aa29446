// ExitCode: what the command tells the shell that started it.
#pragma once

namespace ExitCode {
constexpr int done = 0;
/// The work was begun and failed; nothing was written over.
constexpr int failed = 1;
/// Of `kyr diff`, as of other programs of that name: the models differ, and the work failed.
constexpr int different = 1;
constexpr int cannotCompare = 2;
/// The command line makes no sense; nothing was begun.
constexpr int wrongUsage = 2;
}  // namespace ExitCode
