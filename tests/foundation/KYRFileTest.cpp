// KYRFile: the parts of a path, and what counts as a file that exists.
#include "foundation/KYRFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

TEST(KYRFile, PathsAreCutAtTheLastSlash) {
  struct Row {
    const char* path;
    const char* fileName;
    const char* directory;
  };
  const Row rows[] = {{"", "", ""},
                      {"model.xmi", "model.xmi", ""},
                      {"/data/in/model.v2.xmi", "model.v2.xmi", "/data/in"},
                      {"in/model", "model", "in"},
                      {"/model.xmi", "model.xmi", ""},
                      {"folder/", "", "folder"},
                      {"a//b", "b", "a/"},
                      {"C:\\in\\model.xmi", "C:\\in\\model.xmi", ""}};
  for (const Row& row : rows) {
    const KYRFile file{KYRString(row.path)};
    EXPECT_EQ(file.getPath().view(), row.path);
    EXPECT_EQ(file.getName().view(), row.path);
    EXPECT_EQ(file.getFileName().view(), row.fileName);
    EXPECT_EQ(file.getDirectory().view(), row.directory);
  }
}

TEST(KYRFile, APathIsSetByAssignment) {
  KYRFile file;
  EXPECT_TRUE(file.getPath().isEmpty());
  file = KYRString("a/b");
  KYRFile other(KYRString("x"));
  other = file;
  EXPECT_EQ(other.getPath().view(), "a/b");
}

TEST(KYRFile, OnlyRegularFilesExist) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / ("kyrfile-" + std::to_string(getpid()));
  fs::create_directories(folder);
  std::ofstream(folder / "empty").close();
  fs::create_symlink(folder / "empty", folder / "link");
  fs::create_symlink(folder / "nothing", folder / "dangling");
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  const auto exists = [](const fs::path& path) { return KYRFile(KYRString(path.c_str())).exists(); };
  EXPECT_TRUE(exists(folder / "empty"));
  EXPECT_TRUE(exists(folder / "link"));
  EXPECT_FALSE(exists(folder / "dangling"));
  EXPECT_FALSE(exists(folder / "fifo"));
  EXPECT_FALSE(exists(folder));
  EXPECT_FALSE(exists(folder / "nothing"));
  EXPECT_FALSE(exists("/dev/null"));
  EXPECT_FALSE(KYRFile().exists());
  fs::remove_all(folder);
}

}  // namespace
