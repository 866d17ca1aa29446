// XmlDocumentListener: follows a document as a series of events, either while it is being filled or
// when it is walked once more.
#pragma once

#include <memory>

#include "foundation/xml/XmlDocument.h"

class KYR_EXPORT XmlDocumentListener {
 public:
  XmlDocumentListener() = default;
  XmlDocumentListener(const XmlDocumentListener&) = delete;
  XmlDocumentListener& operator=(const XmlDocumentListener&) = delete;
  virtual ~XmlDocumentListener();
  /// Comes first. What the document holds so far stays valid while it grows.
  virtual void startDocument(const std::shared_ptr<const XmlDocument>& document) = 0;
  /// Tells of most elements some events before they start, so that a listener can ask memory for what it will
  /// need. Its reading may fail before that, or be ended by the listener.
  virtual void expect(XmlDocument::Node /*element*/) {}
  /// Name, attributes, parent and position of the node are known; its end is not.
  virtual void startElement(XmlDocument::Node node) = 0;
  virtual void endElement(XmlDocument::Node node) = 0;
  /// A node of character data, whole.
  virtual void characters(XmlDocument::Node node) = 0;
  /// Processing instructions are in no document: a walk does not meet them.
  virtual void processingInstruction(const KYRString& target, const KYRString& data) = 0;
};

/// Walks a finished document from its start to its end.
KYR_EXPORT void replayDocument(const std::shared_ptr<const XmlDocument>& document,
                               XmlDocumentListener& listener);
