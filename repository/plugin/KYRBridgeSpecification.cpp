// The specification of a bridge as a host receives it.
#include "repository/plugin/KYRBridgeSpecification.h"

void KYRBridgeSpecification::initialize(const KYRString& toolWeb, const KYRString& vendorName,
                                        const KYRString& toolName, const KYRString& toolVersions,
                                        const KYRString& methodologySummary, const KYRString& buildVersion,
                                        const KYRString& description, bool isRetired) {
  toolWeb_ = toolWeb;
  vendorName_ = vendorName;
  toolName_ = toolName;
  toolVersions_ = toolVersions;
  methodologySummary_ = methodologySummary;
  buildVersion_ = buildVersion;
  description_ = description;
  isRetired_ = isRetired;
}
