// The release step: the end of every import. Repository objects are looked at only before `objects` is
// emptied or when they are destroyed here; UML objects, which are gone already, are not looked at.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRPhaseTimes.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAttribute.h"

namespace {

template <class Table>
void deleteRecords(const Table& table) noexcept {
  for (unsigned int slot = 0; slot < table.getSlotCount(); ++slot) delete table.at(slot);
}

}  // namespace

void KYROmgUml2XmiImportBridge::release() noexcept {
  const KYRPhaseTimer timer(KYRPhase::release);
  // An attribute never holds another, so none of these is deleted with one before it.
  KYRRBTree::Iterator dropped(droppedAttributes, true);
  while (const void* attribute = dropped.get()) {
    dropped.next();
    deleteDroppedAttribute(static_cast<KYRAttribute*>(const_cast<void*>(attribute)));
  }
  droppedAttributes.empty();
  deleteRecords(mdObjects);
  deleteRecords(owners);
  objects.empty();
  mdObjects.empty();
  owners.empty();
  dataPackages.clear();
  diagrams.clear();
  typedFeatures.clear();
  pendingAssociations.clear();
  pendingGeneralizations.clear();
  pendingRealizations.clear();
  pendingDependencies.clear();
  destroyUnplaced();
  recordsByElement_.clear();
  schemasByName_.clear();
  baseTypes_.clear();
  enumerationPasses_.clear();
  rolesByFarName_.clear();
  while (!associationClasses.empty()) associationClasses.pop_back();
  domModel = nullptr;
  domRoot.reset();
  dom.reset();
  umlModel = nullptr;
  if (storeModel != nullptr) deleteEmptyDesignPackages(storeModel);
}

void KYROmgUml2XmiImportBridge::deleteDroppedAttribute(KYRAttribute* attribute) {
  attribute->umlElement = nullptr;
  attribute->recursiveDelete();  // its shapes on diagrams go with it
}

// Nothing may point at these when the model is saved: an unlinked role, for one, stays without a class.
void KYROmgUml2XmiImportBridge::destroyUnplaced() noexcept {
  for (unsigned int slot = 0; slot < unplacedObjects.getSlotCount(); ++slot) {
    auto* const object = static_cast<KYRObject*>(const_cast<void*>(unplacedObjects.getAt(slot)));
    if (object != nullptr && object->getParent() == nullptr) object->recursiveDelete();
  }
  unplacedObjects.empty();
}
