// Cure-dependent PVT model.
#pragma once

#include "engine/BlockAccess.h"

/// Switch and coefficients of the cure-dependent PVT model, from the section [PVTc]. Plain values; assignment copies
/// them. The file's switch is spelled iSPVTc. The two-character keys of the coefficients count anywhere in a line.
class CZEBCMPPVTcParm {
 public:
  CZEBCMPPVTcParm();
  CZEBCMPPVTcParm(const CZEBCMPPVTcParm& other);
  ~CZEBCMPPVTcParm();
  CZEBCMPPVTcParm& operator=(const CZEBCMPPVTcParm& other);

  int iIsPVTc() const;
  double dPVTc_a0() const;
  double dPVTc_a1() const;
  double dPVTc_a2() const;
  double dPVTc_b0() const;
  double dPVTc_b1() const;
  double dPVTc_b2() const;
  double dPVTc_c0() const;
  double dPVTc_c1() const;
  double dPVTc_c2() const;
  double dPVTc_d0() const;
  double dPVTc_d1() const;
  double dPVTc_d2() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPPVTcParm>();

  int m_iIsPVTc = 0;
  double m_dPVTc_a0 = 0.0;
  double m_dPVTc_a1 = 0.0;
  double m_dPVTc_a2 = 0.0;
  double m_dPVTc_b0 = 0.0;
  double m_dPVTc_b1 = 0.0;
  double m_dPVTc_b2 = 0.0;
  double m_dPVTc_c0 = 0.0;
  double m_dPVTc_c1 = 0.0;
  double m_dPVTc_c2 = 0.0;
  double m_dPVTc_d0 = 0.0;
  double m_dPVTc_d1 = 0.0;
  double m_dPVTc_d2 = 0.0;
};
