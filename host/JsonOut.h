// JsonOut: JSON as the command writes it, one compact document a line (RFC 8259), UTF-8.
//
// RapidJSON does the work. Texts go through `text`, since those of files and paths may hold what the
// library would pass on as it stands: bytes that are no UTF-8, which become U+FFFD, and characters that
// a terminal would obey, which become escapes.
#pragma once

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>

#include "foundation/KYRString.h"
#include "repository/storage/JsonAllocator.h"

class JsonOut {
 public:
  JsonOut() : writer_(buffer_) { writer_.SetMaxDecimalPlaces(realDigits); }

  JsonOut& beginObject() { return done(writer_.StartObject()); }
  JsonOut& endObject() { return done(writer_.EndObject()); }
  JsonOut& beginArray() { return done(writer_.StartArray()); }
  JsonOut& endArray() { return done(writer_.EndArray()); }
  /// A key of our own: plain ASCII without anything to escape.
  JsonOut& key(std::string_view name) {
    return done(writer_.Key(name.data(), static_cast<rapidjson::SizeType>(name.size())));
  }
  JsonOut& text(std::string_view value);
  JsonOut& text(const char* value) { return text(std::string_view(value)); }
  JsonOut& text(const KYRString& value) { return text(value.view()); }
  JsonOut& number(std::uint64_t value) { return done(writer_.Uint64(value)); }
  JsonOut& integer(int value) { return done(writer_.Int(value)); }
  JsonOut& real(double value) { return done(writer_.Double(value)); }
  JsonOut& boolean(bool value) { return done(writer_.Bool(value)); }
  JsonOut& null() { return done(writer_.Null()); }

  /// The finished document with a newline behind it; valid until the next `beginLine`.
  std::string_view endLine();
  /// Makes room for another document.
  void beginLine();

 private:
  static constexpr int realDigits = 3;  // reals are seconds

  JsonOut& done(bool) { return *this; }
  void escapedText(std::string_view value);

  using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, JsonAllocator>;

  Buffer buffer_;
  rapidjson::Writer<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonAllocator> writer_;
};
