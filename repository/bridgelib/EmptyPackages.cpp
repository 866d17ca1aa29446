// The pruning of design packages without content. Packages are walked from the outermost inwards; from
// each empty one the walk climbs as long as its end leaves the package above it empty too. What lies
// above has been passed already, so nothing that is still to come is deleted. It runs also when an
// import has failed, perhaps for want of memory, and needs none.
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRStoreModel.h"

namespace {

// The package itself when the object is one without content; else null.
KYRDesignPackage* asEmptyPackage(KYRObject* object) {
  auto* const package = dynamic_cast<KYRDesignPackage*>(object);
  return package != nullptr && package->elements.isEmpty() && package->diagrams.isEmpty() ? package : nullptr;
}

bool isDesignPackage(const KYRObject& object) {
  return object.getElementType() == KYRElementType::designPackage;
}

}  // namespace

void deleteEmptyDesignPackages(KYRStoreModel* model) {
  if (model == nullptr) return;
  KYRObject* object = KYRLinks::nextInChain(*KYRLinks::chain(*model, isDesignPackage));
  while (object != nullptr) {
    KYRObject* const next = KYRLinks::nextInChain(*object);
    while (KYRDesignPackage* package = asEmptyPackage(object)) {
      object = package->getParent();
      delete package;
    }
    object = next;
  }
}
