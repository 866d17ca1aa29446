// Neighbourhood: a class and what it is tied to, as boxes and lines that have sizes and no places yet.
//
// Every tied class is one box, however many ties there are; every tie is a line. A line leads from the box
// that is to stand further left (or up) to the other one: from the supertype to the subtype, from the client
// to the supplier, from the first end of an association to another. What is drawn is a part when there is
// much: so many boxes a side, so many lines, and of a class that half the model is tied to not all is even
// looked at.
#pragma once

#include <cstddef>
#include <vector>

#include "repository/model/KYRClass.h"
#include "repository/storage/StoredNumbers.h"

struct Neighbourhood {
  enum class Tie { association, generalization, realization, dependency };

  struct Box {
    unsigned int id = 0;  // of the class
    int width = 0;        // pixels, as all lengths here
    int height = 0;
  };
  struct Line {
    Tie tie = Tie::association;
    unsigned int first = 0;      // index of a box
    unsigned int second = 0;     // the same for a class that is tied to itself
    unsigned int firstRole = 0;  // ids of the roles at the ends of an association
    unsigned int secondRole = 0;
    int textWidth = 0;  // of what is written at the line; 0 for nothing
  };

  static constexpr int textHeight = 34;  // of the two rows of text at a line
  static constexpr unsigned int mostBoxesOfSide =
      8;  // of each kind: classes it inherits from, or is associated with
  static constexpr std::size_t mostLines = 40;
  static constexpr unsigned int mostLookedAt = 400;  // ties of one class

  std::vector<Box> boxes;  // the class itself is the first; empty for a class without ties
  std::vector<Line> lines;
  bool isUpright = false;  // supertypes above and subtypes below, in place of left and right
};

/// The neighbourhood of a class; ids are the numbers of the model's objects. Raises std::bad_alloc only.
Neighbourhood makeNeighbourhood(const KYRClass& class_, const StoredNumbers& numbers);
