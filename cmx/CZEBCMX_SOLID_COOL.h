// Cooling analysis.
#pragma once

#include "engine/BlockAccess.h"

/// Choice of the cooling solver, from the block `<SOLID_COOL>`. A plain value; assignment copies it.
class CZEBCMX_SOLID_COOL {
 public:
  CZEBCMX_SOLID_COOL();
  CZEBCMX_SOLID_COOL(const CZEBCMX_SOLID_COOL& other);
  ~CZEBCMX_SOLID_COOL();
  CZEBCMX_SOLID_COOL& operator=(const CZEBCMX_SOLID_COOL& other);

  int iTransientCoolType() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_COOL>();

  int m_iTransientCoolType = 1;
};
