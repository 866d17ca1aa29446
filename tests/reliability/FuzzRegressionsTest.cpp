// What fuzzers have found, replayed: each file below fuzz/regressions/<entry> is fed to its entry, and so
// are the seeds.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/FuzzEntries.h"

namespace {

namespace fs = std::filesystem;

const fs::path fuzzFolder = fs::path(KYR_SOURCE_DIR) / "fuzz";

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

std::vector<fs::path> filesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  if (!fs::is_directory(folder)) return files;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) files.push_back(entry.path());
  return files;
}

class FuzzRegressions : public testing::TestWithParam<FuzzEntry> {};

TEST_P(FuzzRegressions, StayMended) {
  for (const char* const kind : {"regressions", "seeds"}) {
    for (const fs::path& path : filesIn(fuzzFolder / kind / GetParam().name)) {
      EXPECT_NO_THROW(GetParam().run(readFile(path))) << path;
    }
  }
}

TEST_P(FuzzRegressions, ShortInputsAreNoTrouble) {
  EXPECT_NO_THROW(GetParam().run(""));
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_NO_THROW(GetParam().run(one)) << byte;
    EXPECT_NO_THROW(GetParam().run(one + one + one)) << byte;
  }
}

INSTANTIATE_TEST_SUITE_P(Entries, FuzzRegressions,
                         testing::ValuesIn(getFuzzEntries().begin(), getFuzzEntries().end()),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

// A folder that no entry reads would hold regressions that nobody replays.
TEST(FuzzRegressionFolders, AllBelongToAnEntry) {
  for (const char* const kind : {"regressions", "seeds"}) {
    for (const fs::path& folder : filesIn(fuzzFolder / kind)) {
      if (!fs::is_directory(folder)) continue;
      bool isKnown = false;
      for (const FuzzEntry& entry : getFuzzEntries()) isKnown = isKnown || folder.filename() == entry.name;
      EXPECT_TRUE(isKnown) << folder;
    }
  }
}

}  // namespace
