// The last look at a diagram: what it cannot show goes, and on request all of it moves to where no
// coordinate is negative.
#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/bridgelib/Point2DVector.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRPresentationElement.h"
#include "repository/model/KYRRelationshipProjection.h"

namespace {

// The element of a diagram that has to be listed so that the object can be shown: the relation of a
// role, else the object itself. Null when the object can never be shown.
const KYRModelElement* listedElement(const KYRModelObject* subject) {
  if (const auto* role = dynamic_cast<const KYRAssociationRole*>(subject)) return role->getAssociation();
  if (const auto* role = dynamic_cast<const KYRGeneralizationRole*>(subject)) {
    return role->generalizationAsSubtype != nullptr ? role->generalizationAsSubtype
                                                    : role->generalizationAsSupertype;
  }
  return dynamic_cast<const KYRModelElement*>(subject);
}

bool canShow(const KYRClassDiagram& diagram, const KYRModelObject* subject) {
  const KYRModelElement* const element = listedElement(subject);
  return element != nullptr && diagram.modelElements.contains(element);
}

bool hasPlace(const KYRPresentationElement& shape) {
  return shape.x != 0 || shape.y != 0 || shape.width != 0 || shape.height != 0;
}

std::int32_t moved(std::int32_t number, std::int64_t distance) {
  constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(number + distance, largest));
}

// How far the picture reaches to the left of 0 and above it.
class Reach {
 public:
  void include(const KYRPresentationElement& shape) {
    if (!hasPlace(shape)) return;
    include(std::int64_t{shape.x} - shape.width / 2, std::int64_t{shape.y} - shape.height / 2);
  }
  void include(const Point2DVector& points) {
    for (int i = 0; i < points.getSize(); ++i) include(points[i].x, points[i].y);
  }
  std::int64_t left() const { return -x_; }
  std::int64_t above() const { return -y_; }

 private:
  void include(std::int64_t x, std::int64_t y) {
    x_ = std::min(x_, x);
    y_ = std::min(y_, y);
  }
  std::int64_t x_ = 0;
  std::int64_t y_ = 0;
};

// The points of a line; none for a box, and for a text that is not in the stored form.
Point2DVector pointsOf(const KYRPresentationElement& shape) {
  Point2DVector points;
  if (const auto* line = dynamic_cast<const KYRRelationshipProjection*>(&shape)) {
    Point2DVector::decodeKYRLinePoints(line->linePoints, points);
  }
  return points;
}

void move(KYRPresentationElement& shape, const Reach& reach) {
  if (hasPlace(shape)) {
    shape.x = moved(shape.x, reach.left());
    shape.y = moved(shape.y, reach.above());
  }
  Point2DVector points = pointsOf(shape);
  if (points.empty()) return;
  for (int i = 0; i < points.getSize(); ++i) {
    points[i] = {moved(points[i].x, reach.left()), moved(points[i].y, reach.above())};
  }
  dynamic_cast<KYRRelationshipProjection&>(shape).linePoints = points.encodeKYRLinePoints();
}

}  // namespace

void verifyDiagram(KYRClassDiagram* diagram) {
  if (diagram == nullptr) return;
  std::vector<KYRPresentationElement*> dropped;
  for (KYRPresentationElement* shape : diagram->diagramElements) {
    if (!canShow(*diagram, shape->subject)) dropped.push_back(shape);
  }
  for (KYRPresentationElement* shape : dropped) delete shape;
}

void processPresentationElements(KYRClassDiagram* diagram, bool normalize) {
  if (diagram == nullptr || !normalize) return;
  Reach reach;
  for (KYRPresentationElement* shape : diagram->diagramElements) {
    shape->width = std::max(shape->width, 0);
    shape->height = std::max(shape->height, 0);
    reach.include(*shape);
    reach.include(pointsOf(*shape));
  }
  if (reach.left() == 0 && reach.above() == 0) return;
  for (KYRPresentationElement* shape : diagram->diagramElements) move(*shape, reach);
}
