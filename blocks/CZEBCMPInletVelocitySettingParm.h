// Iteration of the inlet velocity.
#pragma once

#include "engine/BlockAccess.h"

/// Iteration of the inlet velocity, from the section [InletVelocitySetting]. Plain values; assignment copies them.
class CZEBCMPInletVelocitySettingParm {
 public:
  CZEBCMPInletVelocitySettingParm();
  CZEBCMPInletVelocitySettingParm(const CZEBCMPInletVelocitySettingParm& other);
  ~CZEBCMPInletVelocitySettingParm();
  CZEBCMPInletVelocitySettingParm& operator=(const CZEBCMPInletVelocitySettingParm& other);

  int iCalcInletVelo() const;
  int iMaxIterationNo() const;
  double dCriterion() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPInletVelocitySettingParm>();

  int m_iCalcInletVelo = 1;
  int m_iMaxIterationNo = 10;
  double m_dCriterion = 0.1;
};
