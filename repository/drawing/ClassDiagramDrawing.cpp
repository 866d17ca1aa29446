// The order of drawing: boxes first, so that lines and their labels stand above them.
#include "repository/drawing/ClassDiagramDrawing.h"

#include "repository/drawing/DrawnBoxes.h"
#include "repository/drawing/DrawnLines.h"
#include "repository/drawing/SvgDocument.h"

std::string drawSvg(const KYRClassDiagram& diagram) {
  return drawSvg(diagram, [](const KYRModelObject&) { return std::string(); });
}

std::string drawSvg(const KYRClassDiagram& diagram, const DrawnLinks& links) {
  SvgDocument document;
  DrawnBoxes boxes(document, diagram, links);
  boxes.draw();
  DrawnLines(document, boxes, diagram).draw();
  return document.finish(diagram.getName().view());
}
