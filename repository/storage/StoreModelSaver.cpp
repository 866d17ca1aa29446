// One for the process, as imports are.
#include "repository/storage/StoreModelSaver.h"

namespace {
StoreModelSaver* installed = nullptr;
}

StoreModelSaver::~StoreModelSaver() = default;

void StoreModelSaver::install(StoreModelSaver* saver) noexcept { installed = saver; }

StoreModelSaver* StoreModelSaver::getInstalled() noexcept { return installed; }
