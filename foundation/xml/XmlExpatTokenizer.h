// XmlExpatTokenizer: an XML text as a series of events, by expat.
//
// Expat does the work, without namespace processing, so that names stay as written. What stands here
// is the frame: the text is fed to it in large blocks, limits are enforced, and an exception out of a
// receiver never unwinds through the frames of the C library. External entities are not fetched: no
// handler for them exists. What is an error, and how it is told, is decided here alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/xml/XmlDecoder.h"
#include "foundation/xml/XmlEventSink.h"
#include "foundation/xml/XmlLimits.h"
#include "foundation/xml/XmlPosition.h"

struct XML_ParserStruct;

class KYR_EXPORT XmlExpatTokenizer {
 public:
  /// Both must outlive the tokenizer. The events do not depend on `blockSize`.
  XmlExpatTokenizer(XmlInput& input, XmlEventSink& sink, std::size_t blockSize);
  XmlExpatTokenizer(const XmlExpatTokenizer&) = delete;
  XmlExpatTokenizer& operator=(const XmlExpatTokenizer&) = delete;
  ~XmlExpatTokenizer();

  /// Reads the input to its end. Raises a KYRException with file, line, column and reason for what is
  /// not well-formed, not valid in its encoding or beyond a limit; an exception of the sink passes
  /// through as it is. To be called once.
  void run();

 private:
  struct Handlers;
  friend struct Handlers;
  struct ParserDeleter {
    void operator()(XML_ParserStruct* parser) const noexcept;
  };
  template <class Action>
  void guard(Action action) noexcept;

  void onStart(const char* tag, const char** attributes);
  void onCharacters(std::string_view text);
  std::size_t measureName(const char* name) const;
  std::size_t measureValue(const char* value) const;
  XmlPosition getPosition() const;
  template <class Message>
  [[noreturn]] void raiseLimit(const Message& message, const XmlPosition& position, std::size_t limit) const;
  std::size_t getNextBlockSize() const noexcept;
  void checkPendingMarkup();
  [[noreturn]] void raiseError();
  std::string readCharacterAtError();

  const XmlLimits limits_;
  XmlInput& input_;
  XmlEventSink& sink_;
  const std::size_t blockSize_;
  XmlDecoder decoder_;
  std::unique_ptr<XML_ParserStruct, ParserDeleter> parser_;
  std::exception_ptr failure_;
  std::vector<XmlEventSink::Attribute> attributes_;
  std::size_t depth_ = 0;
  std::size_t textBytes_ = 0;  // of the text under way
  std::uint64_t fedBytes_ = 0;
  std::uint64_t finishedBytes_ = 0;  // of fedBytes_, those behind which expat stands
};
