// Fluids and dispenser of underfill.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Fluids and dispenser of underfill, from the section [UNFSetting].
///
/// Dispenser points and speed count only while the fill type is 2 or more, and a point only once a count that includes
/// it was read; so a file gives FillType, nDispenserPoint and then the points. Files give at most five points: later
/// ones stay at the origin. Copies and assignment share the points.
class CZEBCMPUNFSettingParm {
 public:
  CZEBCMPUNFSettingParm();
  CZEBCMPUNFSettingParm(const CZEBCMPUNFSettingParm& other);
  ~CZEBCMPUNFSettingParm();
  CZEBCMPUNFSettingParm& operator=(const CZEBCMPUNFSettingParm& other);

  double dVofInter() const;
  double dContactAngle() const;
  double dSTCoeff() const;
  double dDeng() const;
  double dDenl() const;
  double dVisg() const;
  double dVisl() const;
  int iFillType() const;
  int iNDispenserPass() const;
  /// Copies dispenser point i (from 1) into points[i][1] (x) and points[i][2] (y), for i up to N = iNDispenserPass(),
  /// and sets `speed`. `points` needs N + 1 rows of at least three doubles; row 0 and each row's element 0 are not
  /// touched. Returns 1, or -1, with `speed` set, when a point has nowhere to go (`points` is null).
  int dDispenser(double** points, double& speed) const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPUNFSettingParm>();

  double m_dVofInter = 0.01;
  double m_dContactAngle = 90.0;
  double m_dSTCoeff = 0.0;
  double m_dDeng = 0.001;
  double m_dDenl = 1.0;
  double m_dVisg = 0.00015;
  double m_dVisl = 0.015;
  int m_iFillType = 1;
  int m_iNDispenserPass = 0;
  double m_dDispenserSpeed = 0.0;
  zeb::SharedArray<double> m_pdDispenserPoint;
};
