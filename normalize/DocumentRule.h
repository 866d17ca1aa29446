// DocumentRule: one way in which files differ from what the reader expects, and its cure.
#pragma once

#include "normalize/NormalizedDocument.h"

class DocumentRule {
 public:
  using Node = NormalizedDocument::Node;
  using Name = NormalizedDocument::Name;
  using Reading = NormalizedDocument::Reading;
  using Role = NormalizedDocument::Role;
  static constexpr Node noNode = NormalizedDocument::noNode;

  DocumentRule() = default;
  DocumentRule(const DocumentRule&) = delete;
  DocumentRule& operator=(const DocumentRule&) = delete;
  virtual ~DocumentRule();
  /// Changes the document and tells its report of each change. The cost is linear in the document.
  virtual void apply(NormalizedDocument& document) = 0;
};
