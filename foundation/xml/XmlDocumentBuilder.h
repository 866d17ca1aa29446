// XmlDocumentBuilder: fills a document with the events of a tokenizer.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "foundation/xml/XmlDocument.h"
#include "foundation/xml/XmlDocumentListener.h"
#include "foundation/xml/XmlEventSink.h"
#include "foundation/xml/XmlInput.h"

class KYR_EXPORT XmlDocumentBuilder : public XmlEventSink {
 public:
  /// `listener` may be null; it and `input`, which errors name, must outlive the builder.
  XmlDocumentBuilder(const XmlInput& input, XmlDocumentListener* listener);
  ~XmlDocumentBuilder() override;
  /// The document, complete once the tokenizer has run to its end.
  const std::shared_ptr<XmlDocument>& getDocument() const noexcept { return document_; }

  void startElement(std::string_view tag, const Attribute* attributes, std::size_t attributeCount,
                    const XmlPosition& position) override;
  void endElement() override;
  void characters(std::string_view text) override;
  void processingInstruction(std::string_view target, std::string_view data) override;

 private:
  // The texts met last, by a part of their hash. A text that is found is not stored again.
  struct RecentText {
    std::uint32_t hash = 0;
    std::uint32_t number = 0;
  };
  static constexpr std::size_t recentTextCount = 4096;
  static constexpr std::size_t longestRecentText = 64;

  void storePendingText();
  void appendNode(XmlDocument::Name name, std::uint32_t lineOrText, std::uint32_t column);
  std::uint32_t storeText(std::string_view text);
  std::uint32_t addText(std::string_view text);
  void requireRoom(std::size_t count) const;

  const XmlInput& input_;
  XmlDocumentListener* listener_;
  const std::size_t maxItems_;
  std::shared_ptr<XmlDocument> document_;
  XmlDocument::Node open_ = XmlDocument::noNode;
  XmlPosition position_;     // of the last element
  std::string pendingText_;  // character data since the last tag
  std::array<RecentText, recentTextCount> recentTexts_;
};
