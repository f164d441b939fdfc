// Corners of the standard solver's reader: version lines, the gate, repeated reading, ranks, the repair's modes.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/stdcmp/PublicValues.hpp"
#include "tests/stdcmp/StdReading.hpp"

namespace {

using zebtest::headWith;
using zebtest::kHead;
using zebtest::publicValues;

class StdEdgeCases : public zebtest::StdReading {};

// --- Version line

TEST_F(StdEdgeCases, VersionEndsWhereItsDigitsEnd) {
  for (const std::string line : {"[VER] 1013x", "[VER] 1013.5", "\t [VER]\t+01013 1014", "[General][VER] 1013"}) {
    CZEBKNstdCMPCompParm set;
    read(set, line + "\n" + kHead);
    EXPECT_EQ(set.ilsolvU(), 1) << line;
    EXPECT_EQ(set.iCouple_Type(), 161) << line;
  }
}

TEST_F(StdEdgeCases, VersionThatIsNotTheSecondWordOrNoIntHasNoHead) {
  const auto defaults = publicValues(m_set);
  for (const std::string line : {"x [VER] 1013", "[VER] 4294968309", "[VER] 0x3F5", "[VER] = 1013", "[ VER ] 1013"}) {
    read(line + "\n" + kHead);
    EXPECT_EQ(publicValues(m_set), defaults) << line;
  }
}

TEST_F(StdEdgeCases, VersionLineInsideASectionHasNoHead) {
  read("[General]\n[VER] 1013\n" + kHead + "AutoHTC = 5\n[/General]\n");
  EXPECT_EQ(m_set.ilsolvU(), 2);
  EXPECT_EQ(m_set.iAutoHTC(), 5);
}

TEST_F(StdEdgeCases, VersionLineInsideAHeadIsALineOfIt) {
  read("[VER] 1013\n[VER] 1013\n" + kHead);
  EXPECT_EQ(m_set.ilsolvU(), 2) << "line 1 did not parse";
  EXPECT_EQ(m_set.iNRestartIP(), 4) << "line 2";
  EXPECT_EQ(m_set.iPreCond(), 11) << "line 3";
}

TEST_F(StdEdgeCases, SecondHeadOverwritesWhatItHolds) {
  read("[VER] 1013\n" + kHead + "text\n[VER] 1013\n9 8\n");
  EXPECT_EQ(m_set.ilsolvU(), 9);
  EXPECT_EQ(m_set.ilsolvV(), 8);
  EXPECT_EQ(m_set.ilsolvW(), 3);
  EXPECT_EQ(m_set.iNRestartIP(), 14);
}

TEST_F(StdEdgeCases, IntOfTheHeadThatDoesNotFitEndsItsLine) {
  read("[VER] 1013\n7 2147483648 7 7 7 7\n");
  EXPECT_EQ(m_set.ilsolvU(), 7);
  EXPECT_EQ(m_set.ilsolvV(), 2);
  EXPECT_EQ(m_set.ilsolvW(), 2);
}

// --- Sections

TEST_F(StdEdgeCases, KeysMatchInsideLongerWords) {
  read("[General]\nUseAutoHTCToo = 5\n[/General]\n[MultiGate]\nMultipleGateMethod = 1\nMultipleGateDebug = 3\n");
  EXPECT_EQ(m_set.iAutoHTC(), 5);
  EXPECT_EQ(m_set.iMultipleGateDebug(), 3);
}

TEST_F(StdEdgeCases, GateMethodIsTestedBeforeTheOtherKeysOfItsLine) {
  read("[MultiGate]\nDebug MultipleGateMethod = 2\n[/MultiGate]\n");
  EXPECT_EQ(m_set.iMultipleGateMethod(), 2);
  EXPECT_EQ(m_set.iMultipleGateDebug(), 2);
}

TEST_F(StdEdgeCases, GateMethodThatDoesNotParseLeavesTheGateAsItIs) {
  read("[MultiGate]\nMultipleGateMethod = on\nDebug = 7\n[/MultiGate]\n");
  EXPECT_EQ(m_set.iMultipleGateMethod(), -1);
  EXPECT_EQ(m_set.iMultipleGateDebug(), 0);
  read("[MultiGate]\nMultipleGateMethod = 1\nMultipleGateMethod = off\nDebug = 7\n[/MultiGate]\n");
  EXPECT_EQ(m_set.iMultipleGateDebug(), 7);
}

TEST_F(StdEdgeCases, SectionsMayComeInAnyOrderAndAgain) {
  read(
      "[MultiGate]\nMultipleGateMethod = 1\n[/MultiGate]\n[StableFlag]\nnSmooth_dP = 3\n[/StableFlag]\n"
      "[General]\nAutoHTC = 5\nKeepCCF = 1\n[/General]\n[General]\nAutoHTC = 6\n[/General]\n[VER] 1013\n" +
      kHead);
  EXPECT_EQ(m_set.iMultipleGateMethod(), 1);
  EXPECT_EQ(m_set.nSmooth_dP(), 3);
  EXPECT_EQ(m_set.iAutoHTC(), 6);
  EXPECT_EQ(m_set.iKeepCCF(), 1);
  EXPECT_EQ(m_set.ilsolvT(), 6);
}

TEST_F(StdEdgeCases, SecondFileIsReadOverTheFirst) {
  read("[VER] 1013\n" + kHead + "[General]\nAutoHTC = 5\nKeepCCF = 1\n[/General]\n");
  auto expected = publicValues(m_set);
  expected["iAutoHTC"] = 6;
  read("[General]\nAutoHTC = 6\n[/General]\n");
  EXPECT_EQ(publicValues(m_set), expected);
}

// --- Repair for conformal cooling

TEST_F(StdEdgeCases, ConformalCoolingMode1RepairsTheDefaultsToo) {
  EXPECT_EQ(zebtest::outputOf([this] { EXPECT_EQ(m_set.modifyParm_ConformalCooling(1), 1); }), "");
  EXPECT_EQ(m_set.dtoler(), 0.1);
  EXPECT_EQ(m_set.dBlendIT(), 0.0);
  EXPECT_EQ(m_set.drelaxIP(), 0.6);
  EXPECT_EQ(m_set.iNiterInIP(), 20);
}

TEST_F(StdEdgeCases, ConformalCoolingTellsItsRepairsForAnyCheckThatIsNot0) {
  read(headWith("0.01", "0.8", "0.6", "-3", "1"));
  EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(1); }),
            "\n>>> tol restored from 0.01 to 0.1\n\n"
            "\n>>> bT restored from 0.8 to 0.0\n\n"
            "\n>>> rp restored from 0.6 to 0.2\n\n");
  EXPECT_EQ(m_set.iNiterInIP(), 20);
}

TEST_F(StdEdgeCases, ConformalCoolingRepairsThePressureForCoupling1Only) {
  for (const std::string coupling : {"0", "-1", "2", "11"}) {
    read(headWith("0.5", "0.3", "0.6", "1", coupling));
    EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(0); }), "") << coupling;
    EXPECT_EQ(m_set.drelaxIP(), 0.6) << coupling;
  }
}

// --- Ranks

TEST_F(StdEdgeCases, CommunicatorWithoutRanksIsRefused) {
  for (const int ranks : {0, -1}) {
    zeb::RecordingCommunicator com(ranks);
    EXPECT_EQ(m_set.setZEBCom(&com), -2) << ranks;
  }
}

TEST_F(StdEdgeCases, OtherRanksOpenAndPrintNothingAndTakeRank0sLines) {
  zeb::RecordingCommunicator first(2);
  CZEBKNstdCMPCompParm rank0;
  EXPECT_EQ(rank0.setZEBCom(&first), 1);
  read(rank0, "[General]\nAutoHTC = 5\n[/General]\n");
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  EXPECT_EQ(m_set.setZEBCom(&second), 1);
  EXPECT_EQ(read("[General]\nAutoHTC = 8\n[/General]\n"), "");
  EXPECT_TRUE(second.finished());
  EXPECT_EQ(m_set.iAutoHTC(), 5);
}

TEST_F(StdEdgeCases, LineSourceCutsOnEveryRankAndEndsOnAllInTheSameCall) {
  const std::string longest(254, 'x');
  std::string line;

  zeb::RecordingCommunicator first(2);
  EXPECT_EQ(m_set.setZEBCom(&first), 1);
  std::istringstream stream(longest + "yz\n");
  const std::string echo = zebtest::outputOf([&] { EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 1); });
  EXPECT_EQ(echo, " - CPUID:0 string: " + longest + "yz\n") << "the line as it stands in the file";
  EXPECT_EQ(line, longest);
  EXPECT_EQ(zebtest::outputOf([&] { EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 0); }), "");
  EXPECT_EQ(line, "");
  EXPECT_EQ(first.log().calls(),
            (std::vector<std::string>{"Barrier", "Broadi 0", "Broadc \"" + longest + "\"", "Barrier", "Broadi -1"}));

  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  EXPECT_EQ(m_set.setZEBCom(&second), 1);
  std::istringstream none;
  EXPECT_EQ(m_set.ZEB_getline_Parallel(none, line), 1);
  EXPECT_EQ(line, longest);
  EXPECT_EQ(m_set.ZEB_getline_Parallel(none, line), 0);
  EXPECT_EQ(line, longest) << "a rank that does not read keeps its line";
}

}  // namespace
