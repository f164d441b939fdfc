// Three-dimensional cooling channels.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the solution in 3-D cooling channels, from the positional section [3DCoolingChannel]: a version line and
/// 6 lines of numbers, read only when the version is 1002. A field that a line lacks leaves its member as it was.
///
/// Lines 3 and 4 both hold iGetNiterC (line 4 wins); no field sets dGetTolerC, iGetNiterInC or dGetTolerInC.
/// Plain values; assignment copies them.
class CZEBCool3DCoolingChannelParm {
 public:
  CZEBCool3DCoolingChannelParm();
  CZEBCool3DCoolingChannelParm(const CZEBCool3DCoolingChannelParm& other);
  ~CZEBCool3DCoolingChannelParm();
  CZEBCool3DCoolingChannelParm& operator=(const CZEBCool3DCoolingChannelParm& other);

  int i_GetcfcVer_3DCChannel() const;
  int iGet3DCChanelDebug() const;
  int iGetNiterC() const;
  double dGetTolerC() const;
  int iGetNiterInC() const;
  double dGetTolerInC() const;
  double dGetGeoTempCUnder() const;
  double dGetGeoRhsCUnder() const;
  double dGetBlendC() const;
  double dGetRelaxC() const;
  double dGetAllowCChannelBoundaryChangeTemperature() const;
  int iGetCChannelCalculateStep() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCool3DCoolingChannelParm>();

  int m_i_GetcfcVer_3DCChannel = 1002;
  int m_iGet3DCChanelDebug = 0;
  int m_iGetNiterC = 5;
  double m_dGetTolerC = 0.1;
  int m_iGetNiterInC = 30;
  double m_dGetTolerInC = 0.001;
  double m_dGetGeoTempCUnder = 0.9;
  double m_dGetGeoRhsCUnder = 0.9;
  double m_dGetBlendC = 0.9;
  double m_dGetRelaxC = 1.0;
  double m_dGetAllowCChannelBoundaryChangeTemperature = 0.1;
  int m_iGetCChannelCalculateStep = 1;
};
