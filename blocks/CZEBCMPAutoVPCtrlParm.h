// Automatic control of the switch-over from velocity to pressure.
#pragma once

#include "engine/BlockAccess.h"

/// Automatic control of the switch-over from velocity to pressure, from the section [AutoVPCtrl]. Plain values;
/// assignment copies them.
///
/// The other keys count only while the mode is 1 or more, so AutoVPMode comes first in a file.
class CZEBCMPAutoVPCtrlParm {
 public:
  CZEBCMPAutoVPCtrlParm();
  CZEBCMPAutoVPCtrlParm(const CZEBCMPAutoVPCtrlParm& other);
  ~CZEBCMPAutoVPCtrlParm();
  CZEBCMPAutoVPCtrlParm& operator=(const CZEBCMPAutoVPCtrlParm& other);

  int iIsAutoVPCtrl() const;
  int iAutoVPCtrlDebug() const;
  int iAutoVPCtrlFullShotMode() const;
  int iAutoVPCtrlBarrelEffect() const;
  double dAutoVPCtrlExtraInjWeightRatio() const;
  double dAutoVPCtrlHRAbsorbRatioCtrl() const;
  double dAutoVPCtrlCavityPres() const;
  double dAutoVPCtrlCavityTemp() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPAutoVPCtrlParm>();

  int m_iIsAutoVPCtrl = 0;
  int m_iAutoVPCtrlDebug = 0;
  int m_iAutoVPCtrlFullShotMode = 0;
  int m_iAutoVPCtrlBarrelEffect = 0;
  double m_dAutoVPCtrlExtraInjWeightRatio = 0.0;
  double m_dAutoVPCtrlHRAbsorbRatioCtrl = 100.0;
  double m_dAutoVPCtrlCavityPres = 0.1;
  double m_dAutoVPCtrlCavityTemp = -1.0;
};
