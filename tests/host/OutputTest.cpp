// Writing to readers that are slow, full or gone.
#include "host/Output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <string>

namespace {

/// A pipe, of which the writing end is given to the output under test.
struct Pipe {
  Pipe() {
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    closeReader();
    close(ends[1]);
  }
  void closeReader() {
    if (ends[0] >= 0) close(ends[0]);
    ends[0] = -1;
  }
  std::string read(std::size_t size) const {
    std::string text(size, '\0');
    const ssize_t count = ::read(ends[0], text.data(), size);
    text.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return text;
  }
  int ends[2] = {-1, -1};
};

TEST(Output, KeepsBytesBackUntilTheFlush) {
  Pipe pipe;
  fcntl(pipe.ends[0], F_SETFL, O_NONBLOCK);
  Output output(pipe.ends[1]);
  output.write("one ");
  output.write("two");
  EXPECT_EQ(pipe.read(100), "");
  output.flush();
  EXPECT_EQ(pipe.read(100), "one two");
}

TEST(Output, AReaderThatWentAwayIsNoError) {
  std::signal(SIGPIPE, SIG_IGN);
  Pipe pipe;
  Output output(pipe.ends[1]);
  pipe.closeReader();
  output.write("one");
  output.flush();
  EXPECT_TRUE(output.isClosed());
  EXPECT_EQ(output.getError(), 0);
  output.write("two");
  output.flush();
  EXPECT_TRUE(output.isClosed());
}

TEST(Output, KeepsTheFirstErrorAndWritesNothingAfterIt) {
  const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  Output output(full);
  output.write(std::string(200000, 'x'));
  EXPECT_EQ(output.getError(), ENOSPC);
  EXPECT_FALSE(output.isClosed());
  output.write("y");
  output.flush();
  EXPECT_EQ(output.getError(), ENOSPC);
  close(full);
}

TEST(Output, WaitsForRoomInANonBlockingPipe) {
  Pipe pipe;
  fcntl(pipe.ends[1], F_SETFL, O_NONBLOCK);
  const pid_t child = fork();
  if (child == 0) {
    pipe.closeReader();
    Output output(pipe.ends[1]);
    output.write(std::string(500000, 'x'));
    output.flush();
    _exit(output.getError() == 0 ? 0 : 1);
  }
  close(pipe.ends[1]);
  pipe.ends[1] = -1;
  std::size_t total = 0;
  for (std::string part = pipe.read(1000); !part.empty(); part = pipe.read(1000)) total += part.size();
  EXPECT_EQ(total, 500000U);
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

}  // namespace
