#include <gtest/gtest.h>

#include <ctime>
#include <memory>

#include "foundation/KYRDate.h"
#include "foundation/KYRException.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"

namespace {

TEST(GenerateMetadataOrigin, NamesBridgeOriginAndBuild) {
  const std::unique_ptr<KYRMetadataOrigin> origin(
      generateMetadataOrigin(KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT, "my origin", "10.0.1 - today"));
  EXPECT_EQ(origin->bridgeName, "OmgUml2XmiImport");
  EXPECT_EQ(origin->originId, "my origin");
  EXPECT_EQ(origin->buildVersion, "10.0.1 - today");
  EXPECT_EQ(origin->originCode, 0);
  EXPECT_TRUE(origin->formatName.isEmpty());
}

KYROptionList optionsWith(const char* time) {
  KYROptionList options;
  options.add(new KYROption("BP_MODIFICATION_TIME", "", OptionType::text, "", time, false));
  return options;
}

TEST(SetModelModificationTime, TakesTheTimeOfTheOption) {
  KYRStoreModel model;
  KYROptionList options = optionsWith("2026-01-01T02:00:00+02:00");
  setModelModificationTime(model, options);
  EXPECT_EQ(model.modificationTime, "2026-01-01T00:00:00Z");
}

TEST(SetModelModificationTime, TakesThePresentTimeWithoutOne) {
  for (const bool hasEmptyOption : {true, false}) {
    KYRStoreModel model;
    KYROptionList options = hasEmptyOption ? optionsWith("") : KYROptionList();
    const std::int64_t before = std::time(nullptr);
    setModelModificationTime(model, options);
    std::int64_t stamp = 0;
    ASSERT_TRUE(KYRDate::parseIsoTimestamp(model.modificationTime, stamp));
    EXPECT_GE(stamp, before);
    EXPECT_LE(stamp, std::time(nullptr));
  }
}

TEST(SetModelModificationTime, RaisesForATextThatIsNoTimeAndLeavesTheModel) {
  KYRStoreModel model;
  model.modificationTime = "old";
  KYROptionList options = optionsWith("yesterday");
  try {
    setModelModificationTime(model, options);
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(
        exception.getMessage(),
        "[KYRSTD_F0107] The value 'yesterday' of the option 'BP_MODIFICATION_TIME' is not a time such as "
        "2026-01-01T00:00:00Z");
  }
  EXPECT_EQ(model.modificationTime, "old");
}

}  // namespace
