// What the tests of the XML core share: documents from texts, their dumps, messages of exceptions, and
// settings that are taken back at the end of a test.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/xml/XmlDocument.h"
#include "foundation/xml/XmlLimits.h"
#include "foundation/xml/XmlTokenizer.h"

/// The name that messages give to texts in memory.
inline constexpr char memoryName[] = "memory.xmi";

/// One line for each event: "+tag name=value ... @line:column", "-", "'text'", "?target data". The
/// pieces of one text are joined.
class EventRecorder : public XmlEventSink {
 public:
  void startElement(std::string_view tag, const Attribute* attributes, std::size_t attributeCount,
                    const XmlPosition& position) override;
  void endElement() override;
  void characters(std::string_view text) override;
  void processingInstruction(std::string_view target, std::string_view data) override;
  /// Forgets the characters since the last event: an error cuts a text anywhere.
  void dropText() noexcept { text_.clear(); }
  /// The lines, each ending in a newline.
  std::string getText();

 private:
  void finishText();
  std::string lines_;
  std::string text_;
};

/// The events of a text. Input and tokenizer take at most so many bytes at a time.
std::string readEvents(std::string_view xml, std::size_t pieceSize = std::string_view::npos,
                       std::size_t blockSize = XmlTokenizer::defaultBlockSize);

std::shared_ptr<const XmlDocument> readDocument(std::string_view xml);

/// One line for each node, indented by depth: "tag name=value ... @line:column" or "'text'".
std::string dumpDocument(const XmlDocument& document);

/// The message of the KYRException that `action` raises; "nothing raised" when it raises none.
std::string messageOf(const std::function<void()>& action);
/// The same for reading a text.
std::string errorOf(std::string_view xml, std::size_t pieceSize = std::string_view::npos,
                    std::size_t blockSize = XmlTokenizer::defaultBlockSize);

/// Limits that hold for the life of the object.
class TemporaryLimits {
 public:
  explicit TemporaryLimits(const XmlLimits& limits) : before_(XmlLimits::get()) { XmlLimits::set(limits); }
  TemporaryLimits(const TemporaryLimits&) = delete;
  TemporaryLimits& operator=(const TemporaryLimits&) = delete;
  ~TemporaryLimits() { XmlLimits::set(before_); }

 private:
  XmlLimits before_;
};

/// An encoding that is forced for the life of the object.
class TemporaryEncoding {
 public:
  explicit TemporaryEncoding(const char* name) { forceXmlEncoding(name); }
  TemporaryEncoding(const TemporaryEncoding&) = delete;
  TemporaryEncoding& operator=(const TemporaryEncoding&) = delete;
  ~TemporaryEncoding() { forceXmlEncoding(nullptr); }
};
