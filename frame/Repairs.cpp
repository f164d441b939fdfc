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
#include "frame/MoldingTypes.hpp"

namespace zeb {

namespace {

constexpr Rule to(double value) { return {.replace = {always(value)}}; }
constexpr Rule times(double factor) {
  Rule rule;
  rule.scale = factor;
  return rule;
}

template <auto Member>
constexpr Repair change(Rule rule) {
  using Block = typename detail::MemberOf<decltype(Member)>::Block;
  return {blockEntry<Block>(), field<Member>(), rule};
}

// A molding type: its tool and the lists of what it changes.
template <class Tool, const auto&... Changes>
struct Molding {
  static constexpr FixedText kCondition = FixedText("molding type ") + Tool::kName;
  static constexpr std::array<RepairStep, sizeof...(Changes)> kSteps{
      RepairStep{kCondition.view(), nullptr, Changes}...};
  static constexpr MoldingType kType{
      Tool::kName.view(), []() -> std::shared_ptr<CZEBCMPInternalTool> { return std::make_shared<Tool>(); }, kSteps};
};

constexpr int codeOf(std::span<const MoldingType> types, std::string_view name) {
  for (std::size_t code = 0; code < types.size(); ++code) {
    if (types[code].name == name) return static_cast<int>(code);
  }
  throw "this molding type is not in the table";
}

bool isThermoset(const CZEBCMPInternalTool& tool) { return tool.m_iMaterialType == 1; }

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

  // --- What the molding types change ----------------------------------------------------------------------------

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
  static constexpr Repair kResinTransfer[] = {
      change<&General::m_ddtNorLowerBound>(times(0.02)),
      change<&General::m_iMFTScheme>(to(0)),
  };
  static constexpr Repair kCompressionFlow[] = {
      change<&General::m_ddtNorLowerBound>(times(0.2)),
      change<&General::m_iUVWPT_VolumeFlux>(to(1)),
      change<&TimeStep::m_iNewMethod>({.replace = {equal(1, 0)}}),
      change<&Stable::m_iGradType>({.replace = {equal(0, 3)}}),
  };

  // The place of a row is the molding type's code.
  static constexpr MoldingType kMoldingTypes[] = {
      Molding<CZEBCMPIM>::kType,
      Molding<CZEBCMPFAIM, kFluid>::kType,
      Molding<CZEBCMPRIM>::kType,
      Molding<CZEBCMPICPackage>::kType,
      Molding<CZEBCMPICM>::kType,
      Molding<CZEBCMPUNF>::kType,
      Molding<CZEBCMPGAIM, kFluid, kLongerLimit>::kType,
      Molding<CZEBCMPWAIM, kFluid, kWater, kLongerLimit>::kType,
      Molding<CZEBCMPCOIM>::kType,
      Molding<CZEBCMPMCIM, kWeighted>::kType,
      Molding<CZEBCMPCM>::kType,
      Molding<CZEBCMPBIIM, kWeighted, kBiInjectionLimit>::kType,
      Molding<CZEBCMPPIM>::kType,
      Molding<CZEBCMPRTM, kResinTransfer>::kType,
      Molding<CZEBCMPCFM, kWeighted, kCompressionFlow>::kType,
  };

  // --- What follows, whatever the molding type ------------------------------------------------------------------

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

  using Underfill = CZEBCMPUNF;
  using ResinTransfer = CZEBCMPRTM;
  template <class Tool>
  static bool isThermosetIn(const CZEBCMPInternalTool& tool) {
    constexpr int kCode = codeOf(kMoldingTypes, Tool::kName.view());
    return isThermoset(tool) && tool.m_iMoldingType == kCode;
  }
  static constexpr FixedText kInUnderfill = FixedText("material type 1, molding type ") + Underfill::kName;
  static constexpr FixedText kInResinTransfer = FixedText("material type 1, molding type ") + ResinTransfer::kName;
  static constexpr FixedText kInNeither =
      FixedText("material type 1, neither ") + Underfill::kName + FixedText(" nor ") + ResinTransfer::kName;

  static constexpr RepairStep kCommon[] = {
      {"material type 1", isThermoset, kThermoset},
      {"wax material", [](const CZEBCMPInternalTool& tool) { return tool.m_iIsWaxMat == 1; }, kWax},
      {"EnhancedVenting is 1",
       [](const CZEBCMPInternalTool& tool) { return tool.block<General>().iEnhancedVenting() == 1; }, kEnhancedVenting},
      {"range 0 to 1", nullptr, kTrappedAir},
      {"IsPUChemFoam is 1",
       [](const CZEBCMPInternalTool& tool) { return tool.block<CZEBCMPPUChemFoamParm>().iIsPUChemFoam() == 1; },
       kPolyurethane},
      {kInUnderfill.view(), isThermosetIn<Underfill>, kMinVisUnderfill},
      {kInResinTransfer.view(), isThermosetIn<ResinTransfer>, kMinVisResinTransfer},
      {kInNeither.view(),
       [](const CZEBCMPInternalTool& tool) {
         return isThermoset(tool) && !isThermosetIn<Underfill>(tool) && !isThermosetIn<ResinTransfer>(tool);
       },
       kMinVisOther},
  };
};

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

std::span<const MoldingType> moldingTypes() { return Repairs::kMoldingTypes; }
std::span<const RepairStep> moldingRepairs(int code) { return moldingTypes()[static_cast<std::size_t>(code)].repairs; }
std::span<const RepairStep> commonRepairs() { return Repairs::kCommon; }

int repairForMolding(CZEBCMPInternalTool& tool, std::string_view name) {
  apply(tool, moldingRepairs(codeOf(Repairs::kMoldingTypes, name)));
  return 1;
}

int modifyParameters(CZEBCMPInternalTool& tool) {
  tool.modifyMoldingParameters();
  apply(tool, commonRepairs());
  return 1;
}

}  // namespace zeb
