// Crystallization kinetics.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the crystallization kinetics, from the section [Crystalline]. Plain values; assignment copies them.
/// Members ending in _2nd belong to the secondary crystallization, their twins without it to the primary one. Keys
/// count anywhere in a line, so that every line holding the word Stress or Pressure sets PlotStress or PlotPressure.
class CZEBCMPCrystallineParm {
 public:
  CZEBCMPCrystallineParm();
  CZEBCMPCrystallineParm(const CZEBCMPCrystallineParm& other);
  ~CZEBCMPCrystallineParm();
  CZEBCMPCrystallineParm& operator=(const CZEBCMPCrystallineParm& other);

  int iFlagDebug() const;
  int iFlagIsPlotDynamic() const;
  double PlotStartTemper() const;
  double PlotEndTemper() const;
  double PlotQ() const;
  double PlotStress() const;
  double PlotPressure() const;
  int iCrystalModel() const;
  double dParm_n() const;
  double dParm_n_2nd() const;
  double dU_activeEenergy() const;
  double dU_activeEenergy_2nd() const;
  double dHalfCrystallTime_0() const;
  double dHalfCrystallTime_0_2nd() const;
  double dSpheruliteGrowthRate() const;
  double dSpheruliteGrowthRate_2nd() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPCrystallineParm>();

  int m_iFlagDebug = 0;
  int m_iFlagIsPlotDynamic = 0;
  double m_PlotStartTemper = 0.0;
  double m_PlotEndTemper = 0.0;
  double m_PlotQ = 0.0;
  double m_PlotStress = 0.0;
  double m_PlotPressure = 0.0;
  int m_iCrystalModel = 0;
  double m_dParm_n = 1.0;
  double m_dParm_n_2nd = 1.0;
  double m_dU_activeEenergy = 6284.0;
  double m_dU_activeEenergy_2nd = 6284.0;
  double m_dHalfCrystallTime_0 = 11300.0;
  double m_dHalfCrystallTime_0_2nd = 11300.0;
  double m_dSpheruliteGrowthRate = 125000.0;
  double m_dSpheruliteGrowthRate_2nd = 125000.0;
};
