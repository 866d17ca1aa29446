// DocumentElement: an element of a document that has been read, as a value to walk with.
//
// It costs a pointer and a number, so a walk over a whole file makes nothing. It borrows the
// document.
#pragma once

#include "foundation/KYRDOM.h"
#include "foundation/xml/XmlDocument.h"

class DocumentElement {
 public:
  using Node = XmlDocument::Node;

  DocumentElement() = default;
  DocumentElement(const XmlDocument& document, Node node) noexcept : document_(&document), node_(node) {}

  explicit operator bool() const noexcept { return document_ != nullptr && node_ != XmlDocument::noNode; }
  Node node() const noexcept { return node_; }
  const KYRString& tag() const noexcept { return document_->getTag(node_); }
  /// The value of the attribute of exactly that name; empty when absent.
  const KYRString& attribute(XmlDocument::Name name) const noexcept {
    const KYRString* const value = document_->findAttribute(node_, name);
    return value == nullptr ? KYRString::getEmptyString() : *value;
  }
  const KYRString& attribute(const char* name) const { return attribute(document_->findName(name)); }
  DocumentElement parent() const noexcept { return {*document_, document_->getParent(node_)}; }
  DocumentElement firstChild() const noexcept { return {*document_, document_->getFirstChild(node_)}; }
  DocumentElement nextSibling() const noexcept { return {*document_, document_->getNextSibling(node_)}; }
  /// The first child of exactly that tag, or none.
  DocumentElement firstChild(const char* tag) const {
    const XmlDocument::Name name = document_->findName(tag);
    if (name == XmlDocument::textName) return {};
    for (DocumentElement child = firstChild(); child; child = child.nextSibling()) {
      if (document_->getName(child.node_) == name) return child;
    }
    return {};
  }

 private:
  const XmlDocument* document_ = nullptr;
  Node node_ = XmlDocument::noNode;
};
