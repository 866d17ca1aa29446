// XmlDecoder: an XML text as UTF-8, whatever encoding its input has.
//
// UTF-8 goes straight through, unchecked: the tokenizer checks it on its way. Every other encoding is
// converted piece by piece; a character cut by the end of a piece waits for the next one.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "foundation/xml/XmlEncoding.h"
#include "foundation/xml/XmlInput.h"
#include "foundation/xml/XmlTranscoder.h"

class KYR_EXPORT XmlDecoder {
 public:
  /// Reads as much of `input` as tells the encoding. Raises a KYRException for an encoding that is
  /// unknown or that the bytes contradict. The input must outlive the decoder.
  explicit XmlDecoder(XmlInput& input);
  XmlDecoder(const XmlDecoder&) = delete;
  XmlDecoder& operator=(const XmlDecoder&) = delete;
  ~XmlDecoder();

  const XmlEncoding& getEncoding() const noexcept { return encoding_; }
  /// Puts the next bytes of UTF-8 into `buffer`, `capacity` of them at most; 0 at the end, and in front
  /// of a byte that is not valid in the encoding.
  std::size_t read(char* buffer, std::size_t capacity);
  /// Whether an invalid byte has ended the text.
  bool isBroken() const noexcept { return isBroken_; }
  /// Raises a KYRException of the byte that has ended the text, and its position.
  [[noreturn]] void raiseInvalidByte() const;

 private:
  void readHead();
  std::unique_ptr<XmlTranscoder> openTranscoder() const;
  std::size_t readInput(char* buffer, std::size_t capacity);
  std::size_t transcode(char* buffer, std::size_t capacity);
  void refill();

  XmlInput& input_;
  std::string head_;  // read to tell the encoding and not yet given
  std::size_t headUsed_ = 0;
  XmlEncoding encoding_;
  std::unique_ptr<XmlTranscoder> transcoder_;  // null for UTF-8
  std::vector<char> raw_;                      // bytes of the input, converted up to rawUsed_
  std::size_t rawUsed_ = 0;
  std::size_t rawEnd_ = 0;
  bool isInputAtEnd_ = false;
  bool isFinished_ = false;
  bool isBroken_ = false;
  std::string spill_;  // converted, but too much for the buffer of the caller
  XmlPosition position_;
};
