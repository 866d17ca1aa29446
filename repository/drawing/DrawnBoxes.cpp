// Boxes and their compartments.
#include "repository/drawing/DrawnBoxes.h"

#include <string>
#include <vector>

#include "repository/drawing/DrawnTexts.h"
#include "repository/model/KYRClass.h"

namespace {

constexpr double defaultFontSize = 11;
constexpr double largestFontSize = 96;
constexpr double lineSpacing = 1.25;
constexpr double padding = 4;
constexpr DrawnPoint smallestBox = {80, 40};  // of a shape that has no size
// More lines than fit on any screen: huge boxes of huge classes must not make huge pictures.
constexpr std::size_t mostLines = 300;

// Bits of the display flags of a class.
constexpr int showOperations = 0x4;
constexpr int showAttributes = 0x18;
constexpr int showAttributeTypes = 0x100000;

struct Line {
  std::string text;
  bool isName = false;
  bool isItalic = false;
  bool isUnderlined = false;
};
using Compartment = std::vector<Line>;

std::vector<Compartment> compartmentsOf(const KYRModelObject& subject, int flags) {
  std::vector<Compartment> compartments(1);
  const auto* const class_ = dynamic_cast<const KYRClass*>(&subject);
  if (class_ != nullptr && class_->classCategory == KYRClassCategoryType::interface_) {
    compartments[0].push_back({"\xC2\xABinterface\xC2\xBB", true});
  }
  compartments[0].push_back({DrawnTexts::nameOf(subject), true, class_ != nullptr && class_->isAbstract});
  if (class_ == nullptr) return compartments;
  if ((flags & showAttributes) != 0) {
    Compartment lines;
    for (int i = 0; i < class_->getAttributeCount() && lines.size() < mostLines; ++i) {
      const KYRAttribute& attribute = *class_->getAttribute(i);
      lines.push_back({DrawnTexts::attribute(attribute, (flags & showAttributeTypes) != 0), false, false,
                       attribute.isStatic});
    }
    compartments.push_back(std::move(lines));
  }
  if ((flags & showOperations) != 0) {
    Compartment lines;
    for (const KYROperation* operation : class_->operations) {
      if (lines.size() >= mostLines) break;
      lines.push_back({DrawnTexts::operation(*operation), false, false, operation->isStatic});
    }
    compartments.push_back(std::move(lines));
  }
  return compartments;
}

DrawnBox boxOf(const KYRPresentationElement& shape) {
  const double width = shape.width > 0 ? shape.width : smallestBox.x;
  const double height = shape.height > 0 ? shape.height : smallestBox.y;
  return {shape.x - width / 2, shape.y - height / 2, shape.x + width / 2, shape.y + height / 2};
}

// A generalization has a marker where its lines meet, which is no box.
bool isBox(const KYRPresentationElement& shape) {
  return shape.subject != nullptr && shape.getElementType() == KYRElementType::projection &&
         !shape.subject->isInstanceOf(KYRElementType::relationship);
}

}  // namespace

double fontSizeOf(const KYRPresentationElement& shape) {
  return shape.fontSize > 0 ? std::min<double>(shape.fontSize, largestFontSize) : defaultFontSize;
}

DrawnBoxes::DrawnBoxes(SvgDocument& document, const KYRClassDiagram& diagram, const DrawnLinks& links)
    : document_(document), diagram_(diagram), links_(links) {
  for (const KYRPresentationElement* shape : diagram.diagramElements) {
    if (!isBox(*shape)) continue;
    all_.push_back(boxOf(*shape));
    boxes_.try_emplace(shape->subject, all_.back());
  }
}

const DrawnBox* DrawnBoxes::find(const KYRModelObject* object) const {
  const auto found = boxes_.find(object);
  return found == boxes_.end() ? nullptr : &found->second;
}

void DrawnBoxes::draw() {
  for (const KYRPresentationElement* shape : diagram_.diagramElements) {
    if (!isBox(*shape)) continue;
    const std::string link = links_(*shape->subject);
    if (!link.empty()) document_.beginLink(link);
    drawBox(dynamic_cast<const KYRProjection&>(*shape), boxOf(*shape));
    if (!link.empty()) document_.endLink();
  }
}

void DrawnBoxes::drawBox(const KYRProjection& shape, const DrawnBox& box) {
  const SvgDocument::Pen pen = {shape.lineColor, shape.lineWidth};
  document_.rectangle(box, pen, shape.backgroundColor);
  document_.beginClip(box);
  const double size = fontSizeOf(shape);
  double y = box.top + padding;
  bool isFirst = true;
  for (const Compartment& lines : compartmentsOf(*shape.subject, shape.displayFlags)) {
    if (lines.empty() || y > box.bottom) continue;
    if (!isFirst) {
      document_.path({{box.left, y}, {box.right, y}}, pen);
      y += padding;
    }
    isFirst = false;
    for (const Line& line : lines) {
      // Half a line is worse than none, but a box has its name.
      if (y + size > box.bottom && !line.isName) break;
      SvgDocument::Font font = {shape.fontName.view(), size, shape.fontColor};
      font.isBold = shape.isBold || (line.isName && &line == &lines.back());
      font.isItalic = shape.isItalic || line.isItalic;
      font.isUnderlined = line.isUnderlined;
      // What is too long starts at the left, so that its beginning can be read.
      const bool isCentred = line.isName && SvgDocument::widthOf(line.text, size) < box.width() - 2 * padding;
      const double x = isCentred ? box.centre().x : box.left + padding;
      document_.text({x, y + size}, line.text, font,
                     isCentred ? SvgDocument::Anchor::middle : SvgDocument::Anchor::start);
      y += size * lineSpacing;
    }
    y += padding;
  }
  document_.endClip();
}
