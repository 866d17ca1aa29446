// SavedModel: the model that a command is given, or why the file is none, in terms of what the user has done.
#pragma once

#include <memory>
#include <string>

#include "repository/model/KYRStoreModel.h"

namespace SavedModel {

/// Raises KYRException when it cannot be loaded. A model file that has not been imported yet and a database
/// are told as such; at every other file the library says where it is no saved model.
std::unique_ptr<KYRStoreModel> load(const std::string& path);

}  // namespace SavedModel
