// XmlDocumentCache: finds the document of a file that somebody still holds.
//
// An import reads one file up to three times. The cache only knows the documents, it keeps none alive:
// the last one who lets go of a document ends it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "foundation/xml/XmlDocument.h"
#include "foundation/xml/XmlFileInput.h"

class KYR_EXPORT XmlDocumentCache {
 public:
  /// The cache of the process.
  static XmlDocumentCache& get() noexcept;
  /// A file may be known as it was written and as a host has rewritten it (XmlRewriting).
  enum class Form { asWritten, rewritten };

  /// The living document of that very file in that form, read with that forced encoding; null when
  /// there is none.
  std::shared_ptr<const XmlDocument> find(const XmlFileIdentity& identity, const std::string& forcedEncoding,
                                          Form form = Form::asWritten);
  /// To be called with complete documents only.
  void add(const XmlFileIdentity& identity, const std::string& forcedEncoding,
           const std::shared_ptr<const XmlDocument>& document, Form form = Form::asWritten);
  /// Forgets the rewritten documents: they belong to a rewriting that has ended.
  void forgetRewritten() noexcept;

 private:
  struct Entry {
    XmlFileIdentity identity;
    std::string forcedEncoding;
    Form form;
    std::weak_ptr<const XmlDocument> document;
  };
  std::vector<Entry> entries_;
};
