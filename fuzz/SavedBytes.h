// SavedBytes: what becomes of a model that an import or a loader hands over, all in memory.
#pragma once

#include <string>

#include "repository/model/KYRStoreModel.h"

/// The model as a JSON file.
std::string savedBytesOf(const KYRStoreModel& model);
/// The model as a file of SQL statements.
std::string sqlBytesOf(const KYRStoreModel& model);
/// Loads what was saved, and checks that it is the model.
void checkComesBack(const std::string& saved);
/// Draws all class diagrams.
void drawAll(KYRStoreModel& model);
