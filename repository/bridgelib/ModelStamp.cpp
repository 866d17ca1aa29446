// Where a model comes from and when it was made.
#include <ctime>

#include "foundation/KYRDate.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRModel.h"
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"

KYRMetadataOrigin* generateMetadataOrigin(KYRBridgeSpecificationLiteral& specification,
                                          const KYRString& originId, const KYRString& buildVersion) {
  auto origin = std::make_unique<KYRMetadataOrigin>();
  origin->bridgeName = specification.getName();
  origin->originId = originId;
  origin->buildVersion = buildVersion;
  return origin.release();
}

void setModelModificationTime(KYRModel& model, KYROptionList& options) {
  // Lets a host fix the one thing in which two imports of the same file differ.
  const KYRString option("BP_MODIFICATION_TIME");
  const KYRString& fixed = options.getValue(option);
  std::int64_t time = std::time(nullptr);
  if (!fixed.isEmpty() && !KYRDate::parseIsoTimestamp(fixed, time)) {
    KYRRepositoryMessages::NOT_A_TIME.throwException(option, fixed);
  }
  model.modificationTime = KYRDate(time).getIsoTimestamp();
}
