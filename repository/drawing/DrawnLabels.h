// DrawnLabels: the texts beside lines, each at the place where it covers least.
//
// A label comes with the places it can take, the best first. All boxes and lines are known before the
// first label is placed, and each label that has its place is in the way of the later ones. So the same
// picture gives the same places, whatever else is drawn.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "repository/drawing/SvgDocument.h"

class KYR_EXPORT DrawnLabels {
 public:
  /// The start, the middle or the end of a base line, as the anchor says.
  struct Place {
    DrawnPoint point;
    SvgDocument::Anchor anchor = SvgDocument::Anchor::start;
  };
  using Places = std::vector<Place>;
  /// On which side of its line a label is put if there is room: `first` is above or to the right.
  enum class Side { first, second };

  /// What labels keep away from.
  void avoid(const DrawnBox& box) { boxes_.push_back(box); }
  void avoid(const DrawnPath& path);
  /// `places` must not be empty. The name of the font is borrowed until `draw`.
  void add(std::string text, const SvgDocument::Font& font, Places places);
  void draw(SvgDocument& document);
  /// Boxes and lines looked at so far. When there have been too many the rest of the labels take their
  /// first place, so that the cost of a picture is bounded.
  std::uint64_t getComparisonCount() const noexcept { return comparisons_; }

  /// Places for a label at the end of a path of at least two points, where it meets a box.
  static Places atEnd(const DrawnPath& path, Side side, double fontSize);
  /// Places for a label of a whole line, which is cut into `halves` that run outward from its middle.
  static Places along(const std::vector<DrawnPath>& halves, double fontSize);

 private:
  struct Label {
    std::string text;
    SvgDocument::Font font;
    Places places;
  };
  struct Segment {
    DrawnPoint from;
    DrawnPoint to;
  };

  const Place& choose(const Label& label);
  double coverOf(const DrawnBox& area, double fontSize);

  std::vector<Label> labels_;
  std::vector<DrawnBox> boxes_;
  std::vector<Segment> segments_;
  std::uint64_t comparisons_ = 0;
};
