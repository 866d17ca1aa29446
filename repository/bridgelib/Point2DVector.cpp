// The stored text of a line, written and read.
#include "repository/bridgelib/Point2DVector.h"

#include <charconv>
#include <string>

namespace {

// Takes a number off the front of `text`: decimal, without sign but "-", as std::to_string writes it.
bool takeNumber(std::string_view& text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return false;
  const auto length = static_cast<std::size_t>(end - text.data());
  if (text.substr(0, length) != std::to_string(number)) return false;
  text.remove_prefix(length);
  return true;
}

bool takeCharacter(std::string_view& text, char character) {
  if (text.empty() || text.front() != character) return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

KYRString Point2DVector::encodeKYRLinePoints() const {
  std::string text;
  for (const Point2D& point : points_) {
    if (!text.empty()) text += ';';
    text += std::to_string(point.x) + ',' + std::to_string(point.y);
  }
  return KYRString(std::string_view(text));
}

bool Point2DVector::decodeKYRLinePoints(const KYRString& text, Point2DVector& points) {
  Point2DVector result;
  std::string_view rest = text.view();
  while (!rest.empty()) {
    Point2D point;
    if (!result.empty() && !takeCharacter(rest, ';')) return false;
    if (!takeNumber(rest, point.x) || !takeCharacter(rest, ',') || !takeNumber(rest, point.y)) return false;
    result.addPoint(point);
  }
  points = std::move(result);
  return true;
}
