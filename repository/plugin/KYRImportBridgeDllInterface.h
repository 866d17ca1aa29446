// KYRImportBridgeDllInterface: a bridge that reads a tool's files into the repository.
#pragma once

#include "repository/plugin/KYRBridgeDllInterface.h"

class KYRDirectoryStructureModel;

class KYR_EXPORT KYRImportBridgeDllInterface : public KYRBridgeDllInterface {
 public:
  ~KYRImportBridgeDllInterface() override;
  /// Imports what the options name and saves the model in `outputFile`. `originId` is the host's own
  /// mark of where the model comes from. One import at a time in a process, on the caller's thread.
  /// Raises KYRException; nothing is saved then.
  virtual bool run(const KYRString& originId, KYRFile& outputFile, KYROptionList& options, KYRLog& log) = 0;
  /// The structure of a source that holds several models, owned by the caller. Raises KYRException when
  /// there is nothing to browse.
  virtual KYRDirectoryStructureModel* browse(const KYRString& name, const KYRString& path,
                                             KYROptionList& options, KYRLog& log) = 0;
  /// Whether the source can be reached.
  virtual bool test(const KYRString& name, KYROptionList& options, KYRLog& log) = 0;
};
