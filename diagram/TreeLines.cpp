// A tree of generalizations: a trunk from the supertype to the marker, and from there a branch to each
// subtype.
//
// The bars of a tree are told in units of the file, relative to the box that it hangs from; that box is
// there in repository units alone and is taken back. Each step rounds, and their order is what hosts
// have come to know: it stays.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/DiagramGeometry.h"
#include "diagram/Presentation.h"
#include "diagram/ShapeParts.h"
#include "diagram/ShapeProperties.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"

namespace {

// Where the bars of a tree run, as the file tells it.
struct Bars {
  explicit Bars(const KYRDOMElement* element)
      : verticalX(shapeValue(element, "verticalBarX")),
        verticalY(shapeValue(element, "verticalBarY")),
        horizontalY(shapeValue(element, "horizontalBarY")) {}
  bool areTold() const { return !verticalX.isEmpty() && !verticalY.isEmpty() && !horizontalY.isEmpty(); }
  const KYRString& verticalX;
  const KYRString& verticalY;
  const KYRString& horizontalY;
};

Point2D pointAt(int x, const KYRString& y) {
  return KYROmgUml2XmiImportBridge::parsePoint(KYRString(x) + "," + y);
}

Point2DVector trunkPoints(const Bars& bars, const KYRPresentationElement& base) {
  const int left = sum(unscaleX(base.x), -(unscaleX(base.width) / 2));
  Point2DVector points;
  points.addPoint(pointAt(sum(bars.verticalX.getInt(), left), bars.verticalY));
  if (!bars.verticalY.equals(bars.horizontalY, false)) {
    points.addPoint(pointAt(unscaleX(points[0].x), bars.horizontalY));
  }
  return points;
}

// The points of a branch, led by the place of the marker unless they start there already.
KYRString branchGeometry(const KYRString& geometry, const KYRProjection& marker) {
  if (marker.x == 0 || marker.y == 0) return geometry;
  const KYRString start = KYRString(unscaleX(marker.x)) + ", " + KYRString(unscaleY(marker.y)) + "; ";
  return geometry.startsWith(start, false) ? geometry : start + geometry;
}

}  // namespace

void KYROmgUml2XmiImportBridge::createTreeProjections(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                                      MDDiagramFrameElement* tree,
                                                      KYRGeneralization* generalization,
                                                      MDHashtable& shapes) {
  KYRGeneralizationRole* const superRole = generalization->supertypeRoles[0];
  const KYRPresentationElement* const base = findTreeBase(diagram, element, shapes);
  const Bars bars(element);
  if (superRole == nullptr || base == nullptr || !bars.areTold()) return;
  const Point2DVector points = trunkPoints(bars, *base);
  auto& trunk = presentOn<KYRRelationshipProjection>(*diagram, *superRole);
  trunk.linePoints = points.encodeKYRLinePoints();
  auto& marker = presentOn<KYRProjection>(*diagram, *generalization);
  readPen(element, trunk);
  readPen(element, marker);
  placeMarker(marker, points[points.getSize() - 1]);
  sizeMarker(marker);
  for (unsigned int slot = 0; slot < tree->children.getSlotCount(); ++slot) {
    const auto* const child = tree->children.recordAt<MDDiagramFrameElement>(slot);
    KYRModelObject* const subRole = findModelObject(child->umlRef);
    if (subRole == nullptr || !findLineEnds(diagram, child->element, shapes).areFound()) continue;
    createBranch(diagram, child->element, subRole, marker);
  }
}

KYRPresentationElement* KYROmgUml2XmiImportBridge::findTreeBase(KYRClassDiagram* diagram,
                                                                const KYRDOMElement* element,
                                                                const MDHashtable& shapes) const {
  const auto* const shape =
      dynamic_cast<MDDiagramFrameElement*>(shapes.find(shapeReference(element, "baseShape")));
  return shape == nullptr ? nullptr : getPresentationElement(findModelObject(shape->umlRef), diagram);
}

void KYROmgUml2XmiImportBridge::createBranch(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                             KYRModelObject* subRole, const KYRProjection& marker) {
  auto& branch = presentOn<KYRRelationshipProjection>(*diagram, *subRole);
  readPen(element, branch);
  const KYRString& geometry = shapeText(element, "geometry");
  if (geometry.isEmpty()) return;
  Point2DVector points;
  parsePoints(branchGeometry(geometry, marker), points);
  if (points.getSize() >= fewestLinePoints) branch.linePoints = points.encodeKYRLinePoints();
}
