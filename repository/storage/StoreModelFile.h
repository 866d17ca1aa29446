// Saving a model to a file and loading it back. docs/saved-format.md describes the JSON format, which is
// the one to load, docs/sqlite.md the tables of the others.
#pragma once

#include <memory>

#include "foundation/KYRFile.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/storage/BlockOutput.h"

enum class StoreModelFormat {
  json,
  sqlite,
  sql,
};

/// Writes the model to the file. It is written beside its target and renamed at the end, so whatever
/// happens the target holds either what it held or the whole model. Raises a KYRException that names
/// path and reason; nothing is left behind then.
KYR_EXPORT void saveStoreModelFile(const KYRFile& file, const KYRStoreModel& model, StoreModelFormat format);
/// The same, as JSON.
KYR_EXPORT void saveStoreModelFile(const KYRFile& file, const KYRStoreModel& model);

/// Writes the model as it would stand in a file, in a format that is a text: json or sql. Raises what the
/// sink raises.
KYR_EXPORT void writeStoreModelText(const KYRStoreModel& model, StoreModelFormat format, BlockSink& sink);

/// Adds the model to the SQLite file, which is made when it is missing; a model of the same origin path
/// is replaced. It is one transaction, and waits for other processes that write to the file, for ten
/// minutes at most. Meanwhile the signals SIGINT, SIGTERM and SIGHUP of the calling thread take effect
/// before or after the transaction only. Raises a KYRException that names path and reason; the file is
/// as it was then.
KYR_EXPORT void appendStoreModelFile(const KYRFile& file, const KYRStoreModel& model);

/// The model that the file holds. Raises a KYRException that names path and reason for a file that
/// cannot be read or is not a saved model.
KYR_EXPORT std::unique_ptr<KYRStoreModel> loadStoreModel(const KYRFile& file);
