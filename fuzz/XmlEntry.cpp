// The XML core by itself.
#include <memory>
#include <string>

#include "foundation/KYRException.h"
#include "foundation/xml/XmlDocumentBuilder.h"
#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlDocumentWriter.h"
#include "foundation/xml/XmlEncoding.h"
#include "foundation/xml/XmlExpatTokenizer.h"
#include "foundation/xml/XmlInput.h"
#include "foundation/xml/XmlLimits.h"
#include "foundation/xml/XmlTokenizer.h"
#include "fuzz/FuzzEntries.h"

namespace {

// Forced one at a time, chosen by the length of the input; null: what the file says.
constexpr const char* encodings[] = {nullptr,    "UTF-8",     "windows-1252", "UTF-16LE",
                                     "UTF-16BE", "Shift_JIS", "ISO-2022-JP",  "EUC-JP",
                                     "GB18030",  "Big5",      "EUC-KR",       "IBM037"};

class ForcedEncoding {
 public:
  explicit ForcedEncoding(const char* name) { forceXmlEncoding(name); }
  ForcedEncoding(const ForcedEncoding&) = delete;
  ForcedEncoding& operator=(const ForcedEncoding&) = delete;
  ~ForcedEncoding() { forceXmlEncoding(nullptr); }
};

struct Result {
  std::shared_ptr<const XmlDocument> document;  // null when refused
  std::string message;
};

Result read(std::string_view input, std::size_t pieceSize, std::size_t blockSize) {
  XmlMemoryInput source("memory.xmi", input, pieceSize);
  try {
    return {readXmlInput(source, nullptr, blockSize), {}};
  } catch (const KYRException& exception) {
    return {nullptr, exception.getMessage().getCharacters()};
  }
}

// What expat makes of the input, without the quicker reader in front of it.
Result readStrictly(std::string_view input) {
  XmlMemoryInput source("memory.xmi", input);
  XmlDocumentBuilder builder(source, nullptr);
  try {
    XmlExpatTokenizer(source, builder, XmlTokenizer::defaultBlockSize).run();
    return {builder.getDocument(), {}};
  } catch (const KYRException& exception) {
    return {nullptr, exception.getMessage().getCharacters()};
  }
}

std::string describe(const XmlDocument& document, bool withPositions) {
  std::string text;
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    text += '\n';
    if (!document.isElement(node)) {
      text += document.getText(node).view();
      continue;
    }
    text += document.getTag(node).view();
    text += '>' + std::to_string(document.getEnd(node));
    if (withPositions)
      text += '@' + std::to_string(document.getLine(node)) + ':' + std::to_string(document.getColumn(node));
    for (std::uint32_t index = 0; index < document.getAttributeCount(node); ++index) {
      text += '\0';
      text += document.getNameText(document.getAttributeName(node, index)).view();
      text += '\0';
      text += document.getAttributeValue(node, index).view();
    }
  }
  return text;
}

bool isNotWellFormed(const Result& result) { return result.message.starts_with("[KYRSTD_F0007]"); }

void checkComesBack(const XmlDocument& document) {
  if (document.isEmpty()) return;
  std::string written;
  writeXmlDocument(document, [&](std::string_view piece) { written += piece; });
  const Result again = read(written, written.size() + 1, XmlTokenizer::defaultBlockSize);
  promise(again.document != nullptr, "what is written out can be read");
  promise(describe(*again.document, false) == describe(document, false), "a document comes back");
}

}  // namespace

void fuzzXml(std::string_view input) {
  const Result whole = read(input, input.size() + 1, XmlTokenizer::defaultBlockSize);
  const Result inPieces = read(input, 1 + input.size() % 7, 1 + input.size() % 64);
  const Result strict = readStrictly(input);
  promise((whole.document == nullptr) == (strict.document == nullptr), "both readers accept the same");
  promise(whole.message == strict.message, "both readers tell the same errors");
  if (whole.document) {
    promise(describe(*whole.document, true) == describe(*strict.document, true),
            "both readers make the same document");
  }
  promise((whole.document == nullptr) == (inPieces.document == nullptr),
          "blocks do not decide what is valid");
  // Behind the root element the reason that expat gives depends on where a block ends.
  promise(whole.message == inPieces.message || (isNotWellFormed(whole) && isNotWellFormed(inPieces)),
          "blocks do not change messages");
  if (whole.document) {
    promise(describe(*whole.document, true) == describe(*inPieces.document, true),
            "blocks do not change documents");
    checkComesBack(*whole.document);
  }
  const ForcedEncoding forced(encodings[input.size() % std::size(encodings)]);
  read(input, 1 + input.size() % 5, 64);
}
