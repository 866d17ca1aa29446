// One fuzzer for each entry: KYR_FUZZ_ENTRY is the name of its function. What escapes an entry is a
// finding.
#include <cstddef>
#include <cstdint>

#include "fuzz/FuzzEntries.h"

// Inputs come as unsigned bytes, texts are chars; the bytes are the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  KYR_FUZZ_ENTRY({reinterpret_cast<const char*>(data), size});
  return 0;
}
