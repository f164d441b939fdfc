// Extended packing calculation.
#pragma once

#include "engine/BlockAccess.h"

/// Extended packing calculation, from the block `<SOLID_PACK>`. Plain values; assignment copies them.
class CZEBCMX_SOLID_PACK {
 public:
  CZEBCMX_SOLID_PACK();
  CZEBCMX_SOLID_PACK(const CZEBCMX_SOLID_PACK& other);
  ~CZEBCMX_SOLID_PACK();
  CZEBCMX_SOLID_PACK& operator=(const CZEBCMX_SOLID_PACK& other);

  int iExtendPackCalculation() const;
  int iExtendPackType() const;
  double dExtendPackCrystal() const;
  double dExtendPackNoCrystal() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_PACK>();

  int m_iExtendPackCalculation = 0;
  int m_iExtendPackType = 0;
  double m_dExtendPackCrystal = -20.0;
  double m_dExtendPackNoCrystal = 0.0;
};
