// KYRDOM, KYRDOMElement: the XML file as a tree.
#pragma once

#include <memory>

#include "foundation/KYRFile.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRString.h"

class XmlTree;
struct XmlChildren;
class KYRDOMElement;

class KYR_EXPORT KYRDOM {
 public:
  explicit KYRDOM(KYRLog* log);
  KYRDOM(const KYRDOM&) = delete;
  KYRDOM& operator=(const KYRDOM&) = delete;
  virtual ~KYRDOM();
  /// The root element, owned by the caller; null for a document without one.
  /// When a document of the same unchanged file (device, inode, size and time of change) still
  /// lives, the tree stands on that one and nothing is read. Of a file that a host has installed a rewriter
  /// for (foundation/xml/XmlRewriting.h) it is the rewritten document. Raises as KYRSAX2Parser::parseFile.
  virtual KYRDOMElement* parseFile(const KYRFile& file);
  /// The same for a file that is not read as the input of an import, such as a module that the input
  /// refers to: what a host has installed to rewrite the input (XmlRewriting) does not touch it, be it
  /// the very same file.
  KYRDOMElement* parseFileAsWritten(const KYRFile& file);
};

/// An element of a tree. Deleting the root frees the tree and lets go of its share of the document;
/// elements below the root belong to it and are never deleted by themselves.
class KYR_EXPORT KYRDOMElement {
 public:
  KYRDOMElement(const KYRDOMElement&) = delete;
  KYRDOMElement& operator=(const KYRDOMElement&) = delete;
  virtual ~KYRDOMElement();

  /// The tag as written, prefix included.
  const KYRString& getTagName() const noexcept;
  /// The character data directly inside the element, concatenated and untrimmed.
  const KYRString& getValue() const;
  /// The value of the attribute of exactly that name; empty when absent.
  const KYRString& getAttribute(const KYRString& name) const noexcept;
  /// Whether the attribute is there, be it empty.
  bool hasAttribute(const KYRString& name) const noexcept;
  /// The parent element; null at the root.
  KYRDOMElement* getParent() const;
  /// Number of child elements.
  int getElementCount() const;
  /// The child element at a position from 0; null out of range. In a loop over n children the
  /// calls cost O(n) in all.
  KYRDOMElement* getElement(int index) const;
  /// Number of child elements of exactly that tag.
  int getElementCount(const KYRString& tag) const;
  /// The child element at a position among those of that tag; null out of range.
  KYRDOMElement* getElement(const KYRString& tag, int index) const;
  /// The first child of that tag, or null.
  KYRDOMElement* getFirstElement(const KYRString& tag) const;
  /// "line L, column C" of the element's "<", both from 1.
  KYRString getPosition() const;

 private:
  friend class XmlTree;
  KYRDOMElement(XmlTree* tree, unsigned int node) noexcept;
  const XmlChildren* getChildren() const;
  const XmlChildren* getChildrenByName() const;

  XmlTree* tree_;
  unsigned int node_;
  mutable bool isValueKnown_ = false;
  mutable std::unique_ptr<XmlChildren> children_;  // null until asked for; never made of few nodes
  mutable KYRString value_;
};
