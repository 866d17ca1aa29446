// Saving by libkyr, counting by the host.
#include "host/ModelSaver.h"

#include "foundation/MemoryAtEnd.h"

ModelSaver::ModelSaver(StoreModelFormat format, bool isAppending)
    : format_(format), isAppending_(isAppending) {
  install(this);
}

ModelSaver::~ModelSaver() { install(nullptr); }

void ModelSaver::save(const KYRFile& file, const KYRStoreModel& model) {
  if (isAppending_) {
    appendStoreModelFile(file, model);
  } else {
    saveStoreModelFile(file, model, format_);
  }
  counts_ = SavedModelCounts::of(model);
  MemoryAtEnd::leaveToSystem(true);  // nothing is made of the model any more
}
