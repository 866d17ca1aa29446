// The handlers of libxml2, and the blocks that it is given.
#include "foundation/xml/XmlQuickTokenizer.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <utility>

namespace {

// libxml2 compares each attribute of an element with those before it; expat looks them up.
constexpr std::size_t mostAttributes = 200;

// Names of XML 1.0 up to its fourth edition, as expat has them; any depth and size, since the limits are
// ours; no network; the text is UTF-8 whatever its declaration says; "&amp;" in a value is "&". Without a
// document type there are no other entities to replace.
constexpr int options =
    XML_PARSE_OLD10 | XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT;

// Whether an input stream that cannot be made leaves its buffer to the caller.
constexpr bool leavesBuffer = LIBXML_VERSION < 21400;

const char* toText(const xmlChar* text) noexcept { return reinterpret_cast<const char*>(text); }

#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlErrorPtr;
#endif

// Where libxml2 tells errors on this thread while the object lives, in place of printing them.
class ErrorReceiver {
 public:
  ErrorReceiver(void* context, xmlStructuredErrorFunc handler) noexcept
      : contextBefore_(xmlStructuredErrorContext), handlerBefore_(xmlStructuredError) {
    xmlSetStructuredErrorFunc(context, handler);
  }
  ErrorReceiver(const ErrorReceiver&) = delete;
  ErrorReceiver& operator=(const ErrorReceiver&) = delete;
  ~ErrorReceiver() { xmlSetStructuredErrorFunc(contextBefore_, handlerBefore_); }

 private:
  void* contextBefore_;
  xmlStructuredErrorFunc handlerBefore_;
};

void prepareLibrary() {
  static std::once_flag once;
  std::call_once(once, xmlInitParser);
}

}  // namespace

// What libxml2 calls. After it has been stopped it may still report what it has begun; that is passed over.
struct XmlQuickTokenizer::Handlers {
  static XmlQuickTokenizer& from(void* userData) noexcept {
    return *static_cast<XmlQuickTokenizer*>(userData);
  }
  static int read(void* userData, char* buffer, int length) {
    XmlQuickTokenizer& self = from(userData);
    std::size_t given = 0;
    self.guard([&] { given = self.read(buffer, static_cast<std::size_t>(length)); });
    return static_cast<int>(given);
  }
  static void start(void* userData, const xmlChar* tag, const xmlChar** attributes) {
    XmlQuickTokenizer& self = from(userData);
    self.guard([&] { self.onStart(toText(tag), reinterpret_cast<const char* const*>(attributes)); });
  }
  static void end(void* userData, const xmlChar*) {
    XmlQuickTokenizer& self = from(userData);
    self.guard([&] { self.onEnd(); });
  }
  static void characters(void* userData, const xmlChar* text, int length) {
    XmlQuickTokenizer& self = from(userData);
    self.guard([&] { self.onCharacters({toText(text), static_cast<std::size_t>(length)}, false); });
  }
  static void section(void* userData, const xmlChar* text, int length) {
    XmlQuickTokenizer& self = from(userData);
    self.guard([&] { self.onCharacters({toText(text), static_cast<std::size_t>(length)}, true); });
  }
  static void instruction(void* userData, const xmlChar* target, const xmlChar* data) {
    XmlQuickTokenizer& self = from(userData);
    self.guard([&] { self.onInstruction(toText(target), data == nullptr ? "" : toText(data)); });
  }
  // Also for what libxml2 only warns of: whether that is in order is for expat to say.
  static void error(void* userData, ErrorPointer) { from(userData).giveUp(); }
};

void XmlQuickTokenizer::ParserDeleter::operator()(_xmlParserCtxt* parser) const noexcept {
  xmlFreeParserCtxt(parser);
}

XmlQuickTokenizer::XmlQuickTokenizer(XmlInput& input, XmlEventSink& sink, std::size_t blockSize,
                                     XmlThreads threads)
    : limits_(XmlLimits::get()), sink_(sink), blocks_(input, blockSize, threads) {}

XmlQuickTokenizer::~XmlQuickTokenizer() = default;

// What xmlCreateIOParserCtxt does in one; that one loses the buffer when there is no memory for the last
// step.
void XmlQuickTokenizer::openParser() {
  xmlSAXHandler handlers = {};
  handlers.initialized = 1;  // the handlers of SAX 1, which get names as written
  handlers.startElement = Handlers::start;
  handlers.endElement = Handlers::end;
  handlers.characters = Handlers::characters;
  handlers.ignorableWhitespace = Handlers::characters;
  handlers.cdataBlock = Handlers::section;
  handlers.processingInstruction = Handlers::instruction;
  giveUp();
  parser_.reset(xmlNewParserCtxt());
  if (parser_ == nullptr) return;
  *parser_->sax = handlers;
  parser_->userData = this;
  const auto buffer = xmlParserInputBufferCreateIO(Handlers::read, nullptr, this, XML_CHAR_ENCODING_UTF8);
  if (buffer == nullptr) return;
  const auto input = xmlNewIOInputStream(parser_.get(), buffer, XML_CHAR_ENCODING_UTF8);
  if (input == nullptr) {
    if (leavesBuffer) xmlFreeParserInputBuffer(buffer);
    return;
  }
  if (inputPush(parser_.get(), input) < 0) return xmlFreeInputStream(input);
  hasGivenUp_ = xmlCtxtUseOptions(parser_.get(), options) != 0;
}

bool XmlQuickTokenizer::run() {
  prepareLibrary();
  const ErrorReceiver errors(this, Handlers::error);
  openParser();
  if (!isOver()) xmlParseDocument(parser_.get());
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  return !hasGivenUp_ && parser_->wellFormed == 1;
}

template <class Action>
void XmlQuickTokenizer::guard(Action action) noexcept {
  if (isOver()) return;
  try {
    action();
  } catch (...) {  // carried over the frames of libxml2 and raised again by run()
    failure_ = std::current_exception();
  }
}

// libxml2 takes a read that gives less than it asked for to be near the end of the text, and goes astray. The
// end is also what it is told once all is over: it leaves by itself then.
std::size_t XmlQuickTokenizer::read(char* buffer, std::size_t capacity) {
  std::size_t length = 0;
  while (length < capacity && (!unread_.empty() || readBlock())) {
    const std::size_t copied = unread_.copy(buffer + length, capacity - length);
    unread_.remove_prefix(copied);
    length += copied;
  }
  return length;
}

bool XmlQuickTokenizer::readBlock() {
  if (isAtEnd_) return false;
  const XmlTextBlocks::Block& block = blocks_.next();
  if (!block.isPlain) giveUp();
  isAtEnd_ = isOver() || block.length == 0;
  if (isAtEnd_) return false;
  unread_ = {block.bytes.data(), block.length};
  starts_.erase(starts_.begin(), starts_.begin() + static_cast<std::ptrdiff_t>(startsTold_));
  startsTold_ = 0;
  starts_.insert(starts_.end(), block.starts.begin(), block.starts.end());
  return true;
}

void XmlQuickTokenizer::onStart(const char* tag, const char* const* attributes) {
  if (!isTagClosed()) return giveUp();
  const std::size_t length = std::strlen(tag);
  XmlPosition position;
  if (progress_.depth >= limits_.maxDepth || length > limits_.maxNameBytes || !takeAttributes(attributes) ||
      !takeStart(position)) {
    return giveUp();
  }
  brackets_ = 0;
  progress_.addStart(position);
  sink_.startElement({tag, length}, attributes_.data(), attributes_.size(), position);
}

void XmlQuickTokenizer::onEnd() {
  brackets_ = 0;
  progress_.addEnd();
  sink_.endElement();
}

void XmlQuickTokenizer::onCharacters(std::string_view text, bool isSection) {
  if (text.size() > limits_.maxTextBytes - progress_.textBytes) return giveUp();
  if (isSection) {
    brackets_ = 0;
  } else if (endsSection(text)) {
    return giveUp();
  }
  progress_.textBytes += text.size();
  sink_.characters(text);
}

void XmlQuickTokenizer::onInstruction(std::string_view target, std::string_view data) {
  brackets_ = 0;
  progress_.addInstruction();
  sink_.processingInstruction(target, data);
}

// libxml2 tells of a tag before it looks for its end.
bool XmlQuickTokenizer::isTagClosed() const noexcept {
  const xmlChar* const at = parser_->input->cur;
  return at[0] == '>' || (at[0] == '/' && at[1] == '>');
}

bool XmlQuickTokenizer::takeStart(XmlPosition& position) noexcept {
  if (startsTold_ == starts_.size()) return false;
  position = starts_[startsTold_++];
  return true;
}

bool XmlQuickTokenizer::takeAttributes(const char* const* attributes) {
  attributes_.clear();
  for (; attributes != nullptr && *attributes != nullptr; attributes += 2) {
    const std::string_view name(attributes[0]);
    const std::string_view value(attributes[1]);
    if (attributes_.size() == std::min(mostAttributes, limits_.maxAttributes) ||
        name.size() > limits_.maxNameBytes || value.size() > limits_.maxTextBytes) {
      return false;
    }
    attributes_.push_back({name, value});
  }
  return true;
}

// "]]>" is an error in a text (XML 1.0, 2.4), which libxml2 does not see where its buffer cuts the three.
bool XmlQuickTokenizer::endsSection(std::string_view text) noexcept {
  if (brackets_ != 0 && text.starts_with(brackets_ == 2 ? ">" : "]>")) return true;
  const std::size_t last = text.find_last_not_of(']');
  brackets_ = std::min<std::size_t>(
      2, last == std::string_view::npos ? brackets_ + text.size() : text.size() - 1 - last);
  return false;
}

void XmlQuickTokenizer::giveUp() noexcept { hasGivenUp_ = true; }
