// KYRRelationshipProjection: a line on a diagram.
#pragma once

#include "repository/model/KYRPresentationElement.h"

class KYR_EXPORT KYRRelationshipProjection : public KYRPresentationElement {
 public:
  /// The bend points; see Point2DVector::encodeKYRLinePoints.
  KYRString linePoints;
  KYRRelationshipProjection() = default;
  ~KYRRelationshipProjection() override;
  int getElementType() const override { return KYRElementType::relationshipProjection; }
};
