// What Graphviz is asked: a neighbourhood in its language.
#pragma once

#include <string>

#include "report/Neighbourhood.h"

/// The graph of a neighbourhood. Nodes are named by the indexes of boxes, and have sizes and no text: names
/// of the model never leave the program. The number of a line stands as the colour of its edge, since an
/// answer tells colours and two edges may have the same ends.
std::string toGraphviz(const Neighbourhood& neighbourhood);
