// Orientation, breakage and concentration of fibers.
#pragma once

#include "engine/BlockAccess.h"

/// Orientation, breakage and concentration of (long) fibers, from the block `<FILL_ADVANCED_LONGFIBER>`. The key
/// DiffusionModelType is followed at once by the lines of its model's coefficients, "name = value" each with blanks
/// around the '=': five for model 2, two for model 1, one for model 0, none for any other. Their order counts, not
/// their names. Plain values; assignment copies them.
class CZEBCMX_FILL_ADVANCED_LONGFIBER {
 public:
  CZEBCMX_FILL_ADVANCED_LONGFIBER();
  CZEBCMX_FILL_ADVANCED_LONGFIBER(const CZEBCMX_FILL_ADVANCED_LONGFIBER& other);
  ~CZEBCMX_FILL_ADVANCED_LONGFIBER();
  CZEBCMX_FILL_ADVANCED_LONGFIBER& operator=(const CZEBCMX_FILL_ADVANCED_LONGFIBER& other);

  int iVersion() const;
  int iOrthotropicClosureMethod() const;
  double dModifiedFactor() const;
  double dAspectRatio() const;
  double dWeightPercent() const;
  int iDiffusionModelType() const;
  double dARD_b1() const;
  double dARD_b2() const;
  double dARD_b3() const;
  double dARD_b4() const;
  double dARD_b5() const;
  double dARD_Cf() const;
  double dARD_Cm() const;
  double dFiber_CI() const;
  int iFiberBreakage() const;
  double dFiberDiamemter() const;
  double dParticleDiameter() const;
  double DragCoe() const;
  double CB() const;
  double S() const;
  int isBreakInScrewAndNozzle() const;
  int iFiberConcen() const;
  int iFiberType() const;
  double dAverageWeightConcen() const;
  double dMaxWeightConcen() const;
  double dResisAlpha() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_LONGFIBER>();

  int m_iVersion = 0;
  int m_iOrthotropicClosureMethod = 0;
  double m_dModifiedFactor = 1.0;
  double m_dAspectRatio = 20.0;
  double m_dWeightPercent = 10.0;
  int m_iDiffusionModelType = 0;
  double m_dARD_b1 = 0.0;
  double m_dARD_b2 = 0.0;
  double m_dARD_b3 = 0.0;
  double m_dARD_b4 = 0.0;
  double m_dARD_b5 = 0.0;
  double m_dARD_Cf = 0.01;
  double m_dARD_Cm = 0.0;
  double m_dFiber_CI = 0.01;
  int m_iFiberBreakage = 0;
  double m_dFiberDiamemter = 1.7e-5;
  double m_dParticleDiameter = 1e-5;
  double m_dDragCoe = 3.0;
  double m_dCB = 0.002;
  double m_dS = 0.25;
  int m_isBreakInScrewAndNozzle = 0;
  int m_iFiberConcen = 0;
  int m_iFiberType = 1;
  double m_dAverageWeightConcen = 0.0;
  double m_dMaxWeightConcen = 0.0;
  double m_dResisAlpha = 0.0;
};
