#include "tests/foundation/XmlTestSupport.h"

#include "foundation/KYRException.h"
#include "foundation/xml/XmlDocumentReader.h"

namespace {

std::string placeOf(std::uint64_t line, std::uint64_t column) {
  return " @" + std::to_string(line) + ":" + std::to_string(column);
}

}  // namespace

void EventRecorder::startElement(std::string_view tag, const Attribute* attributes,
                                 std::size_t attributeCount, const XmlPosition& position) {
  finishText();
  lines_ += '+';
  lines_ += tag;
  for (std::size_t i = 0; i < attributeCount; ++i) {
    lines_ += ' ';
    lines_ += attributes[i].name;
    lines_ += '=';
    lines_ += attributes[i].value;
  }
  lines_ += placeOf(position.line, position.column) + "\n";
}

void EventRecorder::endElement() {
  finishText();
  lines_ += "-\n";
}

void EventRecorder::characters(std::string_view text) { text_ += text; }

void EventRecorder::processingInstruction(std::string_view target, std::string_view data) {
  finishText();
  lines_ += '?';
  lines_ += target;
  lines_ += ' ';
  lines_ += data;
  lines_ += '\n';
}

std::string EventRecorder::getText() {
  finishText();
  return lines_;
}

void EventRecorder::finishText() {
  if (!text_.empty()) lines_ += "'" + text_ + "'\n";
  text_.clear();
}

std::string readEvents(std::string_view xml, std::size_t pieceSize, std::size_t blockSize) {
  XmlMemoryInput input(memoryName, xml, pieceSize);
  EventRecorder recorder;
  XmlTokenizer(input, recorder, blockSize).run();
  return recorder.getText();
}

std::shared_ptr<const XmlDocument> readDocument(std::string_view xml) {
  XmlMemoryInput input(memoryName, xml);
  return readXmlInput(input, nullptr);
}

std::string dumpDocument(const XmlDocument& document) {
  std::string text;
  std::vector<XmlDocument::Node> ends;
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    while (!ends.empty() && ends.back() <= node) ends.pop_back();
    text.append(2 * ends.size(), ' ');
    if (!document.isElement(node)) {
      text += "'" + std::string(document.getText(node).view()) + "'\n";
      continue;
    }
    text += document.getTag(node).view();
    for (std::uint32_t i = 0; i < document.getAttributeCount(node); ++i) {
      text += ' ';
      text += document.getNameText(document.getAttributeName(node, i)).view();
      text += '=';
      text += document.getAttributeValue(node, i).view();
    }
    text += placeOf(document.getLine(node), document.getColumn(node)) + "\n";
    ends.push_back(document.getEnd(node));
  }
  return text;
}

std::string messageOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const KYRException& exception) {
    return std::string(exception.getMessage().view());
  }
  return "nothing raised";
}

std::string errorOf(std::string_view xml, std::size_t pieceSize, std::size_t blockSize) {
  return messageOf([&] { readEvents(xml, pieceSize, blockSize); });
}
