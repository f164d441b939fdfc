// The two foam blocks: switches of the flow solution, and the settings of the foaming solution with their uneven keys.
#include <gtest/gtest.h>

#include <string>

#include "blocks/CZEBCMPFoamParm.h"
#include "blocks/CZEBCMPMuCellParm.h"
#include "tests/blocks/ReadBlock.hpp"

using zebtest::dumpOf;
using zebtest::readSectionInto;

namespace {

const char kDefaultMuCellDump[] =
    "\n---------MuCell Parameters---------\n"
    "m_iIsViscoFacByFoaming\t= 0\n"
    "m_iViscoFoamMixingMethod\t= 1\n"
    "m_iIsOutputBubbleNucleationAndGrowthRate\t= 0\n"
    "m_iCpFoamMixingMethod\t= 0\n";

const char kDefaultFoamDump[] =
    "\n---------Foam Parameters---------\n"
    "m_PLOT_DYNAMIC_iFlagIsPlotDynamic = 0\n"
    "m_PLOT_DYNAMIC_dStartTime = 0\n"
    "m_PLOT_DYNAMIC_dEndTime = 0\n"
    "m_PLOT_DYNAMIC_dStartAmbientPres = 0\n"
    "m_PLOT_DYNAMIC_dPresuReleaseRate = 0\n"
    "m_PLOT_DYNAMIC_dTemperature = 473.15\n"
    "m_PLOT_DYNAMIC_dViscosity = 16500\n"
    "m_DEBUG_iFlagDebug = 0\n"
    "m_MuCell_Pro_dCounter_Pressure = 0\n"
    "m_MuCell_Pro_dCounter_P_SwitchPercent = 0.92\n"
    "m_FoamingComputeParas_iIsDiffCoeDependTemper = 1\n"
    "m_FoamingComputeParas_iIsSetMaxBubPres = 1\n"
    "m_FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate = 0\n"
    "m_FoamingComputeParas_iIsDrhoDpDependBubGrowth = 1\n"
    "m_FoamingComputeParas_iIsComputeMucellOnWallCell = 0\n"
    "m_FoamingComputeParas_dRelaxPVR = 0.1\n"
    "m_FoamingComputeParas_dTotalRelaxPVR = 0.01\n"
    "m_FoamingComputeParas_iIsGasConcByConvection = 0\n"
    "m_FoamingComputeParas_dFillVol_cri = 0\n"
    "m_FoamingComputeParas_iBreakFoamingCalc = 0\n"
    "m_FoamingComputeParas_dStartFoamingTime = 0\n"
    "m_FoamingComputeParas_dPolyRatioLimit = 0.6\n"
    "m_FoamingComputeParas_dMaxNumDensity = 100000\n"
    "m_FoamingComputeParas_dMaxBubbleSize = 0.0005\n"
    "m_FoamingComputeParas_dMinBubbleSize = 5e-10\n";

}  // namespace

TEST(MuCellParm, DumpsExactlyItsDefaultsWithoutItsSection) {
  EXPECT_EQ(dumpOf(CZEBCMPMuCellParm()), kDefaultMuCellDump);
}

TEST(MuCellParm, BubbleOutputHasAGetterWithoutAPrefixAndALabelWithIs) {
  CZEBCMPMuCellParm block;
  readSectionInto(block, "MuCell", "OutputBubbleNucleationAndGrowthRate = 1\n[/MuCell]\n");
  EXPECT_EQ(block.OutputBubbleNucleationAndGrowthRate(), 1);
  const std::string dump = dumpOf(block);
  EXPECT_NE(dump.find("\nm_iIsOutputBubbleNucleationAndGrowthRate\t= 1\n"), dump.npos) << dump;
}

TEST(MuCellParm, ReadsItsFourKeysAndStopsAtItsClosingLine) {
  CZEBCMPMuCellParm block;
  EXPECT_EQ(
      readSectionInto(block, "MuCell",
                      "IsViscoFacByFoaming = 1\nViscoFoamMixingMethod = 3\nCpFoamMixingMethod = 2\n"
                      "[/Mucell]\nIsOutputBubbleNucleationAndGrowthRate = 4\n[/MuCell]\nCpFoamMixingMethod = 9\n"),
      "CpFoamMixingMethod = 9\n");
  EXPECT_EQ(block.iIsViscoFacByFoaming(), 1);
  EXPECT_EQ(block.iViscoFoamMixingMethod(), 3);
  EXPECT_EQ(block.iCpFoamMixingMethod(), 2);
  EXPECT_EQ(block.OutputBubbleNucleationAndGrowthRate(), 4);
}

TEST(FoamParm, DumpsExactlyItsDefaultsWithoutAnySection) { EXPECT_EQ(dumpOf(CZEBCMPFoamParm()), kDefaultFoamDump); }

TEST(FoamParm, PlotTemperatureAndViscosityHaveDefaults) {
  const CZEBCMPFoamParm block;
  EXPECT_EQ(block.PLOT_DYNAMIC_dTemperature(), 473.15);
  EXPECT_EQ(block.PLOT_DYNAMIC_dViscosity(), 16500.0);
}

TEST(FoamParm, SectionsAreOpenedAndClosedByTheirExactSpellings) {
  const char* const kNames[] = {"Foam_PLOT_DYNAMIC", "Foam_MuCell_Pro", "Mucell_DEBUG", "Foam_FoamingComputeParas"};
  EXPECT_EQ(zeb::tableOf<CZEBCMPFoamParm>().sections.size(), std::size(kNames));
  for (const std::string name : kNames) {
    const zeb::Section& section = zebtest::sectionOf<CZEBCMPFoamParm>(name);
    EXPECT_EQ(section.open, "[" + name + "]");
    EXPECT_EQ(section.close, "[/" + name + "]");
  }
}

TEST(FoamParm, DebugSectionIsNotClosedByAnotherSpelling) {
  CZEBCMPFoamParm block;
  EXPECT_EQ(readSectionInto(block, "Mucell_DEBUG",
                            "FlagDebug = 1\n[/MuCell_DEBUG]\nFlagDebug = 2\n[/Mucell_DEBUG]\nFlagDebug = 3\n"),
            "FlagDebug = 3\n");
  EXPECT_EQ(block.DEBUG_iFlagDebug(), 2);
}

TEST(FoamParm, RelaxPVRNeedsItsPrefix) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_FoamingComputeParas", "RelaxPVR = 0.5\n[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(dumpOf(block), kDefaultFoamDump);
  readSectionInto(block, "Foam_FoamingComputeParas", "m_RelaxPVR = 0.5\n[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(block.FoamingComputeParas_dRelaxPVR(), 0.5);
  EXPECT_EQ(block.FoamingComputeParas_dTotalRelaxPVR(), 0.01);
}

TEST(FoamParm, TotalRelaxPVRSetsOnlyItself) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_FoamingComputeParas", "m_TotalRelaxPVR = 0.5\n[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(block.FoamingComputeParas_dTotalRelaxPVR(), 0.5);
  EXPECT_EQ(block.FoamingComputeParas_dRelaxPVR(), 0.1);
}

TEST(FoamParm, LargestBubbleSizeSetsOnlyItself) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_FoamingComputeParas", "MaxBubbleSize = 0.25\n[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(block.FoamingComputeParas_dMaxBubbleSize(), 0.25);
  EXPECT_EQ(block.FoamingComputeParas_dMinBubbleSize(), 5e-10);
}

TEST(FoamParm, KeysWithoutPrefixStandAlsoInPrefixedSpellings) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_FoamingComputeParas",
                  "m_MinBubbleSize = 2\nm_FillVol_cri = 3\nMaxNumDensity = 4\ndPolyRatioLimit = 5\n"
                  "[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(block.FoamingComputeParas_dMinBubbleSize(), 2.0);
  EXPECT_EQ(block.FoamingComputeParas_dFillVol_cri(), 3.0);
  EXPECT_EQ(block.FoamingComputeParas_dMaxNumDensity(), 100000.0);
  EXPECT_EQ(block.FoamingComputeParas_dPolyRatioLimit(), 0.6);
}

TEST(FoamParm, AnyLineWithTheWordTemperatureAndAValueSetsThePlotTemperature) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_PLOT_DYNAMIC",
                  "Temperature without a value\nMold Temperature of the insert = 310.5\n[/Foam_PLOT_DYNAMIC]\n");
  EXPECT_EQ(block.PLOT_DYNAMIC_dTemperature(), 310.5);
  EXPECT_EQ(block.PLOT_DYNAMIC_dViscosity(), 16500.0);
}

TEST(FoamParm, LastOccurrenceOfAKeyWins) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_MuCell_Pro",
                  "Counter_Pressure = 1\nCounter_P_SwitchPercent = 0.5\nCounter_Pressure = 2\n[/Foam_MuCell_Pro]\n");
  EXPECT_EQ(block.MuCell_Pro_dCounter_Pressure(), 2.0);
  EXPECT_EQ(block.MuCell_Pro_dCounter_P_SwitchPercent(), 0.5);
}

TEST(FoamParm, CorrectedAmbientPressureKeepsItsDoubledPrefix) {
  CZEBCMPFoamParm block;
  readSectionInto(block, "Foam_FoamingComputeParas",
                  "m_iIsCorrPresAmbAsBubNucleate = 1\n[/Foam_FoamingComputeParas]\n");
  EXPECT_EQ(block.FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate(), 1);
  const std::string dump = dumpOf(block);
  EXPECT_NE(dump.find("\nm_FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate = 1\n"), dump.npos) << dump;
}
