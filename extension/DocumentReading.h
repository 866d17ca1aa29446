// DocumentReading: the second reading of a file, as a tree that lives as long as this object.
#pragma once

#include <memory>

#include "extension/DocumentElement.h"
#include "foundation/KYRDOM.h"
#include "foundation/KYRFile.h"

class DocumentReading {
 public:
  /// Reads the file, or shares the document when it was read before and has not changed. Raises as
  /// KYRDOM::parseFile.
  void parse(KYRDOM& dom, const KYRFile& file);
  /// The same for another file than the input, which no host rewrites (KYRDOM::parseFileAsWritten).
  void parseAsWritten(KYRDOM& dom, const KYRFile& file);
  /// False when the file held no root element, or nothing was parsed.
  explicit operator bool() const noexcept { return root_ != nullptr; }
  const XmlDocument& document() const noexcept;
  DocumentElement element(XmlDocument::Node node) const noexcept { return {document(), node}; }

 private:
  std::unique_ptr<KYRDOMElement> root_;
};
