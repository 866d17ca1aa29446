// A plug-in that imports nothing and says so, for the tests of hosts. With KYR_REFUSING_OPTIONS in the
// environment it has the option of a file, else none at all.
#include <cstdlib>

#include "foundation/KYROption.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"

namespace {

class RefusingPlugin final : public KYRImportBridgeDllInterface {
 public:
  const KYRString& getBuildVersion() override { return KYRString::getEmptyString(); }
  void getSpecification(const KYRString&, KYRBridgeSpecification&) override {}
  void getOptionList(KYROptionList& options) override {
    if (std::getenv("KYR_REFUSING_OPTIONS") == nullptr) return;
    options.add(new KYROption("BP_FILE", "File", OptionType::file, KYRString(), KYRString(), true));
  }
  void getDataStoreList(KYRDataStoreList&) override {}
  KYRString getMappingSpecificationXmlFile() override { return {}; }
  bool run(const KYRString&, KYRFile&, KYROptionList&, KYRLog&) override { return false; }
  KYRDirectoryStructureModel* browse(const KYRString&, const KYRString&, KYROptionList&, KYRLog&) override {
    return nullptr;
  }
  bool test(const KYRString&, KYROptionList&, KYRLog&) override { return false; }
};

}  // namespace

extern "C" KYR_EXPORT KYRImportBridgeDllInterface* getKYROmgUml2XmiImportInterface() {
  static RefusingPlugin plugin;
  return &plugin;
}
