// Saving a model in an SQLite file of its own, and adding one to a file that may hold others.
#pragma once

#include "foundation/KYRFile.h"
#include "repository/model/KYRStoreModel.h"

/// Writes the model beside the file and renames, as `saveStoreModelFile` does.
void saveSqliteModel(const KYRFile& file, const KYRStoreModel& model);

/// Adds the model to the file in one transaction, in the place of a model of the same origin path. A
/// file that is missing is made. Waits for others that write to it, for ten minutes at most. A signal
/// that ends the process does so before or after the transaction.
void appendSqliteModel(const KYRFile& file, const KYRStoreModel& model);
