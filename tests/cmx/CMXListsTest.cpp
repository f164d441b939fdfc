// The lists that a key announces: who keeps what was handed out, and counts that a file cannot mean.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"
#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"
#include "tests/support/RecordingCommunicator.h"

namespace {

class CMXLists : public testing::Test {
 protected:
  void read(const std::string& text) {
    std::istringstream stream(text);
    m_tool.readBlocks(stream);
  }
  void readGates(const std::string& lines) {
    read("<FILL_ADVANCED_HRSteady>\n" + lines + "</FILL_ADVANCED_HRSteady>\n");
  }

  CZEBCMXInternalTool m_tool;
  const CZEBCMX_FILL_ADVANCED_HRSteady& m_gates = m_tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>();
  const CZEBCMX_FILL_OUTPUT_TIMES& m_fill = m_tool.block<CZEBCMX_FILL_OUTPUT_TIMES>();
};

using Doubles = std::vector<double>;

TEST_F(CMXLists, RepeatedGateCountMakesANewArray) {
  readGates("ValueNoHRGate = 2\nValueHRGateType = 1\nG1 = 1\nG2 = 2\n");
  const double* const first = m_gates.pHRGateBC();
  readGates("ValueNoHRGate = 3\n");
  EXPECT_NE(m_gates.pHRGateBC(), first);
  EXPECT_EQ(Doubles(m_gates.pHRGateBC(), m_gates.pHRGateBC() + 4), (Doubles{0, 0, 0, 0}));
  EXPECT_EQ(first[2], 2.0) << "an array once handed out stays";
}

TEST_F(CMXLists, GateCountLeavesRoomHoweverItsSectionEnds) {
  const struct {
    const char* lines;
    Doubles gates;
  } cases[] = {
      {"ValueNoHRGate = 2\n</FILL_ADVANCED_HRSteady>\n", {0, 0, 0}},
      {"ValueNoHRGate = 2\n", {0, 0, 0}},
      {"ValueNoHRGate = 2", {0, 0, 0}},
      {"ValueNoHRGate = 0\n", {0}},
      {"ValueNoHRGate = 5\nValueNoHRGate = 1\n", {0, 0}},
      {"ValueHRGateType = 1\nValueNoHRGate = 1\n", {0, 0}},
      {"ValueNoHRGate = 2\nValueHRGateType = 1\n1 = 3\n2 = 4\nValueNoHRGate = 1\n", {0, 0}},
      {"ValueNoHRGate = 5\nValueNoHRGate = 2\nValueHRGateType = 1\n1 = 3\n2 = 4\n", {0, 3, 4}},
      {"ValueNoHRGate = 2\nValueHRGateType = 1\n1 = 3\n2 = 4\nValueHRGateType = 2\n1 = 5\n", {0, 5, 4}},
      {"ValueNoHRGate = -1\nValueNoHRGate = 1\n", {0, 0}},
  };
  for (const auto& c : cases) {
    CZEBCMXInternalTool tool;
    std::istringstream stream(std::string("<FILL_ADVANCED_HRSteady>\n") + c.lines);
    tool.readBlocks(stream);
    const auto& gates = tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>();
    ASSERT_EQ(gates.iNHRGate() + 1, std::ssize(c.gates)) << c.lines;
    ASSERT_NE(gates.pHRGateBC(), nullptr) << c.lines;
    EXPECT_EQ(Doubles(gates.pHRGateBC(), gates.pHRGateBC() + c.gates.size()), c.gates) << c.lines;
  }
  readGates("ValueNoHRGate = 1\nValueNoHRGate = -1\n");
  EXPECT_EQ(m_gates.pHRGateBC(), nullptr) << "a refused count leaves no array";
}

TEST_F(CMXLists, NoMomentsMakeAnArrayWithTheZeroAlone) {
  EXPECT_EQ(m_fill.pOutTimeStep(), nullptr);
  read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 0\n</FILL_OUTPUT_TIMES>\n");
  ASSERT_NE(m_fill.pOutTimeStep(), nullptr);
  EXPECT_EQ(m_fill.pOutTimeStep()[0], 0.0);
}

TEST_F(CMXLists, ReadingAgainAllocatesFromTheNewCount) {
  read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 1\n1 = 0.5\n</FILL_OUTPUT_TIMES>\n");
  const double* const first = m_fill.pOutTimeStep();
  read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 2\n1 = 7\n</FILL_OUTPUT_TIMES>\n");
  EXPECT_EQ(m_fill.NoOutTimeStep(), 2);
  EXPECT_EQ(Doubles(m_fill.pOutTimeStep(), m_fill.pOutTimeStep() + 3), (Doubles{0, 7, 0}));
  EXPECT_EQ(first[1], 0.5) << "an array once handed out stays";
}

// Two calls for a line and one for each of the three loops that find the input exhausted: list, block, file.
TEST_F(CMXLists, CountAboveTheFilesLinesEndsWithTheFile) {
  for (const std::string lines : {"<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 1000000\nValueHRGateType = 1\n1 = 0.5\n",
                                  "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 1000000\n1 = 0.5\n"}) {
    zeb::RecordingCommunicator com(2);
    m_tool.setZEBCom(&com);
    read(lines);
    EXPECT_EQ(com.log().size(), 2 * static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n')) + 3);
  }
}

}  // namespace
