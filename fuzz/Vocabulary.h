// Vocabulary: the words that the reader knows, taken from the tables that drive it, for mutations and for
// the dictionary.
#pragma once

#include <string>
#include <vector>

struct Vocabulary {
  std::vector<std::string> types;       // values of xmi:type
  std::vector<std::string> tags;        // of elements
  std::vector<std::string> attributes;  // names of attributes
  std::vector<std::string> values;      // texts with a meaning somewhere

  static const Vocabulary& get();

 private:
  Vocabulary();
};
