// The four foam sections: keys, dump lines and meanings.
#include "blocks/CZEBCMPFoamParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFoamParm)

int CZEBCMPFoamParm::PLOT_DYNAMIC_iFlagIsPlotDynamic() const { return m_PLOT_DYNAMIC_iFlagIsPlotDynamic; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dStartTime() const { return m_PLOT_DYNAMIC_dStartTime; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dEndTime() const { return m_PLOT_DYNAMIC_dEndTime; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dStartAmbientPres() const { return m_PLOT_DYNAMIC_dStartAmbientPres; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dPresuReleaseRate() const { return m_PLOT_DYNAMIC_dPresuReleaseRate; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dTemperature() const { return m_PLOT_DYNAMIC_dTemperature; }
double CZEBCMPFoamParm::PLOT_DYNAMIC_dViscosity() const { return m_PLOT_DYNAMIC_dViscosity; }
int CZEBCMPFoamParm::DEBUG_iFlagDebug() const { return m_DEBUG_iFlagDebug; }
double CZEBCMPFoamParm::MuCell_Pro_dCounter_Pressure() const { return m_MuCell_Pro_dCounter_Pressure; }
double CZEBCMPFoamParm::MuCell_Pro_dCounter_P_SwitchPercent() const { return m_MuCell_Pro_dCounter_P_SwitchPercent; }
int CZEBCMPFoamParm::FoamingComputeParas_iIsDiffCoeDependTemper() const {
  return m_FoamingComputeParas_iIsDiffCoeDependTemper;
}
int CZEBCMPFoamParm::FoamingComputeParas_iIsSetMaxBubPres() const { return m_FoamingComputeParas_iIsSetMaxBubPres; }
int CZEBCMPFoamParm::FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate() const {
  return m_FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate;
}
int CZEBCMPFoamParm::FoamingComputeParas_iIsDrhoDpDependBubGrowth() const {
  return m_FoamingComputeParas_iIsDrhoDpDependBubGrowth;
}
int CZEBCMPFoamParm::FoamingComputeParas_iIsComputeMucellOnWallCell() const {
  return m_FoamingComputeParas_iIsComputeMucellOnWallCell;
}
double CZEBCMPFoamParm::FoamingComputeParas_dRelaxPVR() const { return m_FoamingComputeParas_dRelaxPVR; }
double CZEBCMPFoamParm::FoamingComputeParas_dTotalRelaxPVR() const { return m_FoamingComputeParas_dTotalRelaxPVR; }
int CZEBCMPFoamParm::FoamingComputeParas_iIsGasConcByConvection() const {
  return m_FoamingComputeParas_iIsGasConcByConvection;
}
double CZEBCMPFoamParm::FoamingComputeParas_dFillVol_cri() const { return m_FoamingComputeParas_dFillVol_cri; }
int CZEBCMPFoamParm::FoamingComputeParas_iBreakFoamingCalc() const { return m_FoamingComputeParas_iBreakFoamingCalc; }
double CZEBCMPFoamParm::FoamingComputeParas_dStartFoamingTime() const {
  return m_FoamingComputeParas_dStartFoamingTime;
}
double CZEBCMPFoamParm::FoamingComputeParas_dPolyRatioLimit() const { return m_FoamingComputeParas_dPolyRatioLimit; }
double CZEBCMPFoamParm::FoamingComputeParas_dMaxNumDensity() const { return m_FoamingComputeParas_dMaxNumDensity; }
double CZEBCMPFoamParm::FoamingComputeParas_dMaxBubbleSize() const { return m_FoamingComputeParas_dMaxBubbleSize; }
double CZEBCMPFoamParm::FoamingComputeParas_dMinBubbleSize() const { return m_FoamingComputeParas_dMinBubbleSize; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFoamParm>() {
  using T = CZEBCMPFoamParm;
  // clang-format off
  static constexpr Row kPlotDynamicRows[] = {
      {ZEB_FIELD(PLOT_DYNAMIC_iFlagIsPlotDynamic), .key = "FlagIsPlotDynamic",
       .label = "m_PLOT_DYNAMIC_iFlagIsPlotDynamic = ", .doc = "Switch: dynamic plot of the foaming."},
      {ZEB_FIELD(PLOT_DYNAMIC_dStartTime), .key = "StartTime", .label = "m_PLOT_DYNAMIC_dStartTime = ",
       .doc = "Start time of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dEndTime), .key = "EndTime", .label = "m_PLOT_DYNAMIC_dEndTime = ",
       .doc = "End time of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dStartAmbientPres), .key = "StartAmbientPres",
       .label = "m_PLOT_DYNAMIC_dStartAmbientPres = ", .doc = "Ambient pressure at the start of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dPresuReleaseRate), .key = "PresuReleaseRate",
       .label = "m_PLOT_DYNAMIC_dPresuReleaseRate = ", .doc = "Pressure release rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dTemperature), .key = "Temperature", .label = "m_PLOT_DYNAMIC_dTemperature = ",
       .doc = "Temperature of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dViscosity), .key = "Viscosity", .label = "m_PLOT_DYNAMIC_dViscosity = ",
       .doc = "Viscosity of the dynamic plot."},
  };
  static constexpr Row kDebugRows[] = {
      {ZEB_FIELD(DEBUG_iFlagDebug), .key = "FlagDebug", .label = "m_DEBUG_iFlagDebug = ",
       .doc = "Switch: debugging of the foaming."},
  };
  static constexpr Row kMuCellProRows[] = {
      {ZEB_FIELD(MuCell_Pro_dCounter_Pressure), .key = "Counter_Pressure", .label = "m_MuCell_Pro_dCounter_Pressure = ",
       .doc = "Counter pressure."},
      {ZEB_FIELD(MuCell_Pro_dCounter_P_SwitchPercent), .key = "Counter_P_SwitchPercent",
       .label = "m_MuCell_Pro_dCounter_P_SwitchPercent = ", .known = "Share at which the counter pressure switches."},
  };
  static constexpr Row kComputeRows[] = {
      {ZEB_FIELD(FoamingComputeParas_iIsDiffCoeDependTemper), .key = "m_iIsDiffCoeDependTemper",
       .label = "m_FoamingComputeParas_iIsDiffCoeDependTemper = ",
       .doc = "Switch: the diffusion coefficient depends on the temperature."},
      {ZEB_FIELD(FoamingComputeParas_iIsSetMaxBubPres), .key = "m_iIsSetMaxBubPres",
       .label = "m_FoamingComputeParas_iIsSetMaxBubPres = ", .doc = "Switch: a largest bubble pressure is set."},
      {ZEB_FIELD(FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate), .key = "m_iIsCorrPresAmbAsBubNucleate",
       .label = "m_FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate = ",
       .doc = "Switch: the ambient pressure is corrected as bubbles nucleate."},
      {ZEB_FIELD(FoamingComputeParas_iIsDrhoDpDependBubGrowth), .key = "m_iIsDrhoDpDependBubGrowth",
       .label = "m_FoamingComputeParas_iIsDrhoDpDependBubGrowth = ",
       .doc = "Switch: the change of density with pressure depends on the bubble growth."},
      {ZEB_FIELD(FoamingComputeParas_iIsComputeMucellOnWallCell), .key = "m_iIsComputeMucellOnWallCell",
       .label = "m_FoamingComputeParas_iIsComputeMucellOnWallCell = ",
       .doc = "Switch: foaming is computed in wall cells."},
      {ZEB_FIELD(FoamingComputeParas_dRelaxPVR), .key = "m_RelaxPVR", .label = "m_FoamingComputeParas_dRelaxPVR = ",
       .known = "Relaxation of PVR."},
      {ZEB_FIELD(FoamingComputeParas_dTotalRelaxPVR), .key = "m_TotalRelaxPVR",
       .label = "m_FoamingComputeParas_dTotalRelaxPVR = ", .known = "Total relaxation of PVR."},
      {ZEB_FIELD(FoamingComputeParas_iIsGasConcByConvection), .key = "m_iIsGasConcByConvection",
       .label = "m_FoamingComputeParas_iIsGasConcByConvection = ",
       .doc = "Switch: the gas concentration follows from convection."},
      {ZEB_FIELD(FoamingComputeParas_dFillVol_cri), .key = "FillVol_cri",
       .label = "m_FoamingComputeParas_dFillVol_cri = ", .known = "Critical filled volume."},
      {ZEB_FIELD(FoamingComputeParas_iBreakFoamingCalc), .key = "m_iBreakFoamingCalc",
       .label = "m_FoamingComputeParas_iBreakFoamingCalc = ", .known = "Break of the foaming calculation."},
      {ZEB_FIELD(FoamingComputeParas_dStartFoamingTime), .key = "m_dStartFoamingTime",
       .label = "m_FoamingComputeParas_dStartFoamingTime = ", .doc = "Start time of the foaming."},
      {ZEB_FIELD(FoamingComputeParas_dPolyRatioLimit), .key = "m_dPolyRatioLimit",
       .label = "m_FoamingComputeParas_dPolyRatioLimit = ", .known = "Limit of the polymer ratio."},
      {ZEB_FIELD(FoamingComputeParas_dMaxNumDensity), .key = "m_MaxNumDensity",
       .label = "m_FoamingComputeParas_dMaxNumDensity = ", .doc = "Largest number density of the bubbles."},
      {ZEB_FIELD(FoamingComputeParas_dMaxBubbleSize), .key = "MaxBubbleSize",
       .label = "m_FoamingComputeParas_dMaxBubbleSize = ", .doc = "Largest bubble size."},
      {ZEB_FIELD(FoamingComputeParas_dMinBubbleSize), .key = "MinBubbleSize",
       .label = "m_FoamingComputeParas_dMinBubbleSize = ", .doc = "Smallest bubble size."},
  };
  // clang-format on
  static constexpr Section kSections[] = {
      keyedSection<"Foam_PLOT_DYNAMIC", kPlotDynamicRows>(),
      keyedSection<"Mucell_DEBUG", kDebugRows>(),
      keyedSection<"Foam_MuCell_Pro", kMuCellProRows>(),
      keyedSection<"Foam_FoamingComputeParas", kComputeRows>(),
  };
  static constexpr Order<4> kDispatchOrder{"Foam_PLOT_DYNAMIC", "Foam_MuCell_Pro", "Mucell_DEBUG",
                                           "Foam_FoamingComputeParas"};
  static constexpr BlockTable kTable =
      blockTable<T, kSections, kDeclarationOrder, kDispatchOrder>("\n---------Foam Parameters---------");
  return kTable;
}
