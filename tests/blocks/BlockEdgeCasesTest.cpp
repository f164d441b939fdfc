// Corner cases of single blocks: keys inside other spellings, the edges of the lists, sections that are refused or
// never closed, and which rank says what.
#include <gtest/gtest.h>

#include <array>
#include <mutex>
#include <string>
#include <vector>

#include "frame/AllBlocks.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/blocks/ChangedLines.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::changedLines;
using zebtest::dumpOf;
using zebtest::LineCase;
using zebtest::printedBy;
using zebtest::readSectionInto;
using zebtest::TemporaryFile;

constexpr int kUntouched = -77;

// --- Keys inside other spellings --------------------------------------------------------------------------------

// clang-format off
constexpr LineCase kSpellings[] = {
    {"MAFVM", &changedLines<CZEBCMPMAFVMParm>, "IsMAFVM_Flow = 3", "m_iIsMAFVM\t\t\t\t= 3\n"},
    {"MAFVM", &changedLines<CZEBCMPMAFVMParm>, "IsMAFVM IsFlow = 3", "m_iIsMAFVM\t\t\t\t= 3\nm_iIsMAFVM_Flow\t\t= 3\n"},
    {"SAMGParaCtrl", &changedLines<CZEBCMPSAMGCtrlParm>, "Debug = 3", ""},
    {"SAMGParaCtrl", &changedLines<CZEBCMPSAMGCtrlParm>, "DebugMode = 3", "m_iDebugMode\t= 3\n"},
    {"SAMGParaCtrl", &changedLines<CZEBCMPSAMGCtrlParm>, "n_RES_SCRATC = 3", ""},
    {"BaseRBF", &changedLines<CZEBCMP_BaseRBF_Parm>, "ShapeNormalize = 3", ""},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "m_iSearch_method = 3", "m_iSearch_method\t= 3\n"},
    {"FaceRBF", &changedLines<CZEBCMP_FaceRBF_Parm>, "search_number = 3", ""},
    {"HRSchemes", &changedLines<CZEBCMPHRSchemesParm>, "MeltFCRI = 0.5", "m_dFCRI \t\t\t= 0.5\n"},
    {"CompressibleFlow", &changedLines<CZEBCMPCompressibleFlowParm>, "VentAirdDdp = 2", "m_dAirdDdp\t\t\t\t\t\t= 2\n"},
    {"PVTc", &changedLines<CZEBCMPPVTcParm>, "# b2 was = 0.5", "m_dPVTc_b2\t\t= 0.5\n"},
    {"Epoxy_VE", &changedLines<CZEBCMPEpoxyVEParm>, "RIMVEModel = 3", "m_iRIMVEModel\t= 3\n"},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "ElongModel = 3", ""},
    {"Elongation", &changedLines<CZEBCMPElongationParm>, "A = 3", ""},
    {"Outlet", &changedLines<CZEBCMPOutletParm>, "AirPressure = -0.5", "m_dAirPressure\t\t\t\t= -5e+06\n"},
    {"Outlet", &changedLines<CZEBCMPOutletParm>, "AirPressure = 1\nAirPressure = x", "m_dAirPressure\t\t\t\t= 1e+07\n"},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "CoIMGNF = 3", "m_iIsCoIMGNF\t\t\t\t= 3\n"},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "IsCoIMGNF = 3", "m_iIsCoIM\t\t\t\t\t= 3\nm_iIsCoIMGNF\t\t\t\t= 3\n"},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "ShowOverflowGateData\t= 3", ""},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "FAIMPushBack = 3", "m_iFAIMPushBack\t\t\t= 3\n"},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "PushBackTime = 3", "m_dPushBackTime\t\t\t= 3\n"},
    {"FAIM", &changedLines<CZEBCMPFAIMParm>, "PushBackCloseTime = 3", "m_dPushBackCloseTime\t\t= 3\n"},
    {"PUChemFoam", &changedLines<CZEBCMPPUChemFoamParm>, "PUEa_gelling = 3", "m_dPUEa_gelling\t\t\t\t= 3\n"},
    {"PUChemFoam", &changedLines<CZEBCMPPUChemFoamParm>, "PUA_gelling = 3", "m_dPUA_gelling\t\t\t\t\t= 3\n"},
    {"UNFSetting", &changedLines<CZEBCMPUNFSettingParm>, "SurTensionCoeff = 3", "m_dSTCoeff\t\t\t\t= 3\n"},
    {"UNFSetting", &changedLines<CZEBCMPUNFSettingParm>, "VofInter = 3", ""},
    {"Compression", &changedLines<CZEBCMPCompressionParm>, "FilePathOfInitialData = 3", "m_szFilePathOfInitialData\t\t= 3\n"},
};
// clang-format on

TEST(BlockKeys, StandAlsoInLongerSpellingsButNotInShorterOnes) {
  for (const LineCase& test : kSpellings) {
    EXPECT_EQ(test.changed(test.section, test.line), test.expected) << test.section << ": " << test.line;
  }
}

TEST(ViscositySetting2Parm, EchoesOfOneLineComeInTheReadersOrder) {
  CZEBCMPViscositySetting2Parm block;
  EXPECT_EQ(printedBy([&] {
              readSectionInto(block, "ViscositySetting2", "LCP_SR_vs_Visc_Ratio LCP_SR_UpperBound = 0.1234567\n");
            }),
            "LCP_SR_UpperBound = 0.123457\nLCP_SR_vs_Visc_Ratio = 0.123457\n");
}

TEST(Compression, DumpsEveryMemberBehindItsOwnLabel) {
  CZEBCMPCompressionParm block;
  readSectionInto(block, "Compression",
                  "IsInitialData = 1\nIsCalConversionFromTemp = 2\nIsInitialTemp = 3\nIsInitialStress = 4\n"
                  "IsInitialFiber = 5\nAbaqusMeshType = 6\nPreHeatTimeInInitialData = 7.5\nMapFactor = 8.5\n"
                  "FilePathOfInitialData = a b.dat\nFilePathOfLocation = loc.txt\n[/Compression]\n");
  EXPECT_EQ(dumpOf(block),
            "\n---------Compression Parameters---------\n"
            "m_iIsInitialData\t\t\t\t= 1\n"
            "m_iIsCalConversionFromTemp\t\t= 2\n"
            "m_iIsInitialStress\t\t\t\t= 4\n"
            "m_iIsInitialTemp\t\t\t\t= 3\n"
            "m_iIsInitialFiber\t\t\t\t= 5\n"
            "m_dMapFactor\t\t\t\t\t= 8.5\n"
            "m_dPreHeatTimeInInitialData\t= 7.5\n"
            "m_szFilePathOfInitialData\t\t= a b.dat\n"
            "m_szFilePathOfLocation\t\t\t= loc.txt\n"
            "m_iAbaqusMeshType\t\t\t\t= 6\n");
}

// --- Inlet groups -----------------------------------------------------------------------------------------------

struct Groups {
  const char* what;
  const char* lines;  // behind the method's line
  std::vector<double> weights;
  int messages;
};

class MultiGateGroups : public testing::TestWithParam<Groups> {};

TEST_P(MultiGateGroups, TakeTheirLines) {
  CZEBCMPMultiGateParm block;
  const std::string message = "The Number of Inlet Groups and the number of Weightings Groups is different\n";
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate",
                    "MultipleGateMethod = 2\n" + std::string(GetParam().lines) + "OuterIteration = 7\n[/MultiGate]\n");
  });
  std::string expected;
  for (int i = 0; i < GetParam().messages; ++i) expected += message;
  EXPECT_EQ(printed, expected);
  ASSERT_EQ(block.iNumberofInletGroups(), static_cast<int>(GetParam().weights.size()));
  std::vector<double> weights(GetParam().weights.size() + 1, kUntouched);
  EXPECT_EQ(block.InletWeightings(weights.data()), 1);
  EXPECT_EQ(weights[0], kUntouched);
  for (std::size_t i = 1; i < weights.size(); ++i) EXPECT_DOUBLE_EQ(weights[i], GetParam().weights[i - 1]) << i;
  EXPECT_EQ(block.iMultiGateOuteriteration(), 7) << "the line behind the groups";
}

INSTANTIATE_TEST_SUITE_P(
    Lists, MultiGateGroups,
    testing::Values(
        Groups{"OneGroup", "NumberofInletGroups = 1\nWeightings = 0.3\n", {1.0}, 0},
        Groups{"MoreThanOne", "NumberofInletGroups = 2\nWeightings = 1.75\nWeightings = 0.5\n", {1.75, -0.75}, 0},
        Groups{"LastLineMissing", "NumberofInletGroups = 2\nWeightings = 0.25\n\n", {0.25, 0.75}, 1},
        Groups{"FirstLineMissing", "NumberofInletGroups = 2\n\nWeightings = 0.25\n", {0.0, 1.0}, 1},
        Groups{"NoLineIsOne", "NumberofInletGroups = 3\nweightings = 1\nWeighting = 1\n[General]\n", {0, 0, 1}, 3},
        Groups{"KeyInsideAWord", "NumberofInletGroups = 2\nInletWeightings_1 = 0.5\nmyWeightings = 9\n", {0.5, 0.5}, 0},
        Groups{"CountAmongThem", "NumberofInletGroups = 2\nNumberofInletGroups = 4\nWeightings = 0.5\n", {0.0, 1.0}, 1},
        Groups{"CountAndWeightOnOneLine",
               "NumberofInletGroups Weightings = 2\nWeightings = 0.5\nWeightings = 0.5\n",
               {0.5, 0.5},
               0},
        Groups{"FewerTheSecondTime",
               "NumberofInletGroups = 2\nWeightings = 0.25\nWeightings = 0\nNumberofInletGroups = 1\nWeightings = 0\n",
               {1.0},
               0},
        Groups{"MoreTheSecondTime",
               "NumberofInletGroups = 1\nWeightings = 0\nNumberofInletGroups = 2\nWeightings = 0.25\n\n",
               {0.25, 0.75},
               1}),
    [](const auto& test) { return std::string(test.param.what); });

TEST(MultiGate, WeightOutsideOfTheGroupsSetsNothing) {
  CZEBCMPMultiGateParm block;
  EXPECT_EQ(printedBy([&] {
              readSectionInto(block, "MultiGate",
                              "MultipleGateMethod = 1\nWeightings = 0.5\nNumberofInletGroups = 1\nWeightings = 1\n"
                              "Weightings = 0.5\n[/MultiGate]\n");
            }),
            "");
  double weights[2] = {kUntouched, kUntouched};
  EXPECT_EQ(block.InletWeightings(weights), 1);
  EXPECT_EQ(weights[1], 1.0);
}

TEST(MultiGate, OtherKeysOfTheCountsLineComeBeforeIt) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate",
                  "MultipleGateMethod = 1\nNumberofInletGroups SPVariationLimit Debug = 1\nWeightings = 3\n");
  EXPECT_EQ(block.dMultipleGateSPVariationLimit(), 1.0);
  EXPECT_EQ(block.iMultipleGateDebug(), 1);
  EXPECT_EQ(block.iNumberofInletGroups(), 1);
}

// --- Dispenser points -------------------------------------------------------------------------------------------

struct Points {
  double speed = kUntouched;
  std::vector<std::array<double, 2>> at;  // x and y, from point 1
};

Points pointsAfter(const std::string& lines) {
  CZEBCMPUNFSettingParm block;
  EXPECT_EQ(printedBy([&] { readSectionInto(block, "UNFSetting", lines + "[/UNFSetting]\n"); }), "");
  Points points;
  const auto count = static_cast<std::size_t>(block.iNDispenserPass());
  std::vector<std::array<double, 3>> storage(count + 1, {kUntouched, kUntouched, kUntouched});
  std::vector<double*> rows;
  for (auto& row : storage) rows.push_back(row.data());
  EXPECT_EQ(block.dDispenser(rows.data(), points.speed), 1);
  for (std::size_t i = 1; i <= count; ++i) points.at.push_back({storage[i][1], storage[i][2]});
  return points;
}

using At = std::vector<std::array<double, 2>>;

TEST(UNFSetting, LaterFillTypeClosesTheGateAndKeepsThePoints) {
  const Points points = pointsAfter(
      "FillType = 3\nnDispenserPoint = 1\nPoint_x1 = 4\nSpeed_V = 2\nFillType = 1\nPoint_x1 = 5\nSpeed_V = 6\n"
      "nDispenserPoint = 3\n");
  EXPECT_EQ(points.at, (At{{4, 0}}));
  EXPECT_EQ(points.speed, 2.0);
}

TEST(UNFSetting, FillTypeBehindThePointsComesTooLate) {
  const Points points = pointsAfter("nDispenserPoint = 1\nPoint_x1 = 4\nSpeed_V = 2\nFillType = 2\n");
  EXPECT_EQ(points.at, At{});
  EXPECT_EQ(points.speed, 0.0);
}

TEST(UNFSetting, FillTypeThatDoesNotParseLeavesTheGateAsItIs) {
  EXPECT_EQ(pointsAfter("FillType = two\nnDispenserPoint = 1\n").at, At{});
  EXPECT_EQ(pointsAfter("FillType = 2\nFillType = two\nnDispenserPoint = 1\nPoint_y1 = 4\n").at, (At{{0, 4}}));
}

TEST(UNFSetting, SpeedNeedsNoPoints) {
  const Points points = pointsAfter("FillType = 2\nSpeed_V = 2.5\n");
  EXPECT_EQ(points.speed, 2.5);
  EXPECT_EQ(points.at, At{});
}

TEST(UNFSetting, NoPointsTakeNoCoordinates) {
  const Points points = pointsAfter("FillType = 2\nnDispenserPoint = 0\nPoint_x1 = 4\nSpeed_V = 1\n");
  EXPECT_EQ(points.at, At{});
  EXPECT_EQ(points.speed, 1.0);
}

TEST(UNFSetting, CoordinateThatDoesNotParseKeepsTheOneBefore) {
  EXPECT_EQ(pointsAfter("FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 4\nPoint_x1 = far\nPoint_y1\n").at,
            (At{{4, 0}}));
}

TEST(UNFSetting, OneLineMayHoldSeveralCoordinates) {
  EXPECT_EQ(pointsAfter("FillType = 2\nnDispenserPoint = 2\nPoint_x1 Point_y2 Speed_V = 4\n").at, (At{{4, 0}, {0, 4}}));
}

TEST(UNFSetting, CoordinateKeyMayHaveMoreDigits) {
  // There is no key for point 10; its line holds the key of point 1.
  EXPECT_EQ(pointsAfter("FillType = 2\nnDispenserPoint = 2\nPoint_x10 = 4\n").at, (At{{4, 0}, {0, 0}}));
}

// --- Vent inlets ------------------------------------------------------------------------------------------------

std::vector<int> inletsOf(const CZEBCMPRTMParm& block) {
  std::vector<int> numbers(static_cast<std::size_t>(block.iNVentInlet()) + 1, kUntouched);
  EXPECT_EQ(block.getVentInletID(numbers.data()), 0);
  EXPECT_EQ(numbers[0], kUntouched);
  return {numbers.begin() + 1, numbers.end()};
}

using Inlets = std::vector<int>;

TEST(RTM, CountOfZeroTakesNoLineAndItsOwnIsReadForTheOtherKeys) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet RTMAlgorithm = 0\nVentInletID UsePCG = 3\n[/RTM]\n");
  EXPECT_EQ(inletsOf(block), Inlets{});
  EXPECT_EQ(block.iRTMAlgorithm(), 0);
  EXPECT_EQ(block.iUsePCG(), 3) << "a line of its own";
}

TEST(RTM, LineOfARefusedCountIsReadForTheOtherKeys) {
  CZEBCMPRTMParm block;
  EXPECT_EQ(printedBy([&] { readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet RTMAlgorithm = -4\n"); }),
            "[RTM] NVentInlet = -4 is no valid count (0 to 1000000); 0 is used\n");
  EXPECT_EQ(block.iRTMAlgorithm(), -4);
}

TEST(RTM, OtherAnnouncementsAreStoredAndOpenNoList) {
  for (const int value : {0, 2, -1}) {
    CZEBCMPRTMParm block;
    readSectionInto(block, "RTM", "IsVentInlet UsePCG = " + std::to_string(value) + "\nNVentInlet = 1\n");
    EXPECT_EQ(block.iIsVentInlet(), value);
    EXPECT_EQ(block.iUsePCG(), value) << "the announcing line is the current one";
    EXPECT_EQ(block.iNVentInlet(), 0);
  }
}

TEST(RTM, AnnouncementWithoutANumberOpensNoListEvenAfterAnotherOne) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM",
                  "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 5\nIsVentInlet UsePCG\nNVentInlet = 2\n[/RTM]\n");
  EXPECT_EQ(block.iIsVentInlet(), 1);
  EXPECT_EQ(inletsOf(block), Inlets{5});
}

TEST(RTM, ClosingLineAmongTheInletsIsReadForNothing) {
  CZEBCMPRTMParm block;
  EXPECT_EQ(readSectionInto(block, "RTM",
                            "IsVentInlet = 1\nNVentInlet = 2\nVentInletID = 5\nVentInletID UsePCG = 6 [/RTM]\nleft\n"),
            "left\n");
  EXPECT_EQ(inletsOf(block), (Inlets{5, 0}));
  EXPECT_EQ(block.iUsePCG(), 0);
  CZEBCMPRTMParm uncounted;
  EXPECT_EQ(readSectionInto(uncounted, "RTM", "IsVentInlet = 1\nNVentInlet = 2 [/RTM]\nleft\n"), "left\n");
  EXPECT_EQ(uncounted.iNVentInlet(), 0);
}

TEST(RTM, SecondListReplacesTheFirst) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM",
                  "IsVentInlet = 1\nNVentInlet = 3\nVentInletID = 5\nVentInletID = 6\nVentInletID = 7\n"
                  "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = -8\n[/RTM]\n");
  EXPECT_EQ(inletsOf(block), Inlets{-8});
}

TEST(RTM, VoidPredictionEchoesTheListsLastLineWhenItStandsThere) {
  CZEBCMPRTMParm block;
  EXPECT_EQ(printedBy([&] {
              readSectionInto(block, "RTM",
                              "IsVentInlet VoidPrediction = 1\nNVentInlet VoidPrediction = 2\n"
                              "VentInletID VoidPrediction = 3\nVentInletID VoidPrediction = 4\n[/RTM]\n");
            }),
            "sline = VentInletID VoidPrediction = 4\nii = 4\nm_iVoidPrediction = 4\n");
  EXPECT_EQ(inletsOf(block), (Inlets{3, 4}));
}

// --- Cooling sections in a file ---------------------------------------------------------------------------------

class WholeFile : public testing::Test {
 protected:
  std::string read(const std::string& text) {
    const TemporaryFile file(text);
    return printedBy([&] { EXPECT_EQ(set.setSolidFillBlock(file.path()), 1); });
  }

  CZEBKNCMPCompParm set{0, 0};
};

TEST_F(WholeFile, LinesOfARefusedCoolingSectionMayOpenOthers) {
  struct {
    const char* opening;
    int version;
  } const kSections[] = {{"[FastCool]", 1016}, {"[StdCool]", 1046}, {"[3DCoolingChannel]", 1003}};
  int mode = 0;
  for (const auto& section : kSections) {
    ++mode;
    read(section.opening + ("\n" + std::to_string(section.version)) +
         "\n3 3\n[General]\nVentMode = " + std::to_string(mode) + "\n[/General]\n");
    EXPECT_EQ(set.getGeneralParm()->iVentMode(), mode) << section.opening;
  }
  EXPECT_EQ(set.getCool_FastCoolParm()->iGetlsolvTP(), 5);
  EXPECT_EQ(set.getCool_StdCoolParm()->iGetlsolvTP(), 2);
  EXPECT_EQ(set.getCool_3DCoolingChannelParm()->iGet3DCChanelDebug(), 0);
}

TEST_F(WholeFile, CoolingSectionTakesOpeningsAmongItsLines) {
  std::string text = "[3DCoolingChannel]\n1002\n1\n[General]\nVentMode = 4\n0.5\n0.75\n[/General]\n";
  text += "[/3DCoolingChannel]\n[General]\nVentAnalysis = 1\n[/General]\n";
  EXPECT_EQ(read(text), "");
  EXPECT_EQ(set.getCool_3DCoolingChannelParm()->iGet3DCChanelDebug(), 1);
  EXPECT_EQ(set.getCool_3DCoolingChannelParm()->iGetNiterC(), 5);
  EXPECT_EQ(set.getCool_3DCoolingChannelParm()->dGetGeoTempCUnder(), 0.5);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 0);
  EXPECT_EQ(set.getGeneralParm()->iVentAnalysis(), 1) << "behind the seven lines";
}

TEST_F(WholeFile, HeatFluxHistoryOfTheWhiteboardIsNotThatOfTheStandardCooling) {
  read("[Whiteboard]\nHeatFluxHistory\n[/Whiteboard]\n");
  EXPECT_TRUE(set.getCool_BackDoorParm()->bGetIfActiveHeatFluxHistory());
  EXPECT_FALSE(set.getCool_StdCoolParm()->bGetIfActiveHeatFluxHistory());
}

TEST_F(WholeFile, UnclosedWhiteboardTakesTheRestOfTheFile) {
  EXPECT_EQ(read("[Whiteboard]\n[General]\nVentMode = 4\n[/General]\nSensorHeatFlux"), "");
  EXPECT_EQ(set.getCool_BackDoorParm()->iGetIfActiveSensorHeatFlux(), 1);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 0);
}

TEST_F(WholeFile, FoamDebuggingIsOpenedByItsExactSpellingOnly) {
  read("[MuCell_DEBUG]\nFlagDebug = 1\n[/MuCell_DEBUG]\n[Foam_DEBUG]\nFlagDebug = 2\n[/Foam_DEBUG]\n");
  EXPECT_EQ(set.getFoamParm()->DEBUG_iFlagDebug(), 0);
  read("[Mucell_DEBUG]\nFlagDebug = 3\n[/Mucell_DEBUG]\n");
  EXPECT_EQ(set.getFoamParm()->DEBUG_iFlagDebug(), 3);
}

TEST_F(WholeFile, PlotDynamicThatIsClosedWithTheFiberPrefixTakesTheSectionsBehindIt) {
  read(
      "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/FIBER_PLOT_DYNAMIC]\n[FIBER_ARD]\nb1 = 2\n[/FIBER_ARD]\n"
      "[Foam_PLOT_DYNAMIC]\nFlagIsPlotDynamic = 3\n[/Foam_PLOT_DYNAMIC]\n[/PLOT_DYNAMIC]\n[FIBER_SLOW]\nk = 4\n");
  EXPECT_EQ(set.getFiberParm()->FIBER_ARD_db1(), 0.0);
  EXPECT_EQ(set.getFoamParm()->PLOT_DYNAMIC_iFlagIsPlotDynamic(), 0);
  EXPECT_EQ(set.getFiberParm()->PLOT_DYNAMIC_iFlagIsPlotDynamic(), 3) << "a key of the unclosed section's own";
  EXPECT_EQ(set.getFiberParm()->FIBER_SLOW_dk(), 4.0);
}

TEST(Whiteboard, OneLineMayHoldSeveralWords) {
  CZEBCoolBackDoorParm block;
  readSectionInto(block, "Whiteboard",
                  "ElemagComsol 0x10 inf coil.txt FlagTurnOffEstimateCoolTime IdealCooingItreateNumber SensorHeatFlux\n"
                  "FlagTurnOffEstimateCoolTime IdealCooingItreateNumber = 6\n[/Whiteboard]\n");
  EXPECT_EQ(block.dGetTime_StartHeating(), 16.0);
  EXPECT_GT(block.dGetTime_EndHeating(), 1e308);
  EXPECT_STREQ(block.cGetElectromagneticxternalFile(), "coil.txt");
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
  EXPECT_EQ(block.iGetFlagTurnOffCoolTime(), 6);
  EXPECT_EQ(block.iGetIdealCooingIterateNumber(), 6);
}

// --- Several ranks ----------------------------------------------------------------------------------------------

// Rank 0 reads this section by itself, so that its lines have no limit; all other sections' lines are cut.
TEST(WhiteboardOnRanks, LinesLongerThanABroadcastCountOnEveryRank) {
  const std::string blanks(300, ' '), name(400, 'c');
  const TemporaryFile file("[Whiteboard]\n" + blanks + "SensorHeatFlux\nElemagComsol" + blanks + "1.5 2.5 " + name +
                           "\n" + blanks + "IdealCooingItreateNumber = 9\n" + blanks +
                           "[/Whiteboard]\n[General]\nVentMode = 3\n" + blanks + "TurningBad = 1\n[/General]\n");
  constexpr int kRanks = 3;
  int checked = 0;
  std::mutex mutex;
  zeb::ThreadTeam team(kRanks);
  team.run([&](int rank, CZEBCom& com) {
    CZEBKNCMPCompParm set(0, 0);
    set.setZEBCom(&com);
    set.setSolidFillBlock(rank == 0 ? file.path() : "no/such/file.cmp");
    const std::lock_guard<std::mutex> lock(mutex);
    SCOPED_TRACE(rank);
    const CZEBCoolBackDoorParm& board = *set.getCool_BackDoorParm();
    EXPECT_EQ(board.iGetIfActiveSensorHeatFlux(), 1);
    EXPECT_EQ(board.iGetIfActive_ElectromagneticHeating(), 1);
    EXPECT_EQ(board.dGetTime_StartHeating(), 1.5);
    EXPECT_EQ(board.dGetTime_EndHeating(), 2.5);
    EXPECT_EQ(board.cGetElectromagneticxternalFile(), name);
    EXPECT_EQ(board.iGetIdealCooingIterateNumber(), 9);
    EXPECT_EQ(set.getGeneralParm()->iVentMode(), 3);
    EXPECT_EQ(set.getGeneralParm()->iTurningBad(), 0) << "cut off";
    ++checked;
  });
  EXPECT_EQ(checked, kRanks);
}

struct Message {
  const char* what;
  const char* text;
  std::string rank0;
  bool everyRank;
};

class BlockMessages : public testing::TestWithParam<Message> {
 protected:
  static std::string printedOn(CZEBCom* com, const std::string& file) {
    return printedBy([&] {
      CZEBKNCMPCompParm set(0, 0);
      if (com != nullptr) set.setZEBCom(com);
      EXPECT_EQ(set.setSolidFillBlock(file), 1);
    });
  }
};

TEST_P(BlockMessages, AreSaidOnTheirRanks) {
  const TemporaryFile file(GetParam().text);
  EXPECT_EQ(printedOn(nullptr, file.path()), GetParam().rank0);
  zeb::RecordingCommunicator first(3);
  EXPECT_EQ(printedOn(&first, file.path()), GetParam().rank0);
  for (const int rank : {1, 2}) {
    zeb::ReplayingCommunicator other(first.log(), rank, 3);
    EXPECT_EQ(printedOn(&other, "no/such/file.cmp"), GetParam().everyRank ? GetParam().rank0 : "") << rank;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Sections, BlockMessages,
    testing::Values(
        Message{"CompressibleFlow", "[CompressibleFlow]\nCompressible_UVW_Tol = 0.01\nVentdDdp = 5e-9\n",
                "Compressible_UVW_Tol    = 0.01\nm_dVentAirDdp     = 5e-09\n", true},
        Message{"LiquidCrystal", "[ViscositySetting2]\nLCP_SR_Change_Tm_Slope_Ratio = 2\n",
                "LCP_SR_Change_Tm_Slope_Ratio = 2\n", true},
        Message{"VoidPrediction", "[RTM]\nVoidPrediction = 2\n",
                "sline = VoidPrediction = 2\nii = 2\nm_iVoidPrediction = 2\n", true},
        Message{"MissingWeights", "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\n[/MultiGate]\n",
                "The Number of Inlet Groups and the number of Weightings Groups is different\n"
                "The Number of Inlet Groups and the number of Weightings Groups is different\n",
                true},
        Message{"RefusedInletGroups", "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = -2\n",
                "[MultiGate] NumberofInletGroups = -2 is no valid count (0 to 1000000); 0 is used\n", false},
        Message{"RefusedVentInlets", "[RTM]\nIsVentInlet = 1\nNVentInlet = 1000001\n",
                "[RTM] NVentInlet = 1000001 is no valid count (0 to 1000000); 0 is used\n", false},
        Message{"RefusedPoints", "[UNFSetting]\nFillType = 2\nnDispenserPoint = -2147483648\n",
                "[UNFSetting] nDispenserPoint = -2147483648 is no valid count (0 to 1000000); 0 is used\n", false},
        Message{"SilentRefusals", "[FastCool]\n1016\n[StdCool]\n1\n[3DCoolingChannel]\nx\n", "", true},
        Message{"SilentKeys", "[FAIM]\nIsCoIM = x\nunknown = 1\n[/FAIM]\n[ProcessModify]\nFlowRateChangeLowerBound = 9",
                "", true}),
    [](const auto& test) { return std::string(test.param.what); });

}  // namespace
