#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPTimeStepSizeCtrlParm)

ZEB_GETTERS(CZEBCMPTimeStepSizeCtrlParm, iNewMethod, dInitialDt, iVof_Scheme, iHRVof, dFixDt, iMFType, iRTMVof,
            iRTMFrontNSubdt)

void CZEBCMPTimeStepSizeCtrlParm::SetFixDt(double value) { m_dFixDt = value; }
void CZEBCMPTimeStepSizeCtrlParm::SetHRVof(int value) { m_iHRVof = value; }
void CZEBCMPTimeStepSizeCtrlParm::SetVof_Scheme(int value) { m_iVof_Scheme = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPTimeStepSizeCtrlParm>() {
  using T = CZEBCMPTimeStepSizeCtrlParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iNewMethod), .key = "NewMethod", .tabs = 2, .known = "Method of the time-step control."},
      {ZEB_FIELD(dInitialDt), .key = "InitialDt", .tabs = 2, .doc = "Initial time-step size."},
      {ZEB_FIELD(iVof_Scheme), .key = "FrontMethod", .tabs = 2, .known = "Volume-fraction scheme of the front."},
      {ZEB_FIELD(iHRVof), .key = "HRVof", .tabs = 3, .known = "High-resolution option of the volume fraction."},
      {ZEB_FIELD(dFixDt), .key = "FixDt", .tabs = 3, .doc = "Fixed time-step size."},
      {ZEB_FIELD(iMFType), .key = "MFType", .tabs = 3, .opaque = true},
      {ZEB_FIELD(iRTMVof), .key = "RTMVof", .tabs = 3, .known = "Volume-fraction option of RTM."},
      {ZEB_FIELD(iRTMFrontNSubdt), .key = "RTMFrontNSubdt", .tabs = 1,
       .doc = "Number of sub-steps in time of the RTM front."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"TimeStepSizeCtrl", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------TimeStepSizeCtrl Parameters---------");
  return kTable;
}
