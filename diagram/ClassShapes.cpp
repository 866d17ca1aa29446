// The box of a class or an interface.
#include <algorithm>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/DiagramGeometry.h"
#include "diagram/Presentation.h"
#include "diagram/ShapeParts.h"
#include "diagram/ShapeProperties.h"

namespace {

// Colours of a shape that tells none, as 0xBBGGRR.
constexpr int defaultFill = 0x99CCFF;
constexpr int defaultPen = 0x5C7999;
constexpr int white = 0xFFFFFF;

}  // namespace

void KYROmgUml2XmiImportBridge::createClassProjection(KYRClassDiagram* diagram, const KYRDOMElement* element,
                                                      KYRModelObject* subject) {
  auto& shape = presentOn<KYRProjection>(*diagram, *subject);
  shape.displayFlags = readDisplayFlags(element);
  // The property switches filling off, whatever its value: the tool writes it only when it is false.
  if (findProperty("USE_FILL_COLOR", "BooleanProperty", element) != nullptr) {
    shape.backgroundColor = white;
  } else if (!readColor(element, "FILL_COLOR", shape.backgroundColor)) {
    shape.backgroundColor = defaultFill;
  }
  readColor(element, "TEXT_COLOR", shape.fontColor);  // black when absent
  if (!readColor(element, "PEN_COLOR", shape.lineColor)) shape.lineColor = defaultPen;
  readFont(element, shape);
  const KYRDOMElement* const autoSize = findProperty("AUTOSIZE", "BooleanProperty", element);
  if (autoSize != nullptr && shapeValue(autoSize, "value").equals("true", false)) shape.autoSize = true;
  // The file has the corner of the box, the repository its centre.
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  readGeometry(element, x, y, width, height);
  shape.x = std::max(scaleX(sum(x, width / 2)), 0);
  shape.y = std::max(scaleY(sum(y, height / 2)), 0);
  shape.width = scaleX(width);
  shape.height = scaleY(height);
}
