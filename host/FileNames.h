// FileNames: which file the command line means.
#pragma once

#include <string>

namespace FileNames {

/// Where the model goes. `output` is a file, or a folder for a file named after the input; empty, the
/// file stands in the current folder. The extension of the input's name is replaced by ".json".
std::string outputOf(const std::string& input, const std::string& output);

/// Whether both paths lead to one file, whether or not there is one yet.
bool isSame(const std::string& first, const std::string& second);

}  // namespace FileNames
