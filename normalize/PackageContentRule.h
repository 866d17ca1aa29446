// PackageContentRule: what belongs to a package, under other tags or in other places than the conversion
// looks.
//
// A package gives what stands under "packagedElement", and "ownedMember" only when there is nothing of that.
// A model inside the model is a package. An association that a class holds is nobody's.
#pragma once

#include "normalize/DocumentRule.h"

class PackageContentRule final : public DocumentRule {
 public:
  void apply(NormalizedDocument& document) override;

 private:
  static void turnModelsIntoPackages(NormalizedDocument& document);
  static void renameContent(NormalizedDocument& document);
  static void moveAssociations(NormalizedDocument& document);
};
