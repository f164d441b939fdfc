// Elongational-viscosity correction.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the elongational-viscosity correction, from the section [Elongation]. Plain values; assignment copies
/// them.
class CZEBCMPElongationParm {
 public:
  CZEBCMPElongationParm();
  CZEBCMPElongationParm(const CZEBCMPElongationParm& other);
  ~CZEBCMPElongationParm();
  CZEBCMPElongationParm& operator=(const CZEBCMPElongationParm& other);

  int iIsViscoFacByElongation() const;
  int iDisplayElongResult() const;
  int iElongModel() const;
  double ElongModel_A() const;
  double ElongModel_B() const;
  double ElongModel_E_cri() const;
  int iCalcShearRateMethod() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPElongationParm>();

  int m_iIsViscoFacByElongation = 0;
  int m_iDisplayElongResult = 0;
  int m_iElongModel = 0;
  double m_dElongModel_A = 10.0;
  double m_dElongModel_B = 1.0;
  double m_dElongModel_E_cri = 1.0;
  int m_iCalcShearRateMethod = 0;
};
