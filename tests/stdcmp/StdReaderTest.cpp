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
#include "tests/support/HeadLines.hpp"

namespace {

using zebtest::headWith;
using zebtest::kHead;
using zebtest::publicValues;

class StdReader : public zebtest::StdReading {};

// --- The head

TEST_F(StdReader, LinesOfTheHeadAreHandedOutOneByOne) {
  read("[VER] 1013\n" + kHead);
  using Set = CZEBKNstdCMPCompParm;
  using zebtest::HeadLine;
  using zebtest::headLine;
  EXPECT_EQ(headLine(m_set, &Set::getLine1), (HeadLine{1, {1, 2, 3, 4, 5, 6}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine2), (HeadLine{1, {11, 12, 13, 14}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine3), (HeadLine{1, {21}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine4), (HeadLine{1, {31, 32, 33, 34, 35, 36}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine5), (HeadLine{1, {41, 42, 0.043, 0.044}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine6), (HeadLine{1, {0.05}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine7), (HeadLine{1, {0.61, 0.62, 0.63, 0.64, 0.65, 0.66}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine8), (HeadLine{1, {71, 72, 73, 74, 75, 76}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine9), (HeadLine{1, {0.81, 0.82, 0.83, 0.84, 0.85, 0.86}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine10), (HeadLine{1, {0.91, 0.92, 0.93, 0.94, 0.95, 0.96}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine12), (HeadLine{1, {1}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine14), (HeadLine{1, {1.41, 1.42}}));
  EXPECT_EQ(headLine(m_set, &Set::getLine16), (HeadLine{1, {161, 1.63}}));
}

// --- Sections

TEST_F(StdReader, SecondFileIsReadOverTheFirst) {
  read("[VER] 1013\n" + kHead + "[General]\nAutoHTC = 5\nKeepCCF = 1\n[/General]\n");
  auto expected = publicValues(m_set);
  expected["iAutoHTC"] = 6;
  read("[General]\nAutoHTC = 6\n[/General]\n");
  EXPECT_EQ(publicValues(m_set), expected);
}

TEST_F(StdReader, MissingFileKeepsTheDefaults) {
  const auto defaults = publicValues(m_set);
  const std::string name = m_folder.path("none.cmp");
  EXPECT_EQ(zebtest::printedBy([&] { EXPECT_EQ(m_set.setSolidFillBlock(name), 1); }),
            " CMP file name = " + name + "\n");
  EXPECT_EQ(publicValues(m_set), defaults);
}

// --- Repair for conformal cooling

const std::string kToler = "\n>>> tol restored from 0.01 to 0.1\n\n", kBlendT = "\n>>> bT restored from 0.8 to 0.0\n\n",
                  kRelaxP = "\n>>> rp restored from 0.6 to 0.2\n\n";

struct Repair {
  std::string head;  // empty: the defaults
  int mode;
  double toler, blendT, relaxP;
  int iterations;
  std::string printed;
};

TEST_F(StdReader, ConformalCoolingRepairsWhatItsModeAndTheHeadAskFor) {
  for (const Repair& repair : {
           Repair{"", 0, 0.1, 0.0, 0.6, 100, ""},  // the coupling type is not 1
           Repair{"", 1, 0.1, 0.0, 0.6, 20, ""},
           Repair{headWith("0.01", "0.8", "0.6", "1", "1"), 0, 0.1, 0.0, 0.2, 100, kToler + kBlendT + kRelaxP},
           Repair{headWith("0.01", "0.8", "0.6", "-3", "1"), 1, 0.1, 0.0, 0.2, 20, kToler + kBlendT + kRelaxP},
           Repair{headWith("0.01", "0.8", "0.6", "0", "1"), 0, 0.1, 0.0, 0.2, 100, ""},
           Repair{headWith("0.0100009", "0.8009", "0.5991", "0", "1"), 0, 0.1, 0.0, 0.2, 100, ""},
           Repair{headWith("0.010002", "0.7989", "0.6011", "1", "1"), 0, 0.010002, 0.7989, 0.6011, 100, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "14"), 1, 0.1, 0.3, 0.6, 20, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "14"), 2, 0.5, 0.3, 0.6, 100, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "0"), 0, 0.5, 0.3, 0.6, 100, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "-1"), 0, 0.5, 0.3, 0.6, 100, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "2"), 0, 0.5, 0.3, 0.6, 100, ""},
           Repair{headWith("0.5", "0.3", "0.6", "1", "11"), 0, 0.5, 0.3, 0.6, 100, ""},
       }) {
    SCOPED_TRACE(repair.head);
    CZEBKNstdCMPCompParm set;
    read(set, repair.head);
    EXPECT_EQ(zebtest::printedBy([&] { EXPECT_EQ(set.modifyParm_ConformalCooling(repair.mode), 1); }), repair.printed);
    EXPECT_EQ(set.dtoler(), repair.toler);
    EXPECT_EQ(set.dBlendIT(), repair.blendT);
    EXPECT_EQ(set.drelaxIP(), repair.relaxP);
    EXPECT_EQ(set.iNiterInIP(), repair.iterations);
    EXPECT_EQ(zebtest::printedBy([&] { set.modifyParm_ConformalCooling(0); }), "") << "nothing is left to repair";
  }
}

TEST_F(StdReader, ConformalCoolingLeavesValuesThatAreNoNumbersAlone) {
  read(headWith("nan", "nan", "nan", "1", "1"));
  EXPECT_EQ(zebtest::printedBy([this] { m_set.modifyParm_ConformalCooling(0); }), "");
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

TEST_F(StdReader, CommunicatorWithoutRanksIsRefused) {
  for (const int ranks : {0, -1}) {
    zeb::RecordingCommunicator com(ranks);
    EXPECT_EQ(m_set.setZEBCom(&com), -2) << ranks;
  }
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
  EXPECT_EQ(zebtest::printedBy([&] { zebtest::readOnRanks(3, read); }), " CMP file name = " + m_file +
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
    zebtest::printedBy([&] { set.setSolidFillBlock(m_file); });
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

TEST_F(StdReader, LineSourceCutsOnEveryRankAndEndsOnAllInTheSameCall) {
  const std::string longest(254, 'x');
  std::string line;

  zeb::RecordingCommunicator first(2);
  EXPECT_EQ(m_set.setZEBCom(&first), 1);
  std::istringstream stream(longest + "yz\n");
  const std::string echo = zebtest::printedBy([&] { EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 1); });
  EXPECT_EQ(echo, " - CPUID:0 string: " + longest + "yz\n") << "the line as it stands in the file";
  EXPECT_EQ(line, longest);
  EXPECT_EQ(zebtest::printedBy([&] { EXPECT_EQ(m_set.ZEB_getline_Parallel(stream, line), 0); }), "");
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

TEST_F(StdReader, RanksInThreadsHoldWhatASerialRunReads) {
  read("[VER] 1013\n" + kHead +
       "[General]\nIsTurbFlow = 4\n[/General]\n[MultiGate]\nMultipleGateMethod = 1\nByVolume = 0.125\n");
  zeb::ThreadTeam team(4);
  std::vector<std::string> values(4);
  zebtest::printedBy([&] {
    team.run([&](int rank, CZEBCom& com) {
      CZEBKNstdCMPCompParm set;
      set.setZEBCom(&com);
      set.setSolidFillBlock(m_file);
      values[static_cast<std::size_t>(rank)] = zebtest::textOf(publicValues(set));
    });
  });
  EXPECT_EQ(values, std::vector<std::string>(4, zebtest::textOf(publicValues(m_set))));
}

}  // namespace
