// FileNames: which file the command line means.
#pragma once

#include <optional>
#include <string>

#include "repository/storage/StoreModelFile.h"

namespace FileNames {

/// Where the model goes. `output` is a file, or a folder for a file named after the input; empty, the
/// file stands in the current folder. The extension of the input's name is replaced by that of the format.
std::string outputOf(const std::string& input, const std::string& output, StoreModelFormat format);

/// The same for the page of a model, with the extension "html".
std::string pageOf(const std::string& input, const std::string& output);

/// The format that a file of that name has by its extension: ".sqlite", ".sqlite3" or ".sql"; JSON else.
StoreModelFormat formatOf(const std::string& output);

/// The format of that name; nothing when there is none.
std::optional<StoreModelFormat> findFormat(const std::string& name);

/// The folder that a file of that name would stand in, as it is written; empty when it is there.
std::string missingFolderOf(const std::string& file);

/// A text that is the same for all paths of one file, whether or not there is one yet.
std::string identityOf(const std::string& path);

/// Whether both paths lead to one file, whether or not there is one yet.
bool isSame(const std::string& first, const std::string& second);

}  // namespace FileNames
