#include "blocks/CZEBCMPElongationParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPElongationParm)

ZEB_GETTERS(CZEBCMPElongationParm, iIsViscoFacByElongation, iDisplayElongResult, iElongModel)
double CZEBCMPElongationParm::ElongModel_A() const { return m_dElongModel_A; }
double CZEBCMPElongationParm::ElongModel_B() const { return m_dElongModel_B; }
double CZEBCMPElongationParm::ElongModel_E_cri() const { return m_dElongModel_E_cri; }
ZEB_GETTERS(CZEBCMPElongationParm, iCalcShearRateMethod)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPElongationParm>() {
  using T = CZEBCMPElongationParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsViscoFacByElongation), .key = "IsViscoFacByElongation", .tabs = kOneSpace,
       .doc = "Switch: viscosity factor by elongation."},
      {ZEB_FIELD(iDisplayElongResult), .key = "DisplayElongationResult", .tabs = kOneSpace,
       .doc = "Switch: display of the elongation result."},
      {ZEB_FIELD(iElongModel), .key = "ElongationModel", .tabs = kOneSpace, .known = "Elongation model."},
      {.field = field<&T::m_dElongModel_A, &T::ElongModel_A>(), .key = "Parm_A", .label = "A = ",
       .doc = "Coefficient A of the elongation model."},
      {.field = field<&T::m_dElongModel_B, &T::ElongModel_B>(), .key = "Parm_B", .label = "B = ",
       .doc = "Coefficient B of the elongation model."},
      {.field = field<&T::m_dElongModel_E_cri, &T::ElongModel_E_cri>(), .key = "Parm_E_cri", .label = "E_cri = ",
       .doc = "Coefficient E_cri of the elongation model."},
      {ZEB_FIELD(iCalcShearRateMethod), .key = "CalcShearRateMethod", .tabs = kOneSpace,
       .known = "Method of calculating the shear rate."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Elongation", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Elongation Parameters---------");
  return kTable;
}
