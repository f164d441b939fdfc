// Viscoelastic analysis.
#pragma once

#include "engine/BlockAccess.h"

/// Viscoelastic analysis, from the block `<SOLID_VE>`. A plain value; assignment copies it.
class CZEBCMX_SOLID_VE {
 public:
  CZEBCMX_SOLID_VE();
  CZEBCMX_SOLID_VE(const CZEBCMX_SOLID_VE& other);
  ~CZEBCMX_SOLID_VE();
  CZEBCMX_SOLID_VE& operator=(const CZEBCMX_SOLID_VE& other);

  int iEstimateResidualStress() const;

  /// Switches the residual stress calculation: on (1) for any `flag` but 0, off for 0. Always 1.
  int ResetResidualStressFlag(int flag);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_VE>();

  int m_iEstimateResidualStress = 0;
};
