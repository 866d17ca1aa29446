// KYRBridgeSpecification: what a bridge tells a host of itself.
#pragma once

#include "foundation/KYRString.h"

class KYR_EXPORT KYRBridgeSpecification {
 public:
  /// Fills in everything at once. `isRetired` tells a host not to offer the bridge for new imports.
  void initialize(const KYRString& toolWeb, const KYRString& vendorName, const KYRString& toolName,
                  const KYRString& toolVersions, const KYRString& methodologySummary,
                  const KYRString& buildVersion, const KYRString& description, bool isRetired);

  /// Web address, empty when there is none.
  const KYRString& getToolWeb() const noexcept { return toolWeb_; }
  const KYRString& getVendorName() const noexcept { return vendorName_; }
  const KYRString& getToolName() const noexcept { return toolName_; }
  const KYRString& getToolVersions() const noexcept { return toolVersions_; }
  const KYRString& getMethodologySummary() const noexcept { return methodologySummary_; }
  const KYRString& getBuildVersion() const noexcept { return buildVersion_; }
  /// Help text of several paragraphs.
  const KYRString& getDescription() const noexcept { return description_; }
  bool isRetired() const noexcept { return isRetired_; }

 private:
  KYRString toolWeb_;
  KYRString vendorName_;
  KYRString toolName_;
  KYRString toolVersions_;
  KYRString methodologySummary_;
  KYRString buildVersion_;
  KYRString description_;
  bool isRetired_ = false;
};
