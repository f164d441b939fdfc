#include "blocks/CZEBCMPViscositySetting2Parm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPViscositySetting2Parm)

ZEB_GETTERS(CZEBCMPViscositySetting2Parm, dMaxVis, dMinVis, dMaxSR, dMinSR, dHighTemp_Tmp, dHighTemp_Slp, dHighTemp_SR,
            iEvaluateAirVis, iEvaluateAirTemperature, dLowVisT, dLowVisSR, dLowVisRatio, dAirK, dAirCp, dAirDen,
            iEvaluateMeltFrontVis, iVOFSmoothTimes, dAirVisFrontierVOF, dFrontierEquivalentSR, dRatio_Conx_GelPoint,
            iIsNewThermoSetHBModel, dLCP_SR_LowerBound, dLCP_SR_UpperBound, dLCP_SR_vs_Visc_Ratio,
            dLCP_SR_Change_Tm_Slope_Ratio)

void CZEBCMPViscositySetting2Parm::SetLowVisT(double value) { m_dLowVisT = value; }
void CZEBCMPViscositySetting2Parm::SetLowVisSR(double value) { m_dLowVisSR = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPViscositySetting2Parm>() {
  using T = CZEBCMPViscositySetting2Parm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dMaxVis), .key = "MaxVis", .tabs = 7, .doc = "Upper limit of the viscosity."},
      {ZEB_FIELD(dMinVis), .key = "MinVis", .tabs = 7, .doc = "Lower limit of the viscosity."},
      {ZEB_FIELD(dMaxSR), .key = "MaxSR", .tabs = 7, .doc = "Upper limit of the shear rate."},
      {ZEB_FIELD(dMinSR), .key = "MinSR", .tabs = 7, .doc = "Lower limit of the shear rate."},
      {ZEB_FIELD(dHighTemp_Tmp), .key = "HighTemp_Tmp", .tabs = 5,
       .known = "Temperature of the high-temperature treatment."},
      {ZEB_FIELD(dHighTemp_Slp), .key = "HighTemp_Slp", .tabs = 5, .known = "Slope of the high-temperature treatment."},
      {ZEB_FIELD(dHighTemp_SR), .key = "HighTemp_SR", .tabs = 6,
       .known = "Shear rate of the high-temperature treatment."},
      {ZEB_FIELD(iEvaluateAirVis), .key = "EvaluateAirVis", .tabs = 5, .known = "Evaluation of the air viscosity."},
      {ZEB_FIELD(iEvaluateAirTemperature), .key = "EvaluateAirTemperature", .tabs = 3,
       .known = "Evaluation of the air temperature."},
      {ZEB_FIELD(dLowVisT), .key = "LowVisT", .tabs = 7, .known = "Temperature of the low-viscosity treatment."},
      {ZEB_FIELD(dLowVisSR), .key = "LowVisSR", .tabs = 6, .known = "Shear rate of the low-viscosity treatment."},
      {ZEB_FIELD(dLowVisRatio), .key = "LowVisRatio", .known = "Ratio of the low-viscosity treatment."},
      {ZEB_FIELD(dAirK), .key = "AirK", .tabs = 7, .doc = "Thermal conductivity of the air."},
      {ZEB_FIELD(dAirCp), .key = "AirCp", .tabs = 7, .doc = "Heat capacity of the air."},
      {ZEB_FIELD(dAirDen), .key = "AirDen", .tabs = 7, .doc = "Density of the air."},
      {ZEB_FIELD(iEvaluateMeltFrontVis), .key = "EvaluateMeltFrontVis", .tabs = 3,
       .known = "Evaluation of the melt-front viscosity."},
      {ZEB_FIELD(iVOFSmoothTimes), .key = "VOFSmoothTimes", .tabs = 5,
       .doc = "Number of smoothings of the volume fraction."},
      {ZEB_FIELD(dAirVisFrontierVOF), .key = "AirVisFrontierVOF", .tabs = 4,
       .known = "Volume fraction at the frontier of the air viscosity."},
      {ZEB_FIELD(dFrontierEquivalentSR), .key = "FrontierEquivalentSR", .tabs = 3,
       .known = "Equivalent shear rate at the frontier."},
      {ZEB_FIELD(dRatio_Conx_GelPoint), .key = "Ratio_Conx_GelPoint",
       .rule = {.replace = {above(0.999999, 0.999999), below(1e-6, 1e-6)}}, .tabs = 4,
       .doc = "Ratio of Conx to the gel point. Meaning defined by the solver. Bounded when read: 1e-6 to 0.999999."},
      {ZEB_FIELD(iIsNewThermoSetHBModel), .key = "NewThermoSetHBModel", .tabs = 3,
       .doc = "Switch: new HB model of thermosets."},
      {ZEB_FIELD(dLCP_SR_LowerBound), .key = "LCP_SR_LowerBound", .echo = {"LCP_SR_LowerBound = "}, .tabs = 4,
       .doc = "Lower bound of the LCP shear rate."},
      {ZEB_FIELD(dLCP_SR_UpperBound), .key = "LCP_SR_UpperBound", .echo = {"LCP_SR_UpperBound = "}, .tabs = 4,
       .doc = "Upper bound of the LCP shear rate."},
      {ZEB_FIELD(dLCP_SR_vs_Visc_Ratio), .key = "LCP_SR_vs_Visc_Ratio", .echo = {"LCP_SR_vs_Visc_Ratio = "}, .tabs = 3,
       .known = "LCP ratio of shear rate versus viscosity."},
      {ZEB_FIELD(dLCP_SR_Change_Tm_Slope_Ratio), .key = "LCP_SR_Change_Tm_Slope_Ratio",
       .echo = {"LCP_SR_Change_Tm_Slope_Ratio = "}, .tabs = 1, .known = "LCP ratio of the slope at the change of Tm."},
  };
  static constexpr Order<25> kReadingOrder{
      "MaxVis", "MinVis", "HighTemp_Tmp", "HighTemp_Slp", "HighTemp_SR", "EvaluateAirVis", "EvaluateAirTemperature",
      "LowVisT", "LowVisSR", "LowVisRatio", "AirK", "AirCp", "AirDen", "EvaluateMeltFrontVis", "VOFSmoothTimes",
      "AirVisFrontierVOF", "FrontierEquivalentSR", "Ratio_Conx_GelPoint", "LCP_SR_LowerBound", "LCP_SR_UpperBound",
      "LCP_SR_vs_Visc_Ratio", "LCP_SR_Change_Tm_Slope_Ratio", "MinSR", "MaxSR", "NewThermoSetHBModel"};
  static constexpr Order<24> kDumpOrder{
      "m_dMaxVis", "m_dMinVis", "m_dMaxSR", "m_dMinSR", "m_dHighTemp_Tmp", "m_dHighTemp_Slp", "m_dHighTemp_SR",
      "m_iEvaluateAirVis", "m_iEvaluateAirTemperature", "m_dLowVisT", "m_dLowVisSR", "m_dAirK", "m_dAirCp",
      "m_dAirDen", "m_iEvaluateMeltFrontVis", "m_iVOFSmoothTimes", "m_dAirVisFrontierVOF", "m_dFrontierEquivalentSR",
      "m_dRatio_Conx_GelPoint", "m_dLCP_SR_LowerBound", "m_dLCP_SR_UpperBound", "m_dLCP_SR_vs_Visc_Ratio",
      "m_dLCP_SR_Change_Tm_Slope_Ratio", "m_iIsNewThermoSetHBModel"};
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"ViscositySetting2", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable =
      blockTable<T, kSections, kDumpOrder>("\n---------ViscositySetting2 Parameters---------");
  return kTable;
}
