// Switch of the finite-element variant.
#pragma once

#include "engine/BlockAccess.h"

/// The switch of the finite-element variant, from the section [FEM]. A plain value; assignment copies it.
class CZEBCMPFEMParm {
 public:
  CZEBCMPFEMParm();
  CZEBCMPFEMParm(const CZEBCMPFEMParm& other);
  ~CZEBCMPFEMParm();
  CZEBCMPFEMParm& operator=(const CZEBCMPFEMParm& other);

  int iIsFEM() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPFEMParm>();

  int m_iIsFEM = 0;
};
