// Standard cooling analysis.
#pragma once

#include "engine/BlockAccess.h"

namespace zeb {
template <class Block>
struct CoolRows;
}  // namespace zeb

/// Settings of the standard cooling analysis, from the positional section [StdCool]: a version line and 23 lines of
/// numbers, read only when the version is 1047. A field that a line lacks leaves its member as it was.
///
/// Lines 15 and 16 both end with dGetGeoTempMUnder (line 16 wins); no field sets dGetGeoRhsMUnder or
/// bGetIfActiveHeatFluxHistory. Some getters of int begin with dGet all the same.
/// Names with P and M come in pairs; which quantity each of them belongs to is the solver's definition.
/// Plain values; assignment copies them.
class CZEBCoolStdCoolParm {
 public:
  CZEBCoolStdCoolParm();
  CZEBCoolStdCoolParm(const CZEBCoolStdCoolParm& other);
  ~CZEBCoolStdCoolParm();
  CZEBCoolStdCoolParm& operator=(const CZEBCoolStdCoolParm& other);

  int iGetcfcver_StdCool() const;
  int iGetlsolvTP() const;
  int iGetlsolvTM() const;
  int iGetPreCondP() const;
  int iGetPreCondM() const;
  int iGetIluNLevelFill() const;
  int iGetNiterP() const;
  int iGetNiterM() const;
  int iGetIterStep() const;
  int iGetNiterGrad() const;
  int iGetNTimeStep() const;
  int iGetTimeStep() const;
  double dGetDt() const;
  int iGetBlendTime() const;
  int iGetNMaxTimeStep_Ct() const;
  double dGetTolerP() const;
  double dGetTolerM() const;
  double dGetBlend() const;
  int iGetNiterInP() const;
  int iGetNiterInM() const;
  double dGetTolerInP() const;
  double dGetTolerInM() const;
  double dGetRelaxP() const;
  double dGetRelaxM() const;
  int iGetlCmpChk() const;
  int iGetNiterMP() const;
  double dGetTolerMP() const;
  double dGetAllowMin_tolerMP() const;
  double dGetMaxDifferTemperatureMP() const;
  double dGetBoundTempUnder() const;
  double dGetBoundFluxUnder() const;
  double dGetGeoRhsPUnder() const;
  double dGetGeoRhsMUnder() const;
  double dGetGeoTempPUnder() const;
  double dGetGeoTempMUnder() const;
  double dGetAllowTemperature_min() const;
  double dGetAllowTemperature_max() const;
  double dGetTimeStep_min() const;
  double dGetOffsetEjectionTemp() const;
  int dGetIfCalCtCoolTime() const;
  double dGetUserMaxAllowCoolingTime() const;
  int dGetIfDynamicMatProperty() const;
  int iGetIfCalPartInsertUsePartTemperature() const;
  int iGetIfModifyHeatFlux() const;
  int iGetCt_BFacePType() const;
  int iGetCt_BFaceP_Niter() const;
  double dGetCt_BFaceP_MFactor() const;
  int iGetIfIgnoreBadElement() const;
  int iGetWriterResultType() const;
  int dGetIfCalHeaterTemperature() const;
  double dGetHeaterEfficency() const;
  int iGetCChannelCalculateStep() const;
  double dGetMoldAirHTCValue() const;
  bool bGetIfActiveHeatFluxHistory() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCoolStdCoolParm>();
  friend struct zeb::CoolRows<CZEBCoolStdCoolParm>;

  int m_iGetcfcver_StdCool = 1047;
  int m_iGetlsolvTP = 2;
  int m_iGetlsolvTM = 2;
  int m_iGetPreCondP = 1;
  int m_iGetPreCondM = 1;
  int m_iGetIluNLevelFill = 5;
  int m_iGetNiterP = 5;
  int m_iGetNiterM = 5;
  int m_iGetIterStep = 10;
  int m_iGetNiterGrad = 2;
  int m_iGetNTimeStep = 2000;
  int m_iGetTimeStep = 50;
  double m_dGetDt = 0.0005;
  int m_iGetBlendTime = 1;
  int m_iGetNMaxTimeStep_Ct = 100000;
  double m_dGetTolerP = 0.1;
  double m_dGetTolerM = 0.1;
  double m_dGetBlend = 1.0;
  int m_iGetNiterInP = 100;
  int m_iGetNiterInM = 100;
  double m_dGetTolerInP = 0.001;
  double m_dGetTolerInM = 0.001;
  double m_dGetRelaxP = 1.0;
  double m_dGetRelaxM = 1.0;
  int m_iGetlCmpChk = 0;
  int m_iGetNiterMP = 30;
  double m_dGetTolerMP = 0.01;
  double m_dGetAllowMin_tolerMP = 0.05;
  double m_dGetMaxDifferTemperatureMP = 30.0;
  double m_dGetBoundTempUnder = 0.9;
  double m_dGetBoundFluxUnder = 0.9;
  double m_dGetGeoRhsPUnder = 0.5;
  double m_dGetGeoRhsMUnder = 0.5;
  double m_dGetGeoTempPUnder = 1.0;
  double m_dGetGeoTempMUnder = 1.0;
  double m_dGetAllowTemperature_min = -30.0;
  double m_dGetAllowTemperature_max = 1000.0;
  double m_dGetTimeStep_min = 1e-8;
  double m_dGetOffsetEjectionTemp = 1.0;
  int m_dGetIfCalCtCoolTime = 1;
  double m_dGetUserMaxAllowCoolingTime = 0.0;
  int m_dGetIfDynamicMatProperty = 1;
  int m_iGetIfCalPartInsertUsePartTemperature = 0;
  int m_iGetIfModifyHeatFlux = 1;
  int m_iGetCt_BFacePType = 0;
  int m_iGetCt_BFaceP_Niter = 3;
  double m_dGetCt_BFaceP_MFactor = 0.9;
  int m_iGetIfIgnoreBadElement = 0;
  int m_iGetWriterResultType = 2;
  int m_dGetIfCalHeaterTemperature = 0;
  double m_dGetHeaterEfficency = 1.0;
  int m_iGetCChannelCalculateStep = 1;
  double m_dGetMoldAirHTCValue = -1.0;
  bool m_bGetIfActiveHeatFluxHistory = false;
};
