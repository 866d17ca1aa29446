// The boxes of a diagram.
#pragma once

#include <unordered_map>
#include <vector>

#include "repository/drawing/ClassDiagramDrawing.h"
#include "repository/drawing/SvgDocument.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRProjection.h"

class DrawnBoxes {
 public:
  DrawnBoxes(SvgDocument& document, const KYRClassDiagram& diagram, const DrawnLinks& links);
  void draw();
  /// The first box of the object; null when there is none.
  const DrawnBox* find(const KYRModelObject* object) const;
  /// All boxes, those too that show an object another time.
  const std::vector<DrawnBox>& all() const { return all_; }

 private:
  void drawBox(const KYRProjection& shape, const DrawnBox& box);

  SvgDocument& document_;
  const KYRClassDiagram& diagram_;
  const DrawnLinks& links_;
  std::vector<DrawnBox> all_;
  std::unordered_map<const KYRModelObject*, DrawnBox> boxes_;
};

/// The size of the letters: that of the shape, in a range that can be read.
double fontSizeOf(const KYRPresentationElement& shape);
