// The one door through which both XML readers get at documents.
#pragma once

#include <memory>

#include "foundation/KYRFile.h"
#include "foundation/xml/XmlDocumentListener.h"
#include "foundation/xml/XmlInput.h"
#include "foundation/xml/XmlTokenizer.h"

/// How the document of a file is wanted: as the input of an import, which a host may have a step installed
/// for (XmlRewriting), or as the file was written.
enum class XmlReading { asInput, asWritten };

/// The document of a file. When that of the same unchanged file still lives, the file is not read: the
/// listener, which may be null, then follows a walk of that document. `needsInstructions` tells that
/// processing instructions matter to the listener; the file is read in any case then.
/// A file that is rewritten is parsed whole before the listener is told of anything, and its processing
/// instructions are in no rewritten document.
KYR_EXPORT std::shared_ptr<const XmlDocument> readXmlFile(const KYRFile& file, XmlDocumentListener* listener,
                                                          bool needsInstructions,
                                                          XmlReading reading = XmlReading::asInput);
/// The document of any other input; the cache plays no part.
KYR_EXPORT std::shared_ptr<const XmlDocument> readXmlInput(
    XmlInput& input, XmlDocumentListener* listener, std::size_t blockSize = XmlTokenizer::defaultBlockSize);
/// The same with the same events, on the caller's thread, while another thread reads ahead. Processing
/// instructions are not told of.
KYR_EXPORT std::shared_ptr<const XmlDocument> readXmlInputAhead(XmlInput& input,
                                                                XmlDocumentListener& listener);
