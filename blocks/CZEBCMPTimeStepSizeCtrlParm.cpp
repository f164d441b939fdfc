#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPTimeStepSizeCtrlParm)

int CZEBCMPTimeStepSizeCtrlParm::iNewMethod() const { return m_iNewMethod; }
double CZEBCMPTimeStepSizeCtrlParm::dInitialDt() const { return m_dInitialDt; }
int CZEBCMPTimeStepSizeCtrlParm::iVof_Scheme() const { return m_iVof_Scheme; }
int CZEBCMPTimeStepSizeCtrlParm::iHRVof() const { return m_iHRVof; }
double CZEBCMPTimeStepSizeCtrlParm::dFixDt() const { return m_dFixDt; }
int CZEBCMPTimeStepSizeCtrlParm::iMFType() const { return m_iMFType; }
int CZEBCMPTimeStepSizeCtrlParm::iRTMVof() const { return m_iRTMVof; }
int CZEBCMPTimeStepSizeCtrlParm::iRTMFrontNSubdt() const { return m_iRTMFrontNSubdt; }

void CZEBCMPTimeStepSizeCtrlParm::SetFixDt(double value) { m_dFixDt = value; }
void CZEBCMPTimeStepSizeCtrlParm::SetHRVof(int value) { m_iHRVof = value; }
void CZEBCMPTimeStepSizeCtrlParm::SetVof_Scheme(int value) { m_iVof_Scheme = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPTimeStepSizeCtrlParm>() {
  using T = CZEBCMPTimeStepSizeCtrlParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iNewMethod, &T::iNewMethod>(), .key = "NewMethod", .tabs = 2,
       .doc = "Method of the time-step control.", .opaque = true},
      {.field = field<&T::m_dInitialDt, &T::dInitialDt>(), .key = "InitialDt", .tabs = 2,
       .doc = "Initial time-step size."},
      {.field = field<&T::m_iVof_Scheme, &T::iVof_Scheme>(), .key = "FrontMethod", .tabs = 2,
       .doc = "Volume-fraction scheme of the front.", .opaque = true},
      {.field = field<&T::m_iHRVof, &T::iHRVof>(), .key = "HRVof", .tabs = 3,
       .doc = "High-resolution option of the volume fraction.", .opaque = true},
      {.field = field<&T::m_dFixDt, &T::dFixDt>(), .key = "FixDt", .tabs = 3, .doc = "Fixed time-step size."},
      {.field = field<&T::m_iMFType, &T::iMFType>(), .key = "MFType", .tabs = 3, .opaque = true},
      {.field = field<&T::m_iRTMVof, &T::iRTMVof>(), .key = "RTMVof", .tabs = 3,
       .doc = "Volume-fraction option of RTM.", .opaque = true},
      {.field = field<&T::m_iRTMFrontNSubdt, &T::iRTMFrontNSubdt>(), .key = "RTMFrontNSubdt", .tabs = 1,
       .doc = "Number of sub-steps in time of the RTM front."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"TimeStepSizeCtrl", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------TimeStepSizeCtrl Parameters---------");
  return kTable;
}
