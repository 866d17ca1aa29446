// The tree keeps the document; its elements by node are all that the extensions need.
#include "extension/DocumentReading.h"

#include "foundation/xml/XmlTree.h"

void DocumentReading::parse(KYRDOM& dom, const KYRFile& file) { root_.reset(dom.parseFile(file)); }

void DocumentReading::parseAsWritten(KYRDOM& dom, const KYRFile& file) {
  root_.reset(dom.parseFileAsWritten(file));
}

const XmlDocument& DocumentReading::document() const noexcept { return XmlTree::of(*root_).getDocument(); }
