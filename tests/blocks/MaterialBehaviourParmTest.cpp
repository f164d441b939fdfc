// The material-behaviour blocks: defaults and dumps, the gel-point bounds, the integer Model_G, odd keys, echoes.
#include "blocks/CZEBCMPCrystallineParm.h"
#include "blocks/CZEBCMPElongationParm.h"
#include "blocks/CZEBCMPEpoxyVEParm.h"
#include "blocks/CZEBCMPPVTcParm.h"
#include "blocks/CZEBCMPViscositySetting2Parm.h"
#include "tests/blocks/ChangedLines.hpp"

namespace {

using zebtest::changedLines;
using zebtest::DefaultDump;
using zebtest::dumpOf;
using zebtest::dumpOfEmptySection;
using zebtest::LineCase;
using zebtest::printedBy;
using zebtest::readSectionInto;

// clang-format off
constexpr DefaultDump kDefaultDumps[] = {
    {"ViscositySetting2", &dumpOfEmptySection<CZEBCMPViscositySetting2Parm>,
     "\n---------ViscositySetting2 Parameters---------\n"
     "m_dMaxVis\t\t\t\t\t\t\t= 1e+09\n"
     "m_dMinVis\t\t\t\t\t\t\t= 10\n"
     "m_dMaxSR\t\t\t\t\t\t\t= 50000\n"
     "m_dMinSR\t\t\t\t\t\t\t= 0.0001\n"
     "m_dHighTemp_Tmp\t\t\t\t\t= 1000\n"
     "m_dHighTemp_Slp\t\t\t\t\t= 10000\n"
     "m_dHighTemp_SR\t\t\t\t\t\t= 1\n"
     "m_iEvaluateAirVis\t\t\t\t\t= 1\n"
     "m_iEvaluateAirTemperature\t\t\t= 0\n"
     "m_dLowVisT\t\t\t\t\t\t\t= -1\n"
     "m_dLowVisSR\t\t\t\t\t\t= 1000\n"
     "m_dAirK\t\t\t\t\t\t\t= 10000\n"
     "m_dAirCp\t\t\t\t\t\t\t= 1e+07\n"
     "m_dAirDen\t\t\t\t\t\t\t= 0.001\n"
     "m_iEvaluateMeltFrontVis\t\t\t= 0\n"
     "m_iVOFSmoothTimes\t\t\t\t\t= 2\n"
     "m_dAirVisFrontierVOF\t\t\t\t= 0.98\n"
     "m_dFrontierEquivalentSR\t\t\t= 1000\n"
     "m_dRatio_Conx_GelPoint\t\t\t\t= 0.9999\n"
     "m_dLCP_SR_LowerBound\t\t\t\t= 1e-30\n"
     "m_dLCP_SR_UpperBound\t\t\t\t= 1e+08\n"
     "m_dLCP_SR_vs_Visc_Ratio\t\t\t= 1\n"
     "m_dLCP_SR_Change_Tm_Slope_Ratio\t= 0\n"
     "m_iIsNewThermoSetHBModel\t\t\t= 0\n"},
    {"Elongation", &dumpOfEmptySection<CZEBCMPElongationParm>,
     "\n---------Elongation Parameters---------\n"
     "m_iIsViscoFacByElongation = 0\n"
     "m_iDisplayElongResult = 0\n"
     "m_iElongModel = 0\n"
     "A = 10\n"
     "B = 1\n"
     "E_cri = 1\n"
     "m_iCalcShearRateMethod = 0\n"},
    {"Crystalline", &dumpOfEmptySection<CZEBCMPCrystallineParm>,
     "\n---------Crystalline Parameters---------\n"
     "m_iFlagDebug\t\t\t= 0\n"
     "m_iFlagIsPlotDynamic\t= 0\n"
     "m_PlotStartTemper\t\t= 0\n"
     "m_PlotEndTemper\t\t= 0\n"
     "m_PlotQ\t\t\t\t= 0\n"
     "m_PlotStress\t\t\t= 0\n"
     "m_PlotPressure\t\t\t= 0\n"
     "m_iCrystalModel        = 0\n"
     "m_dParm_n              = 1\n"
     "m_dParm_n_2nd          = 1\n"
     "m_dU_activeEenergy     = 6284\n"
     "m_dU_activeEenergy_2nd = 6284\n"
     "m_dHalfCrystallTime_0  = 11300\n"
     "m_dHalfCrystallTime_0_2nd   = 11300\n"
     "m_dSpheruliteGrowthRate     = 125000\n"
     "m_dSpheruliteGrowthRate_2nd = 125000\n"},
    {"PVTc", &dumpOfEmptySection<CZEBCMPPVTcParm>,
     "\n---------PVTc Parameters---------\n"
     "m_iIsPVTc\t\t= 0\n"
     "m_dPVTc_a0\t\t= 0\n"
     "m_dPVTc_a1\t\t= 0\n"
     "m_dPVTc_a2\t\t= 0\n"
     "m_dPVTc_b0\t\t= 0\n"
     "m_dPVTc_b1\t\t= 0\n"
     "m_dPVTc_b2\t\t= 0\n"
     "m_dPVTc_c0\t\t= 0\n"
     "m_dPVTc_c1\t\t= 0\n"
     "m_dPVTc_c2\t\t= 0\n"
     "m_dPVTc_d0\t\t= 0\n"
     "m_dPVTc_d1\t\t= 0\n"
     "m_dPVTc_d2\t\t= 0\n"},
    {"Epoxy_VE", &dumpOfEmptySection<CZEBCMPEpoxyVEParm>,
     "\n---------EpoxyVE Parameters---------\n"
     "m_iIsRIMVE\t\t= 0\n"
     "m_iRIMVEModel\t= 0\n"
     "m_dEpoxy_VE_G\t= 10000\n"},
};
// clang-format on

TEST(MaterialBehaviourParm, EmptySectionLeavesTheDefaults) {
  for (const DefaultDump& block : kDefaultDumps) EXPECT_EQ(block.dump(block.section), block.expected) << block.section;
}

// clang-format off
constexpr LineCase kLineCases[] = {
    {"ViscositySetting2", &changedLines<CZEBCMPViscositySetting2Parm>, "LowVisT = 3", "m_dLowVisT\t\t\t\t\t\t\t= 3\n"},
    {"ViscositySetting2", &changedLines<CZEBCMPViscositySetting2Parm>, "LowVisSR = 3", "m_dLowVisSR\t\t\t\t\t\t= 3\n"},
    {"ViscositySetting2", &changedLines<CZEBCMPViscositySetting2Parm>, "LowVisRatio = 3", ""},
    {"ViscositySetting2", &changedLines<CZEBCMPViscositySetting2Parm>, "NewThermoSetHBModel = 3",
     "m_iIsNewThermoSetHBModel\t\t\t= 3\n"},
    {"ViscositySetting2", &changedLines<CZEBCMPViscositySetting2Parm>, "MaxSR = 3", "m_dMaxSR\t\t\t\t\t\t\t= 3\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "DisplayElongationResult = 1", "m_iDisplayElongResult = 1\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "DisplayElongResult = 1", ""},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "ElongationModel = 2", "m_iElongModel = 2\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "Parm_A = 2.5", "A = 2.5\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "Parm_B = 2.5", "B = 2.5\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "Parm_E_cri = 2.5", "E_cri = 2.5\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Start Temperature = 120", "m_PlotStartTemper\t\t= 120\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "StartTemperature = 120", ""},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "End Temperature = 20", "m_PlotEndTemper\t\t= 20\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Heat Flux Q = 2.5", "m_PlotQ\t\t\t\t= 2.5\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Yield Stress = 4", "m_PlotStress\t\t\t= 4\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Start Temperature at Pressure = 4",
     "m_PlotStartTemper\t\t= 4\nm_PlotPressure\t\t\t= 4\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_n_Primary = 2", "m_dParm_n              = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_n_Secondary = 2", "m_dParm_n_2nd          = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_Ustar_Primary = 2", "m_dU_activeEenergy     = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_Ustar_Secondary = 2", "m_dU_activeEenergy_2nd = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_K0_Primary = 2", "m_dHalfCrystallTime_0  = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_K0_Secondary = 2",
     "m_dHalfCrystallTime_0_2nd   = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_Kg_Primary = 2", "m_dSpheruliteGrowthRate     = 2\n"},
    {"Crystalline", &changedLines<CZEBCMPCrystallineParm>, "Parm_Kg_Secondary = 2",
     "m_dSpheruliteGrowthRate_2nd = 2\n"},
    {"PVTc", &changedLines<CZEBCMPPVTcParm>, "IsPVTc = 1", ""},
    {"PVTc", &changedLines<CZEBCMPPVTcParm>, "iSPVTc = 1", "m_iIsPVTc\t\t= 1\n"},
    {"PVTc", &changedLines<CZEBCMPPVTcParm>, "PVTc_b1 = 2.5", "m_dPVTc_b1\t\t= 2.5\n"},
    {"PVTc", &changedLines<CZEBCMPPVTcParm>, "iSPVTc = 1 (with a0 and d2)",
     "m_iIsPVTc\t\t= 1\nm_dPVTc_a0\t\t= 1\nm_dPVTc_d2\t\t= 1\n"},
    {"Epoxy_VE", &changedLines<CZEBCMPEpoxyVEParm>, "FlagEpoxy_VE = 1", "m_iIsRIMVE\t\t= 1\n"},
    {"Epoxy_VE", &changedLines<CZEBCMPEpoxyVEParm>, "VEModel = 2", "m_iRIMVEModel\t= 2\n"},
};
// clang-format on

TEST(MaterialBehaviourParm, KeySetsItsMembersAndNoOther) {
  for (const LineCase& test : kLineCases) {
    EXPECT_EQ(test.changed(test.section, test.line), test.expected) << test.section << ": " << test.line;
  }
}

TEST(ViscositySetting2Parm, GelPointRatioIsBoundedWhenRead) {
  // clang-format off
  const struct { const char* value; double stored; } cases[] = {
      {"1", 0.999999}, {"1e300", 0.999999}, {"0.9999991", 0.999999}, {"0.999999", 0.999999}, {"0.9999989", 0.9999989},
      {"0.5", 0.5}, {"1.1e-6", 1.1e-6}, {"1e-6", 1e-6}, {"9e-7", 1e-6}, {"0", 1e-6}, {"-3", 1e-6},
  };
  // clang-format on
  EXPECT_EQ(CZEBCMPViscositySetting2Parm().dRatio_Conx_GelPoint(), 0.9999);
  for (const auto& test : cases) {
    CZEBCMPViscositySetting2Parm block;
    readSectionInto(block, "ViscositySetting2", "Ratio_Conx_GelPoint = " + std::string(test.value));
    EXPECT_EQ(block.dRatio_Conx_GelPoint(), test.stored) << test.value;
  }
}

TEST(ViscositySetting2Parm, LowVisRatioIsReadButNeverDumped) {
  CZEBCMPViscositySetting2Parm block;
  EXPECT_EQ(block.dLowVisRatio(), 0.05);
  readSectionInto(block, "ViscositySetting2", "LowVisRatio = 0.25\n");
  EXPECT_EQ(block.dLowVisRatio(), 0.25);
  EXPECT_EQ(dumpOf(block).find("LowVisRatio"), std::string::npos);
}

TEST(ViscositySetting2Parm, OnlyLcpValuesAreEchoed) {
  // clang-format off
  const struct { const char* line; const char* echo; } cases[] = {
      {"LCP_SR_LowerBound = 0.001", "LCP_SR_LowerBound = 0.001\n"},
      {"LCP_SR_UpperBound = 123456789", "LCP_SR_UpperBound = 1.23457e+08\n"},
      {"LCP_SR_vs_Visc_Ratio = 2", "LCP_SR_vs_Visc_Ratio = 2\n"},
      {"LCP_SR_Change_Tm_Slope_Ratio = 0.5", "LCP_SR_Change_Tm_Slope_Ratio = 0.5\n"},
      {"LCP_SR_LowerBound = none", ""},
      {"Ratio_Conx_GelPoint = 2", ""},
      {"MaxVis = 2", ""},
  };
  // clang-format on
  for (const auto& test : cases) {
    CZEBCMPViscositySetting2Parm block;
    EXPECT_EQ(printedBy([&] { readSectionInto(block, "ViscositySetting2", test.line); }), test.echo) << test.line;
  }
}

TEST(ViscositySetting2Parm, SettersSetTheirMember) {
  CZEBCMPViscositySetting2Parm block;
  block.SetLowVisT(450.5);
  block.SetLowVisSR(12.5);
  EXPECT_EQ(block.dLowVisT(), 450.5);
  EXPECT_EQ(block.dLowVisSR(), 12.5);
}

TEST(EpoxyVEParm, ModelGIsReadAsAnInteger) {
  // clang-format off
  const struct { const char* value; double stored; } cases[] = {
      {"12345.6", 12345.0}, {"1.5e4", 1.0}, {"2.5e4", 2.0}, {"300", 300.0}, {"-7.9", -7.0},
      {".5", 10000.0}, {"3000000000", 10000.0},  // no integer: the default stays
  };
  // clang-format on
  for (const auto& test : cases) {
    CZEBCMPEpoxyVEParm block;
    readSectionInto(block, "Epoxy_VE", "Model_G = " + std::string(test.value));
    EXPECT_EQ(block.dEpoxy_VE_G(), test.stored) << test.value;
  }
}

TEST(PVTcParm, EachCoefficientHasItsTwoCharacterKey) {
  for (const char letter : std::string("abcd")) {
    for (const char digit : std::string("012")) {
      const std::string name{letter, digit};
      EXPECT_EQ(changedLines<CZEBCMPPVTcParm>("PVTc", name + " = 2.5"), "m_dPVTc_" + name + "\t\t= 2.5\n");
    }
  }
}

TEST(MaterialBehaviourParm, UnclosedSectionEndsSilentlyWithTheInput) {
  CZEBCMPEpoxyVEParm block;
  EXPECT_EQ(printedBy([&] { readSectionInto(block, "Epoxy_VE", "[PVTc]\nVEModel = 3"); }), "");
  EXPECT_EQ(block.iRIMVEModel(), 3);
}

TEST(MaterialBehaviourParm, AssignmentCopiesEveryMember) {
  CZEBCMPEpoxyVEParm source;
  readSectionInto(source, "Epoxy_VE", "FlagEpoxy_VE = 1\n");
  readSectionInto(source, "Epoxy_VE", "VEModel = 2\nModel_G = 3\n");
  CZEBCMPEpoxyVEParm target;
  target = source;
  EXPECT_EQ(target.iIsRIMVE(), 1);
  EXPECT_EQ(target.iRIMVEModel(), 2);
  EXPECT_EQ(target.dEpoxy_VE_G(), 3.0);
}

}  // namespace
