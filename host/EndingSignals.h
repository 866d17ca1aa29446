// EndingSignals: Ctrl-C and its like, which end the program without leaving anything half done.
#pragma once

#include <csignal>

namespace EndingSignals {

inline constexpr int all[] = {SIGINT, SIGTERM, SIGHUP};

/// From now on SIGINT, SIGTERM and SIGHUP remove unfinished files before they end the process. One that
/// the process was started to ignore stays ignored.
void handle() noexcept;

/// Ends the process by that signal, as if it had never been handled: whoever started the process sees it.
[[noreturn]] void endBy(int signal) noexcept;

}  // namespace EndingSignals
