// KYTIDllInterface: root of the plug-in classes.
#pragma once

#include "foundation/KYRString.h"

/// The order of virtual operations here and in the classes below is the interface between a host and a
/// plug-in that were built apart: new ones go to the end of the most derived class only.
class KYR_EXPORT KYTIDllInterface {
 public:
  KYTIDllInterface() = default;
  KYTIDllInterface(const KYTIDllInterface&) = delete;
  KYTIDllInterface& operator=(const KYTIDllInterface&) = delete;
  virtual ~KYTIDllInterface();
  /// Version and build time of the plug-in. The text lives as long as the plug-in object.
  virtual const KYRString& getBuildVersion() = 0;

 protected:
  KYRString buildVersion;  // what getBuildVersion found; empty until then
};
