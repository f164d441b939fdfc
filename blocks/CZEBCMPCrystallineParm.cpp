#include "blocks/CZEBCMPCrystallineParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCrystallineParm)

int CZEBCMPCrystallineParm::iFlagDebug() const { return m_iFlagDebug; }
int CZEBCMPCrystallineParm::iFlagIsPlotDynamic() const { return m_iFlagIsPlotDynamic; }
double CZEBCMPCrystallineParm::PlotStartTemper() const { return m_PlotStartTemper; }
double CZEBCMPCrystallineParm::PlotEndTemper() const { return m_PlotEndTemper; }
double CZEBCMPCrystallineParm::PlotQ() const { return m_PlotQ; }
double CZEBCMPCrystallineParm::PlotStress() const { return m_PlotStress; }
double CZEBCMPCrystallineParm::PlotPressure() const { return m_PlotPressure; }
int CZEBCMPCrystallineParm::iCrystalModel() const { return m_iCrystalModel; }
double CZEBCMPCrystallineParm::dParm_n() const { return m_dParm_n; }
double CZEBCMPCrystallineParm::dParm_n_2nd() const { return m_dParm_n_2nd; }
double CZEBCMPCrystallineParm::dU_activeEenergy() const { return m_dU_activeEenergy; }
double CZEBCMPCrystallineParm::dU_activeEenergy_2nd() const { return m_dU_activeEenergy_2nd; }
double CZEBCMPCrystallineParm::dHalfCrystallTime_0() const { return m_dHalfCrystallTime_0; }
double CZEBCMPCrystallineParm::dHalfCrystallTime_0_2nd() const { return m_dHalfCrystallTime_0_2nd; }
double CZEBCMPCrystallineParm::dSpheruliteGrowthRate() const { return m_dSpheruliteGrowthRate; }
double CZEBCMPCrystallineParm::dSpheruliteGrowthRate_2nd() const { return m_dSpheruliteGrowthRate_2nd; }

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
      {ZEB_FIELD(dU_activeEenergy_2nd), .key = "Parm_Ustar_Secondary", .label = "m_dU_activeEenergy_2nd = ",
       .doc = "Activation energy U* of the secondary crystallization."},
      {ZEB_FIELD(dHalfCrystallTime_0), .key = "Parm_K0_Primary", .label = "m_dHalfCrystallTime_0  = ",
       .doc = "Parameter K0 (half-crystallization time) of the primary crystallization."},
      {ZEB_FIELD(dHalfCrystallTime_0_2nd), .key = "Parm_K0_Secondary", .label = "m_dHalfCrystallTime_0_2nd   = ",
       .doc = "Parameter K0 (half-crystallization time) of the secondary crystallization."},
      {ZEB_FIELD(dSpheruliteGrowthRate), .key = "Parm_Kg_Primary", .label = "m_dSpheruliteGrowthRate     = ",
       .doc = "Parameter Kg (spherulite growth rate) of the primary crystallization."},
      {ZEB_FIELD(dSpheruliteGrowthRate_2nd), .key = "Parm_Kg_Secondary", .label = "m_dSpheruliteGrowthRate_2nd = ",
       .doc = "Parameter Kg (spherulite growth rate) of the secondary crystallization."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Crystalline", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Crystalline Parameters---------");
  return kTable;
}
