// Switch of the immersed-boundary variant.
#pragma once

#include "engine/BlockAccess.h"

/// The switch of the immersed-boundary variant, from the section [IBM]. A plain value; assignment copies it.
class CZEBCMPIBMParm {
 public:
  CZEBCMPIBMParm();
  CZEBCMPIBMParm(const CZEBCMPIBMParm& other);
  ~CZEBCMPIBMParm();
  CZEBCMPIBMParm& operator=(const CZEBCMPIBMParm& other);

  int iIsIBM() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPIBMParm>();

  int m_iIsIBM = 0;
};
