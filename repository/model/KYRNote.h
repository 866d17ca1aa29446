// KYRNote: a note on an element.
#pragma once

#include "repository/model/KYRObject.h"

class KYR_EXPORT KYRNote : public KYRObject {
 public:
  KYRString noteText;
  KYRNote() = default;
  ~KYRNote() override;
  int getElementType() const override { return KYRElementType::note; }
};
