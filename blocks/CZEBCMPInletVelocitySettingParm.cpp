#include "blocks/CZEBCMPInletVelocitySettingParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPInletVelocitySettingParm::CZEBCMPInletVelocitySettingParm() = default;
CZEBCMPInletVelocitySettingParm::CZEBCMPInletVelocitySettingParm(const CZEBCMPInletVelocitySettingParm& other) =
    default;
CZEBCMPInletVelocitySettingParm::~CZEBCMPInletVelocitySettingParm() = default;
CZEBCMPInletVelocitySettingParm& CZEBCMPInletVelocitySettingParm::operator=(
    const CZEBCMPInletVelocitySettingParm& other) = default;

int CZEBCMPInletVelocitySettingParm::iCalcInletVelo() const { return m_iCalcInletVelo; }
int CZEBCMPInletVelocitySettingParm::iMaxIterationNo() const { return m_iMaxIterationNo; }
double CZEBCMPInletVelocitySettingParm::dCriterion() const { return m_dCriterion; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPInletVelocitySettingParm>() {
  using T = CZEBCMPInletVelocitySettingParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iCalcInletVelo, &T::iCalcInletVelo>(), .key = "CalcInletVelo",
       .label = "m_iCalcInletVelo\t\t= ", .doc = "Calculation of the inlet velocity. Meaning defined by the solver."},
      {.field = field<&T::m_iMaxIterationNo, &T::iMaxIterationNo>(), .key = "MaxIterationNo",
       .label = "m_iMaxIterationNo\t\t= ", .doc = "Largest number of iterations of the inlet velocity."},
      {.field = field<&T::m_dCriterion, &T::dCriterion>(), .key = "Criterion",
       .label = "m_dCriterion\t\t\t= ", .doc = "Convergence criterion of the iteration."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"InletVelocitySetting", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------InletVelocitySetting Parameters---------");
  return kTable;
}
