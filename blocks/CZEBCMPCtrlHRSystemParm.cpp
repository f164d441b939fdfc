#include "blocks/CZEBCMPCtrlHRSystemParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCtrlHRSystemParm)

ZEB_GETTERS(CZEBCMPCtrlHRSystemParm, iHRShearRateCtrl, iHRDtCtrlMethod, dHRDtCtrlFactor, dHRDtCtrlFactor_2)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCtrlHRSystemParm>() {
  using T = CZEBCMPCtrlHRSystemParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iHRShearRateCtrl), .key = "HRShearRateCtrl", .tabs = 2,
       .known = "Shear-rate control of the HR schemes."},
      {ZEB_FIELD(iHRDtCtrlMethod), .key = "HRDtCtrlMethod", .tabs = 2, .known = "Method of the HR time-step control."},
      {ZEB_FIELD(dHRDtCtrlFactor), .key = "HRDtCtrlFactor1", .tabs = 2,
       .doc = "First factor of the HR time-step control."},
      {ZEB_FIELD(dHRDtCtrlFactor_2), .key = "HRDtCtrlFactor2", .tabs = 1,
       .doc = "Second factor of the HR time-step control."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"CtrlHRSystem", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------CtrlHRSystemParm Parameters---------");
  return kTable;
}
