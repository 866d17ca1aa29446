// Numbers and points of a diagram: read from texts, scaled to repository units, cut in halves.
//
// Numbers of a file can be anything, so everything here saturates at the limits of int.
#pragma once

#include <cstdint>
#include <string_view>

#include "repository/bridgelib/Point2DVector.h"

// Repository units for one unit of a file.
constexpr double horizontalScale = 1.3;
constexpr double verticalScale = 1.15;

constexpr int fewestLinePoints = 2;

/// The number cut off toward zero, within the limits of int.
int saturate(double number) noexcept;
int saturate(std::int64_t number) noexcept;

inline int scaleX(int number) noexcept { return saturate(number * horizontalScale); }
inline int scaleY(int number) noexcept { return saturate(number * verticalScale); }
inline int unscaleX(int number) noexcept { return saturate(number / horizontalScale); }
inline int unscaleY(int number) noexcept { return saturate(number / verticalScale); }
inline int sum(int first, int second) noexcept { return saturate(std::int64_t{first} + second); }

/// Reads as many of the numbers of "1, 2, 3" as stand there: white space may stand before a number, but
/// none before a comma. The others stay as they are. Returns how many were read.
int scanNumbers(std::string_view text, int* numbers, int count) noexcept;

/// A line of at least two points, cut at its middle, which belongs to both halves.
struct LineHalves {
  Point2DVector first;
  Point2DVector second;
  Point2D middle;
};
enum class HalfDirection { fileOrder, outward };
/// With `outward` the first half runs from the middle to the first point, else the other way. The
/// second half runs from the middle to the last point.
LineHalves splitLine(const Point2DVector& points, HalfDirection direction);
