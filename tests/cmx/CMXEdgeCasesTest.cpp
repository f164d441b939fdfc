// Corners of the CMX format: tags and keys in odd places, lists that open or do not, shared communicators.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <type_traits>
#include <vector>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "tests/cmx/Expectations.hpp"
#include "tests/cmx/ReadIntoTool.hpp"

namespace {

using zebtest::readIntoTool;
using Doubles = std::vector<double>;

class CMXEdgeCases : public testing::Test {
 protected:
  // Returns the exact values of all members.
  std::string read(const std::string& text) { return readIntoTool(m_tool, text); }
  std::string readGates(const std::string& lines) {
    return read("<FILL_ADVANCED_HRSteady>\n" + lines + "</FILL_ADVANCED_HRSteady>\n");
  }
  int coolType() { return m_tool.block<CZEBCMX_SOLID_COOL>().iTransientCoolType(); }
  Doubles gates() const { return {m_gates.pHRGateBC() + 1, m_gates.pHRGateBC() + 1 + m_gates.iNHRGate()}; }

  CZEBCMXInternalTool m_tool;
  const CZEBCMX_FILL_ADVANCED_HRSteady& m_gates = m_tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>();
  const std::string m_defaults = read("");
};

// --- Tags

TEST_F(CMXEdgeCases, TagsMayStandAnywhereInTheirLines) {
  read("before<SOLID_COOL>behind\nIDSolver = 5\nbefore</SOLID_COOL>behind\nIDSolver = 6\n");
  EXPECT_EQ(coolType(), 5);
}

TEST_F(CMXEdgeCases, OnlyTheBlocksOwnEndTagEndsIt) {
  read("<SOLID_COOL>\n</SOLID_FILL>\n</solid_cool>\n</SOLID_COOL\n< /SOLID_COOL>\nIDSolver = 5\n</SOLID_COOL>\n");
  EXPECT_EQ(coolType(), 5);
}

TEST_F(CMXEdgeCases, EndTagOnTheOpeningLineDoesNotEndTheBlock) {
  read("<SOLID_COOL></SOLID_COOL>\nIDSolver = 5\n</SOLID_COOL>\n");
  EXPECT_EQ(coolType(), 5);
}

TEST_F(CMXEdgeCases, EndTagAloneChangesNothing) { EXPECT_EQ(read("</SOLID_COOL>\nIDSolver = 5\n"), m_defaults); }

TEST_F(CMXEdgeCases, TagOnAClosingLineOpensNothing) {
  // Tags are looked for in the line that opened the block, not in those which the block has taken.
  read("<SOLID_COOL>\nIDSolver = 5\n</SOLID_COOL> <SOLID_VE>\nFlagEstimateFlowPackStage = 1\n</SOLID_VE>\n");
  EXPECT_EQ(coolType(), 5);
  EXPECT_EQ(m_tool.block<CZEBCMX_SOLID_VE>().iEstimateResidualStress(), 0);
}

TEST_F(CMXEdgeCases, BlockInsideAnUnknownOneIsRead) {
  read("<OTHER>\n<SOLID_COOL>\nIDSolver = 5\n</SOLID_COOL>\n</OTHER>\n");
  EXPECT_EQ(coolType(), 5);
}

TEST_F(CMXEdgeCases, RepeatedBlockOverwritesWhatItNames) {
  read(
      "<SOLID_PACK>\nFlagexPackingType = 1\nValueexPackingCrystal = -5\n</SOLID_PACK>\n"
      "<SOLID_PACK>\nFlagexPackingType = 2\n</SOLID_PACK>\n");
  const CZEBCMX_SOLID_PACK& block = m_tool.block<CZEBCMX_SOLID_PACK>();
  EXPECT_EQ(block.iExtendPackType(), 2);
  EXPECT_EQ(block.dExtendPackCrystal(), -5.0);
}

// Every block with every key that announces no list.
std::vector<std::string> blocksWithoutLists() {
  std::vector<std::string> blocks;
  std::string tag;
  for (const zebtest::Expected& key : zebtest::expectations("cmx_keys.tsv")) {
    if (key.at("tag") != tag) blocks.push_back("<" + (tag = key.at("tag")) + ">\n");
    if (key.at("rule") == "list") continue;
    blocks.back() += zebtest::unquoted(key.at("key")) + " = " + std::to_string(blocks.back().size()) + "\n";
  }
  for (std::string& block : blocks) block.insert(block.size(), "</" + block.substr(1, block.find('>')) + "\n");
  return blocks;
}

const char* const kLists =
    "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 1\nCf = 0.5\nCm = 0.25\n</FILL_ADVANCED_LONGFIBER>\n"
    "<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 2\nValueHRGateType = 1\n1 = 1.5\n2 = 2.5\n</FILL_ADVANCED_HRSteady>\n"
    "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 1\n1 = 0.5\n</FILL_OUTPUT_TIMES>\n"
    "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 2\n1 = 1\n2 = 2\n</PACK_OUTPUT_TIMES>\n";

std::string joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += part;
  return text;
}

TEST_F(CMXEdgeCases, BlocksMayComeInAnyOrder) {
  std::vector<std::string> blocks = blocksWithoutLists();
  ASSERT_EQ(blocks.size(), 13u);
  const std::string forward = read(joined(blocks));
  EXPECT_NE(forward, m_defaults);
  std::reverse(blocks.begin(), blocks.end());
  CZEBCMXInternalTool other;
  EXPECT_EQ(readIntoTool(other, joined(blocks)), forward);
}

// --- Keys

TEST_F(CMXEdgeCases, KeysAreCaseSensitiveAndKeepTheirMisspellings) {
  EXPECT_EQ(read("<TASKMANAGER>\nFlagAccelerationType = 1\n</TASKMANAGER>\n"
                 "<FILL_ADVANCED_LONGFIBER>\nFlagConcentration = 1\n</FILL_ADVANCED_LONGFIBER>\n"
                 "<SOLID_COOL>\nIdSolver = 5\n</SOLID_COOL>\n"
                 "<SOLID_FILL>\nFlagEstimateCrystal = 1\n</SOLID_FILL>\n"),
            m_defaults);
}

TEST_F(CMXEdgeCases, ValueIsTheNumberBehindTheLinesFirstEquals) {
  const struct {
    const char* line;
    int stored;  // 1 is the default
  } cases[] = {
      {"IDSolver = 5 = 6", 5}, {"IDSolver\t=\t5", 5},  {"IDSolver=+5", 5},           {"IDSolver = 5.9", 5},
      {"IDSolver = -5", -5},   {"IDSolver = 5abc", 5}, {"x = 7 IDSolver = 5", 7},    {"MyIDSolverToo = 5", 5},
      {"// IDSolver = 5", 5},  {"5 = IDSolver", 1},    {"IDSolver: 5", 1},           {"IDSolver == 5", 1},
      {"ID Solver = 5", 1},    {"IDSolver = 0x10", 0}, {"IDSolver = 2147483648", 1}, {"IDSolver = - 5", 1},
  };
  for (const auto& c : cases) {
    CZEBCMXInternalTool tool;
    readIntoTool(tool, std::string("<SOLID_COOL>\n") + c.line + "\n</SOLID_COOL>\n");
    EXPECT_EQ(tool.block<CZEBCMX_SOLID_COOL>().iTransientCoolType(), c.stored) << c.line;
  }
}

TEST_F(CMXEdgeCases, LineOf254CharactersIsReadWholeOnRanks) {
  const auto valueOnRanks = [](std::size_t length) {
    // "25" ends the line.
    const std::string key = "IDSolver =";
    const std::string text = "<SOLID_COOL>\n" + key + std::string(length - key.size() - 2, ' ') + "25\n";
    zeb::RecordingCommunicator com(2);
    CZEBCMXInternalTool tool;
    tool.setZEBCom(&com);
    readIntoTool(tool, text);
    return tool.block<CZEBCMX_SOLID_COOL>().iTransientCoolType();
  };
  EXPECT_EQ(valueOnRanks(254), 25);
  EXPECT_EQ(valueOnRanks(255), 2);
  EXPECT_EQ(valueOnRanks(256), 1) << "no value is left";
}

// --- Lists

TEST_F(CMXEdgeCases, CountThatDoesNotParseOpensNoList) {
  for (const std::string value : {" = x", " =", " 2", " = 3000000000"}) {
    EXPECT_EQ(read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime" + value +
                   "\n</FILL_OUTPUT_TIMES>\n"
                   "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime" +
                   value +
                   "\n</PACK_OUTPUT_TIMES>\n"
                   "<FILL_ADVANCED_HRSteady>\nValueNoHRGate" +
                   value + "\n</FILL_ADVANCED_HRSteady>\n"),
              m_defaults)
        << value;
  }
}

TEST_F(CMXEdgeCases, CountThatDoesNotParseKeepsAnEarlierList) {
  const std::string list = "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 1\n1 = 5\n";
  const std::string before = read(list + "</PACK_OUTPUT_TIMES>\n");
  EXPECT_EQ(read("<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = x\n1 = 6\n</PACK_OUTPUT_TIMES>\n"), before);
}

TEST_F(CMXEdgeCases, GateTypeThatDoesNotParseReadsNoGates) {
  readGates("ValueNoHRGate = 1\nValueHRGateType = x\nValueFlowRate = 9\n");
  EXPECT_EQ(m_gates.iHRGateType(), 0);
  EXPECT_EQ(m_gates.dHRFlowRate(), 9.0);
}

TEST_F(CMXEdgeCases, EveryGateTypeTakesTheGatesAgain) {
  readGates("ValueNoHRGate = 2\nValueHRGateType = 1\nG1 = 1\nG2 = 2\nValueHRGateType = 3\nG1 = 7\nG2\n");
  EXPECT_EQ(m_gates.iHRGateType(), 3);
  EXPECT_EQ(gates(), (Doubles{7, 2})) << "a line without '=' leaves its entry";
}

TEST_F(CMXEdgeCases, GateCountOfAnEarlierBlockCounts) {
  readGates("ValueNoHRGate = 1\n");
  readGates("ValueHRGateType = 1\nG1 = 4\nValueFlowRate = 9\n");
  EXPECT_EQ(gates(), Doubles{4});
  EXPECT_EQ(m_gates.dHRFlowRate(), 9.0);
}

TEST_F(CMXEdgeCases, GateCountAndTypeOnOneLineAreSetInThisOrder) {
  readGates("ValueHRGateType ValueNoHRGate = 2\nG1 = 1\nG2 = 2\nValueFlowRate = 9\n");
  EXPECT_EQ(m_gates.iHRGateType(), 2);
  EXPECT_EQ(gates(), (Doubles{1, 2}));
  EXPECT_EQ(m_gates.dHRFlowRate(), 9.0);
}

TEST_F(CMXEdgeCases, GateIsTheNumberBehindTheFirstEquals) {
  readGates("ValueNoHRGate = 5\nValueHRGateType = 1\n1.5 = 2.5 = 3.5\n=4\nG3 =\t5\nG4 =  6cc\nG5 = -7e-1\n");
  EXPECT_EQ(gates(), (Doubles{2.5, 4, 5, 6, -0.7}));
}

TEST_F(CMXEdgeCases, EveryDiffusionModelKeepsTheCoefficientsOfTheOthers) {
  read(
      "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 0\na = 0.5\nDiffusionModelType = 1\na = 0.6\nb = 0.7\n"
      "DiffusionModelType = 2\na = 1\nb = 2\nc = 3\nd = 4\ne = 5\n</FILL_ADVANCED_LONGFIBER>\n");
  const CZEBCMX_FILL_ADVANCED_LONGFIBER& block = m_tool.block<CZEBCMX_FILL_ADVANCED_LONGFIBER>();
  EXPECT_EQ((Doubles{block.dFiber_CI(), block.dARD_Cf(), block.dARD_Cm(), block.dARD_b1(), block.dARD_b5()}),
            (Doubles{0.5, 0.6, 0.7, 1, 5}));
  EXPECT_EQ(block.iDiffusionModelType(), 2);
}

// --- Blocks as a host sees them

template <class... Blocks>
void assignBlocks(CZEBCMXInternalTool& to, CZEBCMXInternalTool& from) {
  ((to.block<Blocks>() = from.block<Blocks>()), ...);
}

TEST_F(CMXEdgeCases, AssignmentCopiesEveryFieldOfEveryBlock) {
  std::vector<std::string> blocks = blocksWithoutLists();
  blocks.erase(blocks.begin());  // the file's version is no block's
  const std::string values = read(joined(blocks) + kLists);
  CZEBCMXInternalTool copy;
  assignBlocks<CZEBCMX_SOLID_FILL, CZEBCMX_FILL_ADVANCED_SlipBC, CZEBCMX_FILL_ADVANCED_LONGFIBER,
               CZEBCMX_FILL_ADVANCED_HRSteady, CZEBCMX_SOLID_COOL, CZEBCMX_SOLID_VE, CZEBCMX_SOLID_PACK,
               CZEBCMX_TASKMANAGER, CZEBCMX_Dyna_Forming, CZEBCMX_FILL_ADVANCED_MCIM, CZEBCMX_FILL_OUTPUT_TIMES,
               CZEBCMX_PACK_OUTPUT_TIMES>(copy, m_tool);
  EXPECT_EQ(zebtest::exactValues(copy.sections()), values);
  EXPECT_EQ(copy.block<CZEBCMX_FILL_ADVANCED_HRSteady>().pHRGateBC(), m_gates.pHRGateBC());
  EXPECT_EQ(copy.block<CZEBCMX_FILL_OUTPUT_TIMES>().pOutTimeStep(),
            m_tool.block<CZEBCMX_FILL_OUTPUT_TIMES>().pOutTimeStep());
}

TEST_F(CMXEdgeCases, BlocksAreHandedOutForSettingAndTheirListsForReadingOnly) {
  using Set = CZEBKNCMXCompParm;
  static_assert(std::is_same_v<decltype(&Set::getSOLID_VE), CZEBCMX_SOLID_VE* (Set::*)() const>);
  static_assert(std::is_same_v<decltype(&Set::get_TASKMANAGER), CZEBCMX_TASKMANAGER* (Set::*)() const>);
  static_assert(std::is_same_v<decltype(&Set::setSolidFillBlock), int (Set::*)(const std::string&)>);
  static_assert(
      std::is_same_v<decltype(&CZEBCMX_SOLID_FILL::strInitChargeFiber), const char* (CZEBCMX_SOLID_FILL::*)() const>);
  static_assert(std::is_same_v<decltype(&CZEBCMX_FILL_OUTPUT_TIMES::pOutTimeStep),
                               const double* (CZEBCMX_FILL_OUTPUT_TIMES::*)() const>);
  static_assert(std::is_same_v<decltype(&CZEBCMX_PACK_OUTPUT_TIMES::pOutTimeStep),
                               const double* (CZEBCMX_PACK_OUTPUT_TIMES::*)() const>);
  const Set set(0);
  EXPECT_EQ(set.getSOLID_VE()->ResetResidualStressFlag(2), 1);
  EXPECT_EQ(set.getFILL_OUTPUT_TIMES()->setMultiOutputType(5), 1);
  EXPECT_EQ(set.getSOLID_VE()->iEstimateResidualStress(), 1);
  EXPECT_EQ(set.getFILL_OUTPUT_TIMES()->MultiOutputType(), 5);
}

TEST_F(CMXEdgeCases, ConstructorsArgumentMeansNothing) {
  for (const int argument : {INT_MIN, -1, 14, 15, INT_MAX}) {
    EXPECT_EQ(zebtest::outputOf([argument] {
                const CZEBKNCMXCompParm set(argument);
                EXPECT_EQ(set.getSOLID_FILL()->iUnFilledCells(), 10);
              }),
              "");
  }
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

TEST_F(CMXCommunicators, OtherRanksOpenNothingAndTakeRank0sLines) {
  zeb::RecordingCommunicator first(2);
  CZEBKNCMXCompParm rank0(0);
  rank0.setZEBCom(&first);
  rank0.setSolidFillBlock(m_file);
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  CZEBKNCMXCompParm rank1(0);
  rank1.setZEBCom(&second);
  EXPECT_EQ(rank1.setSolidFillBlock(m_folder.write("other.cmx", "<SOLID_COOL>\nIDSolver = 8\n")), 1);
  EXPECT_TRUE(second.finished());
  EXPECT_EQ(rank1.getSOLID_COOL()->iTransientCoolType(), 5);
}

}  // namespace
