#include "blocks/CZEBCMPCtrlHRSystemParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCtrlHRSystemParm)

int CZEBCMPCtrlHRSystemParm::iHRShearRateCtrl() const { return m_iHRShearRateCtrl; }
int CZEBCMPCtrlHRSystemParm::iHRDtCtrlMethod() const { return m_iHRDtCtrlMethod; }
double CZEBCMPCtrlHRSystemParm::dHRDtCtrlFactor() const { return m_dHRDtCtrlFactor; }
double CZEBCMPCtrlHRSystemParm::dHRDtCtrlFactor_2() const { return m_dHRDtCtrlFactor_2; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCtrlHRSystemParm>() {
  using T = CZEBCMPCtrlHRSystemParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iHRShearRateCtrl, &T::iHRShearRateCtrl>(), .key = "HRShearRateCtrl", .tabs = 2,
       .doc = "Shear-rate control of the HR schemes.", .opaque = true},
      {.field = field<&T::m_iHRDtCtrlMethod, &T::iHRDtCtrlMethod>(), .key = "HRDtCtrlMethod", .tabs = 2,
       .doc = "Method of the HR time-step control.", .opaque = true},
      {.field = field<&T::m_dHRDtCtrlFactor, &T::dHRDtCtrlFactor>(), .key = "HRDtCtrlFactor1", .tabs = 2,
       .doc = "First factor of the HR time-step control."},
      {.field = field<&T::m_dHRDtCtrlFactor_2, &T::dHRDtCtrlFactor_2>(), .key = "HRDtCtrlFactor2", .tabs = 1,
       .doc = "Second factor of the HR time-step control."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"CtrlHRSystem", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------CtrlHRSystemParm Parameters---------");
  return kTable;
}
