// XmlTranscoder: bytes of some encoding to UTF-8, piece by piece.
//
// Encodings of one byte a character, by far the most frequent ones, become a table of 256 entries;
// the others go through iconv.
#pragma once

#include <memory>
#include <string>

#include "foundation/Export.h"

class KYR_EXPORT XmlTranscoder {
 public:
  enum class Stop {
    spaceUsed,   // the output has no room for the next character
    inputUsed,   // every byte is converted
    incomplete,  // the bytes left are the beginning of a character
    invalid,     // the next byte cannot stand where it stands
  };

  XmlTranscoder() = default;
  XmlTranscoder(const XmlTranscoder&) = delete;
  XmlTranscoder& operator=(const XmlTranscoder&) = delete;
  virtual ~XmlTranscoder();
  /// Null when nobody knows an encoding of that name.
  static std::unique_ptr<XmlTranscoder> open(const std::string& converterName);

  /// Bytes of output that always suffice for one step.
  static constexpr std::size_t minimumSpace = 16;
  /// Converts from `input` on and moves both pointers behind what is done.
  virtual Stop convert(const char*& input, const char* inputEnd, char*& output, char* outputEnd) = 0;
  /// Writes what is still held back at the end of the input.
  virtual void finish(char*& output, char* outputEnd) = 0;
};
