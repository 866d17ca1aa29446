// Saving a model to a file and loading it back. docs/saved-format.md describes the file.
#pragma once

#include <memory>

#include "foundation/KYRFile.h"
#include "repository/model/KYRStoreModel.h"

/// Writes the model to the file. It is written beside its target and renamed at the end, so whatever
/// happens the target holds either what it held or the whole model. Raises a KYRException that names
/// path and reason; nothing is left behind then.
KYR_EXPORT void saveStoreModelFile(const KYRFile& file, const KYRStoreModel& model);

/// The model that the file holds. Raises a KYRException that names path and reason for a file that
/// cannot be read or is not a saved model.
KYR_EXPORT std::unique_ptr<KYRStoreModel> loadStoreModel(const KYRFile& file);
