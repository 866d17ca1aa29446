// The format, a line of words for each thing, with lengths in inches from the lower left corner:
//
//   graph SCALE WIDTH HEIGHT
//   node NAME X Y WIDTH HEIGHT ...
//   edge FIRST SECOND COUNT X Y ... [LABEL X Y] STYLE COLOUR
//   stop
#include "report/GraphvizAnswer.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr double pointsOfInch = 72;
constexpr double largest = 100000;  // points; no picture of so few boxes comes near
constexpr std::size_t mostPoints = 400;
constexpr double straight = 1.0;  // points that a curve may leave the straight way and count as straight

int rounded(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

class GraphvizAnswer::Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}
  std::string_view next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
    const std::string_view word = rest_.substr(0, rest_.find(' '));
    rest_.remove_prefix(word.size());
    return word;
  }
  bool isEnd() const { return rest_.find_first_not_of(' ') == std::string_view::npos; }
  bool index(std::size_t count, std::size_t& value) {
    const std::string_view word = next();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() && value < count;
  }
  bool length(double& value) {
    const std::string_view word = next();
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    value *= pointsOfInch;
    return error == std::errc() && end == word.data() + word.size() && std::fabs(value) < largest;
  }
  bool point(Point& value) { return length(value.x) && length(value.y); }

 private:
  std::string_view rest_;
};

GraphvizAnswer::GraphvizAnswer(const Neighbourhood& neighbourhood)
    : neighbourhood_(neighbourhood),
      boxes_(neighbourhood.boxes.size()),
      isBoxTold_(neighbourhood.boxes.size()),
      lines_(neighbourhood.lines.size()) {}

GraphvizAnswer::State GraphvizAnswer::take(std::string_view line) {
  Words words(line);
  const std::string_view kind = words.next();
  const bool isRight = state_ == State::wanting && (kind == "graph"  ? takeGraph(words)
                                                    : kind == "node" ? takeNode(words)
                                                    : kind == "edge" ? takeEdge(words)
                                                                     : kind == "stop" && isComplete());
  if (!isRight) return state_ = State::wrong;
  return state_ = kind == "stop" ? State::complete : State::wanting;
}

bool GraphvizAnswer::takeGraph(Words& words) {
  double scale = 0;
  return height_ == 0 && words.length(scale) && scale == pointsOfInch && words.length(width_) &&
         words.length(height_) && width_ > 0 && height_ > 0;
}

bool GraphvizAnswer::takeNode(Words& words) {
  std::size_t index = 0;
  Point point;
  if (height_ == 0 || !words.index(boxes_.size(), index) || isBoxTold_[index] || !words.point(point))
    return false;
  isBoxTold_[index] = true;
  boxes_[index] = placed(point);
  return true;
}

bool GraphvizAnswer::takeEdge(Words& words) {
  std::size_t first = 0;
  std::size_t second = 0;
  std::size_t count = 0;
  if (height_ == 0 || !words.index(boxes_.size(), first) || !words.index(boxes_.size(), second)) return false;
  if (!words.index(mostPoints, count) || count < 4 || count % 3 != 1) return false;
  PlacedLine line;
  line.isTold = true;
  for (; count > 0; --count) {
    Point point;
    if (!words.point(point)) return false;
    line.points.push_back(placed(point));
  }
  // Two words are left when there is no label.
  std::string_view word = words.next();
  const std::string_view style = words.next();
  const bool hasText = !words.isEnd();
  if (hasText) {
    Words place(style);
    Point point;
    if (!place.length(point.x) || !words.length(point.y)) return false;
    line.text = placed(point);
    words.next();
    word = words.next();
  } else {
    word = style;
  }
  std::size_t index = 0;
  if (!Words(word).index(lines_.size(), index) || lines_[index].isTold || !words.isEnd()) return false;
  const Neighbourhood::Line& asked = neighbourhood_.lines[index];
  if (asked.first != first || asked.second != second || hasText != (asked.textWidth > 0)) return false;
  lines_[index] = std::move(line);
  return true;
}

bool GraphvizAnswer::isComplete() const {
  return height_ > 0 && std::find(isBoxTold_.begin(), isBoxTold_.end(), false) == isBoxTold_.end() &&
         std::all_of(lines_.begin(), lines_.end(), [](const PlacedLine& line) { return line.isTold; });
}

namespace {

// Whether all points lie beside the way from the first to the last; those of curves never lead back.
template <class Points>
bool isStraight(const Points& points) {
  const auto& from = points.front();
  const double x = points.back().x - from.x;
  const double y = points.back().y - from.y;
  const double length = std::hypot(x, y);
  return length > straight && std::all_of(points.begin(), points.end(), [&](const auto& point) {
           const double beside = (point.x - from.x) * y - (point.y - from.y) * x;
           const double along = (point.x - from.x) * x + (point.y - from.y) * y;
           return std::fabs(beside) <= straight * length && along >= 0 && along <= length * length;
         });
}

}  // namespace

std::string GraphvizAnswer::pack() const {
  PackedNumbers numbers;
  numbers.add(rounded(width_));
  numbers.add(rounded(height_));
  numbers.add(neighbourhood_.isUpright ? 1 : 0);
  packBoxes(numbers);
  numbers.add(static_cast<std::int64_t>(lines_.size()));
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    packTie(neighbourhood_.lines[i], lines_[i], numbers);
    packPath(lines_[i], numbers);
  }
  return numbers.getText();
}

void GraphvizAnswer::packBoxes(PackedNumbers& numbers) const {
  numbers.add(neighbourhood_.boxes.front().height);  // all others have the same
  numbers.add(static_cast<std::int64_t>(boxes_.size()));
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    const Neighbourhood::Box& box = neighbourhood_.boxes[i];
    numbers.addStep(box.id);
    numbers.add(rounded(boxes_[i].x - box.width / 2.0));
    numbers.add(rounded(boxes_[i].y - box.height / 2.0));
    numbers.add(box.width);
  }
}

void GraphvizAnswer::packTie(const Neighbourhood::Line& line, const PlacedLine& place,
                             PackedNumbers& numbers) {
  numbers.add(static_cast<int>(line.tie));
  if (line.tie != Neighbourhood::Tie::association) return;
  numbers.addStep(line.firstRole);
  numbers.addStep(line.secondRole);
  numbers.add(line.textWidth);
  if (line.textWidth == 0) return;
  numbers.add(rounded(place.text.x));
  numbers.add(rounded(place.text.y));
}

// The number of curves, none for a straight line, and the way from point to point.
void GraphvizAnswer::packPath(const PlacedLine& line, PackedNumbers& numbers) {
  const bool isLine = isStraight(line.points);
  numbers.add(isLine ? 0 : static_cast<std::int64_t>(line.points.size() / 3));
  int x = 0;
  int y = 0;
  for (std::size_t i = 0; i < line.points.size(); i += isLine ? line.points.size() - 1 : 1) {
    const int nextX = rounded(line.points[i].x);
    const int nextY = rounded(line.points[i].y);
    numbers.add(nextX - x);
    numbers.add(nextY - y);
    x = nextX;
    y = nextY;
  }
}
