#include "blocks/CZEBCMPInletVelocitySettingParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPInletVelocitySettingParm)

ZEB_GETTERS(CZEBCMPInletVelocitySettingParm, iCalcInletVelo, iMaxIterationNo, dCriterion)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPInletVelocitySettingParm>() {
  using T = CZEBCMPInletVelocitySettingParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iCalcInletVelo), .key = "CalcInletVelo", .tabs = 2, .known = "Calculation of the inlet velocity."},
      {ZEB_FIELD(iMaxIterationNo), .key = "MaxIterationNo", .tabs = 2,
       .doc = "Largest number of iterations of the inlet velocity."},
      {ZEB_FIELD(dCriterion), .key = "Criterion", .tabs = 3, .doc = "Convergence criterion of the iteration."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"InletVelocitySetting", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------InletVelocitySetting Parameters---------");
  return kTable;
}
