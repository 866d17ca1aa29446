// The handlers of expat, the limits they enforce, and the loop that feeds blocks.
#include "foundation/xml/XmlExpatTokenizer.h"

#include <expat.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace {

// From so many bytes of unfinished markup on, blocks grow with it. Expat begins unfinished markup
// anew with each block, so a fixed size would make the cost of a huge attribute quadratic.
constexpr std::uint64_t growthThreshold = std::uint64_t{64} * 1024;

// Whether `text` starts with a whole character of UTF-8 (RFC 3629).
bool startsWithUtf8(std::string_view text) noexcept {
  const auto byte = [text](std::size_t index) -> unsigned int {
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
  };
  const auto continues = [&](std::size_t from, std::size_t to) {
    for (; from < to; ++from) {
      if ((byte(from) & 0xC0U) != 0x80U) return false;
    }
    return true;
  };
  const unsigned int lead = byte(0);
  const unsigned int second = byte(1);
  if (lead < 0x80) return true;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1, 2);
  if (lead >= 0xE0 && lead <= 0xEF) {  // neither overlong forms nor surrogates
    return continues(1, 3) && !(lead == 0xE0 && second < 0xA0) && !(lead == 0xED && second > 0x9F);
  }
  return lead >= 0xF0 && lead <= 0xF4 && continues(1, 4) && !(lead == 0xF0 && second < 0x90) &&
         !(lead == 0xF4 && second > 0x8F);
}

// Whether the text ends too early: for a text cut by an invalid byte, that is no reason but a result.
bool tellsOfTheEnd(XML_Error error) noexcept {
  return error == XML_ERROR_NO_ELEMENTS || error == XML_ERROR_UNCLOSED_TOKEN ||
         error == XML_ERROR_PARTIAL_CHAR || error == XML_ERROR_UNCLOSED_CDATA_SECTION;
}

}  // namespace

// What expat calls. After XML_StopParser it may still report what it has begun; that is passed over.
struct XmlExpatTokenizer::Handlers {
  static XmlExpatTokenizer& from(void* userData) noexcept {
    return *static_cast<XmlExpatTokenizer*>(userData);
  }
  static void XMLCALL start(void* userData, const XML_Char* tag, const XML_Char** attributes) {
    XmlExpatTokenizer& self = from(userData);
    self.guard([&] { self.onStart(tag, attributes); });
  }
  static void XMLCALL end(void* userData, const XML_Char*) {
    XmlExpatTokenizer& self = from(userData);
    self.guard([&] {
      --self.depth_;
      self.textBytes_ = 0;
      self.sink_.endElement();
    });
  }
  static void XMLCALL characters(void* userData, const XML_Char* text, int length) {
    XmlExpatTokenizer& self = from(userData);
    self.guard([&] { self.onCharacters({text, static_cast<std::size_t>(length)}); });
  }
  static void XMLCALL processingInstruction(void* userData, const XML_Char* target, const XML_Char* data) {
    XmlExpatTokenizer& self = from(userData);
    self.guard([&] {
      self.textBytes_ = 0;
      self.sink_.processingInstruction(target, data);
    });
  }
};

void XmlExpatTokenizer::ParserDeleter::operator()(XML_ParserStruct* parser) const noexcept {
  XML_ParserFree(parser);
}

XmlExpatTokenizer::XmlExpatTokenizer(XmlInput& input, XmlEventSink& sink, std::size_t blockSize)
    : limits_(XmlLimits::get()),
      input_(input),
      sink_(sink),
      blockSize_(blockSize),
      decoder_(input),
      // Named here, the encoding is settled: what the declaration says of it no longer counts.
      parser_(XML_ParserCreate("UTF-8")) {
  if (!parser_) throw std::bad_alloc();
  XML_SetUserData(parser_.get(), this);
  XML_SetElementHandler(parser_.get(), Handlers::start, Handlers::end);
  XML_SetCharacterDataHandler(parser_.get(), Handlers::characters);
  XML_SetProcessingInstructionHandler(parser_.get(), Handlers::processingInstruction);
}

XmlExpatTokenizer::~XmlExpatTokenizer() = default;

void XmlExpatTokenizer::run() {
  for (bool isAtEnd = false; !isAtEnd;) {
    const std::size_t size = getNextBlockSize();
    void* const block = XML_GetBuffer(parser_.get(), static_cast<int>(size));
    if (block == nullptr) raiseError();
    const std::size_t length = decoder_.read(static_cast<char*>(block), size);
    isAtEnd = length == 0;
    fedBytes_ += length;
    const XML_Status status = XML_ParseBuffer(parser_.get(), static_cast<int>(length), isAtEnd ? 1 : 0);
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    if (status != XML_STATUS_OK) raiseError();
    checkPendingMarkup();
  }
  if (decoder_.isBroken()) decoder_.raiseInvalidByte();
}

template <class Action>
void XmlExpatTokenizer::guard(Action action) noexcept {
  if (failure_) return;
  try {
    action();
  } catch (...) {  // carried over the frames of expat and raised again by run()
    failure_ = std::current_exception();
    XML_StopParser(parser_.get(), XML_FALSE);
  }
}

void XmlExpatTokenizer::onStart(const char* tag, const char** attributes) {
  textBytes_ = 0;
  if (++depth_ > limits_.maxDepth) {
    raiseLimit(KYRStdMessages::XML_TOO_DEEP, getPosition(), limits_.maxDepth);
  }
  attributes_.clear();
  for (; *attributes != nullptr; attributes += 2) {
    if (attributes_.size() == limits_.maxAttributes) {
      raiseLimit(KYRStdMessages::XML_TOO_MANY_ATTRIBUTES, getPosition(), limits_.maxAttributes);
    }
    attributes_.push_back(
        {{attributes[0], measureName(attributes[0])}, {attributes[1], measureValue(attributes[1])}});
  }
  sink_.startElement({tag, measureName(tag)}, attributes_.data(), attributes_.size(), getPosition());
}

void XmlExpatTokenizer::onCharacters(std::string_view text) {
  const std::size_t room = limits_.maxTextBytes - textBytes_;
  if (text.size() > room) {
    // The place where the text gets too long, so that it does not depend on how the text is cut.
    XmlPosition position = getPosition();
    position.advance(text.substr(0, room));
    raiseLimit(KYRStdMessages::XML_TEXT_TOO_LONG, position, limits_.maxTextBytes);
  }
  textBytes_ += text.size();
  sink_.characters(text);
}

std::size_t XmlExpatTokenizer::measureName(const char* name) const {
  const std::size_t length = std::strlen(name);
  if (length > limits_.maxNameBytes) {
    raiseLimit(KYRStdMessages::XML_NAME_TOO_LONG, getPosition(), limits_.maxNameBytes);
  }
  return length;
}

std::size_t XmlExpatTokenizer::measureValue(const char* value) const {
  const std::size_t length = std::strlen(value);
  if (length > limits_.maxTextBytes) {
    raiseLimit(KYRStdMessages::XML_VALUE_TOO_LONG, getPosition(), limits_.maxTextBytes);
  }
  return length;
}

XmlPosition XmlExpatTokenizer::getPosition() const {
  XmlPosition position;
  position.line = XML_GetCurrentLineNumber(parser_.get());
  position.column = XML_GetCurrentColumnNumber(parser_.get()) + 1;
  return position;
}

template <class Message>
void XmlExpatTokenizer::raiseLimit(const Message& message, const XmlPosition& position,
                                   std::size_t limit) const {
  raiseXmlError(message, input_.getName(), position, toText(limit));
}

std::size_t XmlExpatTokenizer::getNextBlockSize() const noexcept {
  const std::uint64_t pending = fedBytes_ - finishedBytes_;
  return pending < growthThreshold ? blockSize_ : std::max<std::size_t>(blockSize_, pending);
}

void XmlExpatTokenizer::checkPendingMarkup() {
  const XML_Index index = XML_GetCurrentByteIndex(parser_.get());
  if (index < 0) return;  // expat has put the new block off until there is more
  finishedBytes_ = static_cast<std::uint64_t>(index);
  if (fedBytes_ - finishedBytes_ > limits_.maxMarkupBytes) {
    raiseLimit(KYRStdMessages::XML_MARKUP_TOO_LONG, getPosition(), limits_.maxMarkupBytes);
  }
}

void XmlExpatTokenizer::raiseError() {
  const XML_Error error = XML_GetErrorCode(parser_.get());
  if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  if (decoder_.isBroken() && tellsOfTheEnd(error)) decoder_.raiseInvalidByte();
  if (error == XML_ERROR_INVALID_TOKEN && decoder_.getEncoding().isUtf8()) {
    const XmlPosition position = getPosition();
    const std::string bytes = readCharacterAtError();
    if (!startsWithUtf8(bytes)) {
      raiseXmlError(KYRStdMessages::XML_NOT_UTF8, input_.getName(), position, describeByte(bytes.front()));
    }
  }
  raiseXmlError(KYRStdMessages::XML_NOT_WELL_FORMED, input_.getName(), getPosition(),
                KYRString(XML_ErrorString(error)));
}

// The bytes of the character that expat stopped at: what it has of them, and the next ones of the text.
std::string XmlExpatTokenizer::readCharacterAtError() {
  constexpr std::size_t longestCharacter = 4;
  int offset = 0;
  int size = 0;
  const char* const context = XML_GetInputContext(parser_.get(), &offset, &size);
  if (context == nullptr || offset < 0 || offset >= size) return {};
  std::string bytes(context + offset, std::min(static_cast<std::size_t>(size - offset), longestCharacter));
  while (bytes.size() < longestCharacter) {
    char byte = '\0';
    if (decoder_.read(&byte, 1) == 0) break;
    bytes += byte;
  }
  return bytes;
}
