// DispatchRows: the vocabulary of the reader.
//
// Three tables decide what happens at each tag. The context table tells what a tag means inside an
// object of some kind, the type table what an xmi:type makes, the general table what a tag means
// anywhere. Context and type rows follow from the metamodel; the general ones stand in the source.
// The rows live as long as the process, so a row patched in one import is patched in the next.
#pragma once

#include <vector>

#include "xmi/TagHandler.h"

class DispatchRows {
 public:
  /// Each table ends in a row with a null tag.
  std::vector<TagHandler> context;  // 213 child rows and 15 text rows, by kind
  std::vector<TagHandler> type;     // row number = kind
  std::vector<TagHandler> general;  // 72 rows

  /// The rows of this process.
  static DispatchRows& get();
  /// Undoes all patches. Only tests need it: a program keeps what its imports have patched.
  static void resetForTests();

 private:
  DispatchRows();
};
