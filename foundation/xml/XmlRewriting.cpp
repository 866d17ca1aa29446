// What is installed: one at a time, as imports run one at a time.
#include "foundation/xml/XmlRewriting.h"

#include <filesystem>

#include "foundation/xml/XmlDocumentCache.h"

namespace {

XmlRewriting* installed = nullptr;

bool isSameFile(const KYRFile& first, const KYRFile& second) {
  if (first.getPath() == second.getPath()) return true;
  std::error_code failure;
  return std::filesystem::equivalent(first.getPath().view(), second.getPath().view(), failure);
}

}  // namespace

XmlRewriter::~XmlRewriter() = default;

bool XmlRewriter::watchesOnly() const noexcept { return false; }

XmlRewriting::XmlRewriting(const KYRFile& input, XmlRewriter& rewriter)
    : input_(input), rewriter_(rewriter), outer_(installed) {
  XmlDocumentCache::get().forgetRewritten();
  installed = this;
}

XmlRewriting::~XmlRewriting() {
  XmlDocumentCache::get().forgetRewritten();
  installed = outer_;
}

XmlRewriter* XmlRewriting::find(const KYRFile& file) {
  if (installed == nullptr || !isSameFile(installed->input_, file)) return nullptr;
  return &installed->rewriter_;
}
