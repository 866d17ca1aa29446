// KYRDesignPackage: a package of the design: packages, classes, relations and diagrams.
#pragma once

#include "repository/model/KYRPackage.h"

class KYR_EXPORT KYRDesignPackage : public KYRPackage {
 public:
  /// True for a package that the source has; false marks one that a destination may leave out.
  bool isModelPackage = false;
  KYRCollection<KYRDiagram> diagrams;  // owned

  KYRDesignPackage() = default;
  ~KYRDesignPackage() override;
  int getElementType() const override { return KYRElementType::designPackage; }
  /// Adds the diagram, its name made unique among the diagrams of the package in the manner of
  /// `addNamespaceElementUniqueName`.
  bool addDiagramUniqueName(KYRDiagram* diagram, char separator);
  /// Adds the diagram as it is named, taken or not. False when the package already has it.
  bool addDiagram(KYRDiagram* diagram);

 protected:
  void listOwned(KYROwnedLists& lists) const override;
};
