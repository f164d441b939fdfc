// Chemically blown polyurethane foam.
#pragma once

#include "engine/BlockAccess.h"

/// Chemically blown polyurethane foam, from the section [PUChemFoam]. Plain values; assignment copies them.
class CZEBCMPPUChemFoamParm {
 public:
  CZEBCMPPUChemFoamParm();
  CZEBCMPPUChemFoamParm(const CZEBCMPPUChemFoamParm& other);
  ~CZEBCMPPUChemFoamParm();
  CZEBCMPPUChemFoamParm& operator=(const CZEBCMPPUChemFoamParm& other);

  int iIsPUChemFoam() const;
  double dPUConcentration_polyol() const;
  double dPUConcentration_isocyanate() const;
  double dPUConcentration_water() const;
  double dPUReactionHeat_gelling() const;
  double dPUReactionHeat_blowing() const;
  double dPUA_gelling() const;
  double dPUEa_gelling() const;
  double dPUA_blowing() const;
  double dPUEa_blowing() const;
  double dPUDelayTime() const;
  double dPUCompressibleFactor() const;
  int iPUKineticModel() const;
  double dPUVis_Gas_ParmN() const;
  double dPUExpansionRatio() const;
  double dKineticParasbyMacro() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPPUChemFoamParm>();

  int m_iIsPUChemFoam = 0;
  double m_dPUConcentration_polyol = 3045.0;
  double m_dPUConcentration_isocyanate = 4604.0;
  double m_dPUConcentration_water = 780.0;
  double m_dPUReactionHeat_gelling = 70700.0;
  double m_dPUReactionHeat_blowing = 86000.0;
  double m_dPUA_gelling = 1.735;
  double m_dPUEa_gelling = 40400.0;
  double m_dPUA_blowing = 1390.0;
  double m_dPUEa_blowing = 32700.0;
  double m_dPUDelayTime = 0.0;
  double m_dPUCompressibleFactor = 1.0;
  int m_iPUKineticModel = 3;
  double m_dPUVis_Gas_ParmN = 0.0;
  double m_dPUExpansionRatio = 20.0;
  double m_dKineticParasbyMacro = 1.0;
};
