// Bi-injection.
#pragma once

#include "engine/BlockAccess.h"

/// Bi-injection, from the section [BiIM]. Plain values; assignment copies them.
class CZEBCMPBiIMParm {
 public:
  CZEBCMPBiIMParm();
  CZEBCMPBiIMParm(const CZEBCMPBiIMParm& other);
  ~CZEBCMPBiIMParm();
  CZEBCMPBiIMParm& operator=(const CZEBCMPBiIMParm& other);

  int iBiIMABA() const;
  int iCalculateVOFtoPack() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPBiIMParm>();

  int m_iBiIMABA = 0;
  int m_iCalculateVOFtoPack = 0;
};
