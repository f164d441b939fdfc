// Microcellular foaming.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the foaming solution, from the sections [Foam_PLOT_DYNAMIC], [Mucell_DEBUG] (so spelled),
/// [Foam_MuCell_Pro] and [Foam_FoamingComputeParas]. Values are kept as the file has them; nothing is converted or
/// checked.
///
/// Most keys of [Foam_FoamingComputeParas] begin with "m_", three do not: their spellings are the file format.
/// Plain values; assignment copies them.
class CZEBCMPFoamParm {
 public:
  CZEBCMPFoamParm();
  CZEBCMPFoamParm(const CZEBCMPFoamParm& other);
  ~CZEBCMPFoamParm();
  CZEBCMPFoamParm& operator=(const CZEBCMPFoamParm& other);

  int PLOT_DYNAMIC_iFlagIsPlotDynamic() const;
  double PLOT_DYNAMIC_dStartTime() const;
  double PLOT_DYNAMIC_dEndTime() const;
  double PLOT_DYNAMIC_dStartAmbientPres() const;
  double PLOT_DYNAMIC_dPresuReleaseRate() const;
  double PLOT_DYNAMIC_dTemperature() const;
  double PLOT_DYNAMIC_dViscosity() const;

  int DEBUG_iFlagDebug() const;

  double MuCell_Pro_dCounter_Pressure() const;
  double MuCell_Pro_dCounter_P_SwitchPercent() const;

  int FoamingComputeParas_iIsDiffCoeDependTemper() const;
  int FoamingComputeParas_iIsSetMaxBubPres() const;
  int FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate() const;
  int FoamingComputeParas_iIsDrhoDpDependBubGrowth() const;
  int FoamingComputeParas_iIsComputeMucellOnWallCell() const;
  double FoamingComputeParas_dRelaxPVR() const;
  double FoamingComputeParas_dTotalRelaxPVR() const;
  int FoamingComputeParas_iIsGasConcByConvection() const;
  double FoamingComputeParas_dFillVol_cri() const;
  int FoamingComputeParas_iBreakFoamingCalc() const;
  double FoamingComputeParas_dStartFoamingTime() const;
  double FoamingComputeParas_dPolyRatioLimit() const;
  double FoamingComputeParas_dMaxNumDensity() const;
  double FoamingComputeParas_dMaxBubbleSize() const;
  double FoamingComputeParas_dMinBubbleSize() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPFoamParm>();

  int m_PLOT_DYNAMIC_iFlagIsPlotDynamic = 0;
  double m_PLOT_DYNAMIC_dStartTime = 0.0;
  double m_PLOT_DYNAMIC_dEndTime = 0.0;
  double m_PLOT_DYNAMIC_dStartAmbientPres = 0.0;
  double m_PLOT_DYNAMIC_dPresuReleaseRate = 0.0;
  double m_PLOT_DYNAMIC_dTemperature = 473.15;
  double m_PLOT_DYNAMIC_dViscosity = 16500.0;

  int m_DEBUG_iFlagDebug = 0;

  double m_MuCell_Pro_dCounter_Pressure = 0.0;
  double m_MuCell_Pro_dCounter_P_SwitchPercent = 0.92;

  int m_FoamingComputeParas_iIsDiffCoeDependTemper = 1;
  int m_FoamingComputeParas_iIsSetMaxBubPres = 1;
  int m_FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate = 0;
  int m_FoamingComputeParas_iIsDrhoDpDependBubGrowth = 1;
  int m_FoamingComputeParas_iIsComputeMucellOnWallCell = 0;
  double m_FoamingComputeParas_dRelaxPVR = 0.1;
  double m_FoamingComputeParas_dTotalRelaxPVR = 0.01;
  int m_FoamingComputeParas_iIsGasConcByConvection = 0;
  double m_FoamingComputeParas_dFillVol_cri = 0.0;
  int m_FoamingComputeParas_iBreakFoamingCalc = 0;
  double m_FoamingComputeParas_dStartFoamingTime = 0.0;
  double m_FoamingComputeParas_dPolyRatioLimit = 0.6;
  double m_FoamingComputeParas_dMaxNumDensity = 100000.0;
  double m_FoamingComputeParas_dMaxBubbleSize = 0.0005;
  double m_FoamingComputeParas_dMinBubbleSize = 5e-10;
};
