// Whole imports. The dispatch rows are reset each time, so that an input does the same alone as behind
// others.
#include <string>

#include "bridge/KYROmgUml2XmiImportDllInterface.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRException.h"
#include "foundation/KYROption.h"
#include "foundation/xml/XmlRewriting.h"
#include "fuzz/FuzzEntries.h"
#include "fuzz/SavedBytes.h"
#include "normalize/Normalizer.h"
#include "tests/support/MemoryFile.h"
#include "xmi/DispatchRows.h"

namespace {

class SilentLog : public KYRLog {
 public:
  void log(const KYRLogEvent& event) override { promise(!event.getCode().isEmpty(), "a message has a code"); }
};

bool importFile(const MemoryFile& file) {
  DispatchRows::resetForTests();
  SilentLog log;
  KYROptionList options;
  getKYROmgUml2XmiImportInterface()->getOptionList(options);
  options.get("BP_FILE")->setValue(file.path().c_str());
  KYRStoreModel model;
  try {
    KYROmgUml2XmiImportBridge bridge(&log);
    bridge.importModel(model, options, "fuzz");
  } catch (const KYRException& exception) {
    promise(exception.getMessage().view().starts_with("["), "a refusal bears its code");
    return false;
  }
  checkComesBack(savedBytesOf(model));
  promise(!sqlBytesOf(model).empty(), "a model has statements");
  drawAll(model);
  return true;
}

void importNormalized(const MemoryFile& file, Normalizer::Extent extent) {
  Normalizer normalizer("fuzz.xmi", extent);
  const XmlRewriting rewriting(file.file(), normalizer);
  importFile(file);
}

}  // namespace

bool importWholly(std::string_view input) { return importFile(MemoryFile(input)); }

void fuzzImport(std::string_view input) { importWholly(input); }

void fuzzNormalizedImport(std::string_view input) {
  const MemoryFile file(input);
  importNormalized(file, Normalizer::Extent::usual);
  importNormalized(file, Normalizer::Extent::all);
}
