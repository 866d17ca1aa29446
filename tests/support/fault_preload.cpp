// A library for LD_PRELOAD: a program that runs with it sees its system calls or its allocations fail. The
// environment says which:
//
//   KYR_FAULT=call:number:errno[:all]   call is open, read, write, sync, rename, remove, thread or memory;
//   with
//                                       "all", those behind the numbered one (from 0) fail too
//   KYR_FAULT_REPORT=path               a file of that path is made at the end when something has failed
//
// Counting begins where the C library starts the program: with the static objects of the program itself. The
// report is not made when the program ends before its main function.
#include <dlfcn.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstring>
#include <new>
#include <optional>

#include "foundation/Export.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/FailingCalls.h"

// The program may bring an allocator; all memory must be of one, that of FailingAllocation.cpp.
KYR_EXPORT void* operator new(std::size_t size) {
  for (;;) {
    if (void* const memory = malloc(size)) return memory;
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) throw std::bad_alloc();
    handler();
  }
}
KYR_EXPORT void* operator new[](std::size_t size) { return operator new(size); }
KYR_EXPORT void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return malloc(size); }
KYR_EXPORT void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return malloc(size); }
KYR_EXPORT void operator delete(void* memory) noexcept { free(memory); }
KYR_EXPORT void operator delete[](void* memory) noexcept { free(memory); }
KYR_EXPORT void operator delete(void* memory, std::size_t) noexcept { free(memory); }
KYR_EXPORT void operator delete[](void* memory, std::size_t) noexcept { free(memory); }

namespace {

struct NamedCall {
  const char* name;
  FailingCall call;
};
constexpr NamedCall namedCalls[] = {{"open", FailingCall::open},     {"read", FailingCall::read},
                                    {"write", FailingCall::write},   {"sync", FailingCall::sync},
                                    {"rename", FailingCall::rename}, {"remove", FailingCall::remove},
                                    {"thread", FailingCall::thread}};

class FaultOfEnvironment {
 public:
  FaultOfEnvironment() noexcept {
    const char* const fault = getenv("KYR_FAULT");
    const char* const number = fault == nullptr ? nullptr : strchr(fault, ':');
    if (number == nullptr) return;
    char* rest = nullptr;
    const long at = strtol(number + 1, &rest, 10);
    const int error = *rest == ':' ? static_cast<int>(strtol(rest + 1, &rest, 10)) : 0;
    const bool isAll = strcmp(rest, ":all") == 0;
    const auto length = static_cast<std::size_t>(number - fault);
    if (strncmp(fault, "memory", length) == 0) {
      memory_.emplace(at, isAll ? FailingAllocation::Extent::allFrom : FailingAllocation::Extent::one);
    }
    for (const NamedCall& named : namedCalls) {
      if (strncmp(fault, named.name, length) != 0) continue;
      call_.emplace(named.call, at, error, isAll ? CallFault::Extent::allFrom : CallFault::Extent::one);
    }
  }
  FaultOfEnvironment(const FaultOfEnvironment&) = delete;
  FaultOfEnvironment& operator=(const FaultOfEnvironment&) = delete;
  ~FaultOfEnvironment() {
    const bool hasFailed = (memory_ && memory_->hasFailed()) || (call_ && call_->hasFailed());
    memory_.reset();
    call_.reset();
    const char* const report = getenv("KYR_FAULT_REPORT");
    if (hasFailed && report != nullptr) close(open(report, O_WRONLY | O_CREAT, 0600));
  }

 private:
  std::optional<FailingAllocation> memory_;
  std::optional<CallFault> call_;
};

using Main = int (*)(int, char**, char**);
Main mainOfProgram = nullptr;
std::optional<FaultOfEnvironment> fault;

int mainWithFault(int count, char** arguments, char** environment) {
  const int code = mainOfProgram(count, arguments, environment);
  fault.reset();
  return code;
}

}  // namespace

// What the program's entry calls; it makes the static objects and calls main.
extern "C" KYR_EXPORT int __libc_start_main(Main main, int count, char** arguments, void (*init)(),
                                            void (*fini)(), void (*linkerFini)(), void* stackEnd) {
  using Start = int (*)(Main, int, char**, void (*)(), void (*)(), void (*)(), void*);
  const auto start = reinterpret_cast<Start>(dlsym(RTLD_NEXT, "__libc_start_main"));
  mainOfProgram = main;
  fault.emplace();
  return start(mainWithFault, count, arguments, init, fini, linkerFini, stackEnd);
}
