// Paths, arrow heads and labels.
#include "repository/drawing/DrawnLines.h"

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/bridgelib/Point2DVector.h"
#include "repository/drawing/DrawnTexts.h"
#include "repository/model/KYRGeneralization.h"

namespace {

constexpr std::int32_t white = 0xFFFFFF;
constexpr double diamondLength = 16;
constexpr double diamondWidth = 9;
constexpr double triangleLength = 14;
constexpr double triangleWidth = 14;

// Bits of the display flags of an association.
constexpr int showName = 0x2;
constexpr int showRole[] = {0x28, 0x50};

SvgDocument::Pen penOf(const KYRPresentationElement& shape) { return {shape.lineColor, shape.lineWidth}; }

SvgDocument::Font fontOf(const KYRPresentationElement& shape) {
  SvgDocument::Font font = {shape.fontName.view(), fontSizeOf(shape), shape.fontColor};
  font.isBold = shape.isBold;
  font.isItalic = shape.isItalic;
  return font;
}

// Without points a line has no way of its own.
DrawnPath pathOf(const KYRRelationshipProjection& line) {
  Point2DVector points;
  Point2DVector::decodeKYRLinePoints(line.linePoints, points);
  DrawnPath path;
  for (int i = 0; i < points.getSize(); ++i) {
    path.push_back({static_cast<double>(points[i].x), static_cast<double>(points[i].y)});
  }
  return path;
}

// The direction in which the path arrives at its end.
DrawnPoint arrival(const DrawnPath& path) {
  return directionOf(path.back() - path[path.size() < 2 ? 0 : path.size() - 2]);
}

DrawnPath diamondAt(const DrawnPath& path) {
  const DrawnPoint way = arrival(path);
  const DrawnPoint side = DrawnPoint{-way.y, way.x} * (diamondWidth / 2);
  const DrawnPoint tip = path.back();
  const DrawnPoint centre = tip - way * (diamondLength / 2);
  return {tip, centre + side, tip - way * diamondLength, centre - side};
}

DrawnPath straightLine(const DrawnBox& from, const DrawnBox& to) {
  return {from.borderTowards(to.centre()), to.borderTowards(from.centre())};
}

// Trees are scaled and taken back a few times, so what the tool drew straight can be off by the rounding.
void straighten(DrawnPath& path) {
  constexpr double rounding = 2;
  for (std::size_t i = path.size(); i-- > 1;) {
    const DrawnPoint way = path[i] - path[i - 1];
    if (std::fabs(way.x) <= rounding) path[i - 1].x = path[i].x;
    if (std::fabs(way.y) <= rounding) path[i - 1].y = path[i].y;
  }
}

}  // namespace

DrawnLines::DrawnLines(SvgDocument& document, const DrawnBoxes& boxes, const KYRClassDiagram& diagram)
    : document_(document), boxes_(boxes), diagram_(diagram) {
  for (const KYRPresentationElement* shape : diagram.diagramElements) {
    if (const auto* line = dynamic_cast<const KYRRelationshipProjection*>(shape)) gather(*line);
  }
}

void DrawnLines::gather(const KYRRelationshipProjection& line) {
  if (const auto* association = dynamic_cast<const KYRAssociation*>(line.subject)) {
    latest_[association] = associations_.size();
    associations_.push_back({association, &line, {}});
  } else if (const auto* role = dynamic_cast<const KYRAssociationRole*>(line.subject)) {
    if (role->getAssociation() != nullptr) openAssociation(*role->getAssociation()).roles.push_back(&line);
  }
}

// The association to which a role belongs that comes next on the diagram.
DrawnLines::Association& DrawnLines::openAssociation(const KYRAssociation& subject) {
  const auto [entry, isNew] = latest_.try_emplace(&subject, associations_.size());
  if (isNew) associations_.push_back({&subject, nullptr, {}});
  return associations_[entry->second];
}

void DrawnLines::draw() {
  for (const DrawnBox& box : boxes_.all()) labels_.avoid(box);
  for (const Association& association : associations_) drawAssociation(association);
  for (const KYRPresentationElement* shape : diagram_.diagramElements) {
    const auto* const line = dynamic_cast<const KYRRelationshipProjection*>(shape);
    if (line == nullptr || line->subject == nullptr) continue;
    if (const auto* role = dynamic_cast<const KYRGeneralizationRole*>(line->subject)) {
      drawGeneralization(*line, *role);
    } else if (dynamic_cast<const KYRAssociation*>(line->subject) == nullptr &&
               dynamic_cast<const KYRAssociationRole*>(line->subject) == nullptr) {
      drawPath(pathOf(*line), penOf(*line));
    }
  }
  labels_.draw(document_);
}

void DrawnLines::drawPath(const DrawnPath& path, const SvgDocument::Pen& pen) {
  document_.path(path, pen);
  labels_.avoid(path);
}

// Where the roles meet: where their lines begin, else half way between the boxes.
DrawnPoint DrawnLines::middleOf(const Association& association) const {
  DrawnPath centres;
  for (const KYRRelationshipProjection* line : association.roles) {
    const DrawnPath path = pathOf(*line);
    if (!path.empty()) return path.front();
    const auto& role = dynamic_cast<const KYRAssociationRole&>(*line->subject);
    if (const DrawnBox* box = boxes_.find(role.associatedClass)) centres.push_back(box->centre());
  }
  if (centres.empty()) return {};
  return (centres.front() + centres.back()) * 0.5;
}

void DrawnLines::drawAssociation(const Association& association) {
  if (association.roles.empty()) {
    if (association.line != nullptr) drawPath(pathOf(*association.line), penOf(*association.line));
    return;
  }
  const DrawnPoint middle = middleOf(association);
  std::vector<DrawnPath> paths;
  for (std::size_t i = 0; i < association.roles.size(); ++i) {
    paths.push_back(drawRole(association, i, middle));
  }
  const KYRPresentationElement& style =
      *(association.line != nullptr ? association.line : association.roles.front());
  if (const DrawnBox* box = boxes_.find(association.subject->associationClass)) {
    SvgDocument::Pen pen = penOf(style);
    pen.isDashed = true;
    if (!box->contains(middle)) drawPath({middle, box->nearest(middle)}, pen);
  }
  if (association.line != nullptr && (association.line->displayFlags & showName) != 0) {
    addLabel(*association.line, DrawnTexts::nameOf(*association.subject),
             DrawnLabels::along(paths, fontSizeOf(*association.line)));
  }
}

DrawnPath DrawnLines::drawRole(const Association& association, std::size_t index, DrawnPoint middle) {
  const KYRRelationshipProjection& line = *association.roles[index];
  auto& role = dynamic_cast<KYRAssociationRole&>(*line.subject);
  const KYRPresentationElement& style = *(association.line != nullptr ? association.line : &line);
  const DrawnBox* const box = boxes_.find(role.associatedClass);
  DrawnPath path = pathOf(line);
  if (path.empty()) path = {middle};
  if (box != nullptr) attachEnd(path, *box);
  if (path.size() < 2) return path;
  drawPath(path, penOf(style));
  // The whole bears the diamond, and the part is what is aggregated.
  const KYRAssociationRole* const part = findReverseRole(&role);
  if (part != nullptr && part->isAggregate) {
    document_.polygon(diamondAt(path), penOf(style),
                      association.subject->isComposite ? style.lineColor : white);
  }
  const int shown = index < 2 ? showRole[index] : 0;
  if ((style.displayFlags & shown) != 0) {
    const double size = fontSizeOf(style);
    addLabel(style, DrawnTexts::nameOf(role), DrawnLabels::atEnd(path, DrawnLabels::Side::first, size));
    addLabel(style, DrawnTexts::shorten(std::string(role.multiplicity.view())),
             DrawnLabels::atEnd(path, DrawnLabels::Side::second, size));
  }
  return path;
}

void DrawnLines::addLabel(const KYRPresentationElement& style, std::string text, DrawnLabels::Places places) {
  if (!text.empty()) labels_.add(std::move(text), fontOf(style), std::move(places));
}

void DrawnLines::drawGeneralization(const KYRRelationshipProjection& line,
                                    const KYRGeneralizationRole& role) {
  const bool isSuper = role.generalizationAsSupertype != nullptr;
  const DrawnBox* const box = boxes_.find(role.associatedClass);
  DrawnPath path = pathOf(line);
  if (!path.empty()) {
    if (box != nullptr) {
      const auto distance = [box](DrawnPoint point) { return lengthOf(box->nearest(point) - point); };
      if (distance(path.front()) < distance(path.back())) std::reverse(path.begin(), path.end());
      attachEnd(path, *box);
      straighten(path);
    }
    if (isSuper && path.size() > 1) drawTriangle(path, penOf(line));
    drawPath(path, penOf(line));
    return;
  }
  if (isSuper || role.generalizationAsSubtype == nullptr || box == nullptr) return;
  // Nothing tells the way, so the subtype's line goes straight to the supertype.
  const KYRGeneralizationRole* const super = role.generalizationAsSubtype->supertypeRoles[0];
  const DrawnBox* const superBox = super == nullptr ? nullptr : boxes_.find(super->associatedClass);
  if (superBox == nullptr || superBox == box) return;
  path = straightLine(*box, *superBox);
  drawTriangle(path, penOf(line));
  drawPath(path, penOf(line));
}

// The path ends at the foot of the triangle afterwards.
void DrawnLines::drawTriangle(DrawnPath& path, const SvgDocument::Pen& pen) {
  const DrawnPoint way = arrival(path);
  const DrawnPoint tip = path.back();
  const DrawnPoint foot = tip - way * triangleLength;
  const DrawnPoint side = DrawnPoint{-way.y, way.x} * (triangleWidth / 2);
  document_.polygon({tip, foot + side, foot - side}, pen, white);
  labels_.avoid({tip, foot + side, foot - side, tip});
  if (lengthOf(tip - path[path.size() - 2]) > triangleLength) path.back() = foot;
}
