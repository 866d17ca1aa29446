// The shared reading: one file is tokenised once as long as its document lives and it does not change.
#include "foundation/xml/XmlDocumentReader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <string>

#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/TemporaryFile.h"

namespace {

class Runs {
 public:
  std::uint64_t getCount() const { return XmlTokenizer::getRunCount() - start_; }

 private:
  std::uint64_t start_ = XmlTokenizer::getRunCount();
};

TEST(XmlDocumentReader, AnUnchangedFileIsTokenisedOnceWhileItsDocumentLives) {
  const TemporaryFile file("<a/>");
  const Runs runs;
  auto first = readXmlFile(file.file(), nullptr, false);
  const auto second = readXmlFile(file.file(), nullptr, false);
  EXPECT_EQ(first, second);
  first.reset();
  EXPECT_EQ(readXmlFile(file.file(), nullptr, false), second);
  EXPECT_EQ(runs.getCount(), 1U);
}

TEST(XmlDocumentReader, NothingOutlivesItsHolders) {
  const TemporaryFile file("<a/>");
  const Runs runs;
  const std::weak_ptr<const XmlDocument> gone = readXmlFile(file.file(), nullptr, false);
  EXPECT_TRUE(gone.expired());
  readXmlFile(file.file(), nullptr, false);
  EXPECT_EQ(runs.getCount(), 2U);
}

TEST(XmlDocumentReader, AChangedFileIsReadAgain) {
  const TemporaryFile file("<a/>");
  const auto first = readXmlFile(file.file(), nullptr, false);
  std::ofstream(file.path) << "<bc/>";
  const auto second = readXmlFile(file.file(), nullptr, false);
  EXPECT_EQ(dumpDocument(*first), "a @1:1\n");
  EXPECT_EQ(dumpDocument(*second), "bc @1:1\n");
}

TEST(XmlDocumentReader, AChangeThatKeepsTheSizeShowsInTheTime) {
  const TemporaryFile file("<a/>");
  const auto first = readXmlFile(file.file(), nullptr, false);
  std::ofstream(file.path) << "<b/>";
  const timespec times[2] = {{0, UTIME_OMIT}, {1'000'000'000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, file.path.c_str(), times, 0), 0);
  EXPECT_EQ(dumpDocument(*readXmlFile(file.file(), nullptr, false)), "b @1:1\n");
}

TEST(XmlDocumentReader, TwoPathsOfOneFileShareItsDocument) {
  const TemporaryFile file("<a/>");
  const std::string link = file.path + ".link";
  ASSERT_EQ(symlink(file.path.c_str(), link.c_str()), 0);
  const Runs runs;
  const auto first = readXmlFile(file.file(), nullptr, false);
  EXPECT_EQ(readXmlFile(KYRFile(KYRString(link.c_str())), nullptr, false), first);
  EXPECT_EQ(runs.getCount(), 1U);
  unlink(link.c_str());
}

TEST(XmlDocumentReader, AnotherForcedEncodingReadsTheFileAgain) {
  const TemporaryFile file("<?xml version='1.0' encoding='windows-1252'?><a>\xE9</a>");
  const auto first = readXmlFile(file.file(), nullptr, false);
  const TemporaryEncoding forced("ISO-8859-5");
  const auto second = readXmlFile(file.file(), nullptr, false);
  EXPECT_EQ(first->getText(1).view(), "é");
  EXPECT_EQ(second->getText(1).view(), "щ");
}

TEST(XmlDocumentReader, AFileThatFailsLeavesNothingToShare) {
  const TemporaryFile file("<a>");
  const Runs runs;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(messageOf([&] { readXmlFile(file.file(), nullptr, false); }),
              "[KYRSTD_F0007] File '" + file.path + "', line 1, column 4: no element found");
  }
  EXPECT_EQ(runs.getCount(), 2U);
}

// Writes to the file in the middle of its reading.
class Meddler : public XmlDocumentListener {
 public:
  explicit Meddler(const std::string& path) : path_(path) {}
  void startDocument(const std::shared_ptr<const XmlDocument>&) override {}
  void startElement(XmlDocument::Node) override { std::ofstream(path_, std::ios::app) << "<!-- -->"; }
  void endElement(XmlDocument::Node) override {}
  void characters(XmlDocument::Node) override {}
  void processingInstruction(const KYRString&, const KYRString&) override {}

 private:
  std::string path_;
};

TEST(XmlDocumentReader, AFileThatChangesWhileItIsReadIsNotShared) {
  const TemporaryFile file("<a/>");
  Meddler meddler(file.path);
  const Runs runs;
  const auto first = readXmlFile(file.file(), &meddler, false);
  const auto second = readXmlFile(file.file(), nullptr, false);
  EXPECT_NE(first, second);
  EXPECT_EQ(runs.getCount(), 2U);
}

}  // namespace
