#include "repository/storage/UnfinishedFiles.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <vector>

#include "repository/storage/ReplacedFile.h"
#include "tests/repository/ModelFolder.h"

namespace {

class UnfinishedFile : public ModelFolder {};

TEST_F(UnfinishedFile, WhatIsNotedIsRemovedAndNothingElse) {
  write("x", "noted");
  write("x", "dropped");
  const int noted = UnfinishedFiles::add(path("noted"));
  UnfinishedFiles::drop(UnfinishedFiles::add(path("dropped")));
  UnfinishedFiles::removeAll();
  EXPECT_FALSE(std::filesystem::exists(path("noted")));
  EXPECT_TRUE(std::filesystem::exists(path("dropped")));
  UnfinishedFiles::drop(noted);
}

TEST_F(UnfinishedFile, MoreThanThereIsRoomForIsNoError) {
  std::vector<int> places;
  for (int i = 0; i < 20; ++i) places.push_back(UnfinishedFiles::add(path("many")));
  EXPECT_GT(places.front(), 0);
  EXPECT_EQ(places.back(), -1);
  for (const int place : places) UnfinishedFiles::drop(place);
  const int again = UnfinishedFiles::add(path("one"));
  EXPECT_GT(again, 0);
  UnfinishedFiles::drop(again);
  EXPECT_EQ(UnfinishedFiles::add(std::string(5000, 'x')), -1);
}

TEST_F(UnfinishedFile, AFinishedFileStays) {
  ReplacedFile output(file("target"));
  output.write("x");
  output.commit();
  UnfinishedFiles::removeAll();
  EXPECT_EQ(content("target"), "x");
}

// What a host does: the handler of a signal removes the file, then the signal ends the process.
TEST_F(UnfinishedFile, ASignalInTheMiddleLeavesNothing) {
  write("old", "target");
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    std::signal(SIGTERM, [](int) {
      UnfinishedFiles::removeAll();
      _exit(7);
    });
    ReplacedFile output(file("target"));
    output.write("half");
    if (::write(ready[1], "x", 1) != 1) _exit(1);
    for (;;) pause();
  }
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  EXPECT_EQ(filesInFolder(), 2U);
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), 7);
  EXPECT_EQ(filesInFolder(), 1U);
  EXPECT_EQ(content("target"), "old");
}

}  // namespace
