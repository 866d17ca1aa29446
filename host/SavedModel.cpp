// The start of a file tells what it is: XML begins with "<", SQLite with its name.
#include "host/SavedModel.h"

#include <array>
#include <fstream>
#include <string_view>

#include "host/KYRHostMessages.h"
#include "repository/storage/StoreModelFile.h"

namespace {

using Start = std::array<char, 16>;

// Nothing when it cannot be read: why not is told by loading it.
Start startOf(const std::string& path) {
  Start start = {};
  std::ifstream(path, std::ios::binary).read(start.data(), start.size());
  return start;
}

// Also behind a byte order mark, and between the zeros of UTF-16.
bool isXml(std::string_view start) {
  constexpr std::string_view beforeIt("\xEF\xBB\xBF\xFE\xFF\0 \t\r\n", 10);
  const std::size_t first = start.find_first_not_of(beforeIt);
  return first != std::string_view::npos && start[first] == '<';
}

}  // namespace

std::unique_ptr<KYRStoreModel> SavedModel::load(const std::string& path) {
  const KYRFile file{KYRString(path)};
  if (file.exists()) {
    const Start bytes = startOf(path);
    const std::string_view start(bytes.data(), bytes.size());
    if (isXml(start)) KYRHostMessages::MODEL_NOT_IMPORTED.throwException(KYRString(path));
    if (start.starts_with("SQLite format 3"))
      KYRHostMessages::MODEL_IS_DATABASE.throwException(KYRString(path));
  }
  return loadStoreModel(file);
}
