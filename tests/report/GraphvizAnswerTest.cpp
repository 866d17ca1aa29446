// What Graphviz says is taken when it is the whole answer to what was asked, and nothing else is.
#include "report/GraphvizAnswer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/report/PictureReader.h"

namespace {

using State = GraphvizAnswer::State;

// Two boxes, a line without a text and one with.
Neighbourhood asked() {
  Neighbourhood neighbourhood;
  neighbourhood.boxes = {{10, 72, 36}, {7, 144, 36}};
  neighbourhood.lines = {{Neighbourhood::Tie::generalization, 1, 0, 0, 0, 0},
                         {Neighbourhood::Tie::association, 0, 1, 20, 21, 80}};
  return neighbourhood;
}

const std::vector<std::string> good = {
    "graph 1 10 5",
    "node 0 1 4 1 0.5 \"\" solid box black lightgrey",
    "node 1 5 2.5 2 0.5 \"\" solid box black lightgrey",
    "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 solid 0",
    "edge 0 1 4 1 4 1 3 2 2 4 2 <TABLE> 2 1.5 solid 1",
    "stop",
};

State tell(const std::vector<std::string>& lines) {
  const Neighbourhood neighbourhood = asked();
  GraphvizAnswer answer(neighbourhood);
  State state = State::wanting;
  for (const std::string& line : lines) {
    state = answer.take(line);
    if (state == State::wrong) break;
  }
  return state;
}

std::vector<std::string> with(std::size_t index, const std::string& line) {
  std::vector<std::string> lines = good;
  lines[index] = line;
  return lines;
}

}  // namespace

TEST(GraphvizAnswer, AWholeAnswerIsAPicture) {
  const Neighbourhood neighbourhood = asked();
  GraphvizAnswer answer(neighbourhood);
  for (const std::string& line : good) {
    EXPECT_EQ(answer.take(line), line == "stop" ? State::complete : State::wanting) << line;
  }
  EXPECT_THAT(numbersIn(answer.pack()),
              testing::ElementsAre(720, 360, 0, 36, 2,                  // size, direction, own height, boxes
                                   10, 36, 54, 72, -3, 288, 162, 144,   // step of id, left, top, width
                                   2, 1, 0, 288, 180, -216, 0,          // a straight generalization
                                   0, 13, 1, 80, 144, 252,              // an association, its roles and text
                                   1, 72, 72, 0, 72, 72, 72, 144, 0));  // one curve
}

TEST(GraphvizAnswer, NothingCountsBehindTheEnd) {
  std::vector<std::string> lines = good;
  lines.push_back("graph 1 10 5");
  EXPECT_EQ(tell(lines), State::wrong);
}

TEST(GraphvizAnswer, AnIncompleteAnswerIsWrong) {
  for (std::size_t i = 0; i + 1 < good.size(); ++i) {
    std::vector<std::string> lines = good;
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(tell(lines), State::wrong) << good[i];
    lines = good;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(i), good[i]);
    EXPECT_EQ(tell(lines), State::wrong) << "twice: " << good[i];
  }
}

TEST(GraphvizAnswer, OddLinesAreWrong) {
  const std::pair<std::size_t, const char*> rows[] = {
      {0, ""},
      {0, "hello"},
      {0, "graph 2 10 5"},
      {0, "graph 1 nan 5"},
      {0, "graph 1 inf 5"},
      {0, "graph 1 10 0"},
      {0, "graph 1 -10 5"},
      {0, "graph 1 1e300 5"},
      {0, "graph 1 10"},
      {1, "node 2 1 4 1 0.5"},
      {1, "node -1 1 4 1 0.5"},
      {1, "node x 1 4 1 0.5"},
      {1, "node 0 1 4,5"},
      {1, "node 0 1"},
      {1, "node 99999999999999999999999 1 4"},
      {3, "edge 0 1 4 4 2.5 3 2.5 2 2.5 1 2.5 solid 0"},
      {3, "edge 1 0 5 4 2.5 3 2.5 2 2.5 1 2.5 1 1 solid 0"},
      {3, "edge 1 0 1 4 2.5 solid 0"},
      {3, "edge 1 0 400000001 4 2.5 solid 0"},
      {3, "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 solid 2"},
      {3, "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 solid 1"},
      {3, "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 solid black"},
      {3, "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 solid"},
      {3, "edge 1 0 4 4 2.5 3 2.5 2 2.5 1 2.5 <TABLE> 1 2 solid 0"},
      {4, "edge 0 1 4 1 4 1 3 2 2 4 2 solid 1"},
      {4, "edge 0 1 4 1 4 1 3 2 2 4 2 <TABLE> 2 x solid 1"},
      {4, "edge 0 1 4 1 4 1 3 2 2 4 2 <TABLE> 2 1.5 solid 1 more"},
  };
  for (const auto& [index, line] : rows) EXPECT_EQ(tell(with(index, line)), State::wrong) << line;
}

TEST(GraphvizAnswer, NoBeginningOfALineIsTakenForTheWholeOfIt) {
  for (std::size_t i = 0; i < good.size(); ++i) {
    // Of boxes only what is needed is read; numbers may be cut short and still be numbers.
    if (good[i].starts_with("node") || good[i].starts_with("graph")) continue;
    for (std::size_t length = 0; length < good[i].size(); ++length) {
      EXPECT_EQ(tell(with(i, good[i].substr(0, length))), State::wrong) << good[i].substr(0, length);
    }
  }
}
