// Puts input, tokenizer, builder and cache together.
#include "foundation/xml/XmlDocumentReader.h"

#include "foundation/xml/XmlDocumentBuilder.h"
#include "foundation/xml/XmlDocumentCache.h"
#include "foundation/xml/XmlFileInput.h"
#include "foundation/xml/XmlRewriting.h"

std::shared_ptr<const XmlDocument> readXmlInput(XmlInput& input, XmlDocumentListener* listener,
                                                std::size_t blockSize) {
  XmlDocumentBuilder builder(input, listener);
  XmlTokenizer(input, builder, blockSize).run();
  return builder.getDocument();
}

namespace {

using Form = XmlDocumentCache::Form;

std::shared_ptr<const XmlDocument> readAsWritten(XmlFileInput& input, XmlDocumentListener* listener,
                                                 bool needsInstructions) {
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

std::shared_ptr<const XmlDocument> readRewritten(XmlFileInput& input, XmlDocumentListener* listener,
                                                 XmlRewriter& rewriter) {
  const XmlFileIdentity identity = input.getIdentity();
  XmlDocumentCache& cache = XmlDocumentCache::get();
  std::shared_ptr<const XmlDocument> document = cache.find(identity, getForcedXmlEncoding(), Form::rewritten);
  if (!document) {
    document = rewriter.rewrite(readAsWritten(input, nullptr, false));
    if (input.getIdentity() == identity) {
      cache.add(identity, getForcedXmlEncoding(), document, Form::rewritten);
    }
  }
  if (listener != nullptr) replayDocument(document, *listener);
  return document;
}

}  // namespace

std::shared_ptr<const XmlDocument> readXmlFile(const KYRFile& file, XmlDocumentListener* listener,
                                               bool needsInstructions, XmlReading reading) {
  XmlFileInput input(file);
  XmlRewriter* const rewriter = reading == XmlReading::asInput ? XmlRewriting::find(file) : nullptr;
  if (rewriter == nullptr) return readAsWritten(input, listener, needsInstructions);
  if (!rewriter->watchesOnly()) return readRewritten(input, listener, *rewriter);
  std::shared_ptr<const XmlDocument> document = readAsWritten(input, listener, needsInstructions);
  rewriter->rewrite(document);
  return document;
}
