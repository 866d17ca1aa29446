// Input and output of the process are one socket, of which nobody needs to wait for one side while the other
// is full, and which raises no signal when the process has gone.
#include "report/GraphvizProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

constexpr int cannotRun = 127;  // as shells end when there is no such program

std::atomic<pid_t> running{0};
static_assert(std::atomic<pid_t>::is_always_lock_free);

bool isProgram(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(path.c_str(), X_OK) == 0;
}

// Ours, but numbers are written in one way everywhere.
std::vector<char*> environmentOf(char* locale) {
  std::vector<char*> environment;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    if (std::strncmp(*entry, "LC_ALL=", 7) != 0) environment.push_back(*entry);
  }
  environment.push_back(locale);
  environment.push_back(nullptr);
  return environment;
}

void letGo(int& descriptor) noexcept {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

}  // namespace

std::string GraphvizProcess::findProgram() {
  const char* const path = std::getenv("PATH");
  std::string_view rest = path == nullptr ? "" : path;
  while (!rest.empty()) {
    const std::string_view folder = rest.substr(0, rest.find(':'));
    rest.remove_prefix(std::min(folder.size() + 1, rest.size()));
    std::string program = std::string(folder) + "/dot";
    if (folder.starts_with('/') && isProgram(program)) return program;
  }
  return std::string();
}

bool GraphvizProcess::start(const std::string& program, Patience patience) {
  patience_ = patience;
  end_ = std::chrono::steady_clock::now() + patience.inAll;
  char locale[] = "LC_ALL=C";
  const std::vector<char*> environment = environmentOf(locale);
  int channels[2] = {-1, -1};
  int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nothing >= 0 && socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, channels) == 0) {
    const pid_t parent = getpid();
    process_ = fork();
    if (process_ == 0) become(program.c_str(), environment.data(), channels[1], nothing, parent);
    channel_ = channels[0];
  }
  letGo(nothing);
  letGo(channels[1]);
  if (process_ <= 0) return false;
  setpgid(process_, process_);  // whoever comes first
  running.store(process_);
  return true;
}

// Between fork and exec: nothing that allocates or locks, since other threads are gone in the middle of it.
void GraphvizProcess::become(const char* program, char* const* environment, int channel, int nothing,
                             pid_t parent) noexcept {
  setpgid(0, 0);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(cannotRun);
  std::signal(SIGPIPE, SIG_DFL);
  std::signal(SIGXFSZ, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  if (dup2(channel, STDIN_FILENO) < 0 || dup2(channel, STDOUT_FILENO) < 0 ||
      dup2(nothing, STDERR_FILENO) < 0) {
    _exit(cannotRun);
  }
  char name[] = "dot";
  char format[] = "-Tplain";
  char* const arguments[] = {name, format, nullptr};
  execve(program, arguments, environment);
  _exit(cannotRun);
}

GraphvizProcess::~GraphvizProcess() {
  letGo(channel_);
  if (process_ <= 0) return;
  kill(-process_, SIGKILL);
  running.store(0);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

GraphvizProcess::Outcome GraphvizProcess::exchange(std::string& question, std::string& answer) {
  using std::chrono::milliseconds;
  for (;;) {
    const auto left = std::chrono::duration_cast<milliseconds>(end_ - std::chrono::steady_clock::now());
    const milliseconds wait = std::min(left, patience_.untilNextSign);
    if (wait.count() <= 0) return Outcome::late;
    pollfd watched = {channel_, POLLIN, 0};
    if (!question.empty()) watched.events |= POLLOUT;
    const int count = poll(&watched, 1, static_cast<int>(wait.count()));
    if (count < 0 && errno == EINTR) continue;
    if (count == 0) return Outcome::late;
    if (count < 0) return Outcome::ended;
    if ((watched.revents & POLLOUT) != 0) {
      const ssize_t sent = send(channel_, question.data(), question.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
      if (sent > 0) question.erase(0, static_cast<std::size_t>(sent));
      // It may have answered before it went, so only the end of its answers counts.
      if (sent < 0 && errno != EAGAIN && errno != EINTR) question.clear();
    }
    if ((watched.revents & (POLLIN | POLLHUP | POLLERR)) != 0 && !receive(answer)) return Outcome::ended;
    return Outcome::moved;
  }
}

bool GraphvizProcess::receive(std::string& answer) {
  char block[64 * 1024];
  const ssize_t count = recv(channel_, block, sizeof block, MSG_DONTWAIT);
  if (count > 0) answer.append(block, static_cast<std::size_t>(count));
  return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

void GraphvizProcess::endQuestions() noexcept { shutdown(channel_, SHUT_WR); }

void GraphvizProcess::endAtSignal() noexcept {
  const pid_t process = running.load();
  if (process > 0) kill(-process, SIGKILL);
}
