// XmlEventSink: what a tokenizer tells of an XML text.
#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/Export.h"
#include "foundation/xml/XmlPosition.h"

/// Receives the events. All texts are UTF-8, live for the call only, and those of names and attribute
/// values end in a zero.
class KYR_EXPORT XmlEventSink {
 public:
  struct Attribute {
    std::string_view name;
    std::string_view value;
  };

  XmlEventSink() = default;
  XmlEventSink(const XmlEventSink&) = delete;
  XmlEventSink& operator=(const XmlEventSink&) = delete;
  virtual ~XmlEventSink();
  /// `position` is that of the "<".
  virtual void startElement(std::string_view tag, const Attribute* attributes, std::size_t attributeCount,
                            const XmlPosition& position) = 0;
  virtual void endElement() = 0;
  /// Character data as it comes: one text may arrive in several pieces, cut anywhere.
  virtual void characters(std::string_view text) = 0;
  virtual void processingInstruction(std::string_view target, std::string_view data) = 0;
};
