// GraphvizProcess: the program `dot`, asked for the places of many graphs, one after the other.
//
// One process answers all questions, in their order. It is another program, so it may be missing, end, hang
// or never come to an end: whatever it does, each call here ends, and when the object goes the process goes,
// with all that it has started. It has a process group of its own for that, so what ends this process by a
// signal has to end it too (`endAtSignal`); one that is killed takes it along.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>

class GraphvizProcess {
 public:
  /// Long enough for a machine that is busy with other things: a page must not depend on that.
  struct Patience {
    std::chrono::milliseconds untilNextSign{20000};
    std::chrono::milliseconds inAll{300000};
  };
  enum class Outcome { moved, late, ended };

  /// The program as the PATH has it; empty when it has none. Folders that are not named from the root on do
  /// not count: what stands in the current folder is not run.
  static std::string findProgram();

  GraphvizProcess() = default;
  GraphvizProcess(const GraphvizProcess&) = delete;
  GraphvizProcess& operator=(const GraphvizProcess&) = delete;
  ~GraphvizProcess();

  /// Called once. False when the system does not let it start; a program that cannot be run has ended at
  /// once.
  bool start(const std::string& program, Patience patience);
  bool isStarted() const noexcept { return process_ > 0; }
  /// Waits until the process takes some of the question, which is cut off its start, or says something, which
  /// is added to the answer.
  Outcome exchange(std::string& question, std::string& answer);
  /// There are no more questions: it answers what it has kept back.
  void endQuestions() noexcept;

  /// Ends the one that runs. May be called by a handler of a signal that ends the process.
  static void endAtSignal() noexcept;

 private:
  [[noreturn]] static void become(const char* program, char* const* environment, int channel, int nothing,
                                  pid_t parent) noexcept;
  bool receive(std::string& answer);

  pid_t process_ = 0;
  int channel_ = -1;  // its standard input and output
  Patience patience_;
  std::chrono::steady_clock::time_point end_;
};
