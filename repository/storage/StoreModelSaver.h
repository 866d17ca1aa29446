// StoreModelSaver: how the models that plug-ins make in this process are saved.
#pragma once

#include "foundation/KYRFile.h"
#include "repository/model/KYRStoreModel.h"

/// A plug-in hands its finished model to `KYRBridgeDllInterface::saveStoreModel`, which saves it as JSON.
/// A host that wants another format, or that wants to look at the model, installs one of these.
class KYR_EXPORT StoreModelSaver {
 public:
  StoreModelSaver() = default;
  StoreModelSaver(const StoreModelSaver&) = delete;
  StoreModelSaver& operator=(const StoreModelSaver&) = delete;
  virtual ~StoreModelSaver();

  /// Saves the model, which is the plug-in's. What is raised ends the import.
  virtual void save(const KYRFile& file, const KYRStoreModel& model) = 0;

  /// Makes it the one that saves from now on; it is borrowed. Null is the state at the start: JSON.
  static void install(StoreModelSaver* saver) noexcept;
  /// Null when none is installed.
  static StoreModelSaver* getInstalled() noexcept;
};
