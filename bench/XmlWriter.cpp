#include "bench/XmlWriter.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace bench {

namespace {
constexpr std::size_t bufferSize = std::size_t{1} << 20U;
}  // namespace

void XmlWriter::put(std::string_view text) {
  written += text.size();
  if (!file) return;
  buffer.append(text);
  if (buffer.size() >= bufferSize) finish();
}

void XmlWriter::finish() {
  if (!file || buffer.empty()) return;
  if (std::fwrite(buffer.data(), 1, buffer.size(), file) != buffer.size() || std::fflush(file) != 0)
    throw std::runtime_error(std::string("cannot write: ") + std::strerror(errno));
  buffer.clear();
}

void XmlWriter::raw(std::string_view text) {
  closeStartTag();
  put(text);
}

void XmlWriter::newLine() {
  static constexpr std::string_view tabs = "\n\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
  put(tabs.substr(0, std::min(tabs.size(), open.size() + 1)));
}

void XmlWriter::closeStartTag() {
  if (inStartTag) put(">");
  inStartTag = false;
}

void XmlWriter::start(std::string_view tag, Attributes attributes) {
  closeStartTag();
  newLine();
  put("<");
  put(tag);
  open.emplace_back(tag);
  inStartTag = true;
  hasText = false;
  for (const Attribute& each : attributes) attribute(each.first, each.second);
}

void XmlWriter::attribute(std::string_view name, std::string_view value) {
  const std::string_view mark(&quote, 1);
  put(" ");
  put(name);
  put("=");
  put(mark);
  put(value);
  put(mark);
}

void XmlWriter::text(std::string_view characters) {
  closeStartTag();
  put(characters);
  hasText = true;
}

void XmlWriter::end() {
  const std::string tag = std::move(open.back());
  open.pop_back();
  if (inStartTag) {
    put("/>");
  } else {
    if (!hasText) newLine();
    put("</");
    put(tag);
    put(">");
  }
  inStartTag = false;
  hasText = false;
}

void XmlWriter::leaf(std::string_view tag, Attributes attributes) {
  start(tag, attributes);
  end();
}

}  // namespace bench
