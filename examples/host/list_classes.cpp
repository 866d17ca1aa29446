// A host in sixty lines: imports a UML model, lists its classes with their attributes, and counts what the
// file held that the model does not.
//
//   list_classes MODEL.xmi MODEL.json
#include <dlfcn.h>

#include <iostream>

#include "foundation/KYRException.h"
#include "foundation/KYRImportTrace.h"
#include "foundation/KYRLog.h"
#include "foundation/KYROption.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRObjectCollector.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRType.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"
#include "repository/storage/StoreModelFile.h"

namespace {

class ErrorLog : public KYRLog {
  void log(const KYRLogEvent& event) override {
    if (event.getLevel() <= KYRLogLevel::warning) std::cerr << event.getText().view() << '\n';
  }
};

class LostElements : public KYRImportTrace {
  void record(const KYRTraceRecord&) override {}
  void finish(const KYRTraceTotals& totals) override { std::cout << "lost: " << totals.lost << '\n'; }
};

void listClasses(KYRStoreModel& model) {
  KYRObjectCollector classes(KYRElementType::class_);
  model.depthTraversal(classes);
  for (KYRObject* object : classes) {
    std::cout << object->getPath(true).view() << '\n';
    const auto* const found = dynamic_cast<const KYRClass*>(object);
    for (int i = 0; i < found->getAttributeCount(); ++i) {
      const KYRAttribute* const attribute = found->getAttribute(i);
      std::cout << "  " << attribute->getName().view() << ": " << attribute->type->getName().view() << '\n';
    }
  }
}

}  // namespace

int main(int count, char** arguments) try {
  if (count != 3) return 2;
  void* const plugin = dlopen(PLUGIN, RTLD_NOW | RTLD_LOCAL);
  void* const entry = plugin == nullptr ? nullptr : dlsym(plugin, "getKYROmgUml2XmiImportInterface");
  if (entry == nullptr) return 1;
  auto* const bridge = static_cast<KYRImportBridgeDllInterface*>(reinterpret_cast<void* (*)()>(entry)());
  KYROptionList options;
  bridge->getOptionList(options);
  options.get("BP_FILE")->setValue(KYRString(arguments[1]));
  KYRFile output{KYRString(arguments[2])};
  ErrorLog log;
  LostElements trace;
  KYRImportTrace::setCurrent(&trace);
  bridge->run("example", output, options, log);
  KYRImportTrace::setCurrent(nullptr);
  listClasses(*loadStoreModel(output));
  return 0;
} catch (const KYRException& exception) {
  std::cerr << exception.getMessage().view() << '\n';
  return 1;
}
