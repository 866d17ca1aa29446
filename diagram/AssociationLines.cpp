// An association on a diagram: its own line, which carries name and font, and a line for each of its two
// roles, which run from the middle to the classes.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/DiagramGeometry.h"
#include "diagram/Presentation.h"
#include "diagram/ShapeParts.h"
#include "diagram/ShapeProperties.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"

namespace {

// Relations of a class of the host's, which are drawn as one plain line.
constexpr int hostRelation = 40;

// Bits of KYRPresentationElement::displayFlags.
constexpr int showName = 0x2;
constexpr int showFirstRole = 0x28;
constexpr int showSecondRole = 0x50;

int readLineFlags(const KYRDOMElement* element, const KYRAssociationRole& first,
                  const KYRAssociationRole& second) {
  int flags = shapeValue(element, "nameVisible").equals("true", false) ? showName : 0;
  const KYRDOMElement* const views = element->getFirstElement("mdOwnedViews");
  const int count = views == nullptr ? 0 : views->getElementCount("mdElement");
  for (int i = 0; i < count; ++i) {
    const KYRDOMElement* const shape = views->getElement("mdElement", i);
    if (!isOfClass(shape, "Role") || shape->getFirstElement("roleNameID") == nullptr) continue;
    const KYRString& role = shapeReference(shape, "elementID");
    if (role.isEmpty()) continue;
    if (role.equals(first.sourceId, false)) flags |= showFirstRole;
    if (role.equals(second.sourceId, false)) flags |= showSecondRole;
  }
  return flags;
}

void presentAssociation(KYRClassDiagram& diagram, const KYRDOMElement* element, KYRAssociation& association,
                        const KYRClass* firstClass, const Point2DVector& points) {
  KYRAssociationRole* first = association.roles[0];
  KYRAssociationRole* second = association.roles[1];
  if (first == nullptr || second == nullptr) return;
  if (first->associatedClass != firstClass) std::swap(first, second);
  auto& line = presentOn<KYRRelationshipProjection>(diagram, association);
  line.displayFlags = readLineFlags(element, *first, *second);
  readPen(element, line);
  readColor(element, "TEXT_COLOR", line.fontColor);
  readFont(element, line);
  auto& firstLine = presentOn<KYRRelationshipProjection>(diagram, *first);
  auto& secondLine = presentOn<KYRRelationshipProjection>(diagram, *second);
  if (points.getSize() < fewestLinePoints) return;
  const LineHalves halves = splitLine(points, HalfDirection::outward);
  firstLine.linePoints = halves.first.encodeKYRLinePoints();
  secondLine.linePoints = halves.second.encodeKYRLinePoints();
}

}  // namespace

void KYROmgUml2XmiImportBridge::createAssociationProjections(KYRClassDiagram* diagram,
                                                             const KYRDOMElement* element,
                                                             KYRModelObject* subject, MDHashtable& shapes) {
  const LineEnds ends = findLineEnds(diagram, element, shapes);
  if (!ends.areFound()) return;
  Point2DVector points;
  parsePoints(shapeText(element, "geometry"), points);
  const int type = subject->getElementType();
  if (type == hostRelation) {
    auto& line = presentOn<KYRRelationshipProjection>(*diagram, *subject);
    if (points.getSize() >= fewestLinePoints) line.linePoints = points.encodeKYRLinePoints();
  } else if (type == KYRElementType::association) {
    if (auto* const association = dynamic_cast<KYRAssociation*>(subject)) {
      presentAssociation(*diagram, element, *association, ends.first, points);
    }
  }
}
