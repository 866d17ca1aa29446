// SavedModelCounts: how much a saved model holds, for the summary of an import.
//
// The host never sees the model: the plug-in makes and saves it. So the file is counted, in one pass
// that keeps a line at most. No JSON is parsed for that: in the saved format each object begins on a
// line of its own with its id and its class, and a quote inside a text is never without its backslash.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class SavedModelCounts {
 public:
  /// What is in the file at that path; nothing when it cannot be read.
  static std::optional<SavedModelCounts> read(const std::string& path);

  std::uint64_t packages = 0;
  std::uint64_t classes = 0;  // without the interfaces
  std::uint64_t interfaces = 0;
  std::uint64_t attributes = 0;
  std::uint64_t operations = 0;
  std::uint64_t arguments = 0;
  std::uint64_t associations = 0;

 private:
  void countLine(std::string_view line);
};
