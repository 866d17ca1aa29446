// Texts, scales and halves of lines.
#include "diagram/DiagramGeometry.h"

#include <limits>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/ShapeParts.h"

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

// As the C locale has it.
constexpr bool isSpace(char character) noexcept {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

constexpr bool isDigit(char character) noexcept { return character >= '0' && character <= '9'; }

void skipSpace(std::string_view& text) noexcept {
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
}

bool takeNumber(std::string_view& text, int& number) noexcept {
  skipSpace(text);
  std::size_t length = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
  if (length == text.size() || !isDigit(text[length])) return false;
  while (length < text.size() && isDigit(text[length])) ++length;
  number = parseInt(text.substr(0, length));
  text.remove_prefix(length);
  return true;
}

Point2D scaledPoint(std::string_view text) noexcept {
  int numbers[2] = {};
  scanNumbers(text, numbers, 2);
  return {scaleX(numbers[0]), scaleY(numbers[1])};
}

int half(int first, int second) noexcept { return sum(first, second) / 2; }

}  // namespace

int saturate(double number) noexcept {
  if (number >= largest) return largest;
  if (number <= smallest) return smallest;
  return static_cast<int>(number);
}

int saturate(std::int64_t number) noexcept {
  if (number >= largest) return largest;
  if (number <= smallest) return smallest;
  return static_cast<int>(number);
}

int scanNumbers(std::string_view text, int* numbers, int count) noexcept {
  int read = 0;
  while (read < count) {
    if (read > 0) {
      if (text.empty() || text.front() != ',') break;
      text.remove_prefix(1);
    }
    if (!takeNumber(text, numbers[read])) break;
    ++read;
  }
  return read;
}

LineHalves splitLine(const Point2DVector& points, HalfDirection direction) {
  LineHalves halves;
  const int count = points.getSize();
  const int centre = count / 2;
  const bool isBetweenPoints = count % 2 == 0;
  halves.middle = points[centre];
  if (isBetweenPoints) {
    const Point2D& before = points[centre - 1];
    halves.middle = {half(before.x, halves.middle.x), half(before.y, halves.middle.y)};
  }
  if (direction == HalfDirection::outward) {
    halves.first.addPoint(halves.middle);
    for (int i = centre - 1; i >= 0; --i) halves.first.addPoint(points[i]);
  } else {
    for (int i = 0; i < centre; ++i) halves.first.addPoint(points[i]);
    halves.first.addPoint(halves.middle);
  }
  halves.second.addPoint(halves.middle);
  for (int i = isBetweenPoints ? centre : centre + 1; i < count; ++i) halves.second.addPoint(points[i]);
  return halves;
}

bool KYROmgUml2XmiImportBridge::readGeometry(const KYRDOMElement* element, int& x, int& y, int& w, int& h) {
  constexpr int boxNumbers = 4;
  int numbers[boxNumbers] = {};
  const bool isBox = scanNumbers(shapeText(element, "geometry").view(), numbers, boxNumbers) == boxNumbers;
  x = isBox ? numbers[0] : 0;
  y = isBox ? numbers[1] : 0;
  w = isBox ? numbers[2] : 0;
  h = isBox ? numbers[3] : 0;
  return isBox;
}

Point2D KYROmgUml2XmiImportBridge::parsePoint(const KYRString& text) { return scaledPoint(text.view()); }

// Every point is closed by a ";": what stands behind the last one is no point.
void KYROmgUml2XmiImportBridge::parsePoints(const KYRString& text, Point2DVector& points) {
  std::string_view rest = text.view();
  for (std::size_t end = rest.find(';'); end != std::string_view::npos; end = rest.find(';')) {
    points.addPoint(scaledPoint(rest.substr(0, end)));
    rest.remove_prefix(end + 1);
  }
}
