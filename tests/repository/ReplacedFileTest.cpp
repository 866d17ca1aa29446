#include "repository/storage/ReplacedFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "foundation/KYRException.h"

namespace {
int syncCount = 0;
}

// Stands before the one of the C library, so that calls can be counted.
extern "C" KYR_EXPORT int fsync(int descriptor) {
  ++syncCount;
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}

namespace {

class ReplacedFiles : public testing::Test {
 protected:
  ReplacedFiles() {
    char name[] = "/tmp/kyr-replaced-XXXXXX";
    folder_ = mkdtemp(name);
    path_ = folder_ + "/target";
  }
  ~ReplacedFiles() override { std::filesystem::remove_all(folder_); }
  KYRFile file() const { return KYRFile(path_.c_str()); }
  std::string content() const {
    std::ifstream in(path_, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
  }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator all(folder_);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
  }

  std::string folder_;
  std::string path_;
};

TEST_F(ReplacedFiles, TheTargetIsThereOnlyAfterCommit) {
  {
    ReplacedFile output(file());
    output.write("new");
    EXPECT_FALSE(std::filesystem::exists(path_));
    output.commit();
    EXPECT_EQ(content(), "new");
  }
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ReplacedFiles, WithoutCommitTheOldFileStaysAndNothingElseIsLeft) {
  std::ofstream(path_) << "old";
  {
    ReplacedFile output(file());
    output.write("new");
  }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ReplacedFiles, CommitWaitsForTheDiskUnlessToldNotTo) {
  const auto syncsOf = [this](ReplacedFile::Wait wait) {
    const int before = syncCount;
    ReplacedFile output(file(), wait);
    output.write(wait == ReplacedFile::Wait::untilNamed ? "named" : "on disk");
    output.commit();
    return syncCount - before;
  };
  EXPECT_EQ(syncsOf(ReplacedFile::Wait::untilOnDisk), 2);  // the file and its directory
  EXPECT_EQ(content(), "on disk");
  EXPECT_EQ(syncsOf(ReplacedFile::Wait::untilNamed), 0);
  EXPECT_EQ(content(), "named");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ReplacedFiles, TwoAtATimeDoNotMeet) {
  ReplacedFile first(file());
  ReplacedFile second(file());
  first.write("first");
  second.write("second");
  second.commit();
  first.commit();
  EXPECT_EQ(content(), "first");
}

TEST_F(ReplacedFiles, ANameInThePresentFolderNeedsNoSlash) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_);
  ReplacedFile output(KYRFile("target"));
  output.write("x");
  output.commit();
  std::filesystem::current_path(before);
  EXPECT_EQ(content(), "x");
}

// A limit on file sizes stands for a full disk.
TEST_F(ReplacedFiles, AFailedWriteLeavesTheOldFile) {
  std::ofstream(path_) << "old";
  rlimit before = {};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limited = before;
  limited.rlim_cur = 10;
  setrlimit(RLIMIT_FSIZE, &limited);
  std::string message;
  try {
    ReplacedFile output(file());
    output.write("more than ten bytes");
    output.commit();
  } catch (const KYRException& exception) {
    message = exception.getMessage().getCharacters();
  }
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(message, "[KYRSTD_F0120] The file '" + path_ + "' cannot be saved: File too large");
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ReplacedFiles, AFailedRenameLeavesNothingBehind) {
  {
    ReplacedFile output(file());
    output.write("x");
    std::filesystem::create_directory(path_);  // takes the name in the meantime
    EXPECT_THROW(output.commit(), KYRException);
  }
  EXPECT_EQ(filesInFolder(), 1U);
}

}  // namespace
