// PictureNames: the files that diagrams are drawn into.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

class PictureNames {
 public:
  /// An empty folder is the current one.
  explicit PictureNames(std::string folder) : folder_(std::move(folder)) {}

  /// A path in the folder for a diagram of that name, ending in ".svg". Whatever the name holds, the
  /// path does not lead out of the folder, and no two calls give the same path, not even where letters
  /// are not told apart by case. A number behind a "-" tells apart diagrams of like names.
  std::string pathFor(std::string_view diagramName);

 private:
  std::string folder_;
  std::unordered_set<std::string> taken_;                  // in small letters
  std::unordered_map<std::string, unsigned int> numbers_;  // the last one given behind a name
};
