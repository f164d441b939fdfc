// The CMX reader and its blocks as a host uses them: through a file and the public classes.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <type_traits>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "engine/ReadObserver.hpp"
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

TEST_F(CMXReader, BothSpellingsOfGravitySetTheSameField) {
  for (const std::string axis : {"X", "Y", "Z"}) {
    for (const std::string spelling : {"ValueGravity", "ValueGravy"}) {
      CZEBKNCMXCompParm set(0);
      set.setSolidFillBlock(m_folder.write("g.cmx", "<SOLID_FILL>\n" + spelling + axis + " = 9.8\n</SOLID_FILL>\n"));
      const CZEBCMX_SOLID_FILL& block = *set.getSOLID_FILL();
      EXPECT_EQ(block.dGravX(), axis == "X" ? 9.8 : 0.0);
      EXPECT_EQ(block.dGravY(), axis == "Y" ? 9.8 : 0.0);
      EXPECT_EQ(block.dGravZ(), axis == "Z" ? 9.8 : 0.0);
    }
  }
}

TEST_F(CMXReader, BothSpellingsOfTheCriterionSetTheSameField) {
  read("<FILL_ADVANCED_HRSteady>\nValueConvergenceCriteria = 0.25\n</FILL_ADVANCED_HRSteady>\n");
  EXPECT_EQ(m_set.getFILL_ADVANCED_HRSteady()->dHRConvergenceCriteria(), 0.25);
  EXPECT_EQ(m_set.getFILL_ADVANCED_HRSteady()->dHRFlowRate(), 0.0);
  read("<FILL_ADVANCED_HRSteady>\nValueFlowRateDiffRatio = 0.5\n</FILL_ADVANCED_HRSteady>\n");
  EXPECT_EQ(m_set.getFILL_ADVANCED_HRSteady()->dHRConvergenceCriteria(), 0.5);
  // The longer key holds "ValueFlowRate".
  EXPECT_EQ(m_set.getFILL_ADVANCED_HRSteady()->dHRFlowRate(), 0.5);
}

TEST_F(CMXReader, OutputType3IsStoredAs2) {
  for (const auto& [written, stored] : std::map<int, int>{{3, 2}, {2, 2}, {1, 1}, {0, 0}, {4, 4}, {-3, -3}}) {
    read("<FILL_OUTPUT_TIMES>\nFlagFillMultiOutputType = " + std::to_string(written) + "\n</FILL_OUTPUT_TIMES>\n");
    EXPECT_EQ(m_set.getFILL_OUTPUT_TIMES()->MultiOutputType(), stored) << written;
  }
}

TEST_F(CMXReader, KeyMayStandAnywhereInTheLine) {
  read("<FILL_ADVANCED_SlipBC>\n   FlagSlipBC=1 \n</FILL_ADVANCED_SlipBC>\n");
  EXPECT_EQ(m_set.getFILL_ADVANCED_SlipBC()->iSlipBC(), 1);
  EXPECT_EQ(m_set.getFILL_ADVANCED_SlipBC()->iSlipBCDebug(), 0);
}

TEST_F(CMXReader, LongerKeyAlsoSetsTheFieldOfTheKeyThatItContains) {
  read("<FILL_ADVANCED_SlipBC>\nFlagSlipBCDebug = 1\n</FILL_ADVANCED_SlipBC>\n");
  EXPECT_EQ(m_set.getFILL_ADVANCED_SlipBC()->iSlipBCDebug(), 1);
  EXPECT_EQ(m_set.getFILL_ADVANCED_SlipBC()->iSlipBC(), 1);
}

TEST_F(CMXReader, TagInLowerCaseIsNotRecognised) {
  read("<solid_cool>\nIDSolver = 5\n</solid_cool>\n");
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 1);
}

TEST_F(CMXReader, MomentsStandBehindTheZeroInTheOrderOfTheirLines) {
  read("<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 2\n1 = 0.5\n2 = 1.2\n</FILL_OUTPUT_TIMES>\n");
  const CZEBCMX_FILL_OUTPUT_TIMES& block = *m_set.getFILL_OUTPUT_TIMES();
  ASSERT_EQ(block.NoOutTimeStep(), 2);
  EXPECT_EQ(block.pOutTimeStep()[0], 0.0);
  EXPECT_EQ(block.pOutTimeStep()[1], 0.5);
  EXPECT_EQ(block.pOutTimeStep()[2], 1.2);
}

TEST(CMXBlocks, FreshFillingBlockHasItsSwitchesOn) {
  const CZEBCMX_SOLID_FILL block;
  EXPECT_EQ(block.ilInertia(), 1);
  EXPECT_EQ(block.ilNIsoT(), 1);
  EXPECT_EQ(block.ilGNF(), 1);
  EXPECT_EQ(block.ilVisHeat(), 1);
  EXPECT_EQ(block.iUnFilledCells(), 10);
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

TEST_F(CMXReader, UnknownBlocksTextOutsideAndUnknownKeysAreIgnored) {
  CZEBCMXInternalTool untouched, tool;
  EXPECT_EQ(readIntoTool(tool,
                         "IDSolver = 5\n<OTHER>\nMeshType = 2\n</OTHER>\n<SOLID_COOL>\nNothing = 3\n"
                         "</SOLID_COOL>\nIDSolver = 6\n"),
            zebtest::exactValues(untouched.sections()));
}

TEST_F(CMXReader, BlockWithoutEndTagEndsWithTheFile) {
  // The later tags stand inside the block: nothing is looked for but its own keys.
  read("<SOLID_COOL>\nIDSolver = 5\n<SOLID_FILL>\nMeshType = 2\nIDSolver = 6");
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 6);
  EXPECT_EQ(m_set.getSOLID_FILL()->iMeshType(), 0);
  EXPECT_EQ(m_set.getSOLID_FILL()->iIDSolver(), 0);
}

TEST_F(CMXReader, LineWithTwoTagsOpensBothBlocksInTheOrderOfTheTests) {
  read("<SOLID_COOL> <SOLID_FILL>\nIDSolver = 5\n</SOLID_FILL>\nIDSolver = 6\n</SOLID_COOL>\nIDSolver = 7\n");
  EXPECT_EQ(m_set.getSOLID_FILL()->iIDSolver(), 5);
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 6);
}

TEST_F(CMXReader, KeysOnTheClosingLineAreNotRead) {
  read("<SOLID_COOL> IDSolver = 5\n</SOLID_COOL> IDSolver = 6\n");
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 1);
}

TEST_F(CMXReader, MissingFileKeepsTheDefaultsSilently) {
  CZEBCMXInternalTool untouched, tool;
  EXPECT_EQ(zebtest::outputOf([&] { EXPECT_EQ(tool.setSolidFillBlock(m_folder.path("none.cmx")), 1); }), "");
  EXPECT_EQ(zebtest::exactValues(tool.sections()), zebtest::exactValues(untouched.sections()));
}

TEST_F(CMXReader, SecondFileIsReadOverTheFirst) {
  read("<SOLID_FILL>\nMeshType = 2\nLevel1 = 3\n</SOLID_FILL>\n");
  read("<SOLID_FILL>\nMeshType = 5\n</SOLID_FILL>\n");
  EXPECT_EQ(m_set.getSOLID_FILL()->iMeshType(), 5);
  EXPECT_EQ(m_set.getSOLID_FILL()->iUseTemperatureDLL_Level1(), 3);
}

TEST_F(CMXReader, SummaryHoldsTheFilesVersion) {
  CZEBCMXInternalTool tool;
  EXPECT_EQ(tool.nCMXVersion(), 0);
  readIntoTool(tool, "<SUMMARY>\nVersion = 2024\n</SUMMARY>\n<SOLID_FILL>\nVersion = 3\n</SOLID_FILL>\n");
  EXPECT_EQ(tool.nCMXVersion(), 2024);
  EXPECT_EQ(tool.block<CZEBCMX_SOLID_FILL>().iSolidFillBlockVersion(), 3);
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

TEST_F(CMXReader, ValueThatDoesNotParseKeepsTheField) {
  read("<SOLID_COOL>\nIDSolver = 5\nIDSolver = x\nIDSolver 6\nIDSolver =\n</SOLID_COOL>\n");
  EXPECT_EQ(m_set.getSOLID_COOL()->iTransientCoolType(), 5);
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

struct Watcher : zeb::ReadObserver {
  std::vector<std::string> events;
  void add(const std::string& what, int lineNumber) { events.push_back(what + " " + std::to_string(lineNumber)); }
  void fileStarted(std::string_view) override { events.push_back("file"); }
  void lineOutside(int number, std::string_view) override { add("outside", number); }
  void sectionOpened(const zeb::Section&, int number) override { add("opened", number); }
  void sectionClosed(const zeb::Section&, int number) override { add("closed", number); }
  void keyFound(const zeb::KeyEvent& event) override { add(std::string(event.key), event.lineNumber); }
  void lineOfList(const zeb::Section&, int number, std::string_view, bool used) override {
    add(used ? "used" : "unused", number);
  }
};

TEST_F(CMXReader, ObserverSeesEveryLineOfListsAndBlocks) {
  CZEBCMXInternalTool tool;
  Watcher watcher;
  tool.observer = &watcher;
  tool.setSolidFillBlock(m_folder.write("a.cmx",
                                        "text\n<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 2\n1 = 5\n2\n"
                                        "</PACK_OUTPUT_TIMES>\n<FILL_ADVANCED_HRSteady>\nValueNoHRGate = 1\n"
                                        "ValueHRGateType = 1\nG1 = x\n</FILL_ADVANCED_HRSteady>\n"));
  EXPECT_EQ(watcher.events, (std::vector<std::string>{"file", "outside 1", "opened 2", "ValueNoPackOutputTime 3",
                                                      "used 4", "unused 5", "closed 6", "opened 7", "ValueNoHRGate 8",
                                                      "ValueHRGateType 9", "unused 10", "closed 11"}));
}

TEST(CMXBlocks, OnlyTheEntryPointAndItsToolAreVirtual) {
  EXPECT_TRUE(std::has_virtual_destructor_v<CZEBKNCMXCompParm>);
  EXPECT_TRUE(std::has_virtual_destructor_v<CZEBCMXInternalTool>);
  EXPECT_FALSE(std::is_polymorphic_v<CZEBCMX_SOLID_FILL>);
}

}  // namespace
