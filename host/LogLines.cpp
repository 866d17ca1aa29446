// A line is JSON, "LEVEL CODE text", or "[CODE] text" where an exception has ended the import.
#include "host/LogLines.h"

#include <rapidjson/document.h>

#include <string>
#include <vector>

#include "foundation/KYRLog.h"
#include "foundation/xml/XmlFileInput.h"
#include "repository/storage/JsonAllocator.h"

namespace {

using JsonLine = rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<JsonAllocator>,
                                            JsonAllocator>;

std::string textOf(const JsonLine& line, const char* member) {
  const auto found = line.FindMember(member);
  if (found == line.MemberEnd() || !found->value.IsString()) return std::string();
  return {found->value.GetString(), found->value.GetStringLength()};
}

bool isLevel(std::string_view word) {
  for (const int level : {KYRLogLevel::fatal, KYRLogLevel::warning, KYRLogLevel::status}) {
    if (word == KYRLogLevel::toName(level)) return true;
  }
  return false;
}

std::string_view takeUntil(std::string_view& rest, std::string_view end) {
  const std::size_t at = rest.find(end);
  const std::string_view taken = rest.substr(0, at);
  rest.remove_prefix(at == std::string_view::npos ? rest.size() : at + end.size());
  return taken;
}

std::string contentOf(const KYRFile& file) {
  XmlFileInput input(file);
  std::string content;
  std::vector<char> block(std::size_t{64} * 1024);
  while (const std::size_t count = input.read(block.data(), block.size())) {
    content.append(block.data(), count);
  }
  return content;
}

}  // namespace

LogLines::Message LogLines::read(std::string_view line) {
  if (line.starts_with('{')) {
    JsonLine json;
    json.Parse<rapidjson::kParseIterativeFlag>(line.data(), line.size());
    if (!json.HasParseError() && json.IsObject()) {
      return {textOf(json, "level"), textOf(json, "code"), textOf(json, "text")};
    }
  }
  std::string_view rest = line;
  if (line.starts_with("[KYR") || line.starts_with("[KB")) {
    const std::string_view code = takeUntil(rest, "] ");
    return {KYRLogLevel::toName(KYRLogLevel::fatal), std::string(code.substr(1)), std::string(rest)};
  }
  const std::string_view level = takeUntil(rest, " ");
  if (!isLevel(level)) return {std::string(), std::string(), std::string(line)};
  const std::string_view code = takeUntil(rest, " ");
  return {std::string(level), std::string(code), std::string(rest)};
}

std::vector<LogLines::Message> LogLines::readFile(const KYRFile& file) {
  const std::string content = contentOf(file);
  std::vector<Message> messages;
  std::string_view rest = content;
  while (!rest.empty()) {
    const std::string_view line = takeUntil(rest, "\n");
    if (!line.empty()) messages.push_back(read(line));
  }
  return messages;
}
