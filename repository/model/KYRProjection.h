// KYRProjection: a shape on a diagram.
#pragma once

#include "repository/model/KYRPresentationElement.h"

class KYR_EXPORT KYRProjection : public KYRPresentationElement {
 public:
  bool autoSize = false;
  KYRProjection() = default;
  ~KYRProjection() override;
  int getElementType() const override { return KYRElementType::projection; }
};
