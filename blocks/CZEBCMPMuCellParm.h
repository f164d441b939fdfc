// Effects of foaming on the flow.
#pragma once

#include "engine/BlockAccess.h"

/// What foaming changes in the flow solution, from the section [MuCell]. Plain values; assignment copies them.
class CZEBCMPMuCellParm {
 public:
  CZEBCMPMuCellParm();
  CZEBCMPMuCellParm(const CZEBCMPMuCellParm& other);
  ~CZEBCMPMuCellParm();
  CZEBCMPMuCellParm& operator=(const CZEBCMPMuCellParm& other);

  int iIsViscoFacByFoaming() const;
  int iViscoFoamMixingMethod() const;
  int OutputBubbleNucleationAndGrowthRate() const;
  int iCpFoamMixingMethod() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPMuCellParm>();

  int m_iIsViscoFacByFoaming = 0;
  int m_iViscoFoamMixingMethod = 1;
  int m_iIsOutputBubbleNucleationAndGrowthRate = 0;
  int m_iCpFoamMixingMethod = 0;
};
