// Putting shapes and lines on a diagram.
#pragma once

#include <memory>

#include "repository/bridgelib/Point2DVector.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRModelObject.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRRelationshipProjection.h"

/// A new shape or line that stands for the object on the diagram, which owns it.
template <class Shape>
Shape& presentOn(KYRClassDiagram& diagram, KYRModelObject& subject) {
  auto shape = std::make_unique<Shape>();
  Shape& result = *shape;
  result.addDiagram(&diagram);
  shape.release();  // ownership: the diagram
  result.addSubjectModelObject(&subject);
  return result;
}

/// Places the mark where the parts of a generalization meet.
inline void placeMarker(KYRProjection& marker, const Point2D& point) {
  marker.x = point.x;
  marker.y = point.y;
}

inline void sizeMarker(KYRProjection& marker) {
  constexpr int markerSize = 20;
  marker.width = markerSize;
  marker.height = markerSize;
}
