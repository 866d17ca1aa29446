// Reads the head of the input, then either hands bytes through or converts them from `raw_`.
#include "foundation/xml/XmlDecoder.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

// A declaration takes some 50 bytes; one that does not end within so many is refused.
constexpr std::size_t maximumDeclaration = 4096;
constexpr std::size_t rawBlock = std::size_t{64} * 1024;

bool readsDeclaration(XmlTranscoder& transcoder, std::string_view head) {
  constexpr std::string_view expected = "<?xml";
  char text[4 * expected.size()];
  const char* from = head.data();
  char* to = text;
  transcoder.convert(from, from + std::min(head.size(), expected.size()), to, text + sizeof text);
  return std::string_view(text, static_cast<std::size_t>(to - text)) == expected;
}

}  // namespace

XmlDecoder::XmlDecoder(XmlInput& input) : input_(input) {
  readHead();
  encoding_ = XmlEncoding::detect(head_, getForcedXmlEncoding());
  headUsed_ = encoding_.markLength;
  if (!encoding_.isUtf8()) {
    transcoder_ = openTranscoder();
    raw_.resize(rawBlock);
  }
}

XmlDecoder::~XmlDecoder() = default;

void XmlDecoder::readHead() {
  while (head_.size() < maximumDeclaration && !XmlEncoding::isHeadComplete(head_)) {
    const std::size_t known = head_.size();
    head_.resize(maximumDeclaration);
    const std::size_t length = input_.read(head_.data() + known, maximumDeclaration - known);
    head_.resize(known + length);
    if (length == 0) return;
  }
  if (!XmlEncoding::isHeadComplete(head_)) {
    raiseXmlError(KYRStdMessages::XML_MARKUP_TOO_LONG, input_.getName(), XmlPosition(),
                  toText(maximumDeclaration));
  }
}

std::unique_ptr<XmlTranscoder> XmlDecoder::openTranscoder() const {
  const KYRString name{std::string_view(encoding_.name)};
  std::unique_ptr<XmlTranscoder> transcoder;
  if (!encoding_.converterName.empty()) transcoder = XmlTranscoder::open(encoding_.converterName);
  if (!transcoder) {
    raiseXmlError(KYRStdMessages::XML_UNKNOWN_ENCODING, input_.getName(), encoding_.position, name);
  }
  if (!encoding_.isDeclared) return transcoder;
  // A declaration that was read byte by byte is no UTF-16 for example, whatever it says.
  if (!readsDeclaration(*transcoder, head_)) {
    raiseXmlError(KYRStdMessages::XML_CONTRADICTED_ENCODING, input_.getName(), encoding_.position, name);
  }
  return XmlTranscoder::open(encoding_.converterName);  // anew, without what the trial has left in it
}

std::size_t XmlDecoder::readInput(char* buffer, std::size_t capacity) {
  if (headUsed_ == head_.size()) return input_.read(buffer, capacity);
  const std::size_t length = head_.copy(buffer, capacity, headUsed_);
  headUsed_ += length;
  return length;
}

std::size_t XmlDecoder::read(char* buffer, std::size_t capacity) {
  if (!transcoder_) return readInput(buffer, capacity);
  if (spill_.empty() && capacity >= XmlTranscoder::minimumSpace) return transcode(buffer, capacity);
  if (spill_.empty()) {
    char space[XmlTranscoder::minimumSpace];
    spill_.assign(space, transcode(space, sizeof space));
  }
  const std::size_t length = spill_.copy(buffer, capacity);
  spill_.erase(0, length);
  return length;
}

std::size_t XmlDecoder::transcode(char* buffer, std::size_t capacity) {
  char* output = buffer;
  while (output == buffer && !isFinished_ && !isBroken_) {
    const char* input = raw_.data() + rawUsed_;
    const XmlTranscoder::Stop stop =
        transcoder_->convert(input, raw_.data() + rawEnd_, output, buffer + capacity);
    rawUsed_ = static_cast<std::size_t>(input - raw_.data());
    if (output != buffer) break;
    isBroken_ = stop == XmlTranscoder::Stop::invalid;
    if (isBroken_) break;
    refill();
    if (!isInputAtEnd_) continue;
    isBroken_ = rawUsed_ != rawEnd_;  // the file ends within a character
    if (isBroken_) break;
    transcoder_->finish(output, buffer + capacity);
    isFinished_ = true;
  }
  const auto length = static_cast<std::size_t>(output - buffer);
  position_.advance({buffer, length});
  return length;
}

// Reads on behind the bytes of a character that is not complete yet.
void XmlDecoder::refill() {
  const std::size_t left = rawEnd_ - rawUsed_;
  std::memmove(raw_.data(), raw_.data() + rawUsed_, left);
  rawUsed_ = 0;
  const std::size_t length = readInput(raw_.data() + left, raw_.size() - left);
  rawEnd_ = left + length;
  isInputAtEnd_ = length == 0;
}

void XmlDecoder::raiseInvalidByte() const {
  raiseXmlError(KYRStdMessages::XML_INVALID_BYTES, input_.getName(), position_, describeByte(raw_[rawUsed_]),
                KYRString(std::string_view(encoding_.name)));
}
