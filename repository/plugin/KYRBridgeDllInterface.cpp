// What the plug-in base classes share: the saving of models.
#include "repository/plugin/KYRBridgeDllInterface.h"

#include "repository/storage/StoreModelFile.h"

KYRBridgeDllInterface::~KYRBridgeDllInterface() = default;

void KYRBridgeDllInterface::saveStoreModel(KYRFile& outputFile, KYRStoreModel& model, KYRLog& /*log*/) {
  saveStoreModelFile(outputFile, model);
}
