// Puts input, tokenizer, builder and cache together.
#include "foundation/xml/XmlDocumentReader.h"

#include "foundation/xml/XmlDocumentBuilder.h"
#include "foundation/xml/XmlDocumentCache.h"
#include "foundation/xml/XmlFileInput.h"

std::shared_ptr<const XmlDocument> readXmlInput(XmlInput& input, XmlDocumentListener* listener,
                                                std::size_t blockSize) {
  XmlDocumentBuilder builder(input, listener);
  XmlTokenizer(input, builder, blockSize).run();
  return builder.getDocument();
}

std::shared_ptr<const XmlDocument> readXmlFile(const KYRFile& file, XmlDocumentListener* listener,
                                               bool needsInstructions) {
  XmlFileInput input(file);
  const XmlFileIdentity identity = input.getIdentity();
  XmlDocumentCache& cache = XmlDocumentCache::get();
  std::shared_ptr<const XmlDocument> document = cache.find(identity, getForcedXmlEncoding());
  if (document && !needsInstructions) {
    if (listener != nullptr) replayDocument(document, *listener);
    return document;
  }
  document = readXmlInput(input, listener);
  // A file that was written to meanwhile may have given a mixture of old and new.
  if (input.getIdentity() == identity) cache.add(identity, getForcedXmlEncoding(), document);
  return document;
}
