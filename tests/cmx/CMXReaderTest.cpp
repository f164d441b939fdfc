// The CMX reader and its blocks as a host uses them: through a file and the public classes.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <sstream>
#include <type_traits>

#include "ZEBKNCompParm.h"
#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "standalone/SerialCommunicator.h"
#include "tests/cmx/Expectations.hpp"
#include "tests/cmx/ReadIntoTool.hpp"

namespace {

using zebtest::readIntoTool;

class CMXReader : public testing::Test {
 protected:
  void read(const std::string& text) { EXPECT_EQ(m_set.setSolidFillBlock(m_folder.write("run.cmx", text)), 1); }

  zeb::test::TestFolder m_folder;
  CZEBKNCMXCompParm m_set{0};
};

TEST_F(CMXReader, BlocksAreHandedOutForSettingAndTheirListsForReadingOnly) {
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

TEST_F(CMXReader, ConstructorsArgumentMeansNothing) {
  for (const int argument : {INT_MIN, -1, 14, 15, INT_MAX}) {
    EXPECT_EQ(zebtest::printedBy([argument] {
                const CZEBKNCMXCompParm set(argument);
                EXPECT_EQ(set.getSOLID_FILL()->iUnFilledCells(), 10);
              }),
              "");
  }
}

TEST(CMXBlocks, ResidualStressFlagIsOneForAnyNonZero) {
  CZEBCMX_SOLID_VE block;
  EXPECT_EQ(block.ResetResidualStressFlag(5), 1);
  EXPECT_EQ(block.iEstimateResidualStress(), 1);
  EXPECT_EQ(block.ResetResidualStressFlag(0), 1);
  EXPECT_EQ(block.iEstimateResidualStress(), 0);
  EXPECT_EQ(block.ResetResidualStressFlag(-1), 1);
  EXPECT_EQ(block.iEstimateResidualStress(), 1);
}

TEST(CMXBlocks, MultiOutputTypeIsSetAsGiven) {
  CZEBCMX_FILL_OUTPUT_TIMES block;
  EXPECT_EQ(block.setMultiOutputType(3), 1);
  EXPECT_EQ(block.MultiOutputType(), 3);
}

TEST_F(CMXReader, EveryAccessorHandsOutTheBlockOfItsTag) {
  read(
      "<SOLID_FILL>\nMeshType = 2\n</SOLID_FILL>\n"
      "<FILL_ADVANCED_SlipBC>\nFlagSlipOnlyRunner = 3\n</FILL_ADVANCED_SlipBC>\n"
      "<FILL_ADVANCED_LONGFIBER>\nFiberType = 4\n</FILL_ADVANCED_LONGFIBER>\n"
      "<FILL_ADVANCED_HRSteady>\nValueFlowRate = 5\n</FILL_ADVANCED_HRSteady>\n"
      "<SOLID_COOL>\nIDSolver = 6\n</SOLID_COOL>\n"
      "<SOLID_VE>\nFlagEstimateFlowPackStage = 7\n</SOLID_VE>\n"
      "<SOLID_PACK>\nFlagexPackingType = 8\n</SOLID_PACK>\n"
      "<TASKMANAGER>\nflagAccelerationType = 9\n</TASKMANAGER>\n"
      "<Dyna_Forming>\nRunfibermatCycle = 10\n</Dyna_Forming>\n"
      "<FILL_ADVANCED_MCIM>\nGasType = 11\n</FILL_ADVANCED_MCIM>\n"
      "<FILL_OUTPUT_TIMES>\nFlagFillMultiOutputType = 12\n</FILL_OUTPUT_TIMES>\n"
      "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 1\n 1 = 13\n</PACK_OUTPUT_TIMES>\n");
  EXPECT_EQ(m_set.getSOLID_FILL()->iMeshType(), 2);
  EXPECT_EQ(m_set.getFILL_ADVANCED_SlipBC()->SlipOnlyRunner(), 3);
  EXPECT_EQ(m_set.getFILL_ADVANCED_LONGFIBER()->iFiberType(), 4);
  EXPECT_EQ(m_set.getFILL_ADVANCED_HRSteady()->dHRFlowRate(), 5.0);
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 6);
  EXPECT_EQ(m_set.getSOLID_VE()->iEstimateResidualStress(), 7);
  EXPECT_EQ(m_set.getSOLID_PACK()->iExtendPackType(), 8);
  EXPECT_EQ(m_set.get_TASKMANAGER()->iFlagAccelerationType(), 9);
  EXPECT_EQ(m_set.getDyna_Forming()->iRunfibermatCycle(), 10);
  EXPECT_EQ(m_set.getFILL_ADVANCED_MCIM()->GasType(), 11);
  EXPECT_EQ(m_set.getFILL_OUTPUT_TIMES()->MultiOutputType(), 12);
  EXPECT_EQ(m_set.getPACK_OUTPUT_TIMES()->pOutTimeStep()[1], 13.0);
}

TEST_F(CMXReader, MissingFileKeepsTheDefaultsSilently) {
  CZEBCMXInternalTool untouched, tool;
  EXPECT_EQ(zebtest::printedBy([&] { EXPECT_EQ(tool.setSolidFillBlock(m_folder.path("none.cmx")), 1); }), "");
  EXPECT_EQ(zebtest::exactValues(tool), zebtest::exactValues(untouched));
}

TEST_F(CMXReader, SecondFileIsReadOverTheFirst) {
  read("<SOLID_FILL>\nMeshType = 2\nLevel1 = 3\n</SOLID_FILL>\n");
  read("<SOLID_FILL>\nMeshType = 5\n</SOLID_FILL>\n");
  EXPECT_EQ(m_set.getSOLID_FILL()->iMeshType(), 5);
  EXPECT_EQ(m_set.getSOLID_FILL()->iUseTemperatureDLL_Level1(), 3);
}

TEST_F(CMXReader, ExchangeNameIsOneWordOfAtMost254Characters) {
  const CZEBCMX_SOLID_FILL& block = *m_set.getSOLID_FILL();
  const std::string_view whole(block.strInitChargeFiber(), 255);
  EXPECT_EQ(whole, std::string(255, '\0'));
  read("<SOLID_FILL>\nValueInitChargeFiberExchangeName = my part.f2c\n</SOLID_FILL>\n");
  const char* const first = block.strInitChargeFiber();
  EXPECT_EQ(std::string(first, 255), "my" + std::string(253, '\0')) << "hosts may copy the whole buffer";
  read("<SOLID_FILL>\nValueInitChargeFiberExchangeName = " + std::string(300, 'n') + "\n</SOLID_FILL>\n");
  EXPECT_EQ(block.strInitChargeFiber(), std::string(254, 'n'));
  EXPECT_STREQ(first, "my") << "a name once handed out stays";
  read("<SOLID_FILL>\nValueInitChargeFiberExchangeName =\n</SOLID_FILL>\n");
  EXPECT_EQ(block.strInitChargeFiber(), std::string(254, 'n'));
}

TEST_F(CMXReader, NullCommunicatorIsRefusedAndAnyOtherTaken) {
  zeb::SerialCommunicator single;
  EXPECT_EQ(m_set.setZEBCom(nullptr), -1);
  EXPECT_EQ(m_set.setZEBCom(&single), 1);
  EXPECT_EQ(m_set.setZEBCom(nullptr), -1);
}

TEST_F(CMXReader, CopiesShareTheBlocksAndMayAllBeDestroyed) {
  auto first = std::make_unique<CZEBKNCMXCompParm>(0);
  CZEBKNCMXCompParm second(*first);
  EXPECT_EQ(second.getSOLID_FILL(), first->getSOLID_FILL());
  first.reset();
  second.setSolidFillBlock(m_folder.write("a.cmx", "<SOLID_COOL>\nIDSolver = 4\n</SOLID_COOL>\n"));
  EXPECT_EQ(second.getSOLID_COOL()->iTransientCoolType(), 4);
}

TEST_F(CMXReader, BlocksOnceHandedOutOutliveAnAssignment) {
  CZEBCMX_SOLID_COOL* const before = m_set.getSOLID_COOL();
  read("<SOLID_COOL>\nIDSolver = 4\n</SOLID_COOL>\n");
  {
    const CZEBKNCMXCompParm other(0);
    m_set = other;
    m_set = *&m_set;
    EXPECT_EQ(m_set.getSOLID_COOL(), other.getSOLID_COOL());
  }
  EXPECT_NE(m_set.getSOLID_COOL(), before);
  EXPECT_EQ(before->iTransientCoolType(), 4);
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 1);
}

TEST(CMXBlocks, AssignmentSharesArraysAndTexts) {
  CZEBCMXInternalTool tool;
  readIntoTool(tool,
               "<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 1\n 1 = 13\n</PACK_OUTPUT_TIMES>\n"
               "<SOLID_FILL>\nValueInitChargeFiberExchangeName = a.f2c\n</SOLID_FILL>\n");
  CZEBCMX_PACK_OUTPUT_TIMES moments;
  moments = tool.block<CZEBCMX_PACK_OUTPUT_TIMES>();
  EXPECT_EQ(moments.iNoOutTimeStep(), 1);
  EXPECT_EQ(moments.pOutTimeStep(), tool.block<CZEBCMX_PACK_OUTPUT_TIMES>().pOutTimeStep());
  CZEBCMX_SOLID_FILL filling;
  filling = tool.block<CZEBCMX_SOLID_FILL>();
  EXPECT_EQ(filling.strInitChargeFiber(), tool.block<CZEBCMX_SOLID_FILL>().strInitChargeFiber());
}

// --- All blocks at once

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

TEST(CMXBlocks, BlocksMayComeInAnyOrder) {
  std::vector<std::string> blocks = blocksWithoutLists();
  CZEBCMXInternalTool tool, untouched;
  const std::string forward = readIntoTool(tool, joined(blocks));
  EXPECT_NE(forward, zebtest::exactValues(untouched));
  std::reverse(blocks.begin(), blocks.end());
  CZEBCMXInternalTool other;
  EXPECT_EQ(readIntoTool(other, joined(blocks)), forward);
}

template <class... Blocks>
void assignBlocks(CZEBCMXInternalTool& to, CZEBCMXInternalTool& from) {
  ((to.block<Blocks>() = from.block<Blocks>()), ...);
}

TEST(CMXBlocks, AssignmentCopiesEveryFieldOfEveryBlock) {
  std::vector<std::string> blocks = blocksWithoutLists();
  blocks.erase(blocks.begin());  // the file's version is no block's
  CZEBCMXInternalTool tool;
  const std::string values = readIntoTool(tool, joined(blocks) + kLists);
  CZEBCMXInternalTool copy;
  assignBlocks<CZEBCMX_SOLID_FILL, CZEBCMX_FILL_ADVANCED_SlipBC, CZEBCMX_FILL_ADVANCED_LONGFIBER,
               CZEBCMX_FILL_ADVANCED_HRSteady, CZEBCMX_SOLID_COOL, CZEBCMX_SOLID_VE, CZEBCMX_SOLID_PACK,
               CZEBCMX_TASKMANAGER, CZEBCMX_Dyna_Forming, CZEBCMX_FILL_ADVANCED_MCIM, CZEBCMX_FILL_OUTPUT_TIMES,
               CZEBCMX_PACK_OUTPUT_TIMES>(copy, tool);
  EXPECT_EQ(zebtest::exactValues(copy), values);
  EXPECT_EQ(copy.block<CZEBCMX_FILL_ADVANCED_HRSteady>().pHRGateBC(),
            tool.block<CZEBCMX_FILL_ADVANCED_HRSteady>().pHRGateBC());
  EXPECT_EQ(copy.block<CZEBCMX_FILL_OUTPUT_TIMES>().pOutTimeStep(),
            tool.block<CZEBCMX_FILL_OUTPUT_TIMES>().pOutTimeStep());
}

TEST(CMXBlocks, OnlyTheEntryPointAndItsToolAreVirtual) {
  EXPECT_TRUE(std::has_virtual_destructor_v<CZEBKNCMXCompParm>);
  EXPECT_TRUE(std::has_virtual_destructor_v<CZEBCMXInternalTool>);
  EXPECT_FALSE(std::is_polymorphic_v<CZEBCMX_SOLID_FILL>);
}

}  // namespace
