// What a host sees of an import: the phase of its timers, and the bytes of the file that is being read.
#include "foundation/KYRImportProgress.h"

#include <gtest/gtest.h>

#include <fstream>

#include "foundation/xml/XmlFileInput.h"

namespace {

class KYRImportProgressTest : public testing::Test {
 protected:
  KYRImportProgressTest() { KYRImportProgress::setCurrent(&progress); }
  ~KYRImportProgressTest() override { KYRImportProgress::setCurrent(nullptr); }
  static KYRFile fileOf(std::size_t size) {
    const std::string path = testing::TempDir() + "progress-" + std::to_string(size);
    std::ofstream(path) << std::string(size, 'x');
    return KYRFile(KYRString(path));
  }
  KYRImportProgress progress;
};

TEST_F(KYRImportProgressTest, ATimerEntersItsPhaseAndGoesBackToTheOneAround) {
  EXPECT_FALSE(progress.getState().phase.has_value());
  {
    const KYRPhaseTimer outer(KYRPhase::convert);
    {
      const KYRPhaseTimer inner(KYRPhase::release);
      EXPECT_EQ(progress.getState().phase, KYRPhase::release);
    }
    EXPECT_EQ(progress.getState().phase, KYRPhase::convert);
  }
  EXPECT_FALSE(progress.getState().phase.has_value());
}

TEST_F(KYRImportProgressTest, TokenisingOnAThreadOfItsOwnDoesNotHideThePhaseBesideIt) {
  const KYRPhaseTimer objects(KYRPhase::objects);
  const KYRPhaseTimer ahead(KYRPhase::tokenise);
  EXPECT_EQ(progress.getState().phase, KYRPhase::objects);
}

TEST_F(KYRImportProgressTest, BytesAreThoseOfTheFileThatIsBeingRead) {
  char buffer[64];
  {
    XmlFileInput input(fileOf(100));
    EXPECT_EQ(progress.getState().bytesTotal, 0U) << "a file that is only opened makes no progress";
    input.read(buffer, sizeof buffer);
    EXPECT_EQ(progress.getState().bytesRead, 64U);
    EXPECT_EQ(progress.getState().bytesTotal, 100U);
    input.read(buffer, sizeof buffer);
    input.read(buffer, sizeof buffer);
    EXPECT_EQ(progress.getState().bytesRead, 100U);
  }
  EXPECT_EQ(progress.getState().bytesTotal, 0U);
  EXPECT_EQ(progress.getState().bytesRead, 0U);
  XmlFileInput second(fileOf(10));
  second.read(buffer, sizeof buffer);
  EXPECT_EQ(progress.getState().bytesRead, 10U) << "each file begins anew";
}

TEST_F(KYRImportProgressTest, WithoutAnybodyWhoWatchesNothingIsEntered) {
  KYRImportProgress::setCurrent(nullptr);
  const KYRPhaseTimer timer(KYRPhase::save);
  XmlFileInput input(fileOf(10));
  char buffer[4];
  EXPECT_EQ(input.read(buffer, sizeof buffer), 4U);
  EXPECT_EQ(KYRImportProgress::getCurrent(), nullptr);
  EXPECT_FALSE(progress.getState().phase.has_value());
  EXPECT_EQ(progress.getState().bytesTotal, 0U);
}

}  // namespace
