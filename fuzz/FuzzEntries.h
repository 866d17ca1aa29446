// FuzzEntries: what fuzzers feed, and what ordinary tests replay.
//
// Each entry takes any bytes and returns. What an input may do is refused by a KYRException that the entry
// expects; it must never crash, leak, hang, or break one of the promises that the entry checks, such as
// that a saved model can be loaded.
#pragma once

#include <span>
#include <stdexcept>
#include <string_view>

/// Raised by an entry when the system broke a promise.
class BrokenPromise : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void promise(bool isKept, const char* what) {
  if (!isKept) throw BrokenPromise(what);
}

struct FuzzEntry {
  const char* name;  // of the fuzzer, and of the folder of its regressions
  void (*run)(std::string_view input);
};

/// All entries, in a fixed order.
std::span<const FuzzEntry> getFuzzEntries() noexcept;

/// An XML text in any encoding: the same document however it is cut into blocks, and the same again when
/// it is written out and read back.
void fuzzXml(std::string_view input);
/// A model file, imported as a plug-in does, saved as JSON and SQL, loaded back and drawn.
void fuzzImport(std::string_view input);
/// The same through the normalising step, in its usual and in its full form.
void fuzzNormalizedImport(std::string_view input);
/// References into other files, and percent escapes.
void fuzzHref(std::string_view input);
/// Geometry texts, line points and numbers.
void fuzzNumbers(std::string_view input);
/// Type names of all data stores.
void fuzzTypeNames(std::string_view input);
/// A saved model: what loads can be saved, loaded again, drawn and compared.
void fuzzSavedModel(std::string_view input);

/// As fuzzImport; false for a file that was refused.
bool importWholly(std::string_view input);
