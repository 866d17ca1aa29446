// Writes indented XML in one pass, to a file or to nowhere (then it only counts). Texts and attribute
// values are written as they come: callers pass references such as "&#xA;" where they want them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bench {

class XmlWriter {
 public:
  using Attribute = std::pair<std::string_view, std::string_view>;
  using Attributes = std::initializer_list<Attribute>;

  /// Counts the bytes and writes none.
  XmlWriter() = default;
  /// Writes to `target`, which the caller keeps open until after finish(), with `mark` around values.
  XmlWriter(std::FILE* target, char mark) : file(target), quote(mark) {}

  void raw(std::string_view text);
  void start(std::string_view tag, Attributes attributes = {});
  void attribute(std::string_view name, std::string_view value);
  void text(std::string_view characters);
  void end();
  /// An element without content. An attribute with an empty value is written too.
  void leaf(std::string_view tag, Attributes attributes = {});

  /// Hands on what is left; raises std::runtime_error when the disk refuses it.
  void finish();
  std::uint64_t bytes() const { return written; }

 private:
  void put(std::string_view text);
  void newLine();
  void closeStartTag();

  std::FILE* file = nullptr;
  char quote = '"';
  std::string buffer;
  std::uint64_t written = 0;
  std::vector<std::string> open;
  bool inStartTag = false;
  bool hasText = false;
};

}  // namespace bench
