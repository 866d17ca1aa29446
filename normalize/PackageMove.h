// PackageMove: elements that a class holds and that belong into the package around it.
#pragma once

#include <utility>
#include <vector>

#include "normalize/NormalizedDocument.h"

class PackageMove {
 public:
  using Node = NormalizedDocument::Node;

  PackageMove(NormalizedDocument& document, NormalizeRule rule) : document_(document), rule_(rule) {}
  static bool isPackage(NormalizedDocument& document, Node node);
  /// Whether the element stands directly inside a classifier, and is no stand-in for one of another file.
  bool isInClassifier(Node node) const;
  /// Notes that an element is to be moved. Nothing moves while the document is being looked through.
  void plan(Node node);
  /// Moves them to the ends of the nearest packages around them, in their order.
  void perform();
  /// Where a package has contents under "packagedElement", what stands beside them under "ownedMember" would
  /// not be looked at: it gets the same tag.
  static void renameMembers(NormalizedDocument& document, Node package, NormalizeRule rule);

 private:
  NormalizedDocument& document_;
  NormalizeRule rule_;
  std::vector<std::pair<Node, Node>> moves_;  // element and package
};
