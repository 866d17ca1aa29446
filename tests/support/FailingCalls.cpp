// Stands before the functions of the C library of the same names; the kernel is asked directly.
#include "tests/support/FailingCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <limits>

#include "foundation/Export.h"

namespace {

constexpr long never = std::numeric_limits<long>::max();
std::atomic<int> failingCall{-1};
std::atomic<long> calls{0};
std::atomic<long> firstFailure{never};
std::atomic<long> lastFailure{never};
std::atomic<int> failureError{0};
std::atomic<std::size_t> mostBytes{std::numeric_limits<std::size_t>::max()};

bool fails(FailingCall call) noexcept {
  if (failingCall != static_cast<int>(call)) return false;
  const long number = calls++;
  if (number < firstFailure || number > lastFailure) return false;
  errno = failureError;
  return true;
}

int openFile(const char* path, int flags, unsigned int mode) noexcept {
  if (fails(FailingCall::open)) return -1;
  return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

// The mode is there only when a file may be made.
template <class Arguments>
unsigned int modeOf(int flags, Arguments next) noexcept {
  return (flags & O_CREAT) != 0 ? next() : 0;
}

}  // namespace

CallFault::CallFault(FailingCall call, long number, int error, Extent extent) noexcept {
  calls = 0;
  firstFailure = number;
  lastFailure = extent == Extent::one ? number : never;
  failureError = error;
  failingCall = static_cast<int>(call);
}

CallFault::~CallFault() {
  failingCall = -1;
  firstFailure = never;
}

bool CallFault::hasFailed() const noexcept { return calls > firstFailure; }

ShortTransfers::ShortTransfers(std::size_t bytes) noexcept { mostBytes = bytes; }

ShortTransfers::~ShortTransfers() { mostBytes = std::numeric_limits<std::size_t>::max(); }

extern "C" KYR_EXPORT int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const unsigned int mode = modeOf(flags, [&] { return va_arg(rest, unsigned int); });
  va_end(rest);
  return openFile(path, flags, mode);
}

extern "C" KYR_EXPORT int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const unsigned int mode = modeOf(flags, [&] { return va_arg(rest, unsigned int); });
  va_end(rest);
  return openFile(path, flags, mode);
}

extern "C" KYR_EXPORT ssize_t read(int descriptor, void* buffer, std::size_t size) {
  if (fails(FailingCall::read)) return -1;
  return syscall(SYS_read, descriptor, buffer, std::min(size, mostBytes.load()));
}

extern "C" KYR_EXPORT ssize_t pread64(int descriptor, void* buffer, std::size_t size, off64_t offset) {
  if (fails(FailingCall::read)) return -1;
  return syscall(SYS_pread64, descriptor, buffer, std::min(size, mostBytes.load()), offset);
}

extern "C" KYR_EXPORT ssize_t write(int descriptor, const void* buffer, std::size_t size) {
  if (fails(FailingCall::write)) return -1;
  return syscall(SYS_write, descriptor, buffer, std::min(size, mostBytes.load()));
}

extern "C" KYR_EXPORT ssize_t pwrite64(int descriptor, const void* buffer, std::size_t size, off64_t offset) {
  if (fails(FailingCall::write)) return -1;
  return syscall(SYS_pwrite64, descriptor, buffer, std::min(size, mostBytes.load()), offset);
}

// Nothing is waited for: what a test writes need not outlive the machine.
extern "C" KYR_EXPORT int fsync(int /*descriptor*/) { return fails(FailingCall::sync) ? -1 : 0; }

extern "C" KYR_EXPORT int fdatasync(int /*descriptor*/) { return fails(FailingCall::sync) ? -1 : 0; }

extern "C" KYR_EXPORT int rename(const char* from, const char* to) noexcept {
  if (fails(FailingCall::rename)) return -1;
  return static_cast<int>(syscall(SYS_rename, from, to));
}

extern "C" KYR_EXPORT int unlink(const char* path) noexcept {
  if (fails(FailingCall::remove)) return -1;
  return static_cast<int>(syscall(SYS_unlink, path));
}

// Answers the number of the error itself.
extern "C" KYR_EXPORT int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                                         void* (*run)(void*), void* argument) noexcept {
  using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
  static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
  return fails(FailingCall::thread) ? errno : create(thread, attributes, run, argument);
}
