// Smoothing and gradient flags of the flow solver.
#pragma once

#include "engine/BlockAccess.h"

/// Smoothing and gradient flags, from the section [StableFlag]. Plain values; assignment copies them.
class CZEBCMPStableFlagParm {
 public:
  CZEBCMPStableFlagParm();
  CZEBCMPStableFlagParm(const CZEBCMPStableFlagParm& other);
  ~CZEBCMPStableFlagParm();
  CZEBCMPStableFlagParm& operator=(const CZEBCMPStableFlagParm& other);

  int nSmooth_dP() const;
  int nPJMSmooth_dP() const;
  int iGradType() const;
  int iRead_f2f() const;
  int iIterNum_MeltFrontTemperature() const;

  void SetnSmooth_dP(int value);
  void SetnPJMSmooth_dP(int value);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPStableFlagParm>();
  friend struct zeb::Repairs;

  int m_nSmooth_dP = 2;
  int m_nPJMSmooth_dP = 0;
  int m_iGradType = 0;
  int m_iRead_f2f = 0;
  int m_iIterNum_MeltFrontTemperature = 10;
};
