// ProgressLine: one line at the end of a terminal that tells how far long work has come.
//
// It stands on the standard error output, only where that is a terminal, and not before the work has taken
// so long that somebody may wonder. What else is printed wipes it first: whoever writes to the terminal
// holds a `Pause` meanwhile.
#pragma once

#include <chrono>
#include <mutex>
#include <string>
#include <string_view>

class ProgressLine {
 public:
  /// The work begins.
  explicit ProgressLine(bool isWanted);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  /// Wipes the line.
  ~ProgressLine();

  /// How long work takes before it is worth a line, and a line before it is looked at anew.
  static constexpr std::chrono::milliseconds patience{500};
  static constexpr std::chrono::milliseconds interval{100};

  /// False when nothing will ever be shown.
  bool isOn() const noexcept { return isOn_; }
  /// Shows the text, cut to the width of the terminal, in the place of the one before. An empty one changes
  /// nothing, nor does any before its time or in a process that does not own the terminal.
  void show(std::string_view text);

  /// The first characters of `text` that fit into so many columns.
  static std::string fit(std::string_view text, std::size_t columns);

  /// While it lives the line is gone.
  class Pause {
   public:
    Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;

   private:
    std::unique_lock<std::mutex> lock_;
  };

  /// The line belongs to the process that forked this one.
  static void forget() noexcept;
  /// Wipes it in the handler of a signal that ends the process.
  static void wipeAtSignal() noexcept;

 private:
  bool isOn_;
  std::chrono::steady_clock::time_point due_;
  std::string shown_;
};
