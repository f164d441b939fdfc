// The parameter set as a host uses it: molding types, ownership, the companion file, and what it refuses.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>

#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPOutletParm.h"
#include "blocks/CZEBCMPVEParm.h"
#include "blocks/CZEBCoolBackDoorParm.h"
#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "standalone/SerialCommunicator.h"
#include "tests/support/ReadSet.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TestFolder.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::defaultValues;
using zebtest::Lines;
using zebtest::TemporaryFile;
using zebtest::valuesOf;

class UndefinedMoldingType : public testing::TestWithParam<int> {};

TEST_P(UndefinedMoldingType, IsToldAndLeavesNoTool) {
  const zeb::OutputCapture capture;
  CZEBKNCMPCompParm set(GetParam(), 1);
  EXPECT_EQ(capture.text(), "Undefined Molding Type: " + std::to_string(GetParam()) + "\n");
  zeb::SerialCommunicator com;
  int i = 42;
  EXPECT_EQ(set.setMaterialType(1), -1);
  EXPECT_EQ(set.setIsWaxMat(1), -1);
  EXPECT_EQ(set.setZEBCom(&com), -1);
  EXPECT_EQ(set.setSolidFillBlock("none.cmp"), -1);
  EXPECT_EQ(set.modifyParameters(), -1);
  EXPECT_EQ(set.OutputParameters(), -1);
  EXPECT_EQ(set.getLine3(i), -1);
  EXPECT_EQ(i, 42);
  EXPECT_EQ(set.getGeneralParm(), nullptr);
  EXPECT_EQ(set.getCool_BackDoorParm(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Codes, UndefinedMoldingType, testing::Values(4711, -1, 2147483647, -2147483647 - 1));

TEST(MoldingType, EveryMoldingTypeHasItsToolAndItsStartValues) {
  std::map<int, std::string> toolClasses;
  for (const zebtest::TsvRow& row : zebtest::readTsv("molding.tsv")) {
    toolClasses[std::stoi(row.at("code"))] = row.at("tool_class");
  }
  for (const auto& [code, name] : toolClasses) {
    const CZEBKNCMPCompParm set(code, 7);
    ASSERT_NE(zeb::Inspection::tool(set), nullptr) << "kMoldingTypes lacks " << name << ", code " << code;
    CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
    EXPECT_EQ(typeid(tool).name(), std::to_string(name.size()) + name);
    EXPECT_EQ(tool.m_iMoldingType, code);
    EXPECT_EQ(tool.m_iMaterialType, 7);
    EXPECT_EQ(tool.m_iIsWaxMat, 0);
    EXPECT_EQ(tool.m_nPrintLevel, 0);
    EXPECT_EQ(tool.m_pCom, nullptr);
    EXPECT_EQ(tool.modifyMoldingParameters(), 1) << name;
  }
}

// --- Material, wax and communicator ------------------------------------------------------------------------------

TEST(ParameterSet, SettersAnswerOneAndTheLastOneCounts) {
  CZEBKNCMPCompParm set(0, 1);
  EXPECT_EQ(set.setMaterialType(0), 1);
  EXPECT_EQ(set.setIsWaxMat(1), 1);
  EXPECT_EQ(set.setIsWaxMat(0), 1);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_EQ(valuesOf(set), defaultValues());
  EXPECT_EQ(set.setMaterialType(1), 1);
  set.modifyParameters();
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
}

TEST(ParameterSet, ANullCommunicatorChangesNothingAndALaterOneCounts) {
  const TemporaryFile file("");
  zeb::RecordingCommunicator first(2), second(2);
  CZEBKNCMPCompParm set(0, 0);
  EXPECT_EQ(set.setZEBCom(&first), 1);
  EXPECT_EQ(set.setZEBCom(nullptr), -1);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(first.log().calls(), (Lines{"Barrier", "Broadi -1"}));
  EXPECT_EQ(set.setZEBCom(&second), 1);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(first.log().size(), 2u);
  EXPECT_EQ(second.log().size(), 2u);
}

TEST(ParameterSet, AMissingFileLeavesTheDefaultsAndPrintsNothing) {
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.setSolidFillBlock("no/such/file.cmp"), 1);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_EQ(capture.text(), "");
  EXPECT_EQ(valuesOf(set), defaultValues());
}

// --- Ownership --------------------------------------------------------------------------------------------------

TEST(ParameterSet, CopiesShareTheBlocksAndMayBeDestroyedInAnyOrder) {
  auto first = std::make_unique<CZEBKNCMPCompParm>(0, 0);
  auto copy = std::make_unique<CZEBKNCMPCompParm>(*first);
  EXPECT_EQ(copy->getGeneralParm(), first->getGeneralParm());
  first.reset();
  EXPECT_EQ(copy->getGeneralParm()->iW3FFormat(), 3);
}

TEST(ParameterSet, AssignmentKeepsTheBlocksHandedOutBefore) {
  CZEBKNCMPCompParm set(0, 0);
  const CZEBCMPGeneralParm* before = set.getGeneralParm();
  {
    const CZEBKNCMPCompParm other(13, 1);
    set = other;
    EXPECT_EQ(set.getGeneralParm(), other.getGeneralParm());
  }
  EXPECT_EQ(before->iW3FFormat(), 3);
  EXPECT_EQ(set.getGeneralParm()->iW3FFormat(), 3);
}

TEST(ParameterSet, CopiesShareEverythingButTheirLife) {
  CZEBKNCMPCompParm set(0, 0), assigned(13, 0);
  CZEBKNCMPCompParm copy(set);
  assigned = set;
  copy.setMaterialType(1);
  assigned.modifyParameters();
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
  EXPECT_EQ(set.getGeneralParm()->iMFTScheme(), 1) << "the assigned set is no RTM set any more";
}

TEST(ParameterSet, ASetWithoutToolCanBeAssigned) {
  const zeb::OutputCapture silence;
  const CZEBKNCMPCompParm undefined(4711, 0);
  CZEBKNCMPCompParm set(0, 0);
  const CZEBCMPGeneralParm* before = set.getGeneralParm();
  set = undefined;
  EXPECT_EQ(set.getGeneralParm(), nullptr);
  EXPECT_EQ(set.modifyParameters(), -1);
  EXPECT_EQ(before->iW3FFormat(), 3);
  set = CZEBKNCMPCompParm(9, 0);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_EQ(set.getGeneralParm()->iIsWeightedFlowRate(), 1);
}

TEST(ParameterSet, EveryRankDumpsTheSame) {
  const zeb::CallLog noCalls;
  zeb::ReplayingCommunicator rank1(noCalls, 1, 2);
  CZEBKNCMPCompParm serial(0, 0), parallel(0, 0);
  parallel.setZEBCom(&rank1);
  const auto dumpOf = [](CZEBKNCMPCompParm& set) {
    const zeb::OutputCapture capture;
    EXPECT_EQ(set.OutputParameters(), 1);
    return capture.text();
  };
  const std::string dump = dumpOf(serial);
  EXPECT_FALSE(dump.empty());
  EXPECT_TRUE(dumpOf(parallel) == dump);
}

// --- The companion file -----------------------------------------------------------------------------------------

namespace fs = std::filesystem;

class CompanionFile : public testing::Test {
 protected:
  CompanionFile() {
    fs::create_directories(folder / "dir.v2");
    set.getVEParm()->setIstoCalcRS(true);
  }
  ~CompanionFile() override { fs::remove_all(folder); }

  fs::path folder = zebtest::TemporaryFile("").path() + ".folder";
  CZEBKNCMPCompParm set{0, 0};
};

TEST_F(CompanionFile, HasTheNameUpToTheLastDot) {
  EXPECT_EQ(set.setSolidFillBlock((folder / "a.b.cmp").string()), 1);
  EXPECT_TRUE(fs::exists(folder / "a.b.vecmp"));
  EXPECT_FALSE(fs::exists(folder / "a.vecmp"));
}

TEST_F(CompanionFile, MayLoseTheNameOfAFileWithoutExtensionInAFolderWithOne) {
  EXPECT_EQ(set.setSolidFillBlock((folder / "dir.v2" / "cover").string()), 1);
  EXPECT_TRUE(fs::exists(folder / "dir.vecmp"));
}

TEST_F(CompanionFile, IsNeitherReadNorWrittenUnasked) {
  set.getVEParm()->setIstoCalcRS(false);
  EXPECT_EQ(set.setSolidFillBlock((folder / "a.cmp").string()), 1);
  EXPECT_FALSE(fs::exists(folder / "a.vecmp"));
}

TEST_F(CompanionFile, NeedsAnExtensionAndSaysSoAfterTheCMPFileIsRead) {
  const auto before = fs::current_path();
  fs::current_path(folder);
  std::ofstream("cover") << "[Outlet]\nIsOutlet = 1\n[/Outlet]\n";
  std::string message;
  try {
    set.setSolidFillBlock("cover");
  } catch (const std::out_of_range& error) {
    message = error.what();
  }
  fs::current_path(before);
  EXPECT_EQ(message, "invalid string position");
  EXPECT_EQ(set.getOutletParm()->iIsOutlet(), 1);
}

}  // namespace
