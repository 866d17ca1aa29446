// Paths are looked at without raising: what cannot be looked at fails where it is opened.
#include "host/FileNames.h"

#include <filesystem>

namespace fs = std::filesystem;

std::string FileNames::outputOf(const std::string& input, const std::string& output) {
  const fs::path name = fs::path(input).filename().replace_extension(".json");
  if (output.empty()) return name;
  std::error_code failure;
  return fs::is_directory(output, failure) ? (fs::path(output) / name).string() : output;
}

bool FileNames::isSame(const std::string& first, const std::string& second) {
  std::error_code failure;
  if (fs::equivalent(first, second, failure)) return true;
  const fs::path firstPlace = fs::weakly_canonical(first, failure);
  if (failure) return false;
  const fs::path secondPlace = fs::weakly_canonical(second, failure);
  return !failure && firstPlace == secondPlace;
}
