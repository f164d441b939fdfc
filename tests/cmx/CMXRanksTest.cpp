// Every rank ends with what a serial run reads, and makes the collective calls that belong to it.
#include <gtest/gtest.h>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBCMX_SOLID_COOL.h"
#include "cmx/CZEBKNCMXCompParm.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/cmx/Expectations.hpp"
#include "tests/cmx/ReadIntoTool.hpp"

namespace {

const char* const kFile =
    "Some text\n"
    "<SUMMARY>\nVersion = 2024\n</SUMMARY>\n"
    "<SOLID_FILL>\nValueEOFPercent = 0.99\nValueGravityZ = -9.8\nValueInitChargeFiberExchangeName = charge.f2c\n"
    "FlagInertia = 0\n</SOLID_FILL>\n"
    "\n"
    "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 1\nCf = 0.5\nCm = 0.25\nWeight = 30\n</FILL_ADVANCED_LONGFIBER>\n"
    "<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 2\nValueHRGateType = 1\nG1 = 1.5\nG2\n</FILL_ADVANCED_HRSteady>\n"
    "<FILL_OUTPUT_TIMES>\nFlagFillMultiOutputType = 3\nValueNoFillOutputTime = 2\n1 = 0.5\n2 = 1.2\n"
    "</FILL_OUTPUT_TIMES>\n"
    "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 5\n1 = 2.5\n";  // cut by the end of the file

class CMXRanks : public testing::Test {
 protected:
  std::string read(CZEBCom* com, int printLevel = 0) {
    CZEBCMXInternalTool tool;
    if (com != nullptr) {
      EXPECT_EQ(tool.setZEBCom(com), 1);
    }
    tool.setPrintLevel(printLevel);
    EXPECT_EQ(tool.setSolidFillBlock(m_file), 1);
    return zebtest::exactValues(tool);
  }

  zeb::test::TestFolder m_folder;
  std::string m_file = m_folder.write("run.cmx", kFile);
};

TEST_F(CMXRanks, RanksInThreadsMeetInTheSameCalls) {
  const std::string serial = read(nullptr);
  zeb::ThreadTeam team(8);
  std::vector<std::string> values(8);
  team.run([&](int rank, CZEBCom& com) { values[static_cast<std::size_t>(rank)] = read(&com); });
  EXPECT_EQ(values, std::vector<std::string>(8, serial));
}

TEST_F(CMXRanks, LineCostsTheEndFlagAndTheTextAndNoBarrier) {
  m_file = m_folder.write("short.cmx", "<SOLID_COOL>\n\nIDSolver = 5");
  zeb::CallLog log;
  zebtest::readOnRanks(
      2, [this](CZEBCom& com) { return read(&com); }, &log);
  EXPECT_EQ(log.calls(), (std::vector<std::string>{"Broadi 0", "Broadc \"<SOLID_COOL>\"", "Broadi 0", "Broadc \"\"",
                                                   "Broadi 0", "Broadc \"IDSolver = 5\"",
                                                   "Broadi -1",     // the block's loop
                                                   "Broadi -1"}));  // the file's
}

TEST_F(CMXRanks, MissingFileEndsAllRanksAtTheFirstLine) {
  m_file = m_folder.path("none.cmx");
  zeb::CallLog log;
  zebtest::readOnRanks(
      4, [this](CZEBCom& com) { return read(&com); }, &log);
  EXPECT_EQ(log.calls(), std::vector<std::string>{"Broadi -1"});
}

TEST_F(CMXRanks, NothingIsPrintedUnlessThePrintLevelIsRaised) {
  EXPECT_EQ(zebtest::printedBy([this] {
              read(nullptr);
              zebtest::readOnRanks(2, [this](CZEBCom& com) { return read(&com); });
            }),
            "");
}

TEST_F(CMXRanks, RaisedPrintLevelTracesNameAndLinesOnRank0) {
  m_file = m_folder.write("short.cmx", "<SOLID_COOL>\n IDSolver = 5\n");
  const std::string nameLine = " CMX file name = " + m_file + "\n";
  EXPECT_EQ(zebtest::printedBy([this] { read(nullptr, 1); }), nameLine);
  const auto traced = [this](CZEBCom& com) { return read(&com, 1); };
  EXPECT_EQ(zebtest::printedBy([&] { zebtest::readOnRanks(3, traced); }),
            nameLine + " - CPUID:0 string: <SOLID_COOL>\n - CPUID:0 string:  IDSolver = 5\n");
}

TEST_F(CMXRanks, LineIsCutBehind254CharactersOnRanksOnly) {
  const auto value = [](std::size_t length, CZEBCom* com) {
    // "25" ends the line.
    const std::string key = "IDSolver =";
    CZEBCMXInternalTool tool;
    tool.setZEBCom(com);
    zebtest::readIntoTool(tool, "<SOLID_COOL>\n" + key + std::string(length - key.size() - 2, ' ') + "25\n");
    return tool.block<CZEBCMX_SOLID_COOL>().iTransientCoolType();
  };
  zeb::RecordingCommunicator com(2);
  EXPECT_EQ(value(256, nullptr), 25);
  EXPECT_EQ(value(254, &com), 25);
  EXPECT_EQ(value(255, &com), 2);
  EXPECT_EQ(value(256, &com), 1) << "no value is left";
}

// --- Communicators

class CMXCommunicators : public testing::Test {
 protected:
  zeb::test::TestFolder m_folder;
  std::string m_file = m_folder.write("run.cmx", "<SOLID_COOL>\nIDSolver = 5\n</SOLID_COOL>\n");
};

TEST_F(CMXCommunicators, SingleRanksCommunicatorIsUsedAndNullDoesNotTakeItAway) {
  zeb::RecordingCommunicator single(1);
  CZEBKNCMXCompParm set(0);
  EXPECT_EQ(set.setZEBCom(&single), 1);
  EXPECT_EQ(set.setZEBCom(nullptr), -1);
  EXPECT_EQ(set.setSolidFillBlock(m_file), 1);
  EXPECT_EQ(single.log().size(), 7u) << "two calls for a line, one for the end";
}

TEST_F(CMXCommunicators, CopiesShareTheCommunicator) {
  zeb::RecordingCommunicator com(2);
  CZEBKNCMXCompParm set(0);
  CZEBKNCMXCompParm copy(set);
  EXPECT_EQ(copy.setZEBCom(&com), 1);
  set.setSolidFillBlock(m_file);
  EXPECT_FALSE(com.log().empty());
}

}  // namespace
