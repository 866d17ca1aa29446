// KYRModelElement: a class or a relation: what a design package holds and a class diagram shows.
#pragma once

#include "repository/model/KYRNamespaceElement.h"

class KYR_EXPORT KYRModelElement : public KYRNamespaceElement {
 public:
  /// The diagrams that list the element; referred to.
  KYRCollection<KYRDiagram> diagrams;
  ~KYRModelElement() override;
  /// The design package that holds the element; null when none does.
  KYRDesignPackage* getDesignPackage() const;

 protected:
  KYRModelElement() = default;
  void unlink() override;
};
