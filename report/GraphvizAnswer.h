// GraphvizAnswer: reads what Graphviz says of one graph, in its format "plain".
//
// Another program has written it, so nothing is taken on trust: each box and each line must be told exactly
// once, with places that a picture can have.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/Neighbourhood.h"
#include "report/PackedNumbers.h"

class GraphvizAnswer {
 public:
  enum class State { wanting, complete, wrong };

  explicit GraphvizAnswer(const Neighbourhood& neighbourhood);
  /// Takes the next line, without its end. What comes after the last one is wrong.
  State take(std::string_view line);
  /// The picture, once the answer is complete: the places of boxes and lines as PackedNumbers.
  std::string pack() const;

 private:
  struct Point {
    double x = 0;
    double y = 0;
  };
  struct PlacedLine {
    bool isTold = false;
    std::vector<Point> points;  // a start, and three for each Bezier curve
    Point text;                 // the middle
  };
  class Words;

  bool takeGraph(Words& words);
  bool takeNode(Words& words);
  bool takeEdge(Words& words);
  bool isComplete() const;
  void packBoxes(PackedNumbers& numbers) const;
  static void packTie(const Neighbourhood::Line& line, const PlacedLine& place, PackedNumbers& numbers);
  static void packPath(const PlacedLine& line, PackedNumbers& numbers);
  Point placed(Point point) const { return {point.x, height_ - point.y}; }

  const Neighbourhood& neighbourhood_;
  State state_ = State::wanting;
  double width_ = 0;
  double height_ = 0;         // 0 until told
  std::vector<Point> boxes_;  // the middles
  std::vector<bool> isBoxTold_;
  std::vector<PlacedLine> lines_;
};
