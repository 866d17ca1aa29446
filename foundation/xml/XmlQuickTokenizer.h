// XmlQuickTokenizer: an XML text as a series of events, by libxml2, as long as all is in order.
//
// libxml2 is used for its reader alone, without namespaces, tree, entities or files: a text with a
// document type is not for it. It never raises for a text. At the first thing that is not in order, or
// that it may judge otherwise than expat, it gives up and tells how far it has come.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/Export.h"
#include "foundation/xml/XmlEventSink.h"
#include "foundation/xml/XmlLimits.h"
#include "foundation/xml/XmlPosition.h"
#include "foundation/xml/XmlTextBlocks.h"

struct _xmlParserCtxt;  // NOLINT(bugprone-reserved-identifier): the name is that of libxml2

/// How much of a text has been told to a sink.
struct XmlProgress {
  std::uint64_t events = 0;     // all but characters, which come in pieces
  std::uint64_t textBytes = 0;  // of the characters told since the last event
  std::uint64_t depth = 0;      // open elements
  XmlPosition lastStart;        // of the last element that has begun

  void addStart(const XmlPosition& position) noexcept {
    addInstruction();
    ++depth;
    lastStart = position;
  }
  void addEnd() noexcept {
    addInstruction();
    --depth;
  }
  void addInstruction() noexcept {
    ++events;
    textBytes = 0;
  }
};

class KYR_EXPORT XmlQuickTokenizer {
 public:
  /// Both must outlive the tokenizer. The input is at its start.
  XmlQuickTokenizer(XmlInput& input, XmlEventSink& sink, std::size_t blockSize, XmlThreads threads);
  XmlQuickTokenizer(const XmlQuickTokenizer&) = delete;
  XmlQuickTokenizer& operator=(const XmlQuickTokenizer&) = delete;
  ~XmlQuickTokenizer();

  /// Reads the input. True: to its end. False: it has given up, for whatever reason of the text, or for lack
  /// of memory in the library. Raises what the input or the sink raises, and a KYRException for an encoding
  /// that is unknown. To be called once.
  bool run();
  const XmlProgress& getProgress() const noexcept { return progress_; }

 private:
  struct Handlers;
  friend struct Handlers;
  struct ParserDeleter {
    void operator()(_xmlParserCtxt* parser) const noexcept;
  };
  template <class Action>
  void guard(Action action) noexcept;

  void openParser();
  std::size_t read(char* buffer, std::size_t capacity);
  bool readBlock();
  void onStart(const char* tag, const char* const* attributes);
  void onEnd();
  void onCharacters(std::string_view text, bool isSection);
  void onInstruction(std::string_view target, std::string_view data);
  bool isTagClosed() const noexcept;
  bool takeStart(XmlPosition& position) noexcept;
  bool takeAttributes(const char* const* attributes);
  bool endsSection(std::string_view text) noexcept;
  void giveUp() noexcept;
  bool isOver() const noexcept { return hasGivenUp_ || failure_ != nullptr; }

  const XmlLimits limits_;
  XmlEventSink& sink_;
  XmlTextBlocks blocks_;
  std::string_view unread_;          // of the last block
  bool isAtEnd_ = false;             // no block follows
  std::vector<XmlPosition> starts_;  // of the blocks so far, but for some of those that were told
  std::size_t startsTold_ = 0;
  std::unique_ptr<_xmlParserCtxt, ParserDeleter> parser_;
  XmlProgress progress_;
  std::size_t brackets_ = 0;  // how many "]" the text under way ends with, two at most
  std::vector<XmlEventSink::Attribute> attributes_;
  bool hasGivenUp_ = false;
  std::exception_ptr failure_;
};
