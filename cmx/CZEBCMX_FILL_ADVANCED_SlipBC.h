// Wall slip as a boundary condition of filling.
#pragma once

#include "engine/BlockAccess.h"

/// Slip of the melt at the wall, from the block `<FILL_ADVANCED_SlipBC>`. A line that sets FlagSlipBCDebug sets
/// FlagSlipBC as well, since the longer key holds the shorter one. Plain values; assignment copies them.
class CZEBCMX_FILL_ADVANCED_SlipBC {
 public:
  CZEBCMX_FILL_ADVANCED_SlipBC();
  CZEBCMX_FILL_ADVANCED_SlipBC(const CZEBCMX_FILL_ADVANCED_SlipBC& other);
  ~CZEBCMX_FILL_ADVANCED_SlipBC();
  CZEBCMX_FILL_ADVANCED_SlipBC& operator=(const CZEBCMX_FILL_ADVANCED_SlipBC& other);

  int iSlipBC() const;
  int iSlipBCDebug() const;
  double FrictionCoeff() const;
  double SlipUnderRelax() const;
  int SlipExcludeRunner() const;
  double WallShearStressThreshold() const;
  int SlipOnlyRunner() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_SlipBC>();

  int m_iSlipBC = 0;
  int m_iSlipBCDebug = 0;
  double m_dFrictionCoeff = 1.0;
  double m_dSlipUnderRelax = 0.5;
  int m_iSlipExcludeRunner = 0;
  double m_dWallShearStressThreshold = 0.0;
  int m_iSlipOnlyRunner = 0;
};
