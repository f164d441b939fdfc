// The standard solver's reader as a host uses it.
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "standalone/SerialCommunicator.h"
#include "standalone/ThreadCommunicator.h"
#include "stdcmp/CZEBKNstdCMPCompParm.h"
#include "tests/cmx/Expectations.hpp"
#include "tests/stdcmp/PublicValues.hpp"
#include "tests/stdcmp/StdReading.hpp"

namespace {

using zebtest::headWith;
using zebtest::kHead;
using zebtest::publicValues;

class StdReader : public zebtest::StdReading {};

// --- Gating by line order

TEST_F(StdReader, KeyAboveTheGateMethodIsIgnoredAndBelowItTaken) {
  read("[MultiGate]\nTolInletQ = 0.5\nMultipleGateMethod = 1\n[/MultiGate]\n");
  EXPECT_EQ(m_set.iMultipleGateMethod(), 1);
  EXPECT_EQ(m_set.dMultipleGateTolInletQ(), 0.05);
  CZEBKNstdCMPCompParm below;
  read(below, "[MultiGate]\nMultipleGateMethod = 1\nTolInletQ = 0.5\n[/MultiGate]\n");
  EXPECT_EQ(below.dMultipleGateTolInletQ(), 0.5);
}

TEST_F(StdReader, GateMethodBelowOneShutsTheOtherKeysOut) {
  for (const std::string method : {"-1", "0"}) {
    read("[MultiGate]\nMultipleGateMethod = " + method + "\nTolInletQ = 0.5\nDebug = 7\n[/MultiGate]\n");
    EXPECT_EQ(m_set.dMultipleGateTolInletQ(), 0.05);
    EXPECT_EQ(m_set.iMultipleGateDebug(), 0);
  }
}

TEST_F(StdReader, GateShutsAgainWhenTheMethodFalls) {
  read("[MultiGate]\nMultipleGateMethod = 2\nDebug = 7\nMultipleGateMethod = 0\nDebug = 8\n[/MultiGate]\n");
  EXPECT_EQ(m_set.iMultipleGateDebug(), 7);
}

TEST_F(StdReader, GateMethodOfAnEarlierSectionCounts) {
  read("[MultiGate]\nMultipleGateMethod = 1\n[/MultiGate]\n[MultiGate]\nTolInletQ = 0.5\n[/MultiGate]\n");
  EXPECT_EQ(m_set.dMultipleGateTolInletQ(), 0.5);
}

// --- The head

TEST_F(StdReader, Version1013IsFollowedByTheHead) {
  read("[VER] 1013\n" + kHead);
  EXPECT_EQ(m_set.ilsolvU(), 1);
  EXPECT_EQ(m_set.ilsolvT(), 6);
  EXPECT_EQ(m_set.iNRestartIP(), 14);
  EXPECT_EQ(m_set.iPreCond(), 21);
  EXPECT_EQ(m_set.ddt(), 0.043);
  EXPECT_EQ(m_set.dtoler(), 0.05);
  EXPECT_EQ(m_set.drelaxIT(), 0.96);
  EXPECT_EQ(m_set.ilCmpChk(), 1);
  EXPECT_EQ(m_set.dVisRelax(), 1.42);
  EXPECT_EQ(m_set.iCouple_Type(), 161);
  EXPECT_EQ(m_set.dnonOrthLimitFactor(), 1.63);
}

TEST_F(StdReader, OtherVersionsHaveNoHead) {
  const auto defaults = publicValues(m_set);
  for (const std::string line : {"[VER] 1014", "[VER] 1023", "[VER] -1013", "[VER]", "[VER] x", "[VER]1013",
                                 "[VER] v 1013", "[ver] 1013", "[VER] 10 13"}) {
    read(line + "\n" + kHead);
    EXPECT_EQ(publicValues(m_set), defaults) << line;
  }
}

TEST_F(StdReader, VersionIsTheSecondWordOfALineThatHoldsTheTag) {
  read("a[VER]b +1013 more\n" + kHead);
  EXPECT_EQ(m_set.ilsolvU(), 1);
}

TEST_F(StdReader, ShortHeadConsumesTheSectionsThatFollow) {
  read("[VER] 1013\n1 2 3 4 5 6\n[General]\nAutoHTC = 5\n[/General]\n");
  EXPECT_EQ(m_set.ilsolvU(), 1);
  EXPECT_EQ(m_set.iAutoHTC(), 0);
  EXPECT_EQ(m_set.iNRestartIU(), 1) << "a line that does not parse keeps the values";
}

TEST_F(StdReader, FieldsBehindTheFirstThatDoesNotParseKeepTheirValues) {
  read("[VER] 1013\n1 2 x 4 5 6\n");
  EXPECT_EQ(m_set.ilsolvV(), 2);
  EXPECT_EQ(m_set.ilsolvW(), 2);
  EXPECT_EQ(m_set.ilsolvP(), 2);
}

TEST_F(StdReader, ThirdFieldOfLine16NeedsTheDiscardedSecond) {
  std::string lines;
  for (int line = 1; line <= 15; ++line) lines += "\n";
  read("[VER] 1013\n" + lines + "3 x 0.25\n\n");
  EXPECT_EQ(m_set.iCouple_Type(), 3);
  EXPECT_EQ(m_set.dnonOrthLimitFactor(), 0.5);
}

TEST_F(StdReader, LinesOfTheHeadAreHandedOutOneByOne) {
  read("[VER] 1013\n" + kHead);
  int a = 0, b = 0, c = 0, d = 0, e = 0, f = 0;
  double p = 0, q = 0, r = 0, s = 0, t = 0, u = 0;
  const auto ints = [&] { return std::vector<int>{a, b, c, d, e, f}; };
  const auto doubles = [&] { return std::vector<double>{p, q, r, s, t, u}; };
  EXPECT_EQ(m_set.getLine1(a, b, c, d, e, f), 1);
  EXPECT_EQ(ints(), (std::vector<int>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(m_set.getLine2(a, b, c, d), 1);
  EXPECT_EQ(ints(), (std::vector<int>{11, 12, 13, 14, 5, 6}));
  EXPECT_EQ(m_set.getLine3(a), 1);
  EXPECT_EQ(a, 21);
  EXPECT_EQ(m_set.getLine4(a, b, c, d, e, f), 1);
  EXPECT_EQ(ints(), (std::vector<int>{31, 32, 33, 34, 35, 36}));
  EXPECT_EQ(m_set.getLine5(a, b, p, q), 1);
  EXPECT_EQ(ints(), (std::vector<int>{41, 42, 33, 34, 35, 36}));
  EXPECT_EQ(doubles(), (std::vector<double>{0.043, 0.044, 0, 0, 0, 0}));
  EXPECT_EQ(m_set.getLine6(p), 1);
  EXPECT_EQ(p, 0.05);
  EXPECT_EQ(m_set.getLine7(p, q, r, s, t, u), 1);
  EXPECT_EQ(doubles(), (std::vector<double>{0.61, 0.62, 0.63, 0.64, 0.65, 0.66}));
  EXPECT_EQ(m_set.getLine8(a, b, c, d, e, f), 1);
  EXPECT_EQ(ints(), (std::vector<int>{71, 72, 73, 74, 75, 76}));
  EXPECT_EQ(m_set.getLine9(p, q, r, s, t, u), 1);
  EXPECT_EQ(doubles(), (std::vector<double>{0.81, 0.82, 0.83, 0.84, 0.85, 0.86}));
  EXPECT_EQ(m_set.getLine10(p, q, r, s, t, u), 1);
  EXPECT_EQ(doubles(), (std::vector<double>{0.91, 0.92, 0.93, 0.94, 0.95, 0.96}));
  EXPECT_EQ(m_set.getLine12(a), 1);
  EXPECT_EQ(a, 1);
  EXPECT_EQ(m_set.getLine14(p, q), 1);
  EXPECT_EQ(p, 1.41);
  EXPECT_EQ(q, 1.42);
  EXPECT_EQ(m_set.getLine16(a, p), 1);
  EXPECT_EQ(a, 161);
  EXPECT_EQ(p, 1.63);
}

// --- Sections

TEST_F(StdReader, SectionWithoutEndTagRunsToTheEndOfTheFile) {
  read("[General]\nAutoHTC = 5\n[StableFlag]\nnSmooth_dP = 3\nKeepCCF = 1");
  EXPECT_EQ(m_set.iAutoHTC(), 5);
  EXPECT_EQ(m_set.iKeepCCF(), 1);
  EXPECT_EQ(m_set.nSmooth_dP(), 0);
}

TEST_F(StdReader, KeysOfOneSectionAreUnknownInAnother) {
  const auto defaults = publicValues(m_set);
  read(
      "AutoHTC = 5\n[Outlet]\nAutoHTC = 5\n[/Outlet]\n[StableFlag]\nAutoHTC = 5\n[/StableFlag]\n[general]\nAutoHTC = "
      "5\n");
  EXPECT_EQ(publicValues(m_set), defaults);
}

TEST_F(StdReader, VersionAndSectionOnOneLineAreBothRead) {
  read("[VER] 1013 [General]\n" + kHead + "AutoHTC = 5\n[/General]\n");
  EXPECT_EQ(m_set.ilsolvU(), 1);
  EXPECT_EQ(m_set.iAutoHTC(), 5);
}

TEST_F(StdReader, MissingFileKeepsTheDefaults) {
  const auto defaults = publicValues(m_set);
  const std::string name = m_folder.path("none.cmp");
  EXPECT_EQ(zebtest::outputOf([&] { EXPECT_EQ(m_set.setSolidFillBlock(name), 1); }), " CMP file name = " + name + "\n");
  EXPECT_EQ(publicValues(m_set), defaults);
}

// --- Repair for conformal cooling

TEST_F(StdReader, ConformalCoolingRepairsTheDefaults) {
  EXPECT_EQ(zebtest::outputOf([this] { EXPECT_EQ(m_set.modifyParm_ConformalCooling(0), 1); }), "");
  EXPECT_EQ(m_set.dtoler(), 0.1);
  EXPECT_EQ(m_set.dBlendIT(), 0.0);
  EXPECT_EQ(m_set.drelaxIP(), 0.6) << "the coupling type is not 1";
  EXPECT_EQ(m_set.iNiterInIP(), 100);
}

TEST_F(StdReader, ConformalCoolingTellsWhatItRepairsWhenTheCheckIsOn) {
  read(headWith("0.01", "0.8", "0.6", "1", "1"));
  EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(0); }),
            "\n>>> tol restored from 0.01 to 0.1\n\n"
            "\n>>> bT restored from 0.8 to 0.0\n\n"
            "\n>>> rp restored from 0.6 to 0.2\n\n");
  EXPECT_EQ(m_set.dtoler(), 0.1);
  EXPECT_EQ(m_set.dBlendIT(), 0.0);
  EXPECT_EQ(m_set.drelaxIP(), 0.2);
  EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(0); }), "") << "nothing is left to repair";
}

TEST_F(StdReader, ConformalCoolingIsSilentWhenTheCheckIsOff) {
  read(headWith("0.01", "0.8", "0.6", "0", "1"));
  EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(0); }), "");
  EXPECT_EQ(m_set.drelaxIP(), 0.2);
}

TEST_F(StdReader, ConformalCoolingTolerancesDiffer) {
  read(headWith("0.0100009", "0.8009", "0.5991", "0", "1"));
  m_set.modifyParm_ConformalCooling(0);
  EXPECT_EQ(m_set.dtoler(), 0.1);
  EXPECT_EQ(m_set.dBlendIT(), 0.0);
  EXPECT_EQ(m_set.drelaxIP(), 0.2);
  CZEBKNstdCMPCompParm outside;
  read(outside, headWith("0.010002", "0.7989", "0.6011", "0", "1"));
  outside.modifyParm_ConformalCooling(0);
  EXPECT_EQ(outside.dtoler(), 0.010002);
  EXPECT_EQ(outside.dBlendIT(), 0.7989);
  EXPECT_EQ(outside.drelaxIP(), 0.6011);
}

TEST_F(StdReader, ConformalCoolingLeavesValuesThatAreNoNumbersAlone) {
  read(headWith("nan", "nan", "nan", "1", "1"));
  EXPECT_EQ(zebtest::outputOf([this] { m_set.modifyParm_ConformalCooling(0); }), "");
}

TEST_F(StdReader, ConformalCoolingMode1SetsToleranceAndPressureIterationsSilently) {
  read(headWith("0.5", "0.3", "0.6", "1", "14"));
  EXPECT_EQ(zebtest::outputOf([this] { EXPECT_EQ(m_set.modifyParm_ConformalCooling(1), 1); }), "");
  EXPECT_EQ(m_set.dtoler(), 0.1);
  EXPECT_EQ(m_set.iNiterInIP(), 20);
  CZEBKNstdCMPCompParm other;
  read(other, headWith("0.5", "0.3", "0.6", "1", "14"));
  other.modifyParm_ConformalCooling(2);
  EXPECT_EQ(other.dtoler(), 0.5);
  EXPECT_EQ(other.iNiterInIP(), 100);
}

// --- Communicator and copies

TEST_F(StdReader, SingleProcessCommunicatorIsRefusedAndTheReaderStaysSerial) {
  zeb::RecordingCommunicator single(1);
  EXPECT_EQ(m_set.setZEBCom(&single), -2);
  read("[General]\nAutoHTC = 5\n[/General]\n");
  EXPECT_EQ(m_set.iAutoHTC(), 5);
  EXPECT_TRUE(single.log().empty());
}

TEST_F(StdReader, NullCommunicatorIsRefusedAndTwoRanksAreTaken) {
  zeb::RecordingCommunicator two(2);
  EXPECT_EQ(m_set.setZEBCom(nullptr), -1);
  EXPECT_EQ(m_set.setZEBCom(&two), 1);
  zeb::SerialCommunicator single;
  EXPECT_EQ(m_set.setZEBCom(&single), -2);
  EXPECT_EQ(m_set.setZEBCom(nullptr), -1);
  read("x\n");
  EXPECT_EQ(two.log().size(), 5u) << "a refused communicator does not replace the one that was taken";
}

TEST_F(StdReader, CopiesShareTheParametersAndMayAllBeDestroyed) {
  auto first = std::make_unique<CZEBKNstdCMPCompParm>();
  CZEBKNstdCMPCompParm second(*first), third;
  third = second;
  third = *&third;
  read(*first, "[General]\nAutoHTC = 5\n[/General]\n");
  first.reset();
  EXPECT_EQ(second.iAutoHTC(), 5);
  EXPECT_EQ(third.iAutoHTC(), 5);
  EXPECT_TRUE(std::has_virtual_destructor_v<CZEBKNstdCMPCompParm>);
}

TEST_F(StdReader, CommunicatorSetOnACopyStaysWithTheCopy) {
  zeb::RecordingCommunicator two(2);
  CZEBKNstdCMPCompParm copy(m_set);
  EXPECT_EQ(copy.setZEBCom(&two), 1);
  read("[General]\nAutoHTC = 5\n[/General]\n");
  EXPECT_TRUE(two.log().empty());
  CZEBKNstdCMPCompParm copyOfCopy(copy);
  read(copyOfCopy, "x\n");
  EXPECT_FALSE(two.log().empty());
}

// --- Line source

TEST_F(StdReader, SerialReadingPrintsTheFilesNameOnly) {
  const std::string printed = read("[General]\nAutoHTC = 5\n");
  EXPECT_EQ(printed, " CMP file name = " + m_file + "\n");
}

TEST_F(StdReader, Rank0EchoesTheNameAndEveryLine) {
  m_file = m_folder.write("run.cmp", "[VER] 1013\n1 2\n\n[General]\n AutoHTC = 5");
  const auto read = [this](CZEBCom& com) {
    CZEBKNstdCMPCompParm set;
    set.setZEBCom(&com);
    set.setSolidFillBlock(m_file);
    return std::string();
  };
  EXPECT_EQ(zebtest::outputOf([&] { zebtest::readOnRanks(3, read); }), " CMP file name = " + m_file +
                                                                           "\n"
                                                                           " - CPUID:0 string: [VER] 1013\n"
                                                                           " - CPUID:0 string: 1 2\n"
                                                                           " - CPUID:0 string: \n"
                                                                           " - CPUID:0 string: [General]\n"
                                                                           " - CPUID:0 string:  AutoHTC = 5\n");
}

TEST_F(StdReader, LineCostsABarrierTheEndFlagAndTheText) {
  m_file = m_folder.write("run.cmp", "[General]\n\nAutoHTC = 5");
  zeb::CallLog log;
  const auto read = [this](CZEBCom& com) {
    CZEBKNstdCMPCompParm set;
    set.setZEBCom(&com);
    zebtest::outputOf([&] { set.setSolidFillBlock(m_file); });
    return zebtest::textOf(publicValues(set));
  };
  zebtest::readOnRanks(2, read, &log);
  EXPECT_EQ(log.calls(), (std::vector<std::string>{"Barrier", "Broadi 0", "Broadc \"[General]\"", "Barrier", "Broadi 0",
                                                   "Broadc \"\"", "Barrier", "Broadi 0", "Broadc \"AutoHTC = 5\"",  //
                                                   "Barrier", "Broadi -1",     // the section's loop
                                                   "Barrier", "Broadi -1"}));  // the file's
}

TEST_F(StdReader, PublicLineSourceDeliversLineByLine) {
  std::istringstream stream("one\n\nlast");
  std::string line;
  EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 1);
  EXPECT_EQ(line, "one");
  EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 1);
  EXPECT_EQ(line, "");
  EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 1);
  EXPECT_EQ(line, "last");
  EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 0);
}

TEST_F(StdReader, AllRanksHoldWhatASerialRunReads) {
  const std::string files[] = {
      "[VER] 1013\n" + kHead +
          "[General]\nIsTurbFlow = 4\n[/General]\n[StableFlag]\nnSmooth_dP = 3\n[/StableFlag]\n"
          "[MultiGate]\nTolInletQ = 0.5\nMultipleGateMethod = 1\nByVolume = 0.125\n",
      "[VER] 1013\n1 1 1\n",  // a head cut by the end of the file
  };
  for (const std::string& text : files) {
    CZEBKNstdCMPCompParm serial;
    read(serial, text);
    const std::string expected = zebtest::textOf(publicValues(serial));
    for (const int ranks : {2, 8, 64}) {
      const auto values = zebtest::readOnRanks(ranks, [this](CZEBCom& com) {
        CZEBKNstdCMPCompParm set;
        EXPECT_EQ(set.setZEBCom(&com), 1);
        zebtest::outputOf([&] { set.setSolidFillBlock(m_file); });
        return zebtest::textOf(publicValues(set));
      });
      EXPECT_EQ(values, expected) << ranks << " ranks";
    }
    zeb::ThreadTeam team(4);
    std::vector<std::string> values(4);
    zebtest::outputOf([&] {
      team.run([&](int rank, CZEBCom& com) {
        CZEBKNstdCMPCompParm set;
        set.setZEBCom(&com);
        set.setSolidFillBlock(m_file);
        values[static_cast<std::size_t>(rank)] = zebtest::textOf(publicValues(set));
      });
    });
    EXPECT_EQ(values, std::vector<std::string>(4, expected));
  }
}

}  // namespace
