// What a label covers is measured as an area: where it lies on a box or on another label, and a strip for
// each line that crosses it. A later place has to make up for being a worse one.
#include "repository/drawing/DrawnLabels.h"

#include <limits>
#include <numeric>

namespace {

constexpr double gapToBox = 4;
constexpr double gapToLine = 4;
constexpr double endMarkHalf = 4.5;  // half the width of a diamond, which labels at an end clear
// Shares of the size of a font, above and below the base line.
constexpr double ascent = 0.75;
constexpr double descent = 0.22;
constexpr double lineSpacing = 1.25;
constexpr double margin = 1;  // texts that touch cannot be read
constexpr double costOfALaterPlace = 2;
constexpr std::uint64_t mostComparisons = 20'000'000;

DrawnBox areaOf(const DrawnLabels::Place& place, double width, double fontSize) {
  double left = place.point.x;
  if (place.anchor == SvgDocument::Anchor::middle) left -= width / 2;
  if (place.anchor == SvgDocument::Anchor::end) left -= width;
  return {left - margin, place.point.y - fontSize * ascent - margin, left + width + margin,
          place.point.y + fontSize * descent + margin};
}

double overlap(const DrawnBox& first, const DrawnBox& second) {
  const double width = std::min(first.right, second.right) - std::max(first.left, second.left);
  const double height = std::min(first.bottom, second.bottom) - std::max(first.top, second.top);
  return width > 0 && height > 0 ? width * height : 0;
}

// Narrows the part of a line, from `start` to `end` of its length, to what lies between two limits.
void clip(double from, double way, double low, double high, double& start, double& end) {
  if (way == 0) {
    if (from <= low || from >= high) end = start;
    return;
  }
  const double first = (low - from) / way;
  const double second = (high - from) / way;
  start = std::max(start, std::min(first, second));
  end = std::min(end, std::max(first, second));
}

double lengthInside(const DrawnBox& area, DrawnPoint from, DrawnPoint to) {
  const DrawnPoint way = to - from;
  double start = 0;
  double end = 1;
  clip(from.x, way.x, area.left, area.right, start, end);
  clip(from.y, way.y, area.top, area.bottom, start, end);
  return end > start ? (end - start) * lengthOf(way) : 0;
}

bool isMostlyHorizontal(DrawnPoint way) { return std::fabs(way.x) > std::fabs(way.y); }

DrawnLabels::Place besideEnd(DrawnPoint end, DrawnPoint way, bool isFirstSide, int row, double fontSize) {
  const double shift = row * fontSize * lineSpacing;
  if (isMostlyHorizontal(way)) {
    const double y = isFirstSide ? end.y - endMarkHalf - 2 - shift : end.y + endMarkHalf + fontSize + shift;
    if (way.x > 0) return {{end.x - gapToBox, y}, SvgDocument::Anchor::end};
    return {{end.x + gapToBox, y}, SvgDocument::Anchor::start};
  }
  const double gap = endMarkHalf + gapToLine;
  const double y = way.y > 0 ? end.y - gapToBox - shift : end.y + fontSize + gapToBox + shift;
  if (isFirstSide) return {{end.x + gap, y}, SvgDocument::Anchor::start};
  return {{end.x - gap, y}, SvgDocument::Anchor::end};
}

// Both sides of a point of a line.
void addBeside(DrawnLabels::Places& places, DrawnPoint point, DrawnPoint way, double fontSize) {
  if (isMostlyHorizontal(way)) {
    places.push_back({{point.x, point.y - gapToLine}, SvgDocument::Anchor::middle});
    places.push_back({{point.x, point.y + fontSize + gapToLine / 2}, SvgDocument::Anchor::middle});
  } else {
    const double y = point.y + fontSize * (ascent - descent) / 2;
    places.push_back({{point.x + gapToLine, y}, SvgDocument::Anchor::start});
    places.push_back({{point.x - gapToLine, y}, SvgDocument::Anchor::end});
  }
}

// The line from one end to the other. The halves begin at the same point.
DrawnPath joined(const std::vector<DrawnPath>& halves) {
  DrawnPath path;
  if (halves.empty()) return path;
  path.assign(halves.front().rbegin(), halves.front().rend());
  if (halves.size() > 1 && !halves[1].empty()) {
    path.insert(path.end(), path.empty() ? halves[1].begin() : halves[1].begin() + 1, halves[1].end());
  }
  return path;
}

// The ends of the longest segments, the longest first.
std::vector<std::size_t> longestSegments(const DrawnPath& path) {
  constexpr std::size_t most = 3;
  std::vector<std::size_t> ends(path.size() - 1);
  std::iota(ends.begin(), ends.end(), std::size_t{1});
  const auto lengthTo = [&path](std::size_t end) { return lengthOf(path[end] - path[end - 1]); };
  const auto last = ends.begin() + static_cast<std::ptrdiff_t>(std::min(most, ends.size()));
  std::partial_sort(ends.begin(), last, ends.end(), [&](std::size_t first, std::size_t second) {
    const double difference = lengthTo(first) - lengthTo(second);
    return difference == 0 ? first < second : difference > 0;
  });
  ends.erase(last, ends.end());
  return ends;
}

}  // namespace

DrawnLabels::Places DrawnLabels::atEnd(const DrawnPath& path, Side side, double fontSize) {
  constexpr int steps = 5;
  constexpr int rows = 2;
  const DrawnPoint way = directionOf(path.back() - path[path.size() - 2]);
  const double step = fontSize * (isMostlyHorizontal(way) ? 2 : lineSpacing);
  Places places;
  for (int i = 0; i < steps; ++i) {
    const DrawnPoint end = path.back() - way * (i * step);
    for (int row = 0; row < rows; ++row) {
      for (const Side tried : {side, side == Side::first ? Side::second : Side::first}) {
        places.push_back(besideEnd(end, way, tried == Side::first, row, fontSize));
      }
    }
  }
  return places;
}

DrawnLabels::Places DrawnLabels::along(const std::vector<DrawnPath>& halves, double fontSize) {
  const DrawnPath path = joined(halves);
  Places places;
  if (path.size() < 2) {
    addBeside(places, path.empty() ? DrawnPoint() : path.front(), {1, 0}, fontSize);
    return places;
  }
  // At a corner a text would lie on one of the lines that meet there.
  const std::size_t middle = halves.front().size() - 1;
  if (middle > 0 && middle + 1 < path.size()) {
    const DrawnPoint before = directionOf(path[middle] - path[middle - 1]);
    const DrawnPoint after = directionOf(path[middle + 1] - path[middle]);
    constexpr double nearlyStraight = 0.1;
    if (lengthOf(after - before) < nearlyStraight) addBeside(places, path[middle], after, fontSize);
  }
  for (const std::size_t end : longestSegments(path)) {
    const DrawnPoint whole = path[end] - path[end - 1];
    for (const double share : {0.5, 0.35, 0.65, 0.2, 0.8}) {
      addBeside(places, path[end - 1] + whole * share, whole, fontSize);
    }
  }
  return places;
}

void DrawnLabels::avoid(const DrawnPath& path) {
  for (std::size_t i = 1; i < path.size(); ++i) segments_.push_back({path[i - 1], path[i]});
}

void DrawnLabels::add(std::string text, const SvgDocument::Font& font, Places places) {
  labels_.push_back({std::move(text), font, std::move(places)});
}

void DrawnLabels::draw(SvgDocument& document) {
  for (const Label& label : labels_) {
    const Place& place = choose(label);
    document.text(place.point, label.text, label.font, place.anchor);
    avoid(areaOf(place, SvgDocument::widthOf(label.text, label.font.size), label.font.size));
  }
}

const DrawnLabels::Place& DrawnLabels::choose(const Label& label) {
  const double width = SvgDocument::widthOf(label.text, label.font.size);
  const Place* best = &label.places.front();
  double bestCost = std::numeric_limits<double>::max();
  double placeCost = 0;
  for (const Place& place : label.places) {
    if (placeCost >= bestCost || comparisons_ > mostComparisons) break;
    const double cost = placeCost + coverOf(areaOf(place, width, label.font.size), label.font.size);
    if (cost < bestCost) {
      best = &place;
      bestCost = cost;
    }
    placeCost += costOfALaterPlace;
  }
  return *best;
}

double DrawnLabels::coverOf(const DrawnBox& area, double fontSize) {
  comparisons_ += boxes_.size() + segments_.size();
  double cover = 0;
  for (const DrawnBox& box : boxes_) cover += overlap(area, box);
  for (const Segment& segment : segments_)
    cover += lengthInside(area, segment.from, segment.to) * fontSize / 2;
  return cover;
}
