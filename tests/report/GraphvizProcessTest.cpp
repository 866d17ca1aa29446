// Another program at the other end: whatever it does, calls end, and when the object goes nothing of it is
// left.
#include "report/GraphvizProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "tests/report/FakeProgram.h"

namespace {

using Outcome = GraphvizProcess::Outcome;
using std::chrono::milliseconds;

constexpr GraphvizProcess::Patience patient{milliseconds(60000), milliseconds(60000)};

bool hasChildren() { return waitpid(-1, nullptr, WNOHANG) >= 0 || errno != ECHILD; }

bool isAlive(pid_t process) { return kill(process, 0) == 0; }

// All it says up to its end, which must come.
std::string answerOf(const std::string& script, std::string question,
                     GraphvizProcess::Patience patience = patient, Outcome end = Outcome::ended) {
  const FakeProgram program(script);
  GraphvizProcess process;
  EXPECT_TRUE(process.start(program.path, patience));
  std::string answer;
  bool isEnded = false;
  for (;;) {
    if (question.empty() && !isEnded) process.endQuestions();
    isEnded = isEnded || question.empty();
    const Outcome outcome = process.exchange(question, answer);
    if (outcome == Outcome::moved) continue;
    EXPECT_EQ(outcome, end);
    return answer;
  }
}

class Path {
 public:
  explicit Path(const std::string& path) : before_(getenv("PATH")) { setenv("PATH", path.c_str(), 1); }
  ~Path() { setenv("PATH", before_.c_str(), 1); }

 private:
  std::string before_;
};

}  // namespace

TEST(GraphvizProcess, TheFirstProgramOnThePathIsFound) {
  const FakeProgram first("#!/bin/sh\n");
  const FakeProgram second("#!/bin/sh\n");
  const Path path("/nowhere:" + first.folder + ":" + second.folder);
  EXPECT_EQ(GraphvizProcess::findProgram(), first.path);
}

TEST(GraphvizProcess, WhatCannotBeRunIsPassedOver) {
  const FakeProgram text("no program", 0644);
  const FakeProgram folder("");
  std::filesystem::remove(folder.path);
  std::filesystem::create_directory(folder.path);
  const FakeProgram good("#!/bin/sh\n");
  {
    const Path path(text.folder + ":" + folder.folder + ":" + good.folder);
    EXPECT_EQ(GraphvizProcess::findProgram(), good.path);
  }
  for (const std::string& entries : {text.folder, folder.folder, std::string(), std::string(":::")}) {
    const Path path(entries);
    EXPECT_EQ(GraphvizProcess::findProgram(), "") << entries;
  }
}

TEST(GraphvizProcess, TheCurrentFolderDoesNotCount) {
  const FakeProgram program("#!/bin/sh\n");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(program.folder);
  for (const char* const entries : {".", "", ":", "./", ".:"}) {
    const Path path(entries);
    EXPECT_EQ(GraphvizProcess::findProgram(), "") << entries;
  }
  std::filesystem::current_path(before);
}

TEST(GraphvizProcess, ItIsAskedForThePlainFormatInTheLocaleOfNumbers) {
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  EXPECT_EQ(answerOf("#!/bin/sh\necho \"$# $1 $LC_ALL\"\n", ""), "1 -Tplain C\n");
  unsetenv("LC_ALL");
}

TEST(GraphvizProcess, MoreThanAnyPipeHoldsGoesBothWays) {
  const std::string question(3000000, 'x');
  EXPECT_EQ(answerOf("#!/bin/sh\nexec cat\n", question), question);
}

TEST(GraphvizProcess, WhatItSaysOfErrorsIsNotShown) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(answerOf("#!/bin/sh\necho broken >&2\necho good\n", ""), "good\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(GraphvizProcess, OneThatCannotBeRunHasEndedAtOnce) {
  EXPECT_EQ(answerOf("\x7f"
                     "ELF",
                     "digraph{}"),
            "");
  EXPECT_EQ(answerOf("#!/nowhere/interpreter\n", "digraph{}"), "");
}

// A question that nobody takes any more raises no signal.
TEST(GraphvizProcess, OneThatEndsInTheMiddleIsNoError) {
  const std::string question(3000000, 'x');
  EXPECT_EQ(answerOf("#!/bin/sh\nhead -c 10\n", question), "xxxxxxxxxx");
  EXPECT_EQ(answerOf("#!/bin/sh\nkill -SEGV $$\n", question), "");
  EXPECT_EQ(answerOf("#!/bin/sh\nexit 0\n", question), "");
}

TEST(GraphvizProcess, OneThatHangsIsLate) {
  const GraphvizProcess::Patience hasty{milliseconds(50), milliseconds(60000)};
  EXPECT_EQ(answerOf("#!/bin/sh\nsleep 1000\n", "digraph{}", hasty, Outcome::late), "");
  EXPECT_EQ(answerOf("#!/bin/sh\nexec <&-\nsleep 1000\n", std::string(3000000, 'x'), hasty, Outcome::late),
            "");
}

TEST(GraphvizProcess, OneThatNeverComesToItsEndIsLateInAll) {
  const GraphvizProcess::Patience hasty{milliseconds(60000), milliseconds(200)};
  answerOf("#!/bin/sh\nwhile echo more; do sleep 0.01; done\n", "", hasty, Outcome::late);
}

TEST(GraphvizProcess, NothingIsLeftOfItNorOfWhatItHasStarted) {
  const FakeProgram program("#!/bin/sh\nsleep 1000 &\necho $! $$\nsleep 1000\n");
  pid_t grandchild = 0;
  pid_t child = 0;
  {
    GraphvizProcess process;
    ASSERT_TRUE(process.start(program.path, patient));
    std::string question;
    std::string answer;
    while (answer.find('\n') == std::string::npos)
      ASSERT_EQ(process.exchange(question, answer), Outcome::moved);
    ASSERT_EQ(std::sscanf(answer.c_str(), "%d %d", &grandchild, &child), 2);
    EXPECT_TRUE(isAlive(grandchild));
  }
  EXPECT_FALSE(isAlive(child));
  EXPECT_FALSE(hasChildren());
  // Somebody else takes its end, at once or a little later.
  for (int i = 0; i < 3000 && isAlive(grandchild); ++i) std::this_thread::sleep_for(milliseconds(10));
  EXPECT_FALSE(isAlive(grandchild));
}

TEST(GraphvizProcess, ASignalThatEndsUsEndsIt) {
  const FakeProgram program("#!/bin/sh\necho here\nsleep 1000\n");
  GraphvizProcess process;
  ASSERT_TRUE(process.start(program.path, patient));
  std::string question;
  std::string answer;
  ASSERT_EQ(process.exchange(question, answer), Outcome::moved);
  GraphvizProcess::endAtSignal();
  EXPECT_EQ(process.exchange(question, answer), Outcome::ended);
  EXPECT_EQ(answer, "here\n");
}
