// Paths are looked at without raising: what cannot be looked at fails where it is opened.
#include "host/FileNames.h"

#include <sys/stat.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

struct Format {
  const char* name;
  StoreModelFormat format;
};

constexpr Format formats[] = {
    {"json", StoreModelFormat::json},
    {"sqlite", StoreModelFormat::sqlite},
    {"sql", StoreModelFormat::sql},
};

std::string nameOf(StoreModelFormat format) {
  for (const Format& entry : formats) {
    if (entry.format == format) return entry.name;
  }
  return {};
}

std::string withExtension(const std::string& input, const std::string& output, const std::string& extension) {
  const fs::path name = fs::path(input).filename().replace_extension("." + extension);
  if (output.empty()) return name;
  std::error_code failure;
  return fs::is_directory(output, failure) ? (fs::path(output) / name).string() : output;
}

}  // namespace

std::optional<StoreModelFormat> FileNames::findFormat(const std::string& name) {
  for (const Format& entry : formats) {
    if (entry.name == name) return entry.format;
  }
  return std::nullopt;
}

StoreModelFormat FileNames::formatOf(const std::string& output) {
  std::error_code failure;
  const std::string extension = fs::path(output).extension().string();
  if (fs::is_directory(output, failure)) return StoreModelFormat::json;
  if (extension == ".sqlite3") return StoreModelFormat::sqlite;
  if (extension.empty()) return StoreModelFormat::json;
  return findFormat(extension.substr(1)).value_or(StoreModelFormat::json);
}

std::string FileNames::missingFolderOf(const std::string& file) {
  const std::size_t slash = file.rfind('/');
  if (slash == std::string::npos) return {};
  std::error_code failure;
  std::string folder = file.substr(0, slash + 1);
  return fs::is_directory(folder, failure) ? std::string() : folder;
}

std::string FileNames::outputOf(const std::string& input, const std::string& output,
                                StoreModelFormat format) {
  return withExtension(input, output, nameOf(format));
}

std::string FileNames::pageOf(const std::string& input, const std::string& output) {
  return withExtension(input, output, "html");
}

bool FileNames::isSame(const std::string& first, const std::string& second) {
  std::error_code failure;
  if (fs::equivalent(first, second, failure)) return true;
  const fs::path firstPlace = fs::weakly_canonical(first, failure);
  if (failure) return false;
  const fs::path secondPlace = fs::weakly_canonical(second, failure);
  return !failure && firstPlace == secondPlace;
}

std::string FileNames::identityOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) {
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
  }
  std::error_code failure;
  const fs::path place = fs::weakly_canonical(path, failure);
  return failure ? path : place.string();
}
