// KYR_Object: the root of everything that a model is made of.
#pragma once

#include "foundation/Export.h"

/// Objects have an identity: they are made, linked and destroyed, never copied.
class KYR_EXPORT KYR_Object {
 public:
  KYR_Object() = default;
  KYR_Object(const KYR_Object&) = delete;
  KYR_Object& operator=(const KYR_Object&) = delete;
  virtual ~KYR_Object();
};
