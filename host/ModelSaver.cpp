// Saving by libkyr, counting by the host.
#include "host/ModelSaver.h"

#include "foundation/MemoryAtEnd.h"

namespace {

class OutputSink final : public BlockSink {
 public:
  explicit OutputSink(Output& output) : output_(output) {}
  void write(std::string_view block) override { output_.write(block); }

 private:
  Output& output_;
};

}  // namespace

ModelSaver::ModelSaver(StoreModelFormat format, bool isAppending)
    : format_(format), isAppending_(isAppending) {
  install(this);
}

ModelSaver::ModelSaver(StoreModelFormat format, Output& output) : format_(format), output_(&output) {
  install(this);
}

ModelSaver::~ModelSaver() { install(nullptr); }

void ModelSaver::save(const KYRFile& file, const KYRStoreModel& model) {
  if (output_ != nullptr) {
    OutputSink sink(*output_);
    writeStoreModelText(model, format_, sink);
  } else if (isAppending_) {
    appendStoreModelFile(file, model);
  } else {
    saveStoreModelFile(file, model, format_);
  }
  if (isCounting_) counts_ = SavedModelCounts::of(model);
  MemoryAtEnd::leaveToSystem(true);  // nothing is made of the model any more
}
