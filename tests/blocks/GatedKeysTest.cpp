// Keys behind a gate, member by member, and the order of lines that decides.
#include <gtest/gtest.h>

#include "blocks/CZEBCMPAutoVPCtrlParm.h"
#include "blocks/CZEBCMPMultiGateParm.h"
#include "tests/blocks/ReadBlock.hpp"

namespace {

using zebtest::readSectionInto;

TEST(GatedKeys, OfAutoVPCtrlReachTheirMembersOnceTheModeIsOn) {
  CZEBCMPAutoVPCtrlParm block;
  readSectionInto(block, "AutoVPCtrl",
                  "AutoVPMode = 1\nDebug = 2\nFullShotMode = 3\nConsiderBarrelEffect = 4\nEstCavityPres = 5.5\n"
                  "EstCavityTemp = 6.5\nExtraInjWeightRatio = 7.5\nHRAbsorbRatioControl = 8.5\n");
  EXPECT_EQ(block.iAutoVPCtrlDebug(), 2);
  EXPECT_EQ(block.iAutoVPCtrlFullShotMode(), 3);
  EXPECT_EQ(block.iAutoVPCtrlBarrelEffect(), 4);
  EXPECT_EQ(block.dAutoVPCtrlCavityPres(), 5.5);
  EXPECT_EQ(block.dAutoVPCtrlCavityTemp(), 6.5);
  EXPECT_EQ(block.dAutoVPCtrlExtraInjWeightRatio(), 7.5);
  EXPECT_EQ(block.dAutoVPCtrlHRAbsorbRatioCtrl(), 8.5);
}

TEST(GatedKeys, OfMultiGateReachTheirMembersOnceTheMethodIsSet) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate",
                  "MultipleGateMethod = 1\nDebug = 2\nInitialType = 4\nByTimeStep = 5\nByVolume = 6.5\n"
                  "ByCtrlCRRatio = 7.5\nOuterIteration = 8\nTolTargetQ = 9.5\nSPAdjustRatio = 10.5\nTolInletQ = 11.5\n"
                  "SPVariationLimit = 12.5\n");
  EXPECT_EQ(block.iMultipleGateDebug(), 2);
  EXPECT_EQ(block.iMultipleGateType(), 4);
  EXPECT_EQ(block.iMultipleGateByTimeStep(), 5);
  EXPECT_EQ(block.dMultipleGateByVolume(), 6.5);
  EXPECT_EQ(block.dMultipleGateByCtrlCRRatio(), 7.5);
  EXPECT_EQ(block.iMultiGateOuteriteration(), 8);
  EXPECT_EQ(block.dMultipleGateTolTargetQ(), 9.5);
  EXPECT_EQ(block.dMultipleGateSPAdjustCoeff(), 10.5);
  EXPECT_EQ(block.dMultipleGateTolInletQ(), 11.5);
  EXPECT_EQ(block.dMultipleGateSPVariationLimit(), 12.5);
}

TEST(GatedKeys, CloseAgainWithALaterLine) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nDebug = 2\nMultipleGateMethod = 0\nDebug = 3\n");
  EXPECT_EQ(block.iMultipleGateDebug(), 2);
  EXPECT_EQ(block.iMultipleGateMethod(), 0);
}

TEST(GatedKeys, StayOpenWhenTheGatesNewValueDoesNotParse) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nDebug = 2\nMultipleGateMethod = x\nDebug = 3\n");
  EXPECT_EQ(block.iMultipleGateDebug(), 3);
  EXPECT_EQ(block.iMultipleGateMethod(), 1);
}

TEST(GatedKeys, OnTheGatesOwnLineComeAfterIt) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "MultipleGateMethod NumberofInletGroups = 1\nWeightings = 9\n");
  EXPECT_EQ(block.iNumberofInletGroups(), 1);
  ASSERT_NE(block.pdInletWeightings(), nullptr);
  EXPECT_EQ(block.pdInletWeightings()[1], 1.0);
}

}  // namespace
