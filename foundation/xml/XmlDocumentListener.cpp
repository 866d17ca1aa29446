// The walk needs no stack: the open elements are the parents of the node at hand.
#include "foundation/xml/XmlDocumentListener.h"

XmlDocumentListener::~XmlDocumentListener() = default;

void replayDocument(const std::shared_ptr<const XmlDocument>& document, XmlDocumentListener& listener) {
  using Node = XmlDocument::Node;
  constexpr Node ahead = 12;  // nodes: as many elements as of a document that is being read (XmlEventPipe)
  const XmlDocument& nodes = *document;
  listener.startDocument(document);
  Node open = XmlDocument::noNode;  // the innermost element that has not ended
  for (Node node = 0; node < nodes.getNodeCount(); ++node) {
    for (; open != nodes.getParent(node); open = nodes.getParent(open)) listener.endElement(open);
    if (const Node coming = node + ahead; coming < nodes.getNodeCount() && nodes.isElement(coming)) {
      listener.expect(coming);
    }
    if (nodes.isElement(node)) {
      listener.startElement(node);
      open = node;
    } else {
      listener.characters(node);
    }
  }
  for (; open != XmlDocument::noNode; open = nodes.getParent(open)) listener.endElement(open);
}
