// Saved models from anywhere.
#include "foundation/KYRException.h"
#include "fuzz/FuzzEntries.h"
#include "fuzz/SavedBytes.h"
#include "repository/compare/ModelComparison.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/support/MemoryFile.h"

namespace {

std::unique_ptr<KYRStoreModel> load(std::string_view input) {
  const MemoryFile file(input);
  try {
    return loadStoreModel(file.file());
  } catch (const KYRException& exception) {
    promise(exception.getMessage().view().starts_with("["), "a refusal bears its code");
    return nullptr;
  }
}

}  // namespace

void fuzzSavedModel(std::string_view input) {
  const std::unique_ptr<KYRStoreModel> model = load(input);
  if (model == nullptr) return;
  checkComesBack(savedBytesOf(*model));
  sqlBytesOf(*model);
  drawAll(*model);
  promise(ModelComparison(*model, *model).isEqual(), "a model is equal to itself");
}
