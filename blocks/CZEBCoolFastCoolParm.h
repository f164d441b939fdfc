// Fast cooling analysis.
#pragma once

#include "engine/BlockAccess.h"

namespace zeb {
template <class Block>
struct CoolRows;
}  // namespace zeb

/// Settings of the fast cooling analysis, from the positional section [FastCool]: a version line and 23 lines of
/// numbers, read only when the version is 1017. A field that a line lacks leaves its member as it was.
///
/// Lines 15 and 16 both end with dGetGeoTempMUnder (line 16 wins), and no field sets dGetGeoRhsMUnder.
/// Names with P and M come in pairs; which quantity each of them belongs to is the solver's definition.
/// Plain values; assignment copies them.
class CZEBCoolFastCoolParm {
 public:
  CZEBCoolFastCoolParm();
  CZEBCoolFastCoolParm(const CZEBCoolFastCoolParm& other);
  ~CZEBCoolFastCoolParm();
  CZEBCoolFastCoolParm& operator=(const CZEBCoolFastCoolParm& other);

  int iGetcfcver_FastCool() const;
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
  double dGetBoundTempUnder() const;
  double dGetBoundFluxUnder() const;
  double dGetGeoRhsPUnder() const;
  double dGetGeoRhsMUnder() const;
  double dGetGeoTempPUnder() const;
  double dGetGeoTempMUnder() const;
  int iGetMBNx() const;
  int iGetMBNy() const;
  int iGetMBNz() const;
  int iGetlCutMesh() const;
  double dGetBoundTempUnder_PIP() const;
  double dGetBoundFluxUnder_PIM() const;
  int iGetIsCreateCTGMesh() const;
  double dGetAllowTemperature_min() const;
  double dGetAllowTemperature_max() const;
  double dGetTimeStep_min() const;
  double dGetHotRunnerHTC() const;
  int iGetIsEnhanceStability_CyclAvg() const;
  double dGetAllowMaxMinTemperatureDiff_Factor() const;
  int iGetIfCalHeaterTemperature() const;
  double dGetHeaterEfficicency() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCoolFastCoolParm>();
  friend struct zeb::CoolRows<CZEBCoolFastCoolParm>;

  int m_iGetcfcver_FastCool = 1017;
  int m_iGetlsolvTP = 5;
  int m_iGetlsolvTM = 2;
  int m_iGetPreCondP = 1;
  int m_iGetPreCondM = 1;
  int m_iGetIluNLevelFill = 5;
  int m_iGetNiterP = 15;
  int m_iGetNiterM = 1;
  int m_iGetIterStep = 10;
  int m_iGetNiterGrad = 2;
  int m_iGetNTimeStep = 100000;
  int m_iGetTimeStep = 50;
  double m_dGetDt = 0.001;
  int m_iGetBlendTime = 1;
  double m_dGetTolerP = 0.1;
  double m_dGetTolerM = 0.5;
  double m_dGetBlend = 1.0;
  int m_iGetNiterInP = 30;
  int m_iGetNiterInM = 2000;
  double m_dGetTolerInP = 0.01;
  double m_dGetTolerInM = 0.001;
  double m_dGetRelaxP = 1.0;
  double m_dGetRelaxM = 1.0;
  int m_iGetlCmpChk = 0;
  int m_iGetNiterMP = 30;
  double m_dGetTolerMP = 0.01;
  double m_dGetBoundTempUnder = 0.9;
  double m_dGetBoundFluxUnder = 0.9;
  double m_dGetGeoRhsPUnder = 0.5;
  double m_dGetGeoRhsMUnder = 1.0;
  double m_dGetGeoTempPUnder = 1.0;
  double m_dGetGeoTempMUnder = 1.0;
  int m_iGetMBNx = 80;
  int m_iGetMBNy = 80;
  int m_iGetMBNz = 80;
  int m_iGetlCutMesh = 0;
  double m_dGetBoundTempUnder_PIP = 0.3;
  double m_dGetBoundFluxUnder_PIM = 0.8;
  int m_iGetIsCreateCTGMesh = 1;
  double m_dGetAllowTemperature_min = -30.0;
  double m_dGetAllowTemperature_max = 1000.0;
  double m_dGetTimeStep_min = 1e-9;
  double m_dGetHotRunnerHTC = 0.0;
  int m_iGetIsEnhanceStability_CyclAvg = 0;
  double m_dGetAllowMaxMinTemperatureDiff_Factor = 1.5;
  int m_iGetIfCalHeaterTemperature = 0;
  double m_dGetHeaterEfficicency = 1.0;
};
