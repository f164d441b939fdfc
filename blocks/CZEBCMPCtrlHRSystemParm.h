// Time-step control of the high-resolution (HR) schemes.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the time-step control of the high-resolution (HR) schemes, from the section [CtrlHRSystem]. Plain
/// values; assignment copies them. The file numbers the two factors 1 and 2.
class CZEBCMPCtrlHRSystemParm {
 public:
  CZEBCMPCtrlHRSystemParm();
  CZEBCMPCtrlHRSystemParm(const CZEBCMPCtrlHRSystemParm& other);
  ~CZEBCMPCtrlHRSystemParm();
  CZEBCMPCtrlHRSystemParm& operator=(const CZEBCMPCtrlHRSystemParm& other);

  int iHRShearRateCtrl() const;
  int iHRDtCtrlMethod() const;
  double dHRDtCtrlFactor() const;
  double dHRDtCtrlFactor_2() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPCtrlHRSystemParm>();

  int m_iHRShearRateCtrl = 1;
  int m_iHRDtCtrlMethod = 3;
  double m_dHRDtCtrlFactor = 1.1;
  double m_dHRDtCtrlFactor_2 = 1.08;
};
