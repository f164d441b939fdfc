// The lines that a key announces: coefficients of the fiber diffusion, gates of the hot runner, output moments.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cmx/CZEBCMXInternalTool.hpp"
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
  void readFiber(const std::string& lines) {
    read("<FILL_ADVANCED_LONGFIBER>\n" + lines + "</FILL_ADVANCED_LONGFIBER>\n");
  }
  std::vector<double> gates() const { return {m_gates.pHRGateBC() + 1, m_gates.pHRGateBC() + 1 + m_gates.iNHRGate()}; }
  std::vector<double> coefficients() const {
    return {m_fiber.dARD_b1(), m_fiber.dARD_b2(), m_fiber.dARD_b3(), m_fiber.dARD_b4(),
            m_fiber.dARD_b5(), m_fiber.dARD_Cf(), m_fiber.dARD_Cm(), m_fiber.dFiber_CI()};
  }

  CZEBCMXInternalTool m_tool;
  const CZEBCMX_FILL_ADVANCED_HRSteady& m_gates = m_tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>();
  const CZEBCMX_FILL_ADVANCED_LONGFIBER& m_fiber = m_tool.block<CZEBCMX_FILL_ADVANCED_LONGFIBER>();
  const CZEBCMX_FILL_OUTPUT_TIMES& m_fill = m_tool.block<CZEBCMX_FILL_OUTPUT_TIMES>();
  const CZEBCMX_PACK_OUTPUT_TIMES& m_pack = m_tool.block<CZEBCMX_PACK_OUTPUT_TIMES>();
};

using Doubles = std::vector<double>;

TEST_F(CMXLists, DiffusionModel2TakesFiveLines) {
  readFiber("DiffusionModelType = 2\nb1 = 1\nb2 = 2\nb3 = 3\nb4 = 4\nb5 = 5\nWeight = 30\n");
  EXPECT_EQ(coefficients(), (Doubles{1, 2, 3, 4, 5, 0.01, 0.0, 0.01}));
  EXPECT_EQ(m_fiber.dWeightPercent(), 30.0);
}

TEST_F(CMXLists, DiffusionModel1TakesTwoLines) {
  readFiber("DiffusionModelType = 1\nCf = 0.5\nCm = 0.25\nWeight = 30\n");
  EXPECT_EQ(coefficients(), (Doubles{0, 0, 0, 0, 0, 0.5, 0.25, 0.01}));
  EXPECT_EQ(m_fiber.dWeightPercent(), 30.0);
}

TEST_F(CMXLists, DiffusionModel0TakesOneLine) {
  readFiber("DiffusionModelType = 0\nCI = 0.5\nWeight = 30\n");
  EXPECT_EQ(coefficients(), (Doubles{0, 0, 0, 0, 0, 0.01, 0.0, 0.5}));
  EXPECT_EQ(m_fiber.dWeightPercent(), 30.0);
}

TEST_F(CMXLists, OtherDiffusionModelsTakeNoLine) {
  for (const int model : {-1, 3, 2147483647}) {
    CZEBCMXInternalTool tool;
    std::istringstream file("<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = " + std::to_string(model) +
                            "\nWeight = 30\n</FILL_ADVANCED_LONGFIBER>\n");
    tool.readBlocks(file);
    EXPECT_EQ(tool.block<CZEBCMX_FILL_ADVANCED_LONGFIBER>().iDiffusionModelType(), model);
    EXPECT_EQ(tool.block<CZEBCMX_FILL_ADVANCED_LONGFIBER>().dWeightPercent(), 30.0);
  }
}

TEST_F(CMXLists, DiffusionModelThatDoesNotParseTakesNoLine) {
  readFiber("DiffusionModelType = none\nWeight = 30\n");
  EXPECT_EQ(m_fiber.dWeightPercent(), 30.0);
}

TEST_F(CMXLists, CoefficientIsTheThirdWordOfItsLineWhateverTheFirstTwoAre) {
  readFiber("DiffusionModelType = 2\nb5 : 1\nx=1 2\nb3=3\nb4 = 0x10\n= = nonsense\n");
  // "x=1" and "2" are the first two words, "b3=3" has none behind it; hexadecimal is a number here.
  EXPECT_EQ(coefficients(), (Doubles{1, 0, 0, 16, 0, 0.01, 0.0, 0.01}));
}

TEST_F(CMXLists, CoefficientLinesAreNoKeysAndNoEndTag) {
  readFiber("DiffusionModelType = 1\nWeight = 30\n</FILL_ADVANCED_LONGFIBER> = 0.75\nAspectRatio = 5\n");
  EXPECT_EQ(m_fiber.dARD_Cf(), 30.0);
  EXPECT_EQ(m_fiber.dARD_Cm(), 0.75);
  EXPECT_EQ(m_fiber.dWeightPercent(), 10.0);
  EXPECT_EQ(m_fiber.dAspectRatio(), 5.0);
}

TEST_F(CMXLists, KeysOfTheAnnouncingLineAreStillTestedBehindTheList) {
  readFiber("DiffusionModelType FlagConcertration = 1\nCf = 0.5\nCm = 0.25\n");
  EXPECT_EQ(m_fiber.iFiberConcen(), 1);
  EXPECT_EQ(m_fiber.dARD_Cm(), 0.25);
}

TEST_F(CMXLists, GatesFollowTheirType) {
  readGates("ValueNoHRGate = 3\nValueHRGateType = 2\nG1 = 1.5\nG2 =   2.5 cc\nG3=3.5\nValueFlowRate = 9\n");
  EXPECT_EQ(m_gates.iNHRGate(), 3);
  EXPECT_EQ(m_gates.iHRGateType(), 2);
  EXPECT_EQ(gates(), (Doubles{1.5, 2.5, 3.5}));
  EXPECT_EQ(m_gates.dHRFlowRate(), 9.0);
}

TEST_F(CMXLists, GateLineWithoutValueLeavesItsEntryAndTheNextLineIsTheNextGates) {
  readGates("ValueNoHRGate = 3\nValueHRGateType = 0\nG1 1.5\nG2 = none\nG3 = 3.5\n");
  EXPECT_EQ(gates(), (Doubles{0, 0, 3.5}));
}

TEST_F(CMXLists, GateTypeBeforeTheCountReadsNoGates) {
  readGates("ValueHRGateType = 1\nValueNoHRGate = 1\nG1 = 4\n");
  EXPECT_EQ(m_gates.iHRGateType(), 1);
  ASSERT_EQ(m_gates.iNHRGate(), 1);
  EXPECT_EQ(gates(), Doubles{0});
}

TEST_F(CMXLists, CountOfZeroGatesMakesAnArrayAndReadsNoGates) {
  EXPECT_EQ(m_gates.pHRGateBC(), nullptr);
  readGates("ValueNoHRGate = 0\nValueHRGateType = 1\nValueFlowRate = 9\n");
  EXPECT_NE(m_gates.pHRGateBC(), nullptr);
  EXPECT_EQ(m_gates.dHRFlowRate(), 9.0);
}

TEST_F(CMXLists, GateLinesAreNoKeysAndNoEndTag) {
  readGates("ValueNoHRGate = 2\nValueHRGateType = 1\nValueFlowRate = 9\n</FILL_ADVANCED_HRSteady> = 8\n");
  EXPECT_EQ(m_gates.dHRFlowRate(), 0.0);
  EXPECT_EQ(gates(), (Doubles{9, 8}));
}

TEST_F(CMXLists, RepeatedGateCountMakesANewArray) {
  readGates("ValueNoHRGate = 2\nValueHRGateType = 1\nG1 = 1\nG2 = 2\n");
  const double* const first = m_gates.pHRGateBC();
  readGates("ValueNoHRGate = 3\n");
  EXPECT_NE(m_gates.pHRGateBC(), first);
  EXPECT_EQ(gates(), (Doubles{0, 0, 0}));
  EXPECT_EQ(first[2], 2.0) << "an array once handed out stays";
}

TEST_F(CMXLists, MomentLinesAreTakenInOrderWhateverTheirIds) {
  read(
      "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 3\n7 = 0.5\n7 = 1.5\n-1 = 1e-3\n</FILL_OUTPUT_TIMES>\n"
      "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 2\n2 = 4\n1 = 5\n</PACK_OUTPUT_TIMES>\n");
  EXPECT_EQ(Doubles(m_fill.pOutTimeStep(), m_fill.pOutTimeStep() + 4), (Doubles{0, 0.5, 1.5, 0.001}));
  EXPECT_EQ(m_pack.iNoOutTimeStep(), 2);
  EXPECT_EQ(Doubles(m_pack.pOutTimeStep(), m_pack.pOutTimeStep() + 3), (Doubles{0, 4, 5}));
}

TEST_F(CMXLists, MomentLineThatDoesNotScanLeavesItsEntryZero) {
  // No id; no blank behind '='; no moment; the last is complete without blank before '='.
  read("<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 4\nx = 4\n2 =5\n3 =\n4= 6\n</PACK_OUTPUT_TIMES>\n");
  EXPECT_EQ(Doubles(m_pack.pOutTimeStep(), m_pack.pOutTimeStep() + 5), (Doubles{0, 0, 0, 0, 6}));
}

TEST_F(CMXLists, NoMomentsMakeAnArrayWithTheZeroAlone) {
  EXPECT_EQ(m_fill.pOutTimeStep(), nullptr);
  read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 0\n</FILL_OUTPUT_TIMES>\n");
  ASSERT_NE(m_fill.pOutTimeStep(), nullptr);
  EXPECT_EQ(m_fill.pOutTimeStep()[0], 0.0);
}

TEST_F(CMXLists, CountAboveTheLinesThatFollowTakesLaterTags) {
  read(
      "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 3\n1 = 0.5\n</FILL_OUTPUT_TIMES>\n<SOLID_COOL>\nIDSolver = 5\n"
      "</SOLID_COOL>\n");
  EXPECT_EQ(Doubles(m_fill.pOutTimeStep(), m_fill.pOutTimeStep() + 4), (Doubles{0, 0.5, 0, 0}));
  EXPECT_EQ(m_tool.block<CZEBCMX_SOLID_COOL>().iTransientCoolType(), 1) << "its opening was a line of the list";
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
  const std::string printed = zebtest::outputOf([&] { tool.readBlocks(stream); });
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
  zebtest::outputOf([&] { tool.readBlocks(stream); });
  const CZEBCMX_FILL_OUTPUT_TIMES& block = tool.block<CZEBCMX_FILL_OUTPUT_TIMES>();
  EXPECT_EQ(block.NoOutTimeStep(), 0);
  EXPECT_EQ(block.pOutTimeStep(), nullptr);
  EXPECT_EQ(block.MultiOutputType(), 2) << "the line behind the count is no list line";
}

TEST(CMXHostileCounts, InvalidGateCountReadsNoGates) {
  CZEBCMXInternalTool tool;
  std::istringstream stream(
      "<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 2147483647\nValueHRGateType = 1\nValueFlowRate = 9\n");
  zebtest::outputOf([&] { tool.readBlocks(stream); });
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

TEST(CMXHostileCounts, CoefficientsCutByTheEndOfTheFileKeepTheirValuesOnAllRanks) {
  const std::string text = "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 2\nb1 = 1\nb2 = 2";
  CZEBCMXInternalTool tool;
  std::istringstream stream(text);
  tool.readBlocks(stream);
  const CZEBCMX_FILL_ADVANCED_LONGFIBER& block = tool.block<CZEBCMX_FILL_ADVANCED_LONGFIBER>();
  EXPECT_EQ(block.dARD_b2(), 2.0);
  EXPECT_EQ(block.dARD_b3(), 0.0);
  EXPECT_EQ(zebtest::readOnRanks(4, [&](CZEBCom& com) { return readText(text, &com); }),
            zebtest::exactValues(tool.sections()));
}

}  // namespace
