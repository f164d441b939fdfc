// The eleven fibre sections: keys, dump lines and meanings. The first dump label has no " = ": the value follows the
// name at once.
#include "blocks/CZEBCMPFiberParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFiberParm)

int CZEBCMPFiberParm::PLOT_DYNAMIC_iFlagIsPlotDynamic() const { return m_PLOT_DYNAMIC_iFlagIsPlotDynamic; }
double CZEBCMPFiberParm::PLOT_DYNAMIC_dExtenRate() const { return m_PLOT_DYNAMIC_dExtenRate; }
double CZEBCMPFiberParm::PLOT_DYNAMIC_dShearRate() const { return m_PLOT_DYNAMIC_dShearRate; }
double CZEBCMPFiberParm::PLOT_DYNAMIC_dObserTime() const { return m_PLOT_DYNAMIC_dObserTime; }
int CZEBCMPFiberParm::FIBER_ARD_iFlagIsARD() const { return m_FIBER_ARD_iFlagIsARD; }
double CZEBCMPFiberParm::FIBER_ARD_db1() const { return m_FIBER_ARD_db1; }
double CZEBCMPFiberParm::FIBER_ARD_db2() const { return m_FIBER_ARD_db2; }
double CZEBCMPFiberParm::FIBER_ARD_db3() const { return m_FIBER_ARD_db3; }
double CZEBCMPFiberParm::FIBER_ARD_db4() const { return m_FIBER_ARD_db4; }
double CZEBCMPFiberParm::FIBER_ARD_db5() const { return m_FIBER_ARD_db5; }
int CZEBCMPFiberParm::FIBER_SLOW_iFlagIsSLOW() const { return m_FIBER_SLOW_iFlagIsSLOW; }
double CZEBCMPFiberParm::FIBER_SLOW_dk() const { return m_FIBER_SLOW_dk; }
double CZEBCMPFiberParm::FIBER_SLOW_db() const { return m_FIBER_SLOW_db; }
int CZEBCMPFiberParm::FIBER_CLOSURE_iFlagClosureMode() const { return m_FIBER_CLOSURE_iFlagClosureMode; }
int CZEBCMPFiberParm::FIBER_Breakage_iFlagBreakage() const { return m_FIBER_Breakage_iFlagBreakage; }
int CZEBCMPFiberParm::FIBER_Breakage_iFlagBreakInScrewAndNozzle() const {
  return m_FIBER_Breakage_iFlagBreakInScrewAndNozzle;
}
double CZEBCMPFiberParm::FIBER_Breakage_dShearInScrew() const { return m_FIBER_Breakage_dShearInScrew; }
double CZEBCMPFiberParm::FIBER_Breakage_dDurationInScrew() const { return m_FIBER_Breakage_dDurationInScrew; }
double CZEBCMPFiberParm::FIBER_Breakage_dShearInNozzle() const { return m_FIBER_Breakage_dShearInNozzle; }
double CZEBCMPFiberParm::FIBER_Breakage_dDurationInNozzle() const { return m_FIBER_Breakage_dDurationInNozzle; }
int CZEBCMPFiberParm::FIBER_Breakage_iFlagScrewOwnBreakSetting() const {
  return m_FIBER_Breakage_iFlagScrewOwnBreakSetting;
}
double CZEBCMPFiberParm::FIBER_Breakage_dScrewBreak_CD() const { return m_FIBER_Breakage_dScrewBreak_CD; }
double CZEBCMPFiberParm::FIBER_Breakage_dScrewBreak_CB() const { return m_FIBER_Breakage_dScrewBreak_CB; }
double CZEBCMPFiberParm::FIBER_Breakage_dScrewBreak_S() const { return m_FIBER_Breakage_dScrewBreak_S; }
int CZEBCMPFiberParm::FIBER_ImproveRPR_iFlagObjectiveARD() const { return m_FIBER_ImproveRPR_iFlagObjectiveARD; }
int CZEBCMPFiberParm::FIBER_ImproveRPR_iFlagImproveRPR() const { return m_FIBER_ImproveRPR_iFlagImproveRPR; }
double CZEBCMPFiberParm::FIBER_ImproveRPR_dra_SR() const { return m_FIBER_ImproveRPR_dra_SR; }
double CZEBCMPFiberParm::FIBER_ImproveRPR_dCI_SR() const { return m_FIBER_ImproveRPR_dCI_SR; }
double CZEBCMPFiberParm::FIBER_ImproveRPR_dra_N() const { return m_FIBER_ImproveRPR_dra_N; }
double CZEBCMPFiberParm::FIBER_ImproveRPR_dCI_N() const { return m_FIBER_ImproveRPR_dCI_N; }
double CZEBCMPFiberParm::FIBER_ImproveRPR_dCI_Kappa() const { return m_FIBER_ImproveRPR_dCI_Kappa; }
int CZEBCMPFiberParm::FIBER_InletCondition_iInletCondition() const { return m_FIBER_InletCondition_iInletCondition; }
double CZEBCMPFiberParm::FIBER_InletCondition_da0() const { return m_FIBER_InletCondition_da0; }
double CZEBCMPFiberParm::FIBER_InletCondition_da1() const { return m_FIBER_InletCondition_da1; }
double CZEBCMPFiberParm::FIBER_InletCondition_da2() const { return m_FIBER_InletCondition_da2; }
double CZEBCMPFiberParm::FIBER_InletCondition_da3() const { return m_FIBER_InletCondition_da3; }
double CZEBCMPFiberParm::FIBER_InletCondition_da4() const { return m_FIBER_InletCondition_da4; }
double CZEBCMPFiberParm::FIBER_InletCondition_da5() const { return m_FIBER_InletCondition_da5; }
int CZEBCMPFiberParm::FIBER_FlowCoupling_iFlowCoupling() const { return m_FIBER_FlowCoupling_iFlowCoupling; }
double CZEBCMPFiberParm::FIBER_FlowCoupling_dCof_N() const { return m_FIBER_FlowCoupling_dCof_N; }
double CZEBCMPFiberParm::FIBER_FlowCoupling_dCof_C1() const { return m_FIBER_FlowCoupling_dCof_C1; }
int CZEBCMPFiberParm::FIBER_FlowCoupling_iFixedFiberOrientation() const {
  return m_FIBER_FlowCoupling_iFixedFiberOrientation;
}
int CZEBCMPFiberParm::FIBER_FlowCoupling_iExcludeRunner() const { return m_FIBER_FlowCoupling_iExcludeRunner; }
double CZEBCMPFiberParm::FIBER_FlowCoupling_dAxx() const { return m_FIBER_FlowCoupling_dAxx; }
double CZEBCMPFiberParm::FIBER_FlowCoupling_dAyy() const { return m_FIBER_FlowCoupling_dAyy; }
double CZEBCMPFiberParm::FIBER_FlowCoupling_dAzz() const { return m_FIBER_FlowCoupling_dAzz; }
int CZEBCMPFiberParm::FIBER_DEBUG_iFlagDebug() const { return m_FIBER_DEBUG_iFlagDebug; }
double CZEBCMPFiberParm::FIBER_DEBUG_dSmallGradVRatio() const { return m_FIBER_DEBUG_dSmallGradVRatio; }
int CZEBCMPFiberParm::FIBER_COMPUPARAS_iBreakTransIter() const { return m_FIBER_COMPUPARAS_iBreakTransIter; }
int CZEBCMPFiberParm::FIBER_COMPUPARAS_iBreakIntegralIter() const { return m_FIBER_COMPUPARAS_iBreakIntegralIter; }
double CZEBCMPFiberParm::FIBER_COMPUPARAS_dBreakTransMatrixToler() const {
  return m_FIBER_COMPUPARAS_dBreakTransMatrixToler;
}
int CZEBCMPFiberParm::FIBER_COMPUPARAS_iBreakTransMatrixIter() const {
  return m_FIBER_COMPUPARAS_iBreakTransMatrixIter;
}
double CZEBCMPFiberParm::FIBER_LENGTH_DISTRIBUTION_dMean() const { return m_FIBER_LENGTH_DISTRIBUTION_dMean; }
double CZEBCMPFiberParm::FIBER_LENGTH_DISTRIBUTION_dVariance() const { return m_FIBER_LENGTH_DISTRIBUTION_dVariance; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFiberParm>() {
  using T = CZEBCMPFiberParm;
  // clang-format off
  static constexpr Row kPlotDynamicRows[] = {
      {ZEB_FIELD(PLOT_DYNAMIC_iFlagIsPlotDynamic), .key = "FlagIsPlotDynamic",
       .label = "m_PLOT_DYNAMIC_iFlagIsPlotDynamic", .doc = "Switch: dynamic plot of the fibre models."},
      {ZEB_FIELD(PLOT_DYNAMIC_dExtenRate), .key = "ExtenRate", .label = "m_PLOT_DYNAMIC_dExtenRate = ",
       .doc = "Reference extension rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dShearRate), .key = "ShearRate", .label = "m_PLOT_DYNAMIC_dShearRate = ",
       .doc = "Reference shear rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dObserTime), .key = "ObserTime", .label = "m_PLOT_DYNAMIC_dObserTime = ",
       .doc = "Observation time of the dynamic plot."},
  };
  static constexpr Row kArdRows[] = {
      {ZEB_FIELD(FIBER_ARD_iFlagIsARD), .key = "FlagIsARD", .label = "m_FIBER_ARD_iFlagIsARD = ",
       .doc = "Switch: ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db1), .key = "b1", .label = "m_FIBER_ARD_db1 = ",
       .doc = "Coefficient b1 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db2), .key = "b2", .label = "m_FIBER_ARD_db2 = ",
       .doc = "Coefficient b2 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db3), .key = "b3", .label = "m_FIBER_ARD_db3 = ",
       .doc = "Coefficient b3 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db4), .key = "b4", .label = "m_FIBER_ARD_db4 = ",
       .doc = "Coefficient b4 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db5), .key = "b5", .label = "m_FIBER_ARD_db5 = ",
       .doc = "Coefficient b5 of the ARD orientation model."},
  };
  static constexpr Row kSlowRows[] = {
      {ZEB_FIELD(FIBER_SLOW_iFlagIsSLOW), .key = "FlagIsSLOW", .label = "m_FIBER_SLOW_iFlagIsSLOW = ",
       .doc = "Switch: SLOW orientation model."},
      {ZEB_FIELD(FIBER_SLOW_dk), .key = "k", .label = "m_FIBER_SLOW_dk = ",
       .doc = "Coefficient k of the SLOW orientation model; every line with a letter k is taken for it."},
      {ZEB_FIELD(FIBER_SLOW_db), .key = "b", .label = "m_FIBER_SLOW_db = ",
       .doc = "Coefficient b of the SLOW orientation model; every line with a letter b is taken for it."},
  };
  static constexpr Row kClosureRows[] = {
      {ZEB_FIELD(FIBER_CLOSURE_iFlagClosureMode), .key = "FlagClosureMode",
       .label = "m_FIBER_CLOSURE_iFlagClosureMode = ", .known = "Closure mode of the orientation tensor."},
  };
  static constexpr Row kBreakageRows[] = {
      {ZEB_FIELD(FIBER_Breakage_iFlagBreakage), .key = "FlagBreakage", .label = "m_FIBER_Breakage_iFlagBreakage = ",
       .doc = "Switch: fibre breakage."},
      {ZEB_FIELD(FIBER_Breakage_iFlagBreakInScrewAndNozzle), .key = "FlagBreakInScrewAndNozzle",
       .label = "m_FIBER_Breakage_iFlagBreakInScrewAndNozzle = ", .doc = "Switch: fibre breakage in screw and nozzle."},
      {ZEB_FIELD(FIBER_Breakage_dShearInScrew), .key = "ShearInScrew", .label = "m_FIBER_Breakage_dShearInScrew = ",
       .known = "Shear of the fibres in the screw."},
      {ZEB_FIELD(FIBER_Breakage_dDurationInScrew), .key = "DurationInScrew",
       .label = "m_FIBER_Breakage_dDurationInScrew = ", .doc = "Duration of the shear in the screw."},
      {ZEB_FIELD(FIBER_Breakage_dShearInNozzle), .key = "ShearInNozzle", .label = "m_FIBER_Breakage_dShearInNozzle = ",
       .known = "Shear of the fibres in the nozzle."},
      {ZEB_FIELD(FIBER_Breakage_dDurationInNozzle), .key = "DurationInNozzle",
       .label = "m_FIBER_Breakage_dDurationInNozzle = ", .doc = "Duration of the shear in the nozzle."},
      {ZEB_FIELD(FIBER_Breakage_iFlagScrewOwnBreakSetting), .key = "FlagScrewOwnBreakSetting",
       .label = "m_FIBER_Breakage_iFlagScrewOwnBreakSetting = ",
       .doc = "Switch: the screw has breakage coefficients of its own."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_CD), .key = "ScrewBreak_CD", .label = "m_FIBER_Breakage_dScrewBreak_CD = ",
       .doc = "Breakage coefficient CD of the screw."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_CB), .key = "ScrewBreak_CB", .label = "m_FIBER_Breakage_dScrewBreak_CB = ",
       .doc = "Breakage coefficient CB of the screw."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_S), .key = "ScrewBreak_S", .label = "m_FIBER_Breakage_dScrewBreak_S = ",
       .doc = "Breakage coefficient S of the screw."},
  };
  static constexpr Row kImproveRprRows[] = {
      {ZEB_FIELD(FIBER_ImproveRPR_iFlagObjectiveARD), .key = "FlagObjectiveARD",
       .label = "m_FIBER_ImproveRPR_iFlagObjectiveARD = ", .doc = "Switch: objective ARD in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_iFlagImproveRPR), .key = "FlagImproveRPR",
       .label = "m_FIBER_ImproveRPR_iFlagImproveRPR = ", .doc = "Switch: improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dra_SR), .key = "ra_SR", .label = "m_FIBER_ImproveRPR_dra_SR = ",
       .known = "Shear rate of ra in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_SR), .key = "CI_SR", .label = "m_FIBER_ImproveRPR_dCI_SR = ",
       .known = "Shear rate of CI in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dra_N), .key = "ra_N", .label = "m_FIBER_ImproveRPR_dra_N = ",
       .known = "Exponent of ra in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_N), .key = "CI_N", .label = "m_FIBER_ImproveRPR_dCI_N = ",
       .known = "Exponent of CI in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_Kappa), .key = "CI_Kappa", .label = "m_FIBER_ImproveRPR_dCI_Kappa = ",
       .known = "Coefficient kappa of CI in the improved RPR model."},
  };
  static constexpr Row kInletConditionRows[] = {
      {ZEB_FIELD(FIBER_InletCondition_iInletCondition), .key = "InletCondition",
       .label = "m_FIBER_InletCondition_iInletCondition = ", .known = "Option of the fibre orientation at the inlet."},
      {ZEB_FIELD(FIBER_InletCondition_da0), .key = "a0", .label = "m_FIBER_InletCondition_da0 = ",
       .doc = "Coefficient a0 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da1), .key = "a1", .label = "m_FIBER_InletCondition_da1 = ",
       .doc = "Coefficient a1 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da2), .key = "a2", .label = "m_FIBER_InletCondition_da2 = ",
       .doc = "Coefficient a2 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da3), .key = "a3", .label = "m_FIBER_InletCondition_da3 = ",
       .doc = "Coefficient a3 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da4), .key = "a4", .label = "m_FIBER_InletCondition_da4 = ",
       .doc = "Coefficient a4 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da5), .key = "a5", .label = "m_FIBER_InletCondition_da5 = ",
       .doc = "Coefficient a5 of the inlet orientation polynomial."},
  };
  static constexpr Row kFlowCouplingRows[] = {
      {ZEB_FIELD(FIBER_FlowCoupling_iFlowCoupling), .key = "FlowCoupling",
       .label = "m_FIBER_FlowCoupling_iFlowCoupling = ", .doc = "Switch: coupling of flow and fibre orientation."},
      {ZEB_FIELD(FIBER_FlowCoupling_dCof_N), .key = "Cof_N", .label = "m_FIBER_FlowCoupling_dCof_N = ",
       .doc = "Coefficient N of the flow coupling."},
      {ZEB_FIELD(FIBER_FlowCoupling_dCof_C1), .key = "Cof_C1", .label = "m_FIBER_FlowCoupling_dCof_C1 = ",
       .doc = "Coefficient C1 of the flow coupling."},
      {ZEB_FIELD(FIBER_FlowCoupling_iFixedFiberOrientation), .key = "FixedFiberOrientation",
       .label = "m_FIBER_FlowCoupling_iFixedFiberOrientation = ",
       .doc = "Switch: flow coupling with a fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_iExcludeRunner), .key = "ExcludeRunner",
       .label = "m_FIBER_FlowCoupling_iExcludeRunner = ", .doc = "Switch: flow coupling leaves the runner out."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAxx), .key = "Axx", .label = "m_FIBER_FlowCoupling_dAxx = ",
       .doc = "Component xx of the fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAyy), .key = "Ayy", .label = "m_FIBER_FlowCoupling_dAyy = ",
       .doc = "Component yy of the fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAzz), .key = "Azz", .label = "m_FIBER_FlowCoupling_dAzz = ",
       .doc = "Component zz of the fixed orientation tensor."},
  };
  static constexpr Row kDebugRows[] = {
      {ZEB_FIELD(FIBER_DEBUG_iFlagDebug), .key = "FlagDebug", .label = "m_FIBER_DEBUG_iFlagDebug = ",
       .doc = "Switch: debugging of the fibre models."},
      {ZEB_FIELD(FIBER_DEBUG_dSmallGradVRatio), .key = "SmallGradVRatio", .label = "m_FIBER_DEBUG_dSmallGradVRatio = ",
       .known = "Ratio for small velocity gradients."},
  };
  static constexpr Row kCompuParasRows[] = {
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakTransIter), .key = "BreakTransIter",
       .label = "m_FIBER_COMPUPARAS_iBreakTransIter = ", .doc = "Iterations of the breakage transport."},
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakIntegralIter), .key = "BreakIntegralIter",
       .label = "m_FIBER_COMPUPARAS_iBreakIntegralIter = ", .doc = "Iterations of the breakage integral."},
      {ZEB_FIELD(FIBER_COMPUPARAS_dBreakTransMatrixToler), .key = "BreakTransMatrixToler",
       .label = "m_FIBER_COMPUPARAS_dBreakTransMatrixToler = ",
       .doc = "Tolerance of the matrix solver for the breakage transport."},
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakTransMatrixIter), .key = "BreakTransMatrixIter",
       .label = "m_FIBER_COMPUPARAS_iBreakTransMatrixIter = ",
       .doc = "Iterations of the matrix solver for the breakage transport."},
  };
  static constexpr Row kLengthDistributionRows[] = {
      {ZEB_FIELD(FIBER_LENGTH_DISTRIBUTION_dMean), .key = "Mean", .label = "m_FIBER_LENGTH_DISTRIBUTION_dMean = ",
       .doc = "Mean of the fibre length distribution."},
      {ZEB_FIELD(FIBER_LENGTH_DISTRIBUTION_dVariance), .key = "Variance",
       .label = "m_FIBER_LENGTH_DISTRIBUTION_dVariance = ", .doc = "Variance of the fibre length distribution."},
  };
  // clang-format on
  static constexpr Section kSections[] = {
      keyedSection<"FIBER_PLOT_DYNAMIC", kPlotDynamicRows, kDeclarationOrder, "PLOT_DYNAMIC">(),
      keyedSection<"FIBER_ARD", kArdRows>(),
      keyedSection<"FIBER_SLOW", kSlowRows>(),
      keyedSection<"FIBER_CLOSURE", kClosureRows>(),
      keyedSection<"FIBER_Breakage", kBreakageRows>(),
      keyedSection<"FIBER_ImproveRPR", kImproveRprRows>(),
      keyedSection<"FIBER_InletCondition", kInletConditionRows>(),
      keyedSection<"FIBER_FlowCoupling", kFlowCouplingRows>(),
      keyedSection<"FIBER_DEBUG", kDebugRows>(),
      keyedSection<"FIBER_COMPUPARAS", kCompuParasRows>(),
      keyedSection<"FIBER_LENGTH_DISTRIBUTION", kLengthDistributionRows>(),
  };
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Fiber Parameters---------");
  return kTable;
}
