// kyr: the command line of the import bridge.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <new>

#include "host/CommandLine.h"
#include "host/EndingSignals.h"
#include "host/ExitCode.h"

// Read by jemalloc, if that is the allocator. One arena serves all threads, and it is there from the start:
// the first allocation of a thread would make another, and jemalloc crashes when there is no memory left for
// that. What the document of the file leaves is used for the model, in pieces of any size. Small objects come
// by the hundred thousand, so their slabs are of up to sixteen pages: one page has room for sixteen classes.
extern "C" {
// NOLINTNEXTLINE: the name is given
[[gnu::visibility("default")]] const char* malloc_conf =
    "narenas:1,lg_extent_max_active_fit:20,slab_sizes:1-1024:16";
}

namespace {

[[noreturn]] void endWithoutMemory() {
  sayOutOfMemory();
  _exit(ExitCode::failed);
}

// The option parser has static objects that ask for memory. What they raise would reach nobody and end the
// process by abort, so until the main function a handler takes its place. 101 is the first number that is
// free for programs: before all static objects of this one.
[[gnu::constructor(101)]] void handleMemoryUntilMain() { std::set_new_handler(endWithoutMemory); }

// With a standard file closed, the next file opened would take its place: a message would end up in
// the model.
void fillStandardFiles() {
  for (int descriptor = 0; descriptor <= 2; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) >= 0 || errno != EBADF) continue;
    if (open("/dev/null", O_RDWR) < 0) return;  // takes the lowest free number, which is `descriptor`
  }
}

}  // namespace

int main(int argumentCount, char** arguments) {
  std::set_new_handler(nullptr);  // from here on an exception reaches somebody
  fillStandardFiles();
  // A reader that goes away must not kill an import; writing to it fails instead.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);  // a file size limit is then an error of the write
  EndingSignals::handle();
  return runCommandLine(argumentCount, arguments);
}
