// High-resolution (HR) volume-fraction schemes.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the high-resolution (HR) volume-fraction schemes, from the section [HRSchemes]. Plain values;
/// assignment copies them.
class CZEBCMPHRSchemesParm {
 public:
  CZEBCMPHRSchemesParm();
  CZEBCMPHRSchemesParm(const CZEBCMPHRSchemesParm& other);
  ~CZEBCMPHRSchemesParm();
  CZEBCMPHRSchemesParm& operator=(const CZEBCMPHRSchemesParm& other);

  int iHRMethod() const;
  double dHRKr() const;
  int iHRDtMethod() const;
  int iHRPhaseField() const;
  double dHRCompressiveC() const;
  double dHRRatio() const;
  int iHRSkewness() const;
  double dFCRI() const;
  int iNSmoothVolF() const;

  void SetHRMethod(int value);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPHRSchemesParm>();

  int m_iHRMethod = 0;
  double m_dHRKr = 0.8;
  int m_iHRDtMethod = 0;
  int m_iHRPhaseField = 0;
  double m_dHRCompressiveC = 0.25;
  double m_dHRRatio = 0.1;
  int m_iHRSkewness = 0;
  double m_dFCRI = 0.9;
  int m_iNSmoothVolF = 2;
};
