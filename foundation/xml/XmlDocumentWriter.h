// The text of a document: XML 1.0 in UTF-8.
#pragma once

#include <functional>
#include <string_view>

#include "foundation/Export.h"
#include "foundation/xml/XmlDocument.h"

/// Hands the text of the document to `write`, in pieces of some size. Elements, attributes and character data
/// are those of the document; comments, processing instructions and the document type are in no document.
KYR_EXPORT void writeXmlDocument(const XmlDocument& document,
                                 const std::function<void(std::string_view)>& write);
