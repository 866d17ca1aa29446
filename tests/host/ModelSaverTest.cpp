// The host's part in saving: which format, and for how long.
#include "host/ModelSaver.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "tests/support/TemporaryFile.h"

namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string startOf(const std::string& path) { return contentOf(path).substr(0, 6); }

TEST(ModelSaver, SavesInItsFormatAndCounts) {
  const TemporaryFile file("");
  const KYRStoreModel model;
  const KYRFile target{KYRString(file.path)};
  ModelSaver saver(StoreModelFormat::sqlite, false);
  EXPECT_FALSE(saver.getCounts().has_value());
  StoreModelSaver::getInstalled()->save(target, model);
  EXPECT_EQ(startOf(file.path), "SQLite");
  EXPECT_TRUE(saver.getCounts().has_value());
}

TEST(ModelSaver, CountsNothingWhereNobodyAsks) {
  const TemporaryFile file("");
  ModelSaver saver(StoreModelFormat::json, false);
  saver.skipCounting();
  saver.save(KYRFile{KYRString(file.path)}, KYRStoreModel());
  EXPECT_FALSE(contentOf(file.path).empty());
  EXPECT_FALSE(saver.getCounts().has_value());
}

TEST(ModelSaver, WritesToAnOutputWhatAFileWouldHold) {
  for (const StoreModelFormat format : {StoreModelFormat::json, StoreModelFormat::sql}) {
    const TemporaryFile file("");
    const TemporaryFile written("");
    const KYRFile target{KYRString(file.path)};
    const KYRStoreModel model;
    ModelSaver(format, false).save(target, model);
    const int descriptor = open(written.path.c_str(), O_WRONLY);
    ASSERT_GE(descriptor, 0);
    Output output(descriptor);
    ModelSaver saver(format, output);
    saver.save(KYRFile("/nowhere/-"), model);
    output.flush();
    close(descriptor);
    EXPECT_EQ(contentOf(written.path), contentOf(file.path));
    EXPECT_TRUE(saver.getCounts().has_value());
  }
}

TEST(ModelSaver, AppendsWhereThatIsWanted) {
  const TemporaryFile file("");
  const KYRFile target{KYRString(file.path)};
  ModelSaver saver(StoreModelFormat::sqlite, true);
  saver.save(target, KYRStoreModel());
  const std::string first = startOf(file.path);
  saver.save(target, KYRStoreModel());
  EXPECT_EQ(first, "SQLite");
  EXPECT_EQ(startOf(file.path), "SQLite");
}

TEST(ModelSaver, IsInstalledAsLongAsItLives) {
  EXPECT_EQ(StoreModelSaver::getInstalled(), nullptr);
  {
    ModelSaver saver(StoreModelFormat::json, false);
    EXPECT_EQ(StoreModelSaver::getInstalled(), &saver);
  }
  EXPECT_EQ(StoreModelSaver::getInstalled(), nullptr);
}

}  // namespace
