// XmlRewriting: lets a host change the input of an import before any reader sees it.
//
// Tools write files that say the same in ways a reader does not expect. A host that wants to bring such a
// file into the usual form installs a rewriter for it: the file is parsed whole, the rewriter hands on
// another document, and the stream and every tree reading of that file are of this one. Nothing of it
// costs anything while none is installed.
#pragma once

#include <memory>

#include "foundation/Export.h"
#include "foundation/KYRFile.h"
#include "foundation/xml/XmlDocument.h"

class KYR_EXPORT XmlRewriter {
 public:
  XmlRewriter() = default;
  XmlRewriter(const XmlRewriter&) = delete;
  XmlRewriter& operator=(const XmlRewriter&) = delete;
  virtual ~XmlRewriter();
  /// The document to be read instead of `document`, which is complete; `document` itself when nothing is to
  /// be changed. Called once for a file as long as its result lives. An exception ends the reading.
  virtual std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) = 0;
  /// True for one that only wants to see the document: the file is then streamed as if none were
  /// installed, `rewrite` comes behind each reading, and its result plays no part.
  virtual bool watchesOnly() const noexcept;
};

/// Installs a rewriter for one file for as long as the object lives. The last one installed serves.
class KYR_EXPORT XmlRewriting {
 public:
  /// `rewriter` is borrowed.
  XmlRewriting(const KYRFile& input, XmlRewriter& rewriter);
  XmlRewriting(const XmlRewriting&) = delete;
  XmlRewriting& operator=(const XmlRewriting&) = delete;
  ~XmlRewriting();
  /// The rewriter for a file, by whatever path it is named; null when there is none.
  static XmlRewriter* find(const KYRFile& file);

 private:
  KYRFile input_;
  XmlRewriter& rewriter_;
  XmlRewriting* outer_;  // what was installed before
};
