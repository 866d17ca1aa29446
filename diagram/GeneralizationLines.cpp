// A generalization drawn by itself: a line from the supertype to the marker and one from there to the
// subtype.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/DiagramGeometry.h"
#include "diagram/Presentation.h"
#include "diagram/ShapeParts.h"
#include "diagram/ShapeProperties.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"

void KYROmgUml2XmiImportBridge::createGeneralizationProjections(KYRClassDiagram* diagram,
                                                                const KYRDOMElement* element,
                                                                KYRGeneralizationRole* role,
                                                                KYRGeneralization* generalization,
                                                                MDHashtable& shapes) {
  KYRGeneralizationRole* const superRole = generalization->supertypeRoles[0];
  if (!findLineEnds(diagram, element, shapes).areFound() || superRole == nullptr) return;
  auto& superLine = presentOn<KYRRelationshipProjection>(*diagram, *superRole);
  auto& subLine = presentOn<KYRRelationshipProjection>(*diagram, *role);
  auto& marker = presentOn<KYRProjection>(*diagram, *generalization);
  readPen(element, superLine);
  readPen(element, subLine);
  readPen(element, marker);
  sizeMarker(marker);
  Point2DVector points;
  parsePoints(shapeText(element, "geometry"), points);
  if (points.getSize() < fewestLinePoints) return;
  const LineHalves halves = splitLine(points, HalfDirection::fileOrder);
  superLine.linePoints = halves.first.encodeKYRLinePoints();
  subLine.linePoints = halves.second.encodeKYRLinePoints();
  placeMarker(marker, halves.middle);
}
