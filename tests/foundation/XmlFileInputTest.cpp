// XmlFileInput: which files can be read, and what tells one file from another.
#include "foundation/xml/XmlFileInput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

namespace {

std::string openError(const std::string& path) {
  return messageOf([&] { XmlFileInput input{KYRFile(KYRString(path.c_str()))}; });
}

// A folder that goes with the test.
class XmlFileInputFolder : public testing::Test {
 protected:
  void SetUp() override {
    char name[] = "/tmp/kyr-test-XXXXXX";
    ASSERT_NE(mkdtemp(name), nullptr);
    folder_ = name;
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }
  std::string folder_;
};

TEST_F(XmlFileInputFolder, WhatIsNoRegularFileIsRefusedWithPathAndReason) {
  const std::string fifo = folder_ + "/fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(openError(fifo), "[KYRSTD_F0004] The file '" + fifo + "' cannot be read: it is a FIFO");

  const std::string path = folder_ + "/socket";
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int socketDescriptor = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(socketDescriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(openError(path), "[KYRSTD_F0005] The file '" + path + "' cannot be read: it is a socket");
  close(socketDescriptor);

  EXPECT_EQ(openError(folder_),
            "[KYRSTD_F0003] The file '" + folder_ + "' cannot be read: it is a directory");
  EXPECT_EQ(openError("/dev/null"), "[KYRSTD_F0006] The file '/dev/null' cannot be read: it is a device");
  EXPECT_EQ(openError("/dev/zero"), "[KYRSTD_F0006] The file '/dev/zero' cannot be read: it is a device");
}

TEST_F(XmlFileInputFolder, AMissingFileIsRefusedWithPathAndReason) {
  const std::string missing = folder_ + "/missing.xmi";
  EXPECT_EQ(openError(missing),
            "[KYRSTD_F0001] The file '" + missing + "' cannot be opened: No such file or directory");
  EXPECT_EQ(openError(""), "[KYRSTD_F0001] The file '' cannot be opened: No such file or directory");
}

TEST_F(XmlFileInputFolder, AFileThatMayNotBeReadIsRefusedWithPathAndReason) {
  const std::string path = folder_ + "/locked.xmi";
  std::ofstream(path) << "<a/>";
  ASSERT_EQ(chmod(path.c_str(), 0), 0);
  ASSERT_EQ(chmod(folder_.c_str(), 0755), 0);
  // The superuser may read everything, so the test steps down for a moment.
  constexpr uid_t nobody = 65534;
  const bool isSuperuser = geteuid() == 0;
  if (isSuperuser && seteuid(nobody) != 0) GTEST_SKIP() << "cannot step down from superuser";
  const std::string error = openError(path);
  if (isSuperuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  EXPECT_EQ(error, "[KYRSTD_F0001] The file '" + path + "' cannot be opened: Permission denied");
}

TEST_F(XmlFileInputFolder, ALinkLeadsToItsFile) {
  std::ofstream(folder_ + "/file") << "abc";
  std::filesystem::create_symlink("file", folder_ + "/link");
  XmlFileInput input{KYRFile(KYRString((folder_ + "/link").c_str()))};
  char buffer[8];
  EXPECT_EQ(input.read(buffer, sizeof buffer), 3U);
  EXPECT_EQ(input.read(buffer, sizeof buffer), 0U);
}

TEST_F(XmlFileInputFolder, AReadThatFailsNamesPathAndReason) {
  // Regular for stat, yet its content can never be read at once from position 0.
  const std::string path = "/proc/self/mem";
  XmlFileInput input{KYRFile(KYRString(path.c_str()))};
  char buffer[8];
  EXPECT_EQ(messageOf([&] { input.read(buffer, sizeof buffer); }),
            "[KYRSTD_F0002] The file '" + path + "' cannot be read: Input/output error");
}

TEST(XmlFileInput, NoDescriptorStaysOpen) {
  const auto countDescriptors = [] {
    const std::filesystem::directory_iterator listing("/proc/self/fd");
    return std::distance(begin(listing), end(listing));
  };
  const TemporaryFile file("<a/>");
  const auto before = countDescriptors();
  for (int i = 0; i < 3; ++i) XmlFileInput input(file.file());
  openError("/proc/self/fd");
  EXPECT_EQ(countDescriptors(), before);
}

TEST(XmlFileInput, TheIdentityChangesWithTheFile) {
  const TemporaryFile first("<a/>");
  const TemporaryFile second("<a/>");
  const XmlFileIdentity identity = XmlFileInput(first.file()).getIdentity();
  EXPECT_EQ(identity.size, 4U);
  EXPECT_TRUE(XmlFileInput(first.file()).getIdentity() == identity);
  EXPECT_FALSE(XmlFileInput(second.file()).getIdentity() == identity);
  std::ofstream(first.path, std::ios::app) << "\n";
  EXPECT_FALSE(XmlFileInput(first.file()).getIdentity() == identity);
}

TEST(XmlFileInput, TheIdentityKnowsANewTimeOfTheSameSize) {
  const TemporaryFile file("<a/>");
  const XmlFileIdentity before = XmlFileInput(file.file()).getIdentity();
  const timespec times[2] = {{0, UTIME_OMIT}, {1'000'000'000, 1}};
  ASSERT_EQ(utimensat(AT_FDCWD, file.path.c_str(), times, 0), 0);
  const XmlFileIdentity after = XmlFileInput(file.file()).getIdentity();
  EXPECT_EQ(after.size, before.size);
  EXPECT_EQ(after.contentTime, 1'000'000'000'000'000'001);
  EXPECT_FALSE(after == before);
}

}  // namespace
