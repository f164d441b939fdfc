// Viscosity limits and the viscosity of air and melt front.
#pragma once

#include "engine/BlockAccess.h"

/// Viscosity limits and the treatment of the viscosity of air and melt front, from the section [ViscositySetting2].
/// Plain values in the solver's internal units; assignment copies them. A gel-point ratio that is read is kept within
/// 1e-6 to 0.999999. Every rank prints the four LCP values as it reads them. The dump leaves dLowVisRatio out.
class CZEBCMPViscositySetting2Parm {
 public:
  CZEBCMPViscositySetting2Parm();
  CZEBCMPViscositySetting2Parm(const CZEBCMPViscositySetting2Parm& other);
  ~CZEBCMPViscositySetting2Parm();
  CZEBCMPViscositySetting2Parm& operator=(const CZEBCMPViscositySetting2Parm& other);

  double dMaxVis() const;
  double dMinVis() const;
  double dMaxSR() const;
  double dMinSR() const;
  double dHighTemp_Tmp() const;
  double dHighTemp_Slp() const;
  double dHighTemp_SR() const;
  int iEvaluateAirVis() const;
  int iEvaluateAirTemperature() const;
  double dLowVisT() const;
  double dLowVisSR() const;
  double dLowVisRatio() const;
  double dAirK() const;
  double dAirCp() const;
  double dAirDen() const;
  int iEvaluateMeltFrontVis() const;
  int iVOFSmoothTimes() const;
  double dAirVisFrontierVOF() const;
  double dFrontierEquivalentSR() const;
  double dRatio_Conx_GelPoint() const;
  int iIsNewThermoSetHBModel() const;
  double dLCP_SR_LowerBound() const;
  double dLCP_SR_UpperBound() const;
  double dLCP_SR_vs_Visc_Ratio() const;
  double dLCP_SR_Change_Tm_Slope_Ratio() const;

  void SetLowVisT(double value);
  void SetLowVisSR(double value);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPViscositySetting2Parm>();
  friend struct zeb::Repairs;

  double m_dMaxVis = 1e9;
  double m_dMinVis = 10.0;
  double m_dMaxSR = 50000.0;
  double m_dMinSR = 0.0001;
  double m_dHighTemp_Tmp = 1000.0;
  double m_dHighTemp_Slp = 10000.0;
  double m_dHighTemp_SR = 1.0;
  int m_iEvaluateAirVis = 1;
  int m_iEvaluateAirTemperature = 0;
  double m_dLowVisT = -1.0;
  double m_dLowVisSR = 1000.0;
  double m_dLowVisRatio = 0.05;
  double m_dAirK = 10000.0;
  double m_dAirCp = 1e7;
  double m_dAirDen = 0.001;
  int m_iEvaluateMeltFrontVis = 0;
  int m_iVOFSmoothTimes = 2;
  double m_dAirVisFrontierVOF = 0.98;
  double m_dFrontierEquivalentSR = 1000.0;
  double m_dRatio_Conx_GelPoint = 0.9999;
  int m_iIsNewThermoSetHBModel = 0;
  double m_dLCP_SR_LowerBound = 1e-30;
  double m_dLCP_SR_UpperBound = 1e8;
  double m_dLCP_SR_vs_Visc_Ratio = 1.0;
  double m_dLCP_SR_Change_Tm_Slope_Ratio = 0.0;
};
