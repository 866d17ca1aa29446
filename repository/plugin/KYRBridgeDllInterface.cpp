// What the plug-in base classes share: the saving of models.
#include "repository/plugin/KYRBridgeDllInterface.h"

#include "repository/storage/StoreModelFile.h"
#include "repository/storage/StoreModelSaver.h"

KYRBridgeDllInterface::~KYRBridgeDllInterface() = default;

void KYRBridgeDllInterface::saveStoreModel(KYRFile& outputFile, KYRStoreModel& model, KYRLog& /*log*/) {
  if (StoreModelSaver* const saver = StoreModelSaver::getInstalled()) {
    saver->save(outputFile, model);
  } else {
    saveStoreModelFile(outputFile, model);
  }
}
