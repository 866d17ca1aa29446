// The list of bridges.
#include "repository/plugin/KYRBridgeSpecificationLiteral.h"

#include <gtest/gtest.h>

TEST(KYRBridgeSpecificationLiteral, BridgesAreFoundByTheirExactNames) {
  EXPECT_EQ(getBridgeSpecification("OmgUml2XmiImport"), &KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT);
  EXPECT_EQ(getBridgeSpecification("OmgUml2XmiNoMagicMagicDrawImport"),
            &KBLST::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT);
  EXPECT_EQ(getBridgeSpecification("omguml2xmiimport"), nullptr);
  EXPECT_EQ(getBridgeSpecification(""), nullptr);
}

TEST(KYRBridgeSpecificationLiteral, EachBridgeNamesItsDescription) {
  EXPECT_STREQ(KBLST::BRIDGE_SPEC_OMGUML2XMI_IMPORT.getInternalCode_DescriptionLiteralId().getCharacters(),
               "OmgUml2XmiImportDescription");
  EXPECT_STREQ(KBLST::BRIDGE_SPEC_OMGUML2XMINOMAGICMAGICDRAW_IMPORT.getInternalCode_DescriptionLiteralId()
                   .getCharacters(),
               "OmgUml2XmiNoMagicMagicDrawImportDescription");
}
