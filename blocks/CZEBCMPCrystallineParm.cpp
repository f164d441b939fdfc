#include "blocks/CZEBCMPCrystallineParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCrystallineParm)

ZEB_GETTERS(CZEBCMPCrystallineParm, iFlagDebug, iFlagIsPlotDynamic, PlotStartTemper, PlotEndTemper, PlotQ, PlotStress,
            PlotPressure, iCrystalModel, dParm_n, dParm_n_2nd, dU_activeEenergy, dU_activeEenergy_2nd,
            dHalfCrystallTime_0, dHalfCrystallTime_0_2nd, dSpheruliteGrowthRate, dSpheruliteGrowthRate_2nd)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCrystallineParm>() {
  using T = CZEBCMPCrystallineParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iFlagDebug), .key = "FlagDebug", .tabs = 3, .known = "Debug flag."},
      {ZEB_FIELD(iFlagIsPlotDynamic), .key = "FlagIsPlotDynamic", .tabs = 1, .doc = "Switch: dynamic plot."},
      {ZEB_FIELD(PlotStartTemper), .key = "Start Temperature", .tabs = 2, .doc = "Start temperature of the plot."},
      {ZEB_FIELD(PlotEndTemper), .key = "End Temperature", .tabs = 2, .doc = "End temperature of the plot."},
      {ZEB_FIELD(PlotQ), .key = "Heat Flux Q", .tabs = 4, .doc = "Heat flux Q of the plot."},
      {ZEB_FIELD(PlotStress), .key = "Stress", .tabs = 3, .doc = "Stress of the plot."},
      {ZEB_FIELD(PlotPressure), .key = "Pressure", .tabs = 3, .doc = "Pressure of the plot."},
      {ZEB_FIELD(iCrystalModel), .key = "CrystalModel", .label = "m_iCrystalModel        = ",
       .known = "Crystallization model."},
      {ZEB_FIELD(dParm_n), .key = "Parm_n_Primary", .label = "m_dParm_n              = ",
       .doc = "Parameter n of the primary crystallization."},
      {ZEB_FIELD(dParm_n_2nd), .key = "Parm_n_Secondary", .label = "m_dParm_n_2nd          = ",
       .doc = "Parameter n of the secondary crystallization."},
      {ZEB_FIELD(dU_activeEenergy), .key = "Parm_Ustar_Primary", .label = "m_dU_activeEenergy     = ",
       .doc = "Activation energy U* of the primary crystallization."},
      {ZEB_FIELD(dU_activeEenergy_2nd), .key = "Parm_Ustar_Secondary", .tabs = kOneSpace,
       .doc = "Activation energy U* of the secondary crystallization."},
      {ZEB_FIELD(dHalfCrystallTime_0), .key = "Parm_K0_Primary", .label = "m_dHalfCrystallTime_0  = ",
       .doc = "Parameter K0 (half-crystallization time) of the primary crystallization."},
      {ZEB_FIELD(dHalfCrystallTime_0_2nd), .key = "Parm_K0_Secondary", .label = "m_dHalfCrystallTime_0_2nd   = ",
       .doc = "Parameter K0 (half-crystallization time) of the secondary crystallization."},
      {ZEB_FIELD(dSpheruliteGrowthRate), .key = "Parm_Kg_Primary", .label = "m_dSpheruliteGrowthRate     = ",
       .doc = "Parameter Kg (spherulite growth rate) of the primary crystallization."},
      {ZEB_FIELD(dSpheruliteGrowthRate_2nd), .key = "Parm_Kg_Secondary", .tabs = kOneSpace,
       .doc = "Parameter Kg (spherulite growth rate) of the secondary crystallization."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Crystalline", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Crystalline Parameters---------");
  return kTable;
}
