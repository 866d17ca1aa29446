// KYRBridgeSpecificationLiteral, KBLST: the bridges known to hosts, by name.
#pragma once

#include "foundation/KYRString.h"

/// The fixed facts of one bridge. The getters are named by the group and the field that a host shows.
class KYR_EXPORT KYRBridgeSpecificationLiteral {
 public:
  /// The texts of a literal, each with static lifetime.
  struct Facts {
    const char* name;
    const char* descriptionLiteralId;
    const char* toolWeb;
    const char* vendorName;
    const char* toolName;
    const char* toolVersions;
    const char* methodologySummary;
  };

  explicit KYRBridgeSpecificationLiteral(const Facts& facts);
  KYRBridgeSpecificationLiteral(const KYRBridgeSpecificationLiteral&) = delete;
  KYRBridgeSpecificationLiteral& operator=(const KYRBridgeSpecificationLiteral&) = delete;

  /// The name under which a host asks for the bridge.
  const KYRString& getName() const noexcept { return name_; }
  /// Identifier of the description in the bridge's own catalogue.
  const KYRString& getInternalCode_DescriptionLiteralId() const noexcept { return descriptionLiteralId_; }
  const KYRString& getTool_Web() const noexcept { return toolWeb_; }
  const KYRString& getVendor_Name() const noexcept { return vendorName_; }
  const KYRString& getTool_Name() const noexcept { return toolName_; }
  const KYRString& getTool_Versions() const noexcept { return toolVersions_; }
  const KYRString& getMethodology_Summary() const noexcept { return methodologySummary_; }

 private:
  KYRString name_;
  KYRString descriptionLiteralId_;
  KYRString toolWeb_;
  KYRString vendorName_;
  KYRString toolName_;
  KYRString toolVersions_;
  KYRString methodologySummary_;
};

/// The list of bridges. Its objects are built when the library is loaded.
class KYR_EXPORT KBLST {
 public:
  KBLST() = delete;
  /// UML 2 files in XMI 2 of any tool.
  static KYRBridgeSpecificationLiteral BRIDGE_SPEC_OMGUML2XMI_IMPORT;
  /// The same bridge, described for users of MagicDraw.
  static KYRBridgeSpecificationLiteral BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT;
};

/// The bridge of that name (exact), or null.
KYR_EXPORT KYRBridgeSpecificationLiteral* getBridgeSpecification(const KYRString& name);
