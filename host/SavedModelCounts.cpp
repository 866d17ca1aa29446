// Counting by lines: {"id":7,"class":"KYRClass","name":...
#include "host/SavedModelCounts.h"

#include <fstream>

namespace {

constexpr std::string_view idStart = R"({"id":)";
constexpr std::string_view classStart = R"(,"class":")";
constexpr std::string_view interfaceMark = R"(,"classCategory":9)";

// The class of the object that begins the line; empty when none does.
std::string_view classOf(std::string_view line) {
  if (!line.starts_with(idStart)) return {};
  const std::size_t idEnd = line.find_first_not_of("0123456789", idStart.size());
  if (idEnd == std::string_view::npos) return {};
  line.remove_prefix(idEnd);
  if (!line.starts_with(classStart)) return {};
  line.remove_prefix(classStart.size());
  return line.substr(0, line.find('"'));
}

}  // namespace

std::optional<SavedModelCounts> SavedModelCounts::read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  SavedModelCounts counts;
  for (std::string line; std::getline(file, line);) counts.countLine(line);
  if (file.bad()) return std::nullopt;
  return counts;
}

void SavedModelCounts::countLine(std::string_view line) {
  const std::string_view name = classOf(line);
  if (name == "KYRClass") {
    ++(line.find(interfaceMark) == std::string_view::npos ? classes : interfaces);
  } else if (name == "KYRDesignPackage") {
    ++packages;
  } else if (name == "KYRAttribute") {
    ++attributes;
  } else if (name == "KYROperation") {
    ++operations;
  } else if (name == "KYRArgument") {
    ++arguments;
  } else if (name == "KYRAssociation") {
    ++associations;
  }
}
