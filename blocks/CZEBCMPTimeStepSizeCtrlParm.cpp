#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPTimeStepSizeCtrlParm::CZEBCMPTimeStepSizeCtrlParm() = default;
CZEBCMPTimeStepSizeCtrlParm::CZEBCMPTimeStepSizeCtrlParm(const CZEBCMPTimeStepSizeCtrlParm& other) = default;
CZEBCMPTimeStepSizeCtrlParm::~CZEBCMPTimeStepSizeCtrlParm() = default;
CZEBCMPTimeStepSizeCtrlParm& CZEBCMPTimeStepSizeCtrlParm::operator=(const CZEBCMPTimeStepSizeCtrlParm& other) = default;

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
      {.field = field<&T::m_iNewMethod, &T::iNewMethod>(), .key = "NewMethod", .label = "m_iNewMethod\t\t= ",
       .doc = "Method of the time-step control. Meaning defined by the solver."},
      {.field = field<&T::m_dInitialDt, &T::dInitialDt>(), .key = "InitialDt", .label = "m_dInitialDt\t\t= ",
       .doc = "Initial time-step size."},
      {.field = field<&T::m_iVof_Scheme, &T::iVof_Scheme>(), .key = "FrontMethod", .label = "m_iVof_Scheme\t\t= ",
       .doc = "Volume-fraction scheme of the front. Meaning defined by the solver."},
      {.field = field<&T::m_iHRVof, &T::iHRVof>(), .key = "HRVof", .label = "m_iHRVof\t\t\t= ",
       .doc = "High-resolution option of the volume fraction. Meaning defined by the solver."},
      {.field = field<&T::m_dFixDt, &T::dFixDt>(), .key = "FixDt", .label = "m_dFixDt\t\t\t= ",
       .doc = "Fixed time-step size."},
      {.field = field<&T::m_iMFType, &T::iMFType>(), .key = "MFType", .label = "m_iMFType\t\t\t= ",
       .doc = "Meaning defined by the solver."},
      {.field = field<&T::m_iRTMVof, &T::iRTMVof>(), .key = "RTMVof", .label = "m_iRTMVof\t\t\t= ",
       .doc = "Volume-fraction option of RTM. Meaning defined by the solver."},
      {.field = field<&T::m_iRTMFrontNSubdt, &T::iRTMFrontNSubdt>(), .key = "RTMFrontNSubdt",
       .label = "m_iRTMFrontNSubdt\t= ",
       .doc = "Number of sub-steps in time of the RTM front."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"TimeStepSizeCtrl", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------TimeStepSizeCtrl Parameters---------");
  return kTable;
}
