// Points and boxes of a picture. Numbers are double, so that no place in a model overflows.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

struct DrawnPoint {
  double x = 0;
  double y = 0;
};

inline DrawnPoint operator+(DrawnPoint first, DrawnPoint second) {
  return {first.x + second.x, first.y + second.y};
}
inline DrawnPoint operator-(DrawnPoint first, DrawnPoint second) {
  return {first.x - second.x, first.y - second.y};
}
inline DrawnPoint operator*(DrawnPoint point, double factor) { return {point.x * factor, point.y * factor}; }

inline double lengthOf(DrawnPoint vector) { return std::hypot(vector.x, vector.y); }
/// The vector at length 1; downwards for one of length 0.
inline DrawnPoint directionOf(DrawnPoint vector) {
  const double length = lengthOf(vector);
  return length > 0 ? vector * (1 / length) : DrawnPoint{0, 1};
}

using DrawnPath = std::vector<DrawnPoint>;

struct DrawnBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  double width() const { return right - left; }
  double height() const { return bottom - top; }
  DrawnPoint centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
  bool contains(DrawnPoint point) const {
    return point.x > left && point.x < right && point.y > top && point.y < bottom;
  }
  /// The nearest point of the box.
  DrawnPoint nearest(DrawnPoint point) const {
    return {std::clamp(point.x, left, right), std::clamp(point.y, top, bottom)};
  }
  /// Where the way from the centre to a point outside leaves the box.
  DrawnPoint borderTowards(DrawnPoint point) const {
    const DrawnPoint way = point - centre();
    const double horizontal = way.x == 0 ? 1 : width() / 2 / std::fabs(way.x);
    const double vertical = way.y == 0 ? 1 : height() / 2 / std::fabs(way.y);
    return centre() + way * std::min({horizontal, vertical, 1.0});
  }
};

/// Makes the last point lie on the border of the box: a point inside is taken back along the path, one a
/// little outside is moved, and a path that ends elsewhere is led on to the box.
inline void attachEnd(DrawnPath& path, const DrawnBox& box) {
  constexpr double tolerance = 12;
  while (path.size() > 2 && box.contains(path.back()) && box.contains(path[path.size() - 2])) path.pop_back();
  DrawnPoint& last = path.back();
  if (box.contains(last)) {
    if (path.size() < 2 || box.contains(path[path.size() - 2])) return;
    // Halving finds the border well enough: far below the width of a line.
    constexpr int halvings = 40;
    DrawnPoint outside = path[path.size() - 2];
    for (int i = 0; i < halvings; ++i) {
      const DrawnPoint middle = (outside + last) * 0.5;
      (box.contains(middle) ? last : outside) = middle;
    }
    return;
  }
  const DrawnPoint onBox = box.nearest(last);
  const double distance = lengthOf(onBox - last);
  if (distance == 0) return;
  if (distance < tolerance && path.size() > 1) {
    last = onBox;
  } else {
    path.push_back(onBox);
  }
}
