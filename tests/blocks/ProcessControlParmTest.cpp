// The process-control blocks: bounds, units, gates, the inlet groups with their weights, and the owned paths.
#include <algorithm>
#include <limits>
#include <vector>

#include "blocks/CZEBCMPAutoVPCtrlParm.h"
#include "blocks/CZEBCMPCompressionParm.h"
#include "blocks/CZEBCMPInletVelocitySettingParm.h"
#include "blocks/CZEBCMPMicroMoldingParm.h"
#include "blocks/CZEBCMPMultiGateParm.h"
#include "blocks/CZEBCMPOutletParm.h"
#include "blocks/CZEBCMPProcessModifyParm.h"
#include "blocks/CZEBCMPShortShotParm.h"
#include "engine/ReadObserver.hpp"
#include "tests/blocks/ReadBlock.hpp"

namespace {

using zebtest::dumpOf;
using zebtest::printedBy;
using zebtest::readSectionInto;

const std::string kMismatch = "The Number of Inlet Groups and the number of Weightings Groups is different\n";
constexpr double kUntouched = -77.0;

// --- Plain blocks -----------------------------------------------------------------------------------------------

TEST(ShortShot, ReadsBothLimits) {
  CZEBCMPShortShotParm block;
  readSectionInto(block, "ShortShot", "TimeLimit = 2.5\nFRLimit = 0.01\n[/ShortShot]\n");
  EXPECT_EQ(block.dTimeLimit(), 2.5);
  EXPECT_EQ(block.dFRLimit(), 0.01);
}

TEST(ShortShot, DumpsItsDefaults) {
  EXPECT_EQ(dumpOf(CZEBCMPShortShotParm()),
            "\n---------ShortShot Parameters---------\nm_dTimeLimit\t= 1.1\nm_dFRLimit\t\t= 0.002\n");
}

TEST(InletVelocitySetting, DumpsItsDefaults) {
  EXPECT_EQ(dumpOf(CZEBCMPInletVelocitySettingParm()),
            "\n---------InletVelocitySetting Parameters---------\nm_iCalcInletVelo\t\t= 1\n"
            "m_iMaxIterationNo\t\t= 10\nm_dCriterion\t\t\t= 0.1\n");
}

TEST(MicroMolding, TimeStepSizesSetTheCeLowerBounds) {
  CZEBCMPMicroMoldingParm block;
  readSectionInto(block, "MicroMolding",
                  "RunnerTimeStepSize = 0.25\nCavityTimeStepSize = 0.5\nRunnerCeLowerBound = 9\n[/MicroMolding]\n");
  EXPECT_EQ(block.dRunnerCeLowerBound(), 0.25);
  EXPECT_EQ(block.dCavityCeLowerBound(), 0.5);
}

TEST(Outlet, AirPressureIsConvertedFromMPa) {
  CZEBCMPOutletParm block;
  readSectionInto(block, "Outlet", "IsOutlet = 1\nAirPressure = 0.1\n[/Outlet]\n");
  EXPECT_DOUBLE_EQ(block.dAirPressure(), 1e6);
  EXPECT_EQ(dumpOf(block),
            "\n---------Outlet Parameters---------\nm_iIsOutlet\t\t\t\t= 1\nm_dAirPressure\t\t\t\t= 1e+06\n");
}

struct BoundCase {
  const char* line;
  double upper;
  double lower;
};

class ProcessModifyBounds : public testing::TestWithParam<BoundCase> {};

TEST_P(ProcessModifyBounds, AreAppliedOnReading) {
  CZEBCMPProcessModifyParm block;
  readSectionInto(block, "ProcessModify", std::string(GetParam().line) + "\n[/ProcessModify]\n");
  EXPECT_EQ(block.dProcessFRChangeUpperBound(), GetParam().upper);
  EXPECT_EQ(block.dProcessFRChangeLowerBound(), GetParam().lower);
}

INSTANTIATE_TEST_SUITE_P(Values, ProcessModifyBounds,
                         testing::Values(BoundCase{"", 1.1, 0.9},  //
                                         BoundCase{"FlowRateChangeUpperBound = 0.5", 1.0, 0.9},
                                         BoundCase{"FlowRateChangeUpperBound = 1.0", 1.0, 0.9},
                                         BoundCase{"FlowRateChangeUpperBound = 3.5", 3.5, 0.9},
                                         BoundCase{"FlowRateChangeLowerBound = 1.5", 1.1, 0.999},
                                         BoundCase{"FlowRateChangeLowerBound = 0.999", 1.1, 0.999},
                                         BoundCase{"FlowRateChangeLowerBound = 0.5", 1.1, 0.5},
                                         BoundCase{"FlowRateChangeLowerBound = 0.001", 1.1, 0.001},
                                         BoundCase{"FlowRateChangeLowerBound = 0", 1.1, 0.001},
                                         BoundCase{"FlowRateChangeLowerBound = -4", 1.1, 0.001},
                                         BoundCase{"FlowRateChangeUpperBound = low", 1.1, 0.9}));

// --- AutoVPCtrl -------------------------------------------------------------------------------------------------

TEST(AutoVPCtrl, OtherKeysCountOnlyWhileTheModeIsOn) {
  CZEBCMPAutoVPCtrlParm block;
  readSectionInto(block, "AutoVPCtrl",
                  "Debug = 1\nAutoVPMode = 0\nEstCavityPres = 5\nAutoVPMode = 1\nEstCavityTemp = 60\n"
                  "AutoVPMode = 0\nHRAbsorbRatioControl = 50\n[/AutoVPCtrl]\n");
  EXPECT_EQ(block.iIsAutoVPCtrl(), 0);
  EXPECT_EQ(block.iAutoVPCtrlDebug(), 0);
  EXPECT_EQ(block.dAutoVPCtrlCavityPres(), 0.1);
  EXPECT_EQ(block.dAutoVPCtrlCavityTemp(), 60.0);
  EXPECT_EQ(block.dAutoVPCtrlHRAbsorbRatioCtrl(), 100.0);
}

TEST(AutoVPCtrl, ModeAndAnotherKeyOnOneLineBothCount) {
  CZEBCMPAutoVPCtrlParm block;
  readSectionInto(block, "AutoVPCtrl", "Debug AutoVPMode = 2\n[/AutoVPCtrl]\n");
  EXPECT_EQ(block.iIsAutoVPCtrl(), 2);
  EXPECT_EQ(block.iAutoVPCtrlDebug(), 2);
}

TEST(AutoVPCtrl, CavityPressureIsNotConverted) {
  CZEBCMPAutoVPCtrlParm block;
  readSectionInto(block, "AutoVPCtrl", "AutoVPMode = 1\nEstCavityPres = 5\n[/AutoVPCtrl]\n");
  EXPECT_EQ(block.dAutoVPCtrlCavityPres(), 5.0);
}

// --- MultiGate --------------------------------------------------------------------------------------------------

std::vector<double> weightsOf(const CZEBCMPMultiGateParm& block) {
  std::vector<double> weights(static_cast<std::size_t>(block.iNumberofInletGroups()) + 1, kUntouched);
  EXPECT_EQ(block.InletWeightings(weights.data()), 1);
  return weights;
}

TEST(MultiGate, LastWeightIsOneMinusTheOthers) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate",
                    "MultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 0.2\nWeightings = 0.3\n"
                    "Weightings = 0.9\nDebug = 1\n[/MultiGate]\n");
  });
  EXPECT_EQ(printed, "");
  const std::vector<double> weights = weightsOf(block);
  EXPECT_EQ(weights[0], kUntouched);
  EXPECT_DOUBLE_EQ(weights[1], 0.2);
  EXPECT_DOUBLE_EQ(weights[2], 0.3);
  EXPECT_DOUBLE_EQ(weights[3], 0.5);
  EXPECT_DOUBLE_EQ(block.pdInletWeightings()[3], 0.5);
  EXPECT_EQ(block.iMultipleGateDebug(), 1);
}

TEST(MultiGate, KeysBeforeTheMethodAreIgnored) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate",
                  "Debug = 1\nNumberofInletGroups = 2\nByVolume = 0.5\nMultipleGateMethod = 1\nInitialType = 2\n"
                  "[/MultiGate]\n");
  EXPECT_EQ(block.iMultipleGateDebug(), 0);
  EXPECT_EQ(block.iNumberofInletGroups(), 0);
  EXPECT_EQ(block.dMultipleGateByVolume(), 0.02);
  EXPECT_EQ(block.iMultipleGateType(), 2);
  EXPECT_EQ(block.pdInletWeightings(), nullptr);
}

TEST(MultiGate, WithoutAMethodEverythingKeepsItsDefault) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "Debug = 1\nInitialType = 1\nSPVariationLimit = 4\n[/MultiGate]\n");
  EXPECT_EQ(dumpOf(block), dumpOf(CZEBCMPMultiGateParm()));
  EXPECT_EQ(block.dMultipleGateSPVariationLimit(), 20.0);
}

TEST(MultiGate, ClosingLineAmongTheWeightsIsTakenAsOne) {
  CZEBCMPMultiGateParm block;
  std::string rest;
  const std::string printed = printedBy([&] {
    rest = readSectionInto(block, "MultiGate",
                           "MultipleGateMethod = 1\nNumberofInletGroups = 2\n[/MultiGate]\nWeightings = 0.5\n"
                           "OuterIteration = 7\n[/MultiGate]\nleft\n");
  });
  EXPECT_EQ(printed, kMismatch);
  EXPECT_EQ(block.iMultiGateOuteriteration(), 7);
  EXPECT_EQ(rest, "left\n");
  EXPECT_EQ(weightsOf(block), (std::vector<double>{kUntouched, 0.0, 1.0}));
}

TEST(MultiGate, KeyAmongTheWeightsIsNotRead) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy([&] {
    readSectionInto(
        block, "MultiGate",
        "MultipleGateMethod = 1\nNumberofInletGroups = 2\nOuterIteration = 7\nWeightings = 1\n[/MultiGate]\n");
  });
  EXPECT_EQ(printed, kMismatch);
  EXPECT_EQ(block.iMultiGateOuteriteration(), 30);
}

TEST(MultiGate, WeightThatDoesNotParseStoresNothingAndIsNoMismatch) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate",
                    "MultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = x\nWeightings = 0.25\nWeightings\n");
  });
  EXPECT_EQ(printed, "");
  EXPECT_EQ(weightsOf(block), (std::vector<double>{kUntouched, 0.0, 0.25, 0.75}));
}

TEST(MultiGate, NoGroupsGiveOneElementAndTakeNoLine) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 0\nDebug = 4\n[/MultiGate]\n");
  ASSERT_NE(block.pdInletWeightings(), nullptr);
  EXPECT_EQ(block.pdInletWeightings()[0], 1.0);
  EXPECT_EQ(block.iMultipleGateDebug(), 4);
  double untouched = kUntouched;
  EXPECT_EQ(block.InletWeightings(&untouched), 1);
  EXPECT_EQ(untouched, kUntouched);
  EXPECT_EQ(block.InletWeightings(nullptr), 1);
}

TEST(MultiGate, WeightsWithNowhereToGoAreRefused) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 1\nWeightings = 1\n");
  EXPECT_EQ(block.InletWeightings(nullptr), -1);
}

TEST(MultiGate, InputThatEndsAmongTheWeightsIsToldOncePerGroup) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 4\nWeightings = 0.25\n");
  });
  EXPECT_EQ(printed, kMismatch + kMismatch + kMismatch);
  EXPECT_EQ(weightsOf(block), (std::vector<double>{kUntouched, 0.25, 0.0, 0.0, 0.75}));
}

TEST(MultiGate, LargestCountIsTakenWhateverTheFileHolds) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy(
      [&] { readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 1000000\n"); });
  EXPECT_EQ(printed.size(), 1'000'000 * kMismatch.size());
  EXPECT_EQ(block.iNumberofInletGroups(), 1'000'000);
  EXPECT_EQ(block.pdInletWeightings()[1'000'000], 1.0);
}

class MultiGateRefusedCount : public testing::TestWithParam<int> {};

TEST_P(MultiGateRefusedCount, BecomesNoGroupsAndTakesNoLine) {
  CZEBCMPMultiGateParm block;
  const std::string count = std::to_string(GetParam());
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate",
                    "MultipleGateMethod = 1\nNumberofInletGroups = " + count + "\nInitialType = 1\n[/MultiGate]\n");
  });
  EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << printed;
  for (const std::string& part : {std::string("MultiGate"), std::string("NumberofInletGroups"), count}) {
    EXPECT_NE(printed.find(part), printed.npos) << printed;
  }
  EXPECT_EQ(block.iNumberofInletGroups(), 0);
  EXPECT_EQ(block.pdInletWeightings(), nullptr);
  EXPECT_EQ(block.iMultipleGateType(), 1);
  EXPECT_EQ(block.InletWeightings(nullptr), 1);
}

INSTANTIATE_TEST_SUITE_P(Counts, MultiGateRefusedCount,
                         testing::Values(-1, 1'000'001, std::numeric_limits<int>::max(),
                                         std::numeric_limits<int>::min()));

TEST(MultiGate, CountThatIsNoNumberOpensNoList) {
  CZEBCMPMultiGateParm block;
  const std::string printed = printedBy([&] {
    readSectionInto(block, "MultiGate",
                    "MultipleGateMethod = 1\nNumberofInletGroups = two\nInitialType = 1\n[/MultiGate]\n");
  });
  EXPECT_EQ(printed, "");
  EXPECT_EQ(block.iMultipleGateType(), 1);
  EXPECT_EQ(block.pdInletWeightings(), nullptr);
}

TEST(MultiGate, CopiesShareTheWeightsAndOutliveTheirSource) {
  CZEBCMPMultiGateParm assigned;
  const double* shared = nullptr;
  {
    CZEBCMPMultiGateParm block;
    readSectionInto(
        block, "MultiGate",
        "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.25\nWeightings = 0\n[/MultiGate]\n");
    shared = block.pdInletWeightings();
    assigned = block;
    const CZEBCMPMultiGateParm copied(block);
    EXPECT_EQ(copied.pdInletWeightings(), shared);
  }
  EXPECT_EQ(assigned.pdInletWeightings(), shared);
  EXPECT_EQ(weightsOf(assigned), (std::vector<double>{kUntouched, 0.25, 0.75}));
}

TEST(MultiGate, WeightsHandedOutStayValidWhenReadAgain) {
  CZEBCMPMultiGateParm block;
  const std::string lines = "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = ";
  readSectionInto(block, "MultiGate", lines + "0.25\nWeightings = 0\n[/MultiGate]\n");
  const double* const first = block.pdInletWeightings();
  readSectionInto(block, "MultiGate", lines + "0.5\nWeightings = 0\n[/MultiGate]\n");
  EXPECT_EQ(first[1], 0.25);
  EXPECT_EQ(first[2], 0.75);
  EXPECT_EQ(block.pdInletWeightings()[1], 0.5);
}

TEST(MultiGate, DumpsTheMethodFirstAndTheAddressOfTheWeights) {
  CZEBCMPMultiGateParm block;
  const std::string head =
      "\n---------MultiGate Parameters---------\nm_iMultipleGateMethod\t\t\t\t= -1\nm_iMultipleGateDebug\t\t\t\t= 0\n";
  EXPECT_EQ(dumpOf(block).substr(0, head.size()), head);
  EXPECT_NE(dumpOf(block).find("\nm_pdInletWeightings\t\t\t\t= 0\n"), std::string::npos);
  readSectionInto(block, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 1\nWeightings = 1\n");
  std::ostringstream address;
  address << static_cast<const void*>(block.pdInletWeightings());
  EXPECT_NE(dumpOf(block).find("\nm_pdInletWeightings\t\t\t\t= " + address.str() + "\n"), std::string::npos);
}

struct ListLine {
  int number;
  bool used;
  bool operator==(const ListLine&) const = default;
};

class ListLines : public zeb::ReadObserver {
 public:
  std::vector<ListLine> lines;
  void lineOfList(const zeb::Section&, int number, std::string_view, bool used) override {
    lines.push_back({number, used});
  }
};

TEST(MultiGate, TellsAnObserverWhichLinesTheGroupsTook) {
  CZEBCMPMultiGateParm block;
  ListLines taken;
  std::istringstream stream(
      "MultipleGateMethod = 1\nNumberofInletGroups = 5\nWeightings = 0.5\n\nWeightings = x\nWeightings = 0\n");
  const zeb::LineSource serial;
  zeb::LineReader reader(stream, serial, &taken);
  printedBy([&] { zeb::readSection(zebtest::sectionOf<CZEBCMPMultiGateParm>("MultiGate"), &block, reader); });
  EXPECT_EQ(taken.lines, (std::vector<ListLine>{{3, true}, {4, false}, {5, false}, {6, true}}));
}

// --- Compression ------------------------------------------------------------------------------------------------

TEST(Compression, PathsKeepInnerAndTrailingBlanks) {
  CZEBCMPCompressionParm block;
  EXPECT_EQ(block.szFilePathOfLocation(), nullptr);
  readSectionInto(block, "Compression",
                  "FilePathOfLocation =   my data/loc file.txt  \nFilePathOfInitialData = init.dat\n[/Compression]\n");
  EXPECT_STREQ(block.szFilePathOfLocation(), "my data/loc file.txt  ");
  EXPECT_STREQ(block.szFilePathOfInitialData(), "init.dat");
}

TEST(Compression, DumpsAPathThatWasNeverSetAsEmpty) {
  const std::string dump = dumpOf(CZEBCMPCompressionParm());
  EXPECT_NE(
      dump.find("\nm_szFilePathOfInitialData\t\t= \nm_szFilePathOfLocation\t\t\t= \nm_iAbaqusMeshType\t\t\t\t= 0\n"),
      std::string::npos)
      << dump;
}

TEST(Compression, RepeatedPathTakesTheLastAndKeepsTheFirstValid) {
  CZEBCMPCompressionParm block;
  readSectionInto(block, "Compression", "FilePathOfLocation = first\n[/Compression]\n");
  const char* const first = block.szFilePathOfLocation();
  readSectionInto(block, "Compression", "FilePathOfLocation = second\n[/Compression]\n");
  EXPECT_STREQ(first, "first");
  EXPECT_STREQ(block.szFilePathOfLocation(), "second");
}

TEST(Compression, CopiesShareThePathsAndOutliveTheirSource) {
  CZEBCMPCompressionParm assigned;
  const char* shared = nullptr;
  {
    CZEBCMPCompressionParm block;
    readSectionInto(block, "Compression", "FilePathOfInitialData = init.dat\n[/Compression]\n");
    shared = block.szFilePathOfInitialData();
    assigned = block;
  }
  EXPECT_EQ(assigned.szFilePathOfInitialData(), shared);
  EXPECT_STREQ(assigned.szFilePathOfInitialData(), "init.dat");
}

}  // namespace
