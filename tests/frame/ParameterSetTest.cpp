// The parameter set: molding types, repairs, ownership, and what it refuses.
#include <gtest/gtest.h>

#include <charconv>

#include "frame/CZEBKNCMPCompParm.h"
#include "frame/Repairs.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "standalone/SerialCommunicator.h"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::TemporaryFile;

double getterValue(const CZEBKNCMPCompParm& set, const std::string& className, const std::string& getter) {
  for (const zeb::BlockView& view : zeb::blocksOf(set)) {
    if (view.table->className != className) continue;
    for (const zeb::Section& section : view.table->sections) {
      for (const zeb::Row& row : section.rows) {
        if (row.field.getter == getter) return row.field.get(view.block);
      }
    }
  }
  throw std::invalid_argument(className + "::" + getter);
}

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

INSTANTIATE_TEST_SUITE_P(Codes, UndefinedMoldingType, testing::Values(15, -1, 2147483647, -2147483647 - 1));

TEST(ParameterSet, RefusesANullCommunicator) {
  CZEBKNCMPCompParm set(0, 0);
  EXPECT_EQ(set.setZEBCom(nullptr), -1);
  zeb::SerialCommunicator com;
  EXPECT_EQ(set.setZEBCom(&com), 1);
}

TEST(ParameterSet, AMissingFileLeavesTheDefaultsAndPrintsNothing) {
  CZEBKNCMPCompParm set(0, 0), fresh(0, 0);
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.setSolidFillBlock("no/such/file.cmp"), 1);
  EXPECT_EQ(capture.text(), "");
  EXPECT_EQ(set.getGeneralParm()->dPressureDiffLimit(), fresh.getGeneralParm()->dPressureDiffLimit());
  EXPECT_EQ(set.modifyParameters(), 1);
}

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

TEST(ParameterSet, AViscoelasticFileNeedsAnExtension) {
  CZEBKNCMPCompParm set(0, 0);
  set.getVEParm()->setIstoCalcRS(true);
  EXPECT_THROW(set.setSolidFillBlock("cover"), std::out_of_range);
}

// --- Molding types, against the table of the format -----------------------------------------------------------------

TEST(MoldingType, ChangesExactlyWhatItsRowsSay) {
  std::map<int, std::vector<zebtest::TsvRow>> changes;
  for (const auto& row : zebtest::readTsv("molding.tsv")) changes[std::stoi(row.at("code"))].push_back(row);
  ASSERT_EQ(changes.size(), 15u);
  for (const auto& [code, rows] : changes) {
    SCOPED_TRACE("molding type " + std::to_string(code));
    const CZEBKNCMPCompParm untouched(code, 0);
    CZEBKNCMPCompParm repaired(code, 0);
    EXPECT_EQ(repaired.modifyParameters(), 1);
    std::map<std::string, double> expected;
    for (const auto& row : rows) {
      if (row.at("class") == "-") continue;
      const double before = getterValue(untouched, row.at("class"), row.at("getter"));
      const std::string& value = row.at("value");
      double after = 0.0;
      if (row.at("operation") == "mul") {
        after = before * std::stod(value);
      } else if (row.at("operation") == "set") {
        after = std::stod(value);
      } else {
        const auto arrow = row.at("operation").find("->");
        const std::string pair = arrow == std::string::npos ? value : row.at("operation");
        const auto at = pair.find("->");
        const double from = std::stod(pair.substr(pair.find_first_of("0123456789")));
        after = before == from ? std::stod(pair.substr(at + 2)) : before;
      }
      expected[row.at("class") + "::" + row.at("getter")] = after;
    }
    for (const zeb::BlockView& view : zeb::blocksOf(repaired)) {
      for (const zeb::Section& section : view.table->sections) {
        for (const zeb::Row& row : section.rows) {
          if (row.field.get == nullptr) continue;
          const std::string name = std::string(view.table->className) + "::" + std::string(row.field.getter);
          const double before =
              getterValue(untouched, std::string(view.table->className), std::string(row.field.getter));
          const double after = row.field.get(view.block);
          EXPECT_EQ(after, expected.contains(name) ? expected.at(name) : before) << name;
        }
      }
    }
  }
}

// The steps after the molding type's own, written out from the format's definition for every combination.
struct Case {
  int molding, material, wax, enhanced;
};

struct Expected {
  int hrVof = 0, ventMode = 0;
  double pressureDiffLimit = 20.0, ventAirDdp = 1e-8, reduceSAEF = 1.0, minVis = 10.0;
};

Expected expectedFor(const Case& c) {
  Expected e;
  if (c.material == 1) {
    e.hrVof = 1;
    e.ventMode = 1;
    e.pressureDiffLimit = 1.005;
    e.ventAirDdp = 2e-7;
    e.minVis *= c.molding == 5 ? 0.001 : c.molding == 13 ? 0.0001 : 0.1;
  }
  if (c.wax == 1) e.hrVof = 1;
  if (c.enhanced == 1) {
    e.ventMode = 0;
    e.pressureDiffLimit = 20.0;
    e.ventAirDdp = 1e-8;
    e.reduceSAEF = 0.05;
  }
  return e;
}

TEST(Repairs, FollowTheirStepsForEveryMoldingMaterialWaxAndVenting) {
  const TemporaryFile enhanced("[General]\nEnhancedVenting = 1\n[/General]\n");
  for (int molding = 0; molding < 15; ++molding) {
    for (const int material : {0, 1, 2}) {
      for (const int wax : {0, 1}) {
        for (const int venting : {0, 1}) {
          SCOPED_TRACE(testing::Message() << "molding " << molding << " material " << material << " wax " << wax
                                          << " enhanced venting " << venting);
          CZEBKNCMPCompParm set(molding, material);
          set.setIsWaxMat(wax);
          if (venting == 1) set.setSolidFillBlock(enhanced.path());
          set.modifyParameters();
          const Expected e = expectedFor({molding, material, wax, venting});
          EXPECT_EQ(set.getTimeStepSizeCtrlParm()->iHRVof(), e.hrVof);
          EXPECT_EQ(set.getGeneralParm()->iVentMode(), e.ventMode);
          EXPECT_EQ(set.getGeneralParm()->dPressureDiffLimit(), e.pressureDiffLimit);
          EXPECT_EQ(set.getCompressibleFlowParm()->dVentAirDdp(), e.ventAirDdp);
          EXPECT_EQ(set.getGeneralParm()->dReduceSAEF(), e.reduceSAEF);
          EXPECT_DOUBLE_EQ(set.getViscositySetting2Parm()->dMinVis(), e.minVis);
        }
      }
    }
  }
}

CZEBKNCMPCompParm repairedAfter(const std::string& text, int molding, int material) {
  const TemporaryFile file(text);
  CZEBKNCMPCompParm set(molding, material);
  set.setSolidFillBlock(file.path());
  set.modifyParameters();
  return set;
}

TEST(Repairs, ClampTrappedAirToOne) {
  const auto trapped = [](const std::string& value) {
    return repairedAfter("[General]\nTrapAirVolFilled = " + value + "\n[/General]\n", 0, 0)
        .getGeneralParm()
        ->dTrapAirVolFilled();
  };
  EXPECT_EQ(trapped("1.7"), 1.0);
  EXPECT_EQ(trapped("-0.2"), 0.0);
  EXPECT_EQ(trapped("0.5"), 0.5);
}

TEST(Repairs, GasAssistedMoldingMakesTheReadTimeLimitFourfold) {
  EXPECT_EQ(repairedAfter("[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n", 6, 0).getShortShotParm()->dTimeLimit(), 10.0);
}

TEST(Repairs, BiInjectionSetsTheTimeLimitToExactlyOne) {
  EXPECT_EQ(repairedAfter("[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n", 11, 0).getShortShotParm()->dTimeLimit(), 1.0);
}

TEST(Repairs, EnhancedVentingLeavesAnotherReductionAlone) {
  const auto set = repairedAfter("[General]\nEnhancedVenting = 1\nReduceSAEF = 0.9\n[/General]\n", 0, 0);
  EXPECT_EQ(set.getGeneralParm()->dReduceSAEF(), 0.9);
}

TEST(Repairs, PolyurethaneFoamTurnsVolumeFluxOn) {
  const auto set = repairedAfter("[PUChemFoam]\nIsPUChemFoam = 1\n[/PUChemFoam]\n", 0, 0);
  EXPECT_EQ(set.getGeneralParm()->iUVWPT_VolumeFlux(), 1);
}

TEST(Repairs, CompressionFlowReplacesOnlyTheDefaultsOfMethodAndGradient) {
  const auto set = repairedAfter(
      "[TimeStepSizeCtrl]\nNewMethod = 2\n[/TimeStepSizeCtrl]\n[StableFlag]\niGradType = 1\n[/StableFlag]\n", 14, 0);
  EXPECT_EQ(set.getTimeStepSizeCtrlParm()->iNewMethod(), 2);
  EXPECT_EQ(set.getStableFlagParm()->iGradType(), 1);
}

TEST(Repairs, MultiplyAgainWhenCalledAgain) {
  CZEBKNCMPCompParm set(13, 1);
  set.modifyParameters();
  set.modifyParameters();
  EXPECT_DOUBLE_EQ(set.getViscositySetting2Parm()->dMinVis(), 10.0 * 0.0001 * 0.0001);
}

}  // namespace
