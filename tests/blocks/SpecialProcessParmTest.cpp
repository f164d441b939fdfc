// The special-process blocks: keys that differ from their members, the dispenser's points, the vent inlets, owned
// texts.
#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "blocks/CZEBCMPBiIMParm.h"
#include "blocks/CZEBCMPFAIMParm.h"
#include "blocks/CZEBCMPPIMParm.h"
#include "blocks/CZEBCMPPUChemFoamParm.h"
#include "blocks/CZEBCMPRTMParm.h"
#include "blocks/CZEBCMPUNFSettingParm.h"
#include "engine/ReadObserver.hpp"
#include "tests/blocks/ReadBlock.hpp"

namespace {

using zebtest::dumpOf;
using zebtest::printedBy;
using zebtest::readSectionInto;

constexpr int kRefusedCounts[] = {-1, 1'000'001, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

void expectOneRefusal(const std::string& printed, const std::string& section, const std::string& key, int count) {
  EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << printed;
  for (const std::string& part : {section, key, std::to_string(count)}) {
    EXPECT_NE(printed.find(part), printed.npos) << printed;
  }
}

// --- FAIM -------------------------------------------------------------------------------------------------------

TEST(FAIM, KeysThatDifferFromTheirMembers) {
  CZEBCMPFAIMParm block;
  readSectionInto(block, "FAIM",
                  "FluidRelaxFactor = 0.5\nFluidRealxFactor = 9\nCoMtrName =  PA 6 \nCoMatName = other\n[/FAIM]\n");
  EXPECT_EQ(block.dFluidRealxFactor(), 0.5);
  EXPECT_STREQ(block.CoMatName(), "PA 6 ");
}

TEST(FAIM, OverflowGateKeyNeedsABlankBehindTheWord) {
  CZEBCMPFAIMParm block;
  readSectionInto(block, "FAIM", "ShowOverflowGateData=1\n[/FAIM]\n");
  EXPECT_EQ(block.iShowOverflowGateData(), 0);
  readSectionInto(block, "FAIM", "ShowOverflowGateData = 1\n[/FAIM]\n");
  EXPECT_EQ(block.iShowOverflowGateData(), 1);
}

TEST(FAIM, RepeatedNameTakesTheLastAndKeepsTheFirstValid) {
  CZEBCMPFAIMParm block;
  EXPECT_EQ(block.CoMatName(), nullptr);
  readSectionInto(block, "FAIM", "CoMtrName = first\n[/FAIM]\n");
  const char* const first = block.CoMatName();
  readSectionInto(block, "FAIM", "CoMtrName = second\nCoMtrName = third\n[/FAIM]\n");
  EXPECT_STREQ(first, "first");
  EXPECT_STREQ(block.CoMatName(), "third");
}

TEST(FAIM, CopiesShareTheNameAndOutliveTheirSource) {
  CZEBCMPFAIMParm assigned;
  const char* shared = nullptr;
  {
    CZEBCMPFAIMParm block;
    readSectionInto(block, "FAIM", "CoMtrName = PA6\n[/FAIM]\n");
    shared = block.CoMatName();
    assigned = block;
  }
  EXPECT_EQ(assigned.CoMatName(), shared);
  EXPECT_STREQ(assigned.CoMatName(), "PA6");
}

TEST(FAIM, DumpsInAnOrderOfItsOwn) {
  CZEBCMPFAIMParm block;
  readSectionInto(block, "FAIM", "CoMtrName = PA6\n[/FAIM]\n");
  EXPECT_EQ(dumpOf(block),
            "\n---------FAIM Parameters---------\n"
            "m_dFluidFCRI\t\t\t\t= 0.7\n"
            "m_dMeltFCRI\t\t\t\t= 0.9\n"
            "m_iSecondModel\t\t\t\t= 0\n"
            "m_dSecondFactor\t\t\t= 1\n"
            "m_dFluidVisFactor\t\t\t= 20\n"
            "m_dFluidRealxFactor\t\t= 1\n"
            "m_iIsCoIM\t\t\t\t\t= 0\n"
            "m_iIsCoIMGNF\t\t\t\t= 1\n"
            "m_szCoMatName\t\t\t\t= PA6\n"
            "m_dMeltReEnterTime\t\t\t= 0\n"
            "m_iIsCoIM121\t\t\t\t= 0\n"
            "m_iIsBiIM\t\t\t\t\t= 0\n"
            "m_iFAIM123\t\t\t\t\t= 0\n"
            "m_iShowOverflowGateData\t= 0\n"
            "m_iFAIMPushBack\t\t\t= 0\n"
            "m_dFluidEnterTime\t\t\t= 0\n"
            "m_dPushBackTime\t\t\t= 0\n"
            "m_dPushBackCloseTime\t\t= -1\n"
            "m_dFrozenRatio\t\t\t\t= 0.9\n");
}

// --- BiIM, PIM, PUChemFoam --------------------------------------------------------------------------------------

TEST(BiIM, ReadsAndDumps) {
  CZEBCMPBiIMParm block;
  readSectionInto(block, "BiIM", "IsABA = 1\nCalculateVOFtoPack = 2\n[/BiIM]\n");
  EXPECT_EQ(dumpOf(block),
            "\n---------BiIM Parameters---------\nm_iBiIMABA\t\t\t\t\t= 1\nm_iCalculateVOFtoPack\t\t= 2\n");
}

TEST(PIM, VersionIsFixed) {
  CZEBCMPPIMParm block;
  readSectionInto(block, "PIM", "Version = 1\nSolverType = 2\nSolverTolerance = 1e-4\n[/PIM]\n");
  EXPECT_EQ(block.Version(), 1401);
  EXPECT_EQ(dumpOf(block),
            "\n---------PIM Parameters---------\nm_iVersion\t\t\t= 1401\nm_iConcentrationEffectOnFlow = 0\n"
            "m_iUsingRelativeVisCosityToConcentration = 1\nm_dSolverTolerance = 0.0001\n"
            "m_dIterationTolerance = 0.01\nm_iSolverType = 2\n");
}

struct MacroCase {
  const char* value;
  double stored;
};

class PUChemFoamMacro : public testing::TestWithParam<MacroCase> {};

TEST_P(PUChemFoamMacro, IsReadAsAnInt) {
  CZEBCMPPUChemFoamParm block;
  readSectionInto(block, "PUChemFoam", std::string("KineticParasbyMacro = ") + GetParam().value + "\n[/PUChemFoam]\n");
  EXPECT_EQ(block.dKineticParasbyMacro(), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Values, PUChemFoamMacro,
                         testing::Values(MacroCase{"2.7", 2.0}, MacroCase{"0.5", 0.0}, MacroCase{"-3", -3.0},
                                         MacroCase{"none", 1.0}));

TEST(PUChemFoam, PreFactorsAndActivationEnergiesDoNotMix) {
  CZEBCMPPUChemFoamParm block;
  readSectionInto(block, "PUChemFoam", "Ea_gelling = 5\nEa_blowing = 6\n[/PUChemFoam]\n");
  EXPECT_EQ(block.dPUEa_gelling(), 5.0);
  EXPECT_EQ(block.dPUEa_blowing(), 6.0);
  EXPECT_EQ(block.dPUA_gelling(), 1.735);
  EXPECT_EQ(block.dPUA_blowing(), 1390.0);
}

TEST(PUChemFoam, LastLabelsMixTabsAndBlanks) {
  const std::string dump = dumpOf(CZEBCMPPUChemFoamParm());
  const std::string tail =
      "m_iPUKineticModel\t\t\t\t= 3\nm_dPUVis_Gas_ParmN\t\t        = 0\nm_dPUExpansionRatio\t\t        = 20\n"
      "m_dKineticParasbyMacro\t\t        = 1\n";
  ASSERT_GE(dump.size(), tail.size());
  EXPECT_EQ(dump.substr(dump.size() - tail.size()), tail);
}

// --- UNFSetting -------------------------------------------------------------------------------------------------

constexpr double kUntouched = -77.0;

struct Dispenser {
  int result = 0;
  double speed = kUntouched;
  std::vector<std::array<double, 3>> rows;
};

Dispenser dispenserOf(const CZEBCMPUNFSettingParm& block) {
  Dispenser dispenser;
  dispenser.rows.assign(static_cast<std::size_t>(block.iNDispenserPass()) + 1, {kUntouched, kUntouched, kUntouched});
  std::vector<double*> points;
  for (auto& row : dispenser.rows) points.push_back(row.data());
  dispenser.result = block.dDispenser(points.data(), dispenser.speed);
  return dispenser;
}

std::array<double, 3> point(double x, double y) { return {kUntouched, x, y}; }

TEST(UNFSetting, DispenserNeedsAFillTypeOfTwo) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting", "FillType = 1\nnDispenserPoint = 1\nPoint_x1 = 3\nSpeed_V = 4\n[/UNFSetting]\n");
  EXPECT_EQ(block.iNDispenserPass(), 0);
  const Dispenser dispenser = dispenserOf(block);
  EXPECT_EQ(dispenser.result, 1);
  EXPECT_EQ(dispenser.speed, 0.0);
  EXPECT_EQ(dispenser.rows[0], point(kUntouched, kUntouched));
}

TEST(UNFSetting, AtMostFivePointsAreRead) {
  CZEBCMPUNFSettingParm block;
  std::string lines = "FillType = 2\nnDispenserPoint = 7\nSpeed_V = 4\n";
  for (int i = 1; i <= 7; ++i) {
    const std::string number = std::to_string(i);
    lines += "Point_x" + number + " = " + number + "\nPoint_y" + number + " = -" + number + "\n";
  }
  readSectionInto(block, "UNFSetting", lines + "[/UNFSetting]\n");
  const Dispenser dispenser = dispenserOf(block);
  EXPECT_EQ(dispenser.speed, 4.0);
  ASSERT_EQ(dispenser.rows.size(), 8u);
  EXPECT_EQ(dispenser.rows[0], point(kUntouched, kUntouched));
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(dispenser.rows[static_cast<std::size_t>(i)], point(i, -i)) << i;
  EXPECT_EQ(dispenser.rows[6], point(0, 0));
  EXPECT_EQ(dispenser.rows[7], point(0, 0));
}

TEST(UNFSetting, PointsBeforeOrBeyondTheCountAreIgnored) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting",
                  "FillType = 2\nPoint_x1 = 8\nnDispenserPoint = 2\nPoint_y2 = 5\nPoint_x3 = 9\n[/UNFSetting]\n");
  const Dispenser dispenser = dispenserOf(block);
  ASSERT_EQ(dispenser.rows.size(), 3u);
  EXPECT_EQ(dispenser.rows[1], point(0, 0));
  EXPECT_EQ(dispenser.rows[2], point(0, 5));
}

TEST(UNFSetting, CountAndPointOnOneLineBothCount) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting", "FillType nDispenserPoint Point_y1 = 2\n[/UNFSetting]\n");
  EXPECT_EQ(block.iFillType(), 2);
  EXPECT_EQ(dispenserOf(block).rows[1], point(0, 2));
}

TEST(UNFSetting, NewCountStartsWithNewPoints) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 3\nnDispenserPoint = 1\n");
  EXPECT_EQ(dispenserOf(block).rows[1], point(0, 0));
}

TEST(UNFSetting, RefusedCountsLeaveNoPoints) {
  for (const int count : kRefusedCounts) {
    CZEBCMPUNFSettingParm block;
    const std::string printed = printedBy([&] {
      readSectionInto(block, "UNFSetting",
                      "FillType = 2\nnDispenserPoint = 1\nnDispenserPoint = " + std::to_string(count) +
                          "\nPoint_x1 = 3\nSpeed_V = 4\n[/UNFSetting]\n");
    });
    expectOneRefusal(printed, "UNFSetting", "nDispenserPoint", count);
    EXPECT_EQ(block.iNDispenserPass(), 0);
    EXPECT_EQ(dispenserOf(block).speed, 4.0);
  }
}

TEST(UNFSetting, LargestCountIsTaken) {
  CZEBCMPUNFSettingParm block;
  readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 1000000\nPoint_x5 = 1\n");
  const Dispenser dispenser = dispenserOf(block);
  EXPECT_EQ(dispenser.rows[5], point(1, 0));
  EXPECT_EQ(dispenser.rows[1'000'000], point(0, 0));
}

TEST(UNFSetting, PointsWithNowhereToGoAreRefused) {
  CZEBCMPUNFSettingParm block;
  double speed = kUntouched;
  EXPECT_EQ(block.dDispenser(nullptr, speed), 1);
  readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 1\nSpeed_V = 4\n");
  EXPECT_EQ(block.dDispenser(nullptr, speed), -1);
  EXPECT_EQ(speed, 4.0);
}

TEST(UNFSetting, CopiesShareThePointsAndOutliveTheirSource) {
  CZEBCMPUNFSettingParm assigned;
  std::string address;
  const auto lastLine = [](const std::string& dump) { return dump.substr(dump.rfind('\n', dump.size() - 2) + 1); };
  {
    CZEBCMPUNFSettingParm block;
    readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 3\n");
    assigned = block;
    address = lastLine(dumpOf(block));
  }
  EXPECT_EQ(address.find("m_pdDispenserPoint\t\t= 0x"), 0u) << address;
  EXPECT_EQ(lastLine(dumpOf(assigned)), address);
  EXPECT_EQ(dispenserOf(assigned).rows[1], point(3, 0));
}

TEST(UNFSetting, DumpsContactAngleSurfaceTensionAndInterfaceFirst) {
  EXPECT_EQ(dumpOf(CZEBCMPUNFSettingParm()),
            "\n---------UNFSetting Parameters---------\n"
            "m_dContactAngle\t\t= 90\n"
            "m_dSTCoeff\t\t\t\t= 0\n"
            "m_dVofInter\t\t\t= 0.01\n"
            "m_dDeng\t\t\t\t= 0.001\n"
            "m_dDenl\t\t\t\t= 1\n"
            "m_dVisg\t\t\t\t= 0.00015\n"
            "m_dVisl\t\t\t\t= 0.015\n"
            "m_iFillType\t\t\t= 1\n"
            "m_iNDispenserPass\t\t= 0\n"
            "m_dDispenserSpeed\t\t= 0\n"
            "m_pdDispenserPoint\t\t= 0\n");
}

// --- RTM --------------------------------------------------------------------------------------------------------

constexpr int kNoNumber = -77;

std::vector<int> ventInletsOf(const CZEBCMPRTMParm& block) {
  std::vector<int> numbers(static_cast<std::size_t>(block.iNVentInlet()) + 1, kNoNumber);
  std::vector<int> again = numbers;
  EXPECT_EQ(block.getVentInletID(numbers.data()), 0);
  EXPECT_EQ(block.piVentInletID(again.data()), 0);
  EXPECT_EQ(numbers, again);
  return numbers;
}

TEST(RTM, DumpsTwoMembersOnly) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "UseDllTemp = 3\nOutputM3K = 4\nUsePCG = 1\n[/RTM]\n");
  EXPECT_EQ(dumpOf(block), "\n---------RTM Parameters---------\nm_iUseDllTemp\t=3\nm_iOutputM3K\t=4\n");
}

TEST(RTM, BarrelPressureDropIsAnIntAndProperityIsSpelledSo) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM",
                  "BarrelPressureDrop = 2.9\nBarrelHTop = 2.9\nModifyProperitybyPressure_P0 = 3\n"
                  "ModifyProperitybyFiberAngle = 1\nModifyPropertybyPressure_Coeff = 8\n[/RTM]\n");
  EXPECT_EQ(block.iBarrelPressureDrop(), 2);
  EXPECT_EQ(block.dBarrelHTop(), 2.9);
  EXPECT_EQ(block.dModifyProperitybyPressure_P0(), 3.0);
  EXPECT_EQ(block.iModifyProperitybyFiberAngle(), 1);
  EXPECT_EQ(block.dModifyProperitybyPressure_Coeff(), 0.0);
}

TEST(RTM, MacroAndMicroCoefficientsDoNotMix) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "MacroCoeff1 = 1\nmicroCoeff1 = 2\nMacroCoeff2 = 3\nmicroCoeff2 = 4\n[/RTM]\n");
  EXPECT_EQ(block.dMacroCoeff1(), 1.0);
  EXPECT_EQ(block.dmicroCoeff1(), 2.0);
  EXPECT_EQ(block.dMacroCoeff2(), 3.0);
  EXPECT_EQ(block.dmicroCoeff2(), 4.0);
}

TEST(RTM, VoidPredictionPrintsItsLineAndItsValueTwice) {
  CZEBCMPRTMParm block;
  const std::string printed = printedBy(
      [&] { readSectionInto(block, "RTM", " VoidPrediction =  2  voids\nVoidPrediction = no\nKTow = 1\n[/RTM]\n"); });
  EXPECT_EQ(printed, "sline =  VoidPrediction =  2  voids\nii = 2\nm_iVoidPrediction = 2\n");
  EXPECT_EQ(block.iVoidPrediction(), 2);
}

TEST(RTM, ReadsTheVentInlets) {
  CZEBCMPRTMParm block;
  const std::string rest = readSectionInto(block, "RTM",
                                           "IsVentInlet = 1\nNVentInlet = 3\nVentInletID = 11\nVentInletID = "
                                           "12\nVentInletID = 13\nUsePCG = 1\n[/RTM]\nleft");
  EXPECT_EQ(rest, "left");
  EXPECT_EQ(ventInletsOf(block), (std::vector<int>{kNoNumber, 11, 12, 13}));
  EXPECT_EQ(block.iUsePCG(), 1);
}

TEST(RTM, VentInletLinesAloneSetNothing) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "NVentInlet = 2\nVentInletID = 4\nIsVentInlet = 2\nNVentInlet = 2\n[/RTM]\n");
  EXPECT_EQ(block.iIsVentInlet(), 2);
  EXPECT_EQ(ventInletsOf(block), (std::vector<int>{kNoNumber}));
}

TEST(RTM, OtherKeysCountOnTheListsLastLineOnly) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM",
                  "IsVentInlet UsePCG = 1\nNVentInlet UseAirP = 2\nVentInletID UseMessage = 7\n"
                  "VentInletID GCStable = 8\n[/RTM]\n");
  EXPECT_EQ(ventInletsOf(block), (std::vector<int>{kNoNumber, 7, 8}));
  EXPECT_EQ(block.iUsePCG(), 0);
  EXPECT_EQ(block.iUseAirP(), 0);
  EXPECT_EQ(block.iUseMessage(), 0);
  EXPECT_EQ(block.iGCStable(), 8);
}

TEST(RTM, LineAfterTheAnnouncementIsReadForItsKeysWhenItHasNoCount) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "IsVentInlet UseAirP = 1\nUsePCG = 1\nGCStable = 5\n[/RTM]\n");
  EXPECT_EQ(block.iIsVentInlet(), 1);
  EXPECT_EQ(block.iUseAirP(), 0);
  EXPECT_EQ(block.iUsePCG(), 1);
  EXPECT_EQ(block.iGCStable(), 5);
}

TEST(RTM, SecondAnnouncementOnTheListsLastLineIsNotRead) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "IsVentInlet = 1\nIsVentInlet = 2\nIsVentInlet = 3\n[/RTM]\n");
  EXPECT_EQ(block.iIsVentInlet(), 3);
  CZEBCMPRTMParm once;
  readSectionInto(once, "RTM", "IsVentInlet = 1\nIsVentInlet = 2\n[/RTM]\n");
  EXPECT_EQ(once.iIsVentInlet(), 1);
}

TEST(RTM, EntryWithoutItsKeyStaysZero) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM",
                  "IsVentInlet = 1\nNVentInlet = 3\nVentInletID = 5\nUsePCG = 1\nVentInletID = x\n[/RTM]\n");
  EXPECT_EQ(ventInletsOf(block), (std::vector<int>{kNoNumber, 5, 0, 0}));
  EXPECT_EQ(block.iUsePCG(), 0);
}

struct EarlyEnd {
  const char* name;
  const char* lines;
  std::vector<int> numbers;
};

class RTMEarlyEnd : public testing::TestWithParam<EarlyEnd> {};

TEST_P(RTMEarlyEnd, ClosingLineEndsTheSectionWithinTheList) {
  CZEBCMPRTMParm block;
  const std::string rest = readSectionInto(block, "RTM", std::string(GetParam().lines) + "[/RTM] UsePCG = 1\nleft");
  EXPECT_EQ(rest, "left");
  EXPECT_EQ(ventInletsOf(block), GetParam().numbers);
  EXPECT_EQ(block.iUsePCG(), 0);
}

TEST_P(RTMEarlyEnd, InputMayEndWithinTheList) {
  CZEBCMPRTMParm block;
  EXPECT_EQ(readSectionInto(block, "RTM", GetParam().lines), "");
  EXPECT_EQ(ventInletsOf(block), GetParam().numbers);
}

INSTANTIATE_TEST_SUITE_P(
    Places, RTMEarlyEnd,
    testing::Values(EarlyEnd{"BeforeTheCount", "IsVentInlet = 1\n", {kNoNumber}},
                    EarlyEnd{"BeforeTheFirst", "IsVentInlet = 1\nNVentInlet = 2\n", {kNoNumber, 0, 0}},
                    EarlyEnd{"BeforeTheLast", "IsVentInlet = 1\nNVentInlet = 2\nVentInletID = 6\n", {kNoNumber, 6, 0}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(RTM, CountLargerThanTheFileEndsQuickly) {
  CZEBCMPRTMParm block;
  const std::string printed =
      printedBy([&] { readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = 1000000\nVentInletID = 9\n"); });
  EXPECT_EQ(printed, "");
  const std::vector<int> numbers = ventInletsOf(block);
  ASSERT_EQ(numbers.size(), 1'000'001u);
  EXPECT_EQ(numbers[1], 9);
  EXPECT_EQ(numbers[1'000'000], 0);
}

TEST(RTM, RefusedCountsTakeNoLine) {
  for (const int count : kRefusedCounts) {
    CZEBCMPRTMParm block;
    const std::string printed = printedBy([&] {
      readSectionInto(block, "RTM",
                      "IsVentInlet = 1\nNVentInlet = " + std::to_string(count) + "\nUsePCG = 1\n[/RTM]\n");
    });
    expectOneRefusal(printed, "RTM", "NVentInlet", count);
    EXPECT_EQ(block.iNVentInlet(), 0);
    EXPECT_EQ(block.iUsePCG(), 1);
    EXPECT_EQ(block.getVentInletID(nullptr), 0);
  }
}

TEST(RTM, RefusalLooksLikeThatOfAnyOtherCount) {
  const std::string ofPoints = printedBy([] {
    CZEBCMPUNFSettingParm block;
    readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = -1\n");
  });
  std::string ofInlets = printedBy([] {
    CZEBCMPRTMParm block;
    readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = -1\n");
  });
  ofInlets.replace(ofInlets.find("RTM"), 3, "UNFSetting");
  ofInlets.replace(ofInlets.find("NVentInlet"), 10, "nDispenserPoint");
  EXPECT_EQ(ofInlets, ofPoints);
}

TEST(RTM, NumbersWithNowhereToGoAreRefused) {
  CZEBCMPRTMParm block;
  readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 9\n");
  EXPECT_EQ(block.getVentInletID(nullptr), -1);
  EXPECT_EQ(block.piVentInletID(nullptr), -1);
}

TEST(RTM, CopiesShareTheInletsAndOutliveTheirSource) {
  CZEBCMPRTMParm assigned;
  {
    CZEBCMPRTMParm block;
    readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 9\n");
    assigned = block;
    readSectionInto(block, "RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 10\n");
    EXPECT_EQ(ventInletsOf(block), (std::vector<int>{kNoNumber, 10}));
  }
  EXPECT_EQ(ventInletsOf(assigned), (std::vector<int>{kNoNumber, 9}));
}

class UsedListLines : public zeb::ReadObserver {
 public:
  std::vector<bool> used;
  void lineOfList(const zeb::Section&, int, std::string_view, bool lineIsUsed) override { used.push_back(lineIsUsed); }
};

TEST(RTM, TellsAnObserverWhichLinesTheInletsTook) {
  CZEBCMPRTMParm block;
  UsedListLines taken;
  std::istringstream stream("IsVentInlet = 1\nNVentInlet = 3\nVentInletID = 5\nUsePCG = 1\n[/RTM]\n");
  const zeb::LineSource serial;
  zeb::LineReader reader(stream, serial, &taken);
  zeb::readSection(zebtest::sectionOf<CZEBCMPRTMParm>("RTM"), &block, reader);
  EXPECT_EQ(taken.used, (std::vector<bool>{true, true, false}));
}

}  // namespace
