// KYRException, and the call stack that goes with it.
#include "foundation/KYRException.h"

#include <cxxabi.h>
#include <execinfo.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace {

constexpr int maximumFrames = 32;
constexpr std::size_t maximumLineLength = 400;  // names of templates can be endless

struct Free {
  void operator()(void* memory) const noexcept { std::free(memory); }
};

// A frame reads "library(mangled+offset) [address]"; the readable name takes the mangled one's place.
std::string readableFrame(std::string frame) {
  const std::size_t open = frame.find('(');
  const std::size_t plus = frame.find('+', open == std::string::npos ? frame.size() : open);
  if (plus != std::string::npos && plus > open + 1) {
    const std::string mangled = frame.substr(open + 1, plus - open - 1);
    int status = 0;
    const std::unique_ptr<char, Free> name(abi::__cxa_demangle(mangled.c_str(), nullptr, nullptr, &status));
    if (name != nullptr && status == 0) frame.replace(open + 1, mangled.size(), name.get());
  }
  frame.resize(std::min(frame.size(), maximumLineLength));
  return frame;
}

}  // namespace

KYRException::KYRException(const KYRString& message, const KYRString& stackTrace)
    : message_(message), stackTrace_(stackTrace) {}

KYRException::KYRException(const KYRException& other) = default;

KYRException::~KYRException() = default;

KYRString buildStackTrace() {
  void* frames[maximumFrames];
  const int count = backtrace(frames, maximumFrames);
  const std::unique_ptr<char*, Free> symbols(backtrace_symbols(frames, count));
  if (symbols == nullptr) return {};
  try {
    KYRString trace;
    for (int i = 1; i < count; ++i) {  // the first frame is this function
      trace += readableFrame(symbols.get()[i]);
      trace += "\n";
    }
    return trace;
  } catch (const std::bad_alloc&) {
    return {};  // memory is short: the message that the trace goes with matters more
  }
}
