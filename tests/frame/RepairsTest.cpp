// What is changed after reading: by the molding type, the material and the settings themselves.
#include <gtest/gtest.h>

#include <map>

#include "blocks/CZEBCMPCompressibleFlowParm.h"
#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPPUChemFoamParm.h"
#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"
#include "blocks/CZEBCMPViscositySetting2Parm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/ReadSet.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::Set;
using zebtest::TsvRow;
using zebtest::valuesOf;

struct Repaired : Set {
  Repaired(const std::string& text, int molding, int material, int wax = 0) : Set(text, molding, material) {
    setIsWaxMat(wax);
    EXPECT_EQ(modifyParameters(), 1);
  }
  int hrVof() const { return getTimeStepSizeCtrlParm()->iHRVof(); }
  double minVis() const { return getViscositySetting2Parm()->dMinVis(); }
};

using CodeRows = std::map<int, std::vector<TsvRow>>;

CodeRows moldingTypes() {
  CodeRows types;
  for (const TsvRow& row : zebtest::readTsv("molding.tsv")) types[std::stoi(row.at("code"))].push_back(row);
  return types;
}

// --- Molding types, against the table of the format -----------------------------------------------------------------

double repairedBy(const TsvRow& row, double before) {
  const std::string& operation = row.at("operation");
  const std::string& value = row.at("value");
  if (operation == "mul") return before * std::stod(value);
  if (operation == "set") return std::stod(value);
  const std::size_t arrow = value.find("->");  // "replace"
  return before == std::stod(value) ? std::stod(value.substr(arrow + 2)) : before;
}

// Values that are neither a default nor a result, those that one type replaces, and others in their place.
const char* const kFiles[] = {
    "",
    "[FAIM]\nFluidFCRI = 5\nSecondFactor = 6\nFluidVisFactor = 7\nFluidRelaxFactor = 8\n[/FAIM]\n"
    "[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n"
    "[General]\ndtNorLowerBound = 50\nWeightedFlowRate = 9\nMFTScheme = 8\nJet_Flow = 7\n[/General]\n"
    "[TimeStepSizeCtrl]\nNewMethod = 1\n[/TimeStepSizeCtrl]\n[StableFlag]\niGradType = 0\n[/StableFlag]\n",
    "[TimeStepSizeCtrl]\nNewMethod = 2\n[/TimeStepSizeCtrl]\n[StableFlag]\niGradType = 1\n[/StableFlag]\n",
};

TEST(MoldingType, ChangesExactlyWhatItsRowsSay) {
  for (const auto& [code, rows] : moldingTypes()) {
    for (const char* text : kFiles) {
      SCOPED_TRACE("molding type " + std::to_string(code) + "\n" + text);
      zebtest::Values expected = valuesOf(Set(text, code));
      for (const TsvRow& row : rows) {
        if (row.at("class") == "-") continue;
        std::string& value = expected.at(zeb::blockName(row.at("class")) + "." + row.at("getter"));
        value = zebtest::numberText(repairedBy(row, std::stod(value)));
      }
      EXPECT_EQ(zebtest::differences(expected, valuesOf(Repaired(text, code, 0))), zebtest::Lines());
    }
  }
}

// --- The steps after the molding type's own -----------------------------------------------------------------------

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
  const zebtest::TemporaryFile enhanced("[General]\nEnhancedVenting = 1\n[/General]\n");
  for (const int molding : zebtest::moldingCodes()) {
    for (const int material : {0, 1, 2}) {
      for (const int wax : {0, 1}) {
        for (const int venting : {0, 1}) {
          SCOPED_TRACE(testing::Message() << "molding " << molding << " material " << material << " wax " << wax
                                          << " enhanced venting " << venting);
          CZEBKNCMPCompParm set(molding, material);
          ASSERT_NE(set.getGeneralParm(), nullptr);
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

TEST(Repairs, ClampTrappedAirBetweenZeroAndOne) {
  const std::pair<const char*, double> cases[] = {{"1.7", 1.0}, {"-0.2", 0.0}, {"0.5", 0.5}, {"0", 0.0}, {"1", 1.0}};
  for (const auto& [written, kept] : cases) {
    const Repaired set("[General]\nTrapAirVolFilled = " + std::string(written) + "\n", 0, 0);
    EXPECT_EQ(set.getGeneralParm()->dTrapAirVolFilled(), kept) << written;
  }
}

TEST(Repairs, PolyurethaneFoamTurnsVolumeFluxOn) {
  const Repaired set("[PUChemFoam]\nIsPUChemFoam = 1\n[/PUChemFoam]\n", 0, 0);
  EXPECT_EQ(set.getGeneralParm()->iUVWPT_VolumeFlux(), 1);
}

TEST(Repairs, MultiplyAgainWhenCalledAgain) {
  CZEBKNCMPCompParm set(13, 1);
  set.modifyParameters();
  set.modifyParameters();
  EXPECT_DOUBLE_EQ(set.getViscositySetting2Parm()->dMinVis(), 10.0 * 0.0001 * 0.0001);
}

TEST(Repairs, AThermosetScalesTheSmallestViscosityThatWasRead) {
  const std::string text = "[ViscositySetting2]\nMinVis = 40\n[/ViscositySetting2]\n";
  for (const int code : zebtest::moldingCodes()) {
    EXPECT_DOUBLE_EQ(Repaired(text, code, 1).minVis(), code == 5 ? 0.04 : code == 13 ? 0.004 : 4.0) << code;
    EXPECT_EQ(Repaired(text, code, 0).minVis(), 40.0) << code;
  }
}

const char kVented[] =
    "[TimeStepSizeCtrl]\nHRVof = 3\n[/TimeStepSizeCtrl]\n[CompressibleFlow]\nVentdDdp = 4\n[/CompressibleFlow]\n"
    "[General]\nVentMode = 5\nVentPressureDiffLimit = 6\nReduceSAEF = 1.0\n";

void expectVenting(const Set& set, int hrVof, double airDdp, int ventMode, double pressureLimit, double reduceSAEF) {
  EXPECT_EQ(set.getTimeStepSizeCtrlParm()->iHRVof(), hrVof);
  EXPECT_EQ(set.getCompressibleFlowParm()->dVentAirDdp(), airDdp);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), ventMode);
  EXPECT_EQ(set.getGeneralParm()->dPressureDiffLimit(), pressureLimit);
  EXPECT_EQ(set.getGeneralParm()->dReduceSAEF(), reduceSAEF);
}

TEST(Repairs, VentingThatWasReadGivesWay) {
  expectVenting(Repaired(kVented, 0, 0), 3, 4.0, 5, 6.0, 1.0);
  expectVenting(Repaired(kVented, 0, 1), 1, 2e-7, 1, 1.005, 1.0);
  expectVenting(Repaired(kVented, 0, 0, 1), 1, 4.0, 5, 6.0, 1.0);
  const std::string enhanced = std::string(kVented) + "EnhancedVenting = 1\n";
  expectVenting(Repaired(enhanced, 0, 0), 3, 1e-8, 0, 20.0, 0.05);
  expectVenting(Repaired(enhanced, 0, 1, 1), 1, 1e-8, 0, 20.0, 0.05);
  expectVenting(Repaired(enhanced + "ReduceSAEF = 1.0000001\n", 0, 0), 3, 1e-8, 0, 20.0, 1.0000001);
}

TEST(Repairs, SwitchesCountOnlyWhenTheyAreOne) {
  for (const int value : {2, -1}) {
    const std::string number = std::to_string(value);
    const Repaired set(std::string(kVented) + "EnhancedVenting = " + number + "\nJet_Flow = 7\n[/General]\n" +
                           "[PUChemFoam]\nIsPUChemFoam = " + number + "\n[/PUChemFoam]\n",
                       0, value, value);
    expectVenting(set, 3, 4.0, 5, 6.0, 1.0);
    EXPECT_EQ(set.getPUChemFoamParm()->iIsPUChemFoam(), value);
    EXPECT_EQ(set.getGeneralParm()->iUVWPT_VolumeFlux(), 7);
  }
}

}  // namespace
