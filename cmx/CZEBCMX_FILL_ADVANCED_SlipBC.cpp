#include "cmx/CZEBCMX_FILL_ADVANCED_SlipBC.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_FILL_ADVANCED_SlipBC)

ZEB_GETTERS(CZEBCMX_FILL_ADVANCED_SlipBC, iSlipBC, iSlipBCDebug)
double CZEBCMX_FILL_ADVANCED_SlipBC::FrictionCoeff() const { return m_dFrictionCoeff; }
double CZEBCMX_FILL_ADVANCED_SlipBC::SlipUnderRelax() const { return m_dSlipUnderRelax; }
int CZEBCMX_FILL_ADVANCED_SlipBC::SlipExcludeRunner() const { return m_iSlipExcludeRunner; }
double CZEBCMX_FILL_ADVANCED_SlipBC::WallShearStressThreshold() const { return m_dWallShearStressThreshold; }
int CZEBCMX_FILL_ADVANCED_SlipBC::SlipOnlyRunner() const { return m_iSlipOnlyRunner; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_SlipBC>() {
  using T = CZEBCMX_FILL_ADVANCED_SlipBC;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iSlipBC), .key = "FlagSlipBC", .doc = "Switch: the melt slips at the wall."},
      {ZEB_FIELD(iSlipBCDebug), .key = "FlagSlipBCDebug", .doc = "Switch: debugging of the slip."},
      {.field = field<&T::m_dFrictionCoeff, &T::FrictionCoeff>(), .key = "ValueSlipCoeff",
       .doc = "Friction coefficient of the slip."},
      {.field = field<&T::m_dSlipUnderRelax, &T::SlipUnderRelax>(), .key = "ValueSlipUnderRelax",
       .doc = "Under-relaxation factor of the slip calculation."},
      {.field = field<&T::m_iSlipExcludeRunner, &T::SlipExcludeRunner>(), .key = "FlagSlipExcludeRunner",
       .doc = "Switch: runners are excluded from the slip."},
      {.field = field<&T::m_dWallShearStressThreshold, &T::WallShearStressThreshold>(), .key = "ValueSlipFrictionForce",
       .doc = "Threshold of the wall shear stress."},
      {.field = field<&T::m_iSlipOnlyRunner, &T::SlipOnlyRunner>(), .key = "FlagSlipOnlyRunner",
       .doc = "Switch: only runners have the slip."},
  };
  static constexpr Order<7> kReadingOrder{
      "FlagSlipBC", "FlagSlipBCDebug", "FlagSlipExcludeRunner", "FlagSlipOnlyRunner", "ValueSlipCoeff",
      "ValueSlipFrictionForce", "ValueSlipUnderRelax"};
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"FILL_ADVANCED_SlipBC", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
