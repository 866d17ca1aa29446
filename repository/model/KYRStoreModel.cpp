// The root of everything that a bridge builds.
#include "repository/model/KYRStoreModel.h"

#include <utility>

#include "foundation/KYRPhaseTimes.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRLinks.h"

KYRStoreModel::~KYRStoreModel() {
  const KYRPhaseTimer timer(KYRPhase::release);
  dissolve();
}

void KYRStoreModel::addDesignPackage(KYRDesignPackage* package) {
  KYRLinks::own(designPackages, this, KYRLinks::required(package));
}

void KYRStoreModel::addDataPackage(KYRDataPackage* package) {
  const KYRDataPackage* const known = dataPackages.get(KYRLinks::required(package)->getName());
  if (known != nullptr && known != package) {
    KYRRepositoryMessages::MODEL_HOLDS_DATA_PACKAGE.throwException(package->getName());
  }
  KYRLinks::own(dataPackages, this, package);
}

void KYRStoreModel::keepTexts(std::shared_ptr<const void> texts) { texts_.push_back(std::move(texts)); }

void KYRStoreModel::listOwned(KYROwnedLists& lists) const {
  KYRModel::listOwned(lists);
  lists.add(KYRLinks::owned(designPackages));
  lists.add(KYRLinks::owned(dataPackages));
}
