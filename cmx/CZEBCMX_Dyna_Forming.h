// Forming of fiber mats.
#pragma once

#include "engine/BlockAccess.h"

/// Forming of fiber mats, from the block `<Dyna_Forming>`. Plain values; assignment copies them.
class CZEBCMX_Dyna_Forming {
 public:
  CZEBCMX_Dyna_Forming();
  CZEBCMX_Dyna_Forming(const CZEBCMX_Dyna_Forming& other);
  ~CZEBCMX_Dyna_Forming();
  CZEBCMX_Dyna_Forming& operator=(const CZEBCMX_Dyna_Forming& other);

  int iIsRunIBFSIforfibermat() const;
  int iRunfibermatCycle() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_Dyna_Forming>();

  int m_iIsRunIBFSIforfibermat = 0;
  int m_iRunfibermatCycle = 3;
};
