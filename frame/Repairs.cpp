// The order of the steps matters: each sees what the ones before it left.
#include "frame/Repairs.hpp"

#include <type_traits>

#include "blocks/CZEBCMPCompressibleFlowParm.h"
#include "blocks/CZEBCMPFAIMParm.h"
#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPPUChemFoamParm.h"
#include "blocks/CZEBCMPShortShotParm.h"
#include "blocks/CZEBCMPStableFlagParm.h"
#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"
#include "blocks/CZEBCMPViscositySetting2Parm.h"
#include "engine/ReadObserver.hpp"

namespace zeb {

namespace {

constexpr int kUnderfill = 5;
constexpr int kResinTransfer = 13;

constexpr Rule to(double value) { return {.replace = {always(value)}}; }
constexpr Rule times(double factor) {
  Rule rule;
  rule.scale = factor;
  return rule;
}

bool isThermoset(const CZEBCMPInternalTool& tool) { return tool.m_iMaterialType == 1; }
bool isThermosetIn(const CZEBCMPInternalTool& tool, int molding) {
  return isThermoset(tool) && tool.m_iMoldingType == molding;
}

}  // namespace

// The blocks that repairs touch open their members to this struct.
struct Repairs {
  using General = CZEBCMPGeneralParm;
  using FluidAssisted = CZEBCMPFAIMParm;
  using ShortShot = CZEBCMPShortShotParm;
  using TimeStep = CZEBCMPTimeStepSizeCtrlParm;
  using Stable = CZEBCMPStableFlagParm;
  using Compressible = CZEBCMPCompressibleFlowParm;
  using Viscosity = CZEBCMPViscositySetting2Parm;

  template <auto Member>
  static constexpr Repair change(Rule rule) {
    using Block = typename detail::MemberOf<decltype(Member)>::Block;
    return {blockEntry<Block>(), field<Member>(), rule};
  }

  static std::span<const RepairStep> ofMolding(int code);
  static std::span<const RepairStep> common();
};

std::span<const RepairStep> Repairs::ofMolding(int code) {
  static constexpr Repair kFluid[] = {
      change<&FluidAssisted::m_dSecondFactor>(to(1.0)),
      change<&FluidAssisted::m_dFluidVisFactor>(to(1.0)),
      change<&FluidAssisted::m_dFluidRealxFactor>(to(0.8)),
  };
  static constexpr Repair kWater[] = {change<&FluidAssisted::m_dFluidFCRI>(to(0.8))};
  // Gas and water push the melt on after the fluid has entered: the short-shot limit is four times as long.
  static constexpr Repair kLongerLimit[] = {change<&ShortShot::m_dTimeLimit>(times(4.0))};
  static constexpr Repair kWeighted[] = {change<&General::m_iIsWeightedFlowRate>(to(1))};
  static constexpr Repair kBiInjectionLimit[] = {change<&ShortShot::m_dTimeLimit>(to(1.0))};
  static constexpr Repair kResinTransferRepairs[] = {
      change<&General::m_ddtNorLowerBound>(times(0.02)),
      change<&General::m_iMFTScheme>(to(0)),
  };
  static constexpr Repair kCompressionFlow[] = {
      change<&General::m_ddtNorLowerBound>(times(0.2)),
      change<&General::m_iUVWPT_VolumeFlux>(to(1)),
      change<&TimeStep::m_iNewMethod>({.replace = {equal(1, 0)}}),
      change<&Stable::m_iGradType>({.replace = {equal(0, 3)}}),
  };
  static constexpr RepairStep kFAIM[] = {{"molding type FAIM", nullptr, kFluid}};
  static constexpr RepairStep kGAIM[] = {{"molding type GAIM", nullptr, kFluid},
                                         {"molding type GAIM", nullptr, kLongerLimit}};
  static constexpr RepairStep kWAIM[] = {{"molding type WAIM", nullptr, kFluid},
                                         {"molding type WAIM", nullptr, kWater},
                                         {"molding type WAIM", nullptr, kLongerLimit}};
  static constexpr RepairStep kMCIM[] = {{"molding type MCIM", nullptr, kWeighted}};
  static constexpr RepairStep kBIIM[] = {{"molding type BIIM", nullptr, kWeighted},
                                         {"molding type BIIM", nullptr, kBiInjectionLimit}};
  static constexpr RepairStep kRTM[] = {{"molding type RTM", nullptr, kResinTransferRepairs}};
  static constexpr RepairStep kCFM[] = {{"molding type CFM", nullptr, kWeighted},
                                        {"molding type CFM", nullptr, kCompressionFlow}};
  switch (code) {
    case 1:
      return kFAIM;
    case 6:
      return kGAIM;
    case 7:
      return kWAIM;
    case 9:
      return kMCIM;
    case 11:
      return kBIIM;
    case kResinTransfer:
      return kRTM;
    case 14:
      return kCFM;
    default:
      return {};
  }
}

std::span<const RepairStep> Repairs::common() {
  static constexpr Repair kThermoset[] = {
      change<&TimeStep::m_iHRVof>(to(1)),
      change<&General::m_iVentMode>(to(1)),
      change<&General::m_dPressureDiffLimit>(to(1.005)),
      change<&Compressible::m_dVentAirDdp>(to(2e-7)),
  };
  static constexpr Repair kWax[] = {change<&TimeStep::m_iHRVof>(to(1))};
  static constexpr Repair kEnhancedVenting[] = {
      change<&General::m_iVentMode>(to(0)),
      change<&General::m_dPressureDiffLimit>(to(20.0)),
      change<&Compressible::m_dVentAirDdp>(to(1e-8)),
      change<&General::m_dReduceSAEF>({.replace = {equal(1.0, 0.05)}}),
  };
  static constexpr Repair kTrappedAir[] = {
      change<&General::m_dTrapAirVolFilled>({.replace = {below(0.0, 0.0), above(1.0, 1.0)}}),
  };
  static constexpr Repair kPolyurethane[] = {change<&General::m_iUVWPT_VolumeFlux>(to(1))};
  static constexpr Repair kMinVisUnderfill[] = {change<&Viscosity::m_dMinVis>(times(0.001))};
  static constexpr Repair kMinVisResinTransfer[] = {change<&Viscosity::m_dMinVis>(times(0.0001))};
  static constexpr Repair kMinVisOther[] = {change<&Viscosity::m_dMinVis>(times(0.1))};

  static constexpr RepairStep kSteps[] = {
      {"material type 1", isThermoset, kThermoset},
      {"wax material", [](const CZEBCMPInternalTool& tool) { return tool.m_iIsWaxMat == 1; }, kWax},
      {"EnhancedVenting is 1",
       [](const CZEBCMPInternalTool& tool) { return tool.block<General>().iEnhancedVenting() == 1; }, kEnhancedVenting},
      {"range 0 to 1", nullptr, kTrappedAir},
      {"IsPUChemFoam is 1",
       [](const CZEBCMPInternalTool& tool) { return tool.block<CZEBCMPPUChemFoamParm>().iIsPUChemFoam() == 1; },
       kPolyurethane},
      {"material type 1, molding type UNF",
       [](const CZEBCMPInternalTool& tool) { return isThermosetIn(tool, kUnderfill); }, kMinVisUnderfill},
      {"material type 1, molding type RTM",
       [](const CZEBCMPInternalTool& tool) { return isThermosetIn(tool, kResinTransfer); }, kMinVisResinTransfer},
      {"material type 1, neither UNF nor RTM",
       [](const CZEBCMPInternalTool& tool) {
         return isThermoset(tool) && !isThermosetIn(tool, kUnderfill) && !isThermosetIn(tool, kResinTransfer);
       },
       kMinVisOther},
  };
  return kSteps;
}

namespace {

const Row* rowOf(const Repair& repair) {
  for (const Section& section : repair.block.table().sections) {
    for (const Row& row : section.rows) {
      if (row.field.member == repair.field.member) return &row;
    }
  }
  return nullptr;
}

void apply(CZEBCMPInternalTool& tool, const Repair& repair, std::string_view condition) {
  void* block = repair.block.locate(tool);
  visit(repair.field, block, [&](auto& member) {
    using Number = std::remove_reference_t<decltype(member)>;
    if constexpr (std::is_arithmetic_v<Number>) {
      const double before = member, after = repair.rule.apply(before);
      member = static_cast<Number>(after);
      if (tool.m_observer != nullptr) tool.m_observer->repaired({block, rowOf(repair), condition, before, after});
    }
  });
}

void apply(CZEBCMPInternalTool& tool, std::span<const RepairStep> steps) {
  for (const RepairStep& step : steps) {
    if (step.applies != nullptr && !step.applies(tool)) continue;
    for (const Repair& repair : step.repairs) apply(tool, repair, step.condition);
  }
}

}  // namespace

std::span<const RepairStep> moldingRepairs(int code) { return Repairs::ofMolding(code); }
std::span<const RepairStep> commonRepairs() { return Repairs::common(); }

int repairForMolding(CZEBCMPInternalTool& tool, int code) {
  apply(tool, moldingRepairs(code));
  return 1;
}

int modifyParameters(CZEBCMPInternalTool& tool) {
  tool.modifyMoldingParameters();
  apply(tool, commonRepairs());
  return 1;
}

}  // namespace zeb
