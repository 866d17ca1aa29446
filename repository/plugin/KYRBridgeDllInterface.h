// KYRBridgeDllInterface: a plug-in that is a bridge between files of a tool and the repository.
#pragma once

#include "repository/plugin/KYTIDllInterface.h"

class KYRBridgeSpecification;
class KYRDataStoreList;
class KYRFile;
class KYRLog;
class KYROptionList;
class KYRStoreModel;

class KYR_EXPORT KYRBridgeDllInterface : public KYTIDllInterface {
 public:
  ~KYRBridgeDllInterface() override;
  /// Fills in what the bridge tells of itself under that name.
  virtual void getSpecification(const KYRString& name, KYRBridgeSpecification& specification) = 0;
  /// Replaces the content of the list by the options of the bridge, each at its default value.
  virtual void getOptionList(KYROptionList& options) = 0;
  /// Adds the data stores that the bridge works for.
  virtual void getDataStoreList(KYRDataStoreList& list) = 0;
  /// Name of the document that tells how elements are mapped.
  virtual KYRString getMappingSpecificationXmlFile() = 0;

 protected:
  /// Writes the model to the host's output file, whole or not at all: as JSON, or as the host's
  /// StoreModelSaver does it. Raises KYRException when the file
  /// cannot be written; what was there before is then still there.
  static void saveStoreModel(KYRFile& outputFile, KYRStoreModel& model, KYRLog& log);
};
