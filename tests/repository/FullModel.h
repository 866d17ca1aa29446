// FullModel: a small model that has an object of every class and a value in every field that is saved.
#pragma once

#include <memory>

#include "repository/model/KYRStoreModel.h"

std::unique_ptr<KYRStoreModel> makeFullModel();
