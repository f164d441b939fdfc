// A count that is refused takes its list with it; what was handed out stays valid.
#include <gtest/gtest.h>

#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPMultiGateParm.h"
#include "blocks/CZEBCMPRTMParm.h"
#include "blocks/CZEBCMPUNFSettingParm.h"
#include "tests/blocks/ReadBlock.hpp"

namespace {

using zebtest::printedBy;
using zebtest::readSectionInto;

TEST(RefusedCount, OfInletGroupsLeavesNoWeights) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate",
                  "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.25\nWeightings = 0\n");
  const double* before = block.pdInletWeightings();
  ASSERT_NE(before, nullptr);
  const std::string printed = printedBy([&] { readSectionInto(block, "MultiGate", "NumberofInletGroups = -1\n"); });
  EXPECT_EQ(printed, "[MultiGate] NumberofInletGroups = -1 is no valid count (0 to 1000000); 0 is used\n");
  EXPECT_EQ(block.iNumberofInletGroups(), 0);
  EXPECT_EQ(block.pdInletWeightings(), nullptr);
  EXPECT_EQ(before[1], 0.25) << "a pointer handed out before stays valid";
  double out[3] = {-7, -7, -7};
  EXPECT_EQ(block.InletWeightings(out), 1);
  EXPECT_EQ(out[1], -7);
}

TEST(RefusedCount, OfVentInletsLeavesNoNumbers) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = 2\nVentInletID = 3\nVentInletID = 4\n");
  printedBy([&] { readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = -5\n"); });
  EXPECT_EQ(block.iNVentInlet(), 0);
  int out[3] = {-7, -7, -7};
  EXPECT_EQ(block.getVentInletID(out), 0);
  EXPECT_EQ(out[1], -7);
}

TEST(RefusedCount, OfDispenserPointsLeavesNoAddressInTheDump) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 2\nPoint_x1 = 3\n");
  printedBy([&] { readSectionInto(block, "UNFSetting", "nDispenserPoint = 1000001\n"); });
  EXPECT_EQ(block.iNDispenserPass(), 0);
  EXPECT_NE(zebtest::dumpOf(block).find("m_pdDispenserPoint\t\t= 0\n"), std::string::npos);
}

TEST(EmptyText, IsEmptyAndNotNull) {
  for (const char* line : {"FirstMeshName =\n", "FirstMeshName\n", "FirstMeshName = part\nFirstMeshName =\n"}) {
    CZEBCMPGeneralParm block;
    readSectionInto(block, "General", line);
    EXPECT_STREQ(block.FirstMeshName(), "") << line;
  }
}

TEST(HandedOutText, SurvivesAnAssignmentOntoItsBlock) {
  CZEBCMPGeneralParm a, b;
  readSectionInto(a, "General", "FirstMeshName = one\n");
  readSectionInto(b, "General", "FirstMeshName = two\n");
  const char* before = a.FirstMeshName();
  a = b;
  EXPECT_STREQ(before, "one");
  EXPECT_STREQ(a.FirstMeshName(), "two");
  const char* same = a.FirstMeshName();
  const CZEBCMPGeneralParm& alias = a;
  a = alias;
  EXPECT_EQ(a.FirstMeshName(), same);
}

}  // namespace
