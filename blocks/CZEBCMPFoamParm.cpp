// The four foam sections: keys, dump lines and meanings.
#include "blocks/CZEBCMPFoamParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFoamParm)

ZEB_GETTERS(CZEBCMPFoamParm, PLOT_DYNAMIC_iFlagIsPlotDynamic, PLOT_DYNAMIC_dStartTime, PLOT_DYNAMIC_dEndTime,
            PLOT_DYNAMIC_dStartAmbientPres, PLOT_DYNAMIC_dPresuReleaseRate, PLOT_DYNAMIC_dTemperature,
            PLOT_DYNAMIC_dViscosity, DEBUG_iFlagDebug, MuCell_Pro_dCounter_Pressure,
            MuCell_Pro_dCounter_P_SwitchPercent, FoamingComputeParas_iIsDiffCoeDependTemper,
            FoamingComputeParas_iIsSetMaxBubPres, FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate,
            FoamingComputeParas_iIsDrhoDpDependBubGrowth, FoamingComputeParas_iIsComputeMucellOnWallCell,
            FoamingComputeParas_dRelaxPVR, FoamingComputeParas_dTotalRelaxPVR,
            FoamingComputeParas_iIsGasConcByConvection, FoamingComputeParas_dFillVol_cri,
            FoamingComputeParas_iBreakFoamingCalc, FoamingComputeParas_dStartFoamingTime,
            FoamingComputeParas_dPolyRatioLimit, FoamingComputeParas_dMaxNumDensity, FoamingComputeParas_dMaxBubbleSize,
            FoamingComputeParas_dMinBubbleSize)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFoamParm>() {
  using T = CZEBCMPFoamParm;
  // clang-format off
  static constexpr Row kPlotDynamicRows[] = {
      {ZEB_FIELD(PLOT_DYNAMIC_iFlagIsPlotDynamic), .key = "FlagIsPlotDynamic", .tabs = kOneSpace,
       .doc = "Switch: dynamic plot of the foaming."},
      {ZEB_FIELD(PLOT_DYNAMIC_dStartTime), .key = "StartTime", .tabs = kOneSpace,
       .doc = "Start time of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dEndTime), .key = "EndTime", .tabs = kOneSpace, .doc = "End time of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dStartAmbientPres), .key = "StartAmbientPres", .tabs = kOneSpace,
       .doc = "Ambient pressure at the start of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dPresuReleaseRate), .key = "PresuReleaseRate", .tabs = kOneSpace,
       .doc = "Pressure release rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dTemperature), .key = "Temperature", .tabs = kOneSpace,
       .doc = "Temperature of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dViscosity), .key = "Viscosity", .tabs = kOneSpace,
       .doc = "Viscosity of the dynamic plot."},
  };
  static constexpr Row kDebugRows[] = {
      {ZEB_FIELD(DEBUG_iFlagDebug), .key = "FlagDebug", .tabs = kOneSpace, .doc = "Switch: debugging of the foaming."},
  };
  static constexpr Row kMuCellProRows[] = {
      {ZEB_FIELD(MuCell_Pro_dCounter_Pressure), .key = "Counter_Pressure", .tabs = kOneSpace,
       .doc = "Counter pressure."},
      {ZEB_FIELD(MuCell_Pro_dCounter_P_SwitchPercent), .key = "Counter_P_SwitchPercent", .tabs = kOneSpace,
       .known = "Share at which the counter pressure switches."},
  };
  static constexpr Row kComputeRows[] = {
      {ZEB_FIELD(FoamingComputeParas_iIsDiffCoeDependTemper), .key = "m_iIsDiffCoeDependTemper", .tabs = kOneSpace,
       .doc = "Switch: the diffusion coefficient depends on the temperature."},
      {ZEB_FIELD(FoamingComputeParas_iIsSetMaxBubPres), .key = "m_iIsSetMaxBubPres", .tabs = kOneSpace,
       .doc = "Switch: a largest bubble pressure is set."},
      {ZEB_FIELD(FoamingComputeParas_m_iIsCorrPresAmbAsBubNucleate), .key = "m_iIsCorrPresAmbAsBubNucleate",
       .tabs = kOneSpace,
       .doc = "Switch: the ambient pressure is corrected as bubbles nucleate."},
      {ZEB_FIELD(FoamingComputeParas_iIsDrhoDpDependBubGrowth), .key = "m_iIsDrhoDpDependBubGrowth", .tabs = kOneSpace,
       .doc = "Switch: the change of density with pressure depends on the bubble growth."},
      {ZEB_FIELD(FoamingComputeParas_iIsComputeMucellOnWallCell), .key = "m_iIsComputeMucellOnWallCell",
       .tabs = kOneSpace,
       .doc = "Switch: foaming is computed in wall cells."},
      {ZEB_FIELD(FoamingComputeParas_dRelaxPVR), .key = "m_RelaxPVR", .tabs = kOneSpace, .known = "Relaxation of PVR."},
      {ZEB_FIELD(FoamingComputeParas_dTotalRelaxPVR), .key = "m_TotalRelaxPVR", .tabs = kOneSpace,
       .known = "Total relaxation of PVR."},
      {ZEB_FIELD(FoamingComputeParas_iIsGasConcByConvection), .key = "m_iIsGasConcByConvection", .tabs = kOneSpace,
       .doc = "Switch: the gas concentration follows from convection."},
      {ZEB_FIELD(FoamingComputeParas_dFillVol_cri), .key = "FillVol_cri", .tabs = kOneSpace,
       .known = "Critical filled volume."},
      {ZEB_FIELD(FoamingComputeParas_iBreakFoamingCalc), .key = "m_iBreakFoamingCalc", .tabs = kOneSpace,
       .known = "Break of the foaming calculation."},
      {ZEB_FIELD(FoamingComputeParas_dStartFoamingTime), .key = "m_dStartFoamingTime", .tabs = kOneSpace,
       .doc = "Start time of the foaming."},
      {ZEB_FIELD(FoamingComputeParas_dPolyRatioLimit), .key = "m_dPolyRatioLimit", .tabs = kOneSpace,
       .known = "Limit of the polymer ratio."},
      {ZEB_FIELD(FoamingComputeParas_dMaxNumDensity), .key = "m_MaxNumDensity", .tabs = kOneSpace,
       .doc = "Largest number density of the bubbles."},
      {ZEB_FIELD(FoamingComputeParas_dMaxBubbleSize), .key = "MaxBubbleSize", .tabs = kOneSpace,
       .doc = "Largest bubble size."},
      {ZEB_FIELD(FoamingComputeParas_dMinBubbleSize), .key = "MinBubbleSize", .tabs = kOneSpace,
       .doc = "Smallest bubble size."},
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
