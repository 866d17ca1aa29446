// SvgDocument: an SVG document on its way, element by element.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Export.h"
#include "repository/drawing/DrawingGeometry.h"

/// Colours are 0x00BBGGRR. What is drawn decides how large the picture is.
class KYR_EXPORT SvgDocument {
 public:
  struct Pen {
    std::int32_t color = 0;
    std::int32_t width = 0;  // brought into a range that can be seen
    bool isDashed = false;
  };
  struct Font {
    std::string_view family;
    double size = 0;
    std::int32_t color = 0;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
  };
  enum class Anchor { start, middle, end };

  void rectangle(const DrawnBox& box, const Pen& pen, std::int32_t fill);
  void path(const DrawnPath& points, const Pen& pen);
  void polygon(const DrawnPath& points, const Pen& pen, std::int32_t fill);
  /// The point is on the base line. Characters that XML cannot hold are replaced.
  void text(DrawnPoint point, std::string_view content, const Font& font, Anchor anchor);
  /// Until `endClip` nothing outside the box can be seen. Not to be nested.
  void beginClip(const DrawnBox& box);
  void endClip();
  /// Until `endLink` what is drawn leads to the address. Not to be nested.
  void beginLink(std::string_view address);
  void endLink();
  /// The whole document. The object is not to be used any more.
  std::string finish(std::string_view title);

  /// About how wide the text is; the fonts are not known here.
  static double widthOf(std::string_view content, double size);

 private:
  void include(DrawnPoint point);
  void appendPen(const Pen& pen);
  void appendPoints(const DrawnPath& points);

  std::string body_;
  unsigned int clipCount_ = 0;
  bool isClipping_ = false;
  bool isEmpty_ = true;
  bool hasLinks_ = false;
  DrawnBox bounds_;
};
