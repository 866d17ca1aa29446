// Point2D: a point on a diagram, in whole units.
#pragma once

struct Point2D {
  int x = 0;
  int y = 0;
};
