// Microcellular foaming during filling.
#pragma once

#include "engine/BlockAccess.h"

/// Bubble growth of microcellular injection molding, from the block `<FILL_ADVANCED_MCIM>`. Plain values; assignment
/// copies them.
class CZEBCMX_FILL_ADVANCED_MCIM {
 public:
  CZEBCMX_FILL_ADVANCED_MCIM();
  CZEBCMX_FILL_ADVANCED_MCIM(const CZEBCMX_FILL_ADVANCED_MCIM& other);
  ~CZEBCMX_FILL_ADVANCED_MCIM();
  CZEBCMX_FILL_ADVANCED_MCIM& operator=(const CZEBCMX_FILL_ADVANCED_MCIM& other);

  int iEstimateBubble() const;
  int Version() const;
  int GasType() const;
  int BubbleGrowthModel() const;
  double PolymerMolecularWeight() const;
  double GasDiffusionCoefficient() const;
  double GasSolubilityParameter() const;
  double SurfaceTension() const;
  double CorrectionFactorf0() const;
  double CorrectionFactorF() const;
  double ThresholdofBubbleFt() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_MCIM>();

  int m_iEstimateBubble = 0;
  int m_iVersion = 0;
  int m_iGasType = 0;
  int m_iBubbleGrowthModel = 0;
  double m_dPolymerMolecularWeight = 0.0;
  double m_dGasDiffusionCoefficient = 0.0;
  double m_dGasSolubilityParameter = 0.0;
  double m_dSurfaceTension = 0.0;
  double m_dCorrectionFactorf0 = 0.0;
  double m_dCorrectionFactorF = 0.0;
  double m_dThresholdofBubbleFt = 0.0;
};
