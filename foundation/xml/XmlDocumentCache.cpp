// A plain list: an import holds a handful of documents at a time.
#include "foundation/xml/XmlDocumentCache.h"

#include <algorithm>

XmlDocumentCache& XmlDocumentCache::get() noexcept {
  static XmlDocumentCache cache;
  return cache;
}

std::shared_ptr<const XmlDocument> XmlDocumentCache::find(const XmlFileIdentity& identity,
                                                          const std::string& forcedEncoding, Form form) {
  for (const Entry& entry : entries_) {
    if (entry.form == form && entry.identity == identity && entry.forcedEncoding == forcedEncoding) {
      if (std::shared_ptr<const XmlDocument> document = entry.document.lock()) return document;
    }
  }
  return nullptr;
}

void XmlDocumentCache::add(const XmlFileIdentity& identity, const std::string& forcedEncoding,
                           const std::shared_ptr<const XmlDocument>& document, Form form) {
  std::erase_if(entries_, [](const Entry& entry) { return entry.document.expired(); });
  entries_.push_back({identity, forcedEncoding, form, document});
}

void XmlDocumentCache::forgetRewritten() noexcept {
  std::erase_if(entries_, [](const Entry& entry) { return entry.form == Form::rewritten; });
}
