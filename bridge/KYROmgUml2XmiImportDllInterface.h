// KYROmgUml2XmiImportDllInterface: the plug-in object, and the one function that the plug-in exports.
//
// A host loads the plug-in, calls the function, and drives the bridge through the virtual operations
// of the object it returns.
#pragma once

#include "foundation/Export.h"
#include "foundation/KYRString.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"

class KYROmgUml2XmiImportDllInterface final : public KYRImportBridgeDllInterface {
 public:
  KYROmgUml2XmiImportDllInterface();
  ~KYROmgUml2XmiImportDllInterface() override;

  /// The version of the project, " - " and the build time; computed at the first call.
  const KYRString& getBuildVersion() override;
  void getSpecification(const KYRString& name, KYRBridgeSpecification& specification) override;
  void getOptionList(KYROptionList& options) override;
  void getDataStoreList(KYRDataStoreList& list) override;
  KYRString getMappingSpecificationXmlFile() override;
  /// True, or an exception.
  bool run(const KYRString& originId, KYRFile& outputFile, KYROptionList& options, KYRLog& log) override;
  /// Always raises: a file holds one model, so there is nothing to browse.
  KYRDirectoryStructureModel* browse(const KYRString& name, const KYRString& path, KYROptionList& options,
                                     KYRLog& log) override;
  /// Always true and looks at nothing, not even whether the file exists: an import says more of a file
  /// than any test could, and a host's connection test must not stand in its way.
  bool test(const KYRString& name, KYROptionList& options, KYRLog& log) override;
};

/// The one plug-in object of the process, made at the first call and destroyed at process exit.
extern "C" KYR_EXPORT KYROmgUml2XmiImportDllInterface* getKYROmgUml2XmiImportInterface();
