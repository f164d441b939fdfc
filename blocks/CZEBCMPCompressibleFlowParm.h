// Compressible-flow (air) solver.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the compressible-flow (air) solver, from the section [CompressibleFlow]. Plain values; assignment copies
/// them. One key of the file sets the U, V and W tolerance, another the three relaxations; the PISO tolerance has no
/// key. Every rank prints each value as it reads it (all but iCompressible).
class CZEBCMPCompressibleFlowParm {
 public:
  CZEBCMPCompressibleFlowParm();
  CZEBCMPCompressibleFlowParm(const CZEBCMPCompressibleFlowParm& other);
  ~CZEBCMPCompressibleFlowParm();
  CZEBCMPCompressibleFlowParm& operator=(const CZEBCMPCompressibleFlowParm& other);

  int iCompressible() const;
  int iUseNormalStressTerm() const;
  int iCompressible_SIMPLER_Niter() const;
  int iCompressible_CM_Niter() const;
  double dCompressible_SIMPLER_Tol() const;
  double dCompressible_PISO_Tol() const;
  double dCompressible_TolPres() const;
  double dCompressible_U_Tol() const;
  double dCompressible_V_Tol() const;
  double dCompressible_W_Tol() const;
  double dCompressible_U_Relax() const;
  double dCompressible_V_Relax() const;
  double dCompressible_W_Relax() const;
  double dCompressible_CM_P_Tol() const;
  double dCompressible_CM_P_Relax() const;
  double dAirdDdp() const;
  double dVentAirDdp() const;

  void SetVentAirDdp(double value);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPCompressibleFlowParm>();
  friend struct zeb::Repairs;

  int m_iCompressible = 0;
  int m_iUseNormalStressTerm = 0;
  int m_iCompressible_SIMPLER_Niter = 20;
  int m_iCompressible_CM_Niter = 30;
  double m_dCompressible_SIMPLER_Tol = 0.002;
  double m_dCompressible_PISO_Tol = 0.002;
  double m_dCompressible_TolPres = 0.02;
  double m_dCompressible_U_Tol = 0.002;
  double m_dCompressible_V_Tol = 0.002;
  double m_dCompressible_W_Tol = 0.002;
  double m_dCompressible_U_Relax = 0.7;
  double m_dCompressible_V_Relax = 0.7;
  double m_dCompressible_W_Relax = 0.7;
  double m_dCompressible_CM_P_Tol = 5e-05;
  double m_dCompressible_CM_P_Relax = 0.6;
  double m_dAirdDdp = 0.0;
  double m_dVentAirDdp = 1e-08;
};
