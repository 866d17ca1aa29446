// Point2DVector: the points of a line, and the text in which a diagram stores them.
#pragma once

#include <vector>

#include "foundation/KYRString.h"
#include "repository/bridgelib/Point2D.h"

class KYR_EXPORT Point2DVector {
 public:
  void addPoint(const Point2D& point) { points_.push_back(point); }
  int getSize() const noexcept { return static_cast<int>(points_.size()); }
  bool empty() const noexcept { return points_.empty(); }
  /// The point at a position from 0, which must be below the size.
  const Point2D& operator[](int index) const { return points_[static_cast<std::size_t>(index)]; }
  Point2D& operator[](int index) { return points_[static_cast<std::size_t>(index)]; }

  /// The stored text: "x,y" for each point in decimal, joined by ";", such as "10,20;-3,4". The empty
  /// text stands for no points.
  KYRString encodeKYRLinePoints() const;
  /// The points of a stored text. False when it is not one that `encodeKYRLinePoints` can have
  /// written; `points` is then untouched.
  static bool decodeKYRLinePoints(const KYRString& text, Point2DVector& points);

 private:
  std::vector<Point2D> points_;
};
