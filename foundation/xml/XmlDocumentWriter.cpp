// A walk over the node array; what is open is the parents of the node at hand.
#include "foundation/xml/XmlDocumentWriter.h"

#include <string>

namespace {

constexpr std::size_t pieceSize = std::size_t{64} * 1024;

class Writer {
 public:
  Writer(const XmlDocument& document, const std::function<void(std::string_view)>& write)
      : document_(document), write_(write) {}

  void run() {
    using Node = XmlDocument::Node;
    text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    Node open = XmlDocument::noNode;
    for (Node node = 0; node < document_.getNodeCount(); ++node) {
      for (; open != document_.getParent(node); open = document_.getParent(open)) endElement(open);
      if (document_.isElement(node)) {
        startElement(node);
        if (document_.getEnd(node) != node + 1) open = node;
      } else {
        addEscaped(document_.getText(node).view(), false);
      }
      if (text_.size() >= pieceSize) flush();
    }
    for (; open != XmlDocument::noNode; open = document_.getParent(open)) endElement(open);
    text_ += '\n';
    flush();
  }

 private:
  void startElement(XmlDocument::Node node) {
    text_ += '<';
    text_ += document_.getTag(node).view();
    for (std::uint32_t index = 0; index < document_.getAttributeCount(node); ++index) {
      text_ += ' ';
      text_ += document_.getNameText(document_.getAttributeName(node, index)).view();
      text_ += "=\"";
      addEscaped(document_.getAttributeValue(node, index).view(), true);
      text_ += '"';
    }
    text_ += document_.getEnd(node) == node + 1 ? "/>" : ">";
  }

  void endElement(XmlDocument::Node node) {
    text_ += "</";
    text_ += document_.getTag(node).view();
    text_ += '>';
  }

  // White space of an attribute value other than the blank, and returns anywhere, would not come back.
  void addEscaped(std::string_view text, bool isAttribute) {
    for (const char character : text) {
      switch (character) {
        case '&':
          text_ += "&amp;";
          break;
        case '<':
          text_ += "&lt;";
          break;
        case '>':
          text_ += "&gt;";
          break;
        case '\r':
          text_ += "&#13;";
          break;
        case '"':
          text_ += isAttribute ? "&quot;" : "\"";
          break;
        case '\n':
          text_ += isAttribute ? "&#10;" : "\n";
          break;
        case '\t':
          text_ += isAttribute ? "&#9;" : "\t";
          break;
        default:
          text_ += character;
      }
    }
  }

  void flush() {
    write_(text_);
    text_.clear();
  }

  const XmlDocument& document_;
  const std::function<void(std::string_view)>& write_;
  std::string text_;
};

}  // namespace

void writeXmlDocument(const XmlDocument& document, const std::function<void(std::string_view)>& write) {
  Writer(document, write).run();
}
