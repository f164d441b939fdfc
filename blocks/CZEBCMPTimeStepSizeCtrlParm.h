// Time-step control.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the time-step control, from the section [TimeStepSizeCtrl]. Plain values; assignment copies them.
/// In the file the volume-fraction scheme iVof_Scheme is called FrontMethod.
class CZEBCMPTimeStepSizeCtrlParm {
 public:
  CZEBCMPTimeStepSizeCtrlParm();
  CZEBCMPTimeStepSizeCtrlParm(const CZEBCMPTimeStepSizeCtrlParm& other);
  ~CZEBCMPTimeStepSizeCtrlParm();
  CZEBCMPTimeStepSizeCtrlParm& operator=(const CZEBCMPTimeStepSizeCtrlParm& other);

  int iNewMethod() const;
  double dInitialDt() const;
  int iVof_Scheme() const;
  int iHRVof() const;
  double dFixDt() const;
  int iMFType() const;
  int iRTMVof() const;
  int iRTMFrontNSubdt() const;

  void SetFixDt(double value);
  void SetHRVof(int value);
  void SetVof_Scheme(int value);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPTimeStepSizeCtrlParm>();
  friend struct zeb::Repairs;

  int m_iNewMethod = 1;
  double m_dInitialDt = 0.002;
  int m_iVof_Scheme = 0;
  int m_iHRVof = 0;
  double m_dFixDt = -1.0;
  int m_iMFType = 2;
  int m_iRTMVof = 0;
  int m_iRTMFrontNSubdt = 1;
};
