// The lists that a key announces: who keeps what was handed out, and counts that a file cannot mean.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_LONGFIBER.h"
#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_PACK_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_SOLID_COOL.h"
#include "tests/cmx/Expectations.hpp"

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

struct ListFile {
  const char* tag;
  const char* key;
  const char* behind;  // what stands behind the count
  const char* array;
};

constexpr ListFile kListFiles[] = {
    {"FILL_ADVANCED_HRSteady", "ValueNoHRGate", "ValueHRGateType = 1\n", "m_pHRGateBC"},
    {"FILL_OUTPUT_TIMES", "ValueNoFillOutputTime", "", "m_pOutTimeStep"},
    {"PACK_OUTPUT_TIMES", "ValueNoPackOutputTime", "", "m_pOutTimeStep"},
};

std::string fileWithCount(const ListFile& list, const std::string& count) {
  return "<" + std::string(list.tag) + ">\n" + list.key + " = " + count + "\n" + list.behind + "1 = 0.5\n";
}

// What one rank holds after reading the text; `output` collects what all of them print.
std::string readText(const std::string& text, CZEBCom* com, std::string* output = nullptr) {
  CZEBCMXInternalTool tool;
  if (com != nullptr) tool.setZEBCom(com);
  std::istringstream stream(com == nullptr || com->GetCPUId() == 0 ? text : std::string());
  const std::string printed = zebtest::printedBy([&] { tool.readBlocks(stream); });
  if (output != nullptr) *output += printed;
  return zebtest::exactValues(tool.sections());
}

TEST(CMXHostileCounts, InvalidCountIsZeroWithOneClearLineOnRank0) {
  for (const ListFile& list : kListFiles) {
    for (const std::string count : {"-1", "-2147483648", "1000001", "2147483647"}) {
      const std::string text = fileWithCount(list, count);
      std::string serialOutput;
      const std::string values = readText(text, nullptr, &serialOutput);
      EXPECT_NE(serialOutput.find(list.tag), serialOutput.npos) << serialOutput;
      EXPECT_NE(serialOutput.find(list.key), serialOutput.npos) << serialOutput;
      EXPECT_NE(serialOutput.find(count), serialOutput.npos) << serialOutput;
      EXPECT_EQ(std::count(serialOutput.begin(), serialOutput.end(), '\n'), 1) << serialOutput;
      EXPECT_NE(values.find(std::string(list.tag) + "." + list.array + " null\n"), values.npos) << values;

      std::string parallelOutput;
      const auto read = [&](CZEBCom& com) { return readText(text, &com, &parallelOutput); };
      EXPECT_EQ(zebtest::readOnRanks(4, read), values);
      EXPECT_EQ(parallelOutput, serialOutput) << "only rank 0 prints";
    }
  }
}

TEST(CMXHostileCounts, InvalidCountIsStoredAsZeroAndLeavesNoArray) {
  CZEBCMXInternalTool tool;
  std::istringstream stream(
      "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 1\n1 = 0.5\nValueNoFillOutputTime = -4\n"
      "FlagFillMultiOutputType = 2\n");
  zebtest::printedBy([&] { tool.readBlocks(stream); });
  const CZEBCMX_FILL_OUTPUT_TIMES& block = tool.block<CZEBCMX_FILL_OUTPUT_TIMES>();
  EXPECT_EQ(block.NoOutTimeStep(), 0);
  EXPECT_EQ(block.pOutTimeStep(), nullptr);
  EXPECT_EQ(block.MultiOutputType(), 2) << "the line behind the count is no list line";
}

TEST(CMXHostileCounts, InvalidGateCountReadsNoGates) {
  CZEBCMXInternalTool tool;
  std::istringstream stream(
      "<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 2147483647\nValueHRGateType = 1\nValueFlowRate = 9\n");
  zebtest::printedBy([&] { tool.readBlocks(stream); });
  const CZEBCMX_FILL_ADVANCED_HRSteady& block = tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>();
  EXPECT_EQ(block.iNHRGate(), 0);
  EXPECT_EQ(block.iHRGateType(), 1);
  EXPECT_EQ(block.dHRFlowRate(), 9.0) << "no gate line";
}

TEST(CMXHostileCounts, CountAboveTheFilesLinesEndsWithTheFileOnAllRanks) {
  for (const ListFile& list : kListFiles) {
    const std::string text = fileWithCount(list, "1000000");
    const std::string values = readText(text, nullptr);
    zeb::CallLog log;
    EXPECT_EQ(zebtest::readOnRanks(
                  3, [&](CZEBCom& com) { return readText(text, &com); }, &log),
              values);
    // Two calls for a line and one for each of the three loops that find the input exhausted: list, block, file.
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    EXPECT_EQ(log.size(), 2 * lines + 3) << list.tag;
  }
}

}  // namespace
