// The eleven fibre sections: keys, dump lines and meanings. The first dump label has no " = ": the value follows the
// name at once.
#include "blocks/CZEBCMPFiberParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFiberParm)

ZEB_GETTERS(CZEBCMPFiberParm, PLOT_DYNAMIC_iFlagIsPlotDynamic, PLOT_DYNAMIC_dExtenRate, PLOT_DYNAMIC_dShearRate,
            PLOT_DYNAMIC_dObserTime, FIBER_ARD_iFlagIsARD, FIBER_ARD_db1, FIBER_ARD_db2, FIBER_ARD_db3, FIBER_ARD_db4,
            FIBER_ARD_db5, FIBER_SLOW_iFlagIsSLOW, FIBER_SLOW_dk, FIBER_SLOW_db, FIBER_CLOSURE_iFlagClosureMode,
            FIBER_Breakage_iFlagBreakage, FIBER_Breakage_iFlagBreakInScrewAndNozzle, FIBER_Breakage_dShearInScrew,
            FIBER_Breakage_dDurationInScrew, FIBER_Breakage_dShearInNozzle, FIBER_Breakage_dDurationInNozzle,
            FIBER_Breakage_iFlagScrewOwnBreakSetting, FIBER_Breakage_dScrewBreak_CD, FIBER_Breakage_dScrewBreak_CB,
            FIBER_Breakage_dScrewBreak_S, FIBER_ImproveRPR_iFlagObjectiveARD, FIBER_ImproveRPR_iFlagImproveRPR,
            FIBER_ImproveRPR_dra_SR, FIBER_ImproveRPR_dCI_SR, FIBER_ImproveRPR_dra_N, FIBER_ImproveRPR_dCI_N,
            FIBER_ImproveRPR_dCI_Kappa, FIBER_InletCondition_iInletCondition, FIBER_InletCondition_da0,
            FIBER_InletCondition_da1, FIBER_InletCondition_da2, FIBER_InletCondition_da3, FIBER_InletCondition_da4,
            FIBER_InletCondition_da5, FIBER_FlowCoupling_iFlowCoupling, FIBER_FlowCoupling_dCof_N,
            FIBER_FlowCoupling_dCof_C1, FIBER_FlowCoupling_iFixedFiberOrientation, FIBER_FlowCoupling_iExcludeRunner,
            FIBER_FlowCoupling_dAxx, FIBER_FlowCoupling_dAyy, FIBER_FlowCoupling_dAzz, FIBER_DEBUG_iFlagDebug,
            FIBER_DEBUG_dSmallGradVRatio, FIBER_COMPUPARAS_iBreakTransIter, FIBER_COMPUPARAS_iBreakIntegralIter,
            FIBER_COMPUPARAS_dBreakTransMatrixToler, FIBER_COMPUPARAS_iBreakTransMatrixIter,
            FIBER_LENGTH_DISTRIBUTION_dMean, FIBER_LENGTH_DISTRIBUTION_dVariance)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFiberParm>() {
  using T = CZEBCMPFiberParm;
  // clang-format off
  static constexpr Row kPlotDynamicRows[] = {
      {ZEB_FIELD(PLOT_DYNAMIC_iFlagIsPlotDynamic), .key = "FlagIsPlotDynamic",
       .label = "m_PLOT_DYNAMIC_iFlagIsPlotDynamic", .doc = "Switch: dynamic plot of the fibre models."},
      {ZEB_FIELD(PLOT_DYNAMIC_dExtenRate), .key = "ExtenRate", .tabs = kOneSpace,
       .doc = "Reference extension rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dShearRate), .key = "ShearRate", .tabs = kOneSpace,
       .doc = "Reference shear rate of the dynamic plot."},
      {ZEB_FIELD(PLOT_DYNAMIC_dObserTime), .key = "ObserTime", .tabs = kOneSpace,
       .doc = "Observation time of the dynamic plot."},
  };
  static constexpr Row kArdRows[] = {
      {ZEB_FIELD(FIBER_ARD_iFlagIsARD), .key = "FlagIsARD", .tabs = kOneSpace, .doc = "Switch: ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db1), .key = "b1", .tabs = kOneSpace, .doc = "Coefficient b1 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db2), .key = "b2", .tabs = kOneSpace, .doc = "Coefficient b2 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db3), .key = "b3", .tabs = kOneSpace, .doc = "Coefficient b3 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db4), .key = "b4", .tabs = kOneSpace, .doc = "Coefficient b4 of the ARD orientation model."},
      {ZEB_FIELD(FIBER_ARD_db5), .key = "b5", .tabs = kOneSpace, .doc = "Coefficient b5 of the ARD orientation model."},
  };
  static constexpr Row kSlowRows[] = {
      {ZEB_FIELD(FIBER_SLOW_iFlagIsSLOW), .key = "FlagIsSLOW", .tabs = kOneSpace,
       .doc = "Switch: SLOW orientation model."},
      {ZEB_FIELD(FIBER_SLOW_dk), .key = "k", .tabs = kOneSpace,
       .doc = "Coefficient k of the SLOW orientation model; every line with a letter k is taken for it."},
      {ZEB_FIELD(FIBER_SLOW_db), .key = "b", .tabs = kOneSpace,
       .doc = "Coefficient b of the SLOW orientation model; every line with a letter b is taken for it."},
  };
  static constexpr Row kClosureRows[] = {
      {ZEB_FIELD(FIBER_CLOSURE_iFlagClosureMode), .key = "FlagClosureMode", .tabs = kOneSpace,
       .known = "Closure mode of the orientation tensor."},
  };
  static constexpr Row kBreakageRows[] = {
      {ZEB_FIELD(FIBER_Breakage_iFlagBreakage), .key = "FlagBreakage", .tabs = kOneSpace,
       .doc = "Switch: fibre breakage."},
      {ZEB_FIELD(FIBER_Breakage_iFlagBreakInScrewAndNozzle), .key = "FlagBreakInScrewAndNozzle", .tabs = kOneSpace,
       .doc = "Switch: fibre breakage in screw and nozzle."},
      {ZEB_FIELD(FIBER_Breakage_dShearInScrew), .key = "ShearInScrew", .tabs = kOneSpace,
       .known = "Shear of the fibres in the screw."},
      {ZEB_FIELD(FIBER_Breakage_dDurationInScrew), .key = "DurationInScrew", .tabs = kOneSpace,
       .doc = "Duration of the shear in the screw."},
      {ZEB_FIELD(FIBER_Breakage_dShearInNozzle), .key = "ShearInNozzle", .tabs = kOneSpace,
       .known = "Shear of the fibres in the nozzle."},
      {ZEB_FIELD(FIBER_Breakage_dDurationInNozzle), .key = "DurationInNozzle", .tabs = kOneSpace,
       .doc = "Duration of the shear in the nozzle."},
      {ZEB_FIELD(FIBER_Breakage_iFlagScrewOwnBreakSetting), .key = "FlagScrewOwnBreakSetting", .tabs = kOneSpace,
       .doc = "Switch: the screw has breakage coefficients of its own."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_CD), .key = "ScrewBreak_CD", .tabs = kOneSpace,
       .doc = "Breakage coefficient CD of the screw."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_CB), .key = "ScrewBreak_CB", .tabs = kOneSpace,
       .doc = "Breakage coefficient CB of the screw."},
      {ZEB_FIELD(FIBER_Breakage_dScrewBreak_S), .key = "ScrewBreak_S", .tabs = kOneSpace,
       .doc = "Breakage coefficient S of the screw."},
  };
  static constexpr Row kImproveRprRows[] = {
      {ZEB_FIELD(FIBER_ImproveRPR_iFlagObjectiveARD), .key = "FlagObjectiveARD", .tabs = kOneSpace,
       .doc = "Switch: objective ARD in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_iFlagImproveRPR), .key = "FlagImproveRPR", .tabs = kOneSpace,
       .doc = "Switch: improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dra_SR), .key = "ra_SR", .tabs = kOneSpace,
       .known = "Shear rate of ra in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_SR), .key = "CI_SR", .tabs = kOneSpace,
       .known = "Shear rate of CI in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dra_N), .key = "ra_N", .tabs = kOneSpace,
       .known = "Exponent of ra in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_N), .key = "CI_N", .tabs = kOneSpace,
       .known = "Exponent of CI in the improved RPR model."},
      {ZEB_FIELD(FIBER_ImproveRPR_dCI_Kappa), .key = "CI_Kappa", .tabs = kOneSpace,
       .known = "Coefficient kappa of CI in the improved RPR model."},
  };
  static constexpr Row kInletConditionRows[] = {
      {ZEB_FIELD(FIBER_InletCondition_iInletCondition), .key = "InletCondition", .tabs = kOneSpace,
       .known = "Option of the fibre orientation at the inlet."},
      {ZEB_FIELD(FIBER_InletCondition_da0), .key = "a0", .tabs = kOneSpace,
       .doc = "Coefficient a0 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da1), .key = "a1", .tabs = kOneSpace,
       .doc = "Coefficient a1 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da2), .key = "a2", .tabs = kOneSpace,
       .doc = "Coefficient a2 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da3), .key = "a3", .tabs = kOneSpace,
       .doc = "Coefficient a3 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da4), .key = "a4", .tabs = kOneSpace,
       .doc = "Coefficient a4 of the inlet orientation polynomial."},
      {ZEB_FIELD(FIBER_InletCondition_da5), .key = "a5", .tabs = kOneSpace,
       .doc = "Coefficient a5 of the inlet orientation polynomial."},
  };
  static constexpr Row kFlowCouplingRows[] = {
      {ZEB_FIELD(FIBER_FlowCoupling_iFlowCoupling), .key = "FlowCoupling", .tabs = kOneSpace,
       .doc = "Switch: coupling of flow and fibre orientation."},
      {ZEB_FIELD(FIBER_FlowCoupling_dCof_N), .key = "Cof_N", .tabs = kOneSpace,
       .doc = "Coefficient N of the flow coupling."},
      {ZEB_FIELD(FIBER_FlowCoupling_dCof_C1), .key = "Cof_C1", .tabs = kOneSpace,
       .doc = "Coefficient C1 of the flow coupling."},
      {ZEB_FIELD(FIBER_FlowCoupling_iFixedFiberOrientation), .key = "FixedFiberOrientation", .tabs = kOneSpace,
       .doc = "Switch: flow coupling with a fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_iExcludeRunner), .key = "ExcludeRunner", .tabs = kOneSpace,
       .doc = "Switch: flow coupling leaves the runner out."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAxx), .key = "Axx", .tabs = kOneSpace,
       .doc = "Component xx of the fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAyy), .key = "Ayy", .tabs = kOneSpace,
       .doc = "Component yy of the fixed orientation tensor."},
      {ZEB_FIELD(FIBER_FlowCoupling_dAzz), .key = "Azz", .tabs = kOneSpace,
       .doc = "Component zz of the fixed orientation tensor."},
  };
  static constexpr Row kDebugRows[] = {
      {ZEB_FIELD(FIBER_DEBUG_iFlagDebug), .key = "FlagDebug", .tabs = kOneSpace,
       .doc = "Switch: debugging of the fibre models."},
      {ZEB_FIELD(FIBER_DEBUG_dSmallGradVRatio), .key = "SmallGradVRatio", .tabs = kOneSpace,
       .known = "Ratio for small velocity gradients."},
  };
  static constexpr Row kCompuParasRows[] = {
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakTransIter), .key = "BreakTransIter", .tabs = kOneSpace,
       .doc = "Iterations of the breakage transport."},
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakIntegralIter), .key = "BreakIntegralIter", .tabs = kOneSpace,
       .doc = "Iterations of the breakage integral."},
      {ZEB_FIELD(FIBER_COMPUPARAS_dBreakTransMatrixToler), .key = "BreakTransMatrixToler", .tabs = kOneSpace,
       .doc = "Tolerance of the matrix solver for the breakage transport."},
      {ZEB_FIELD(FIBER_COMPUPARAS_iBreakTransMatrixIter), .key = "BreakTransMatrixIter", .tabs = kOneSpace,
       .doc = "Iterations of the matrix solver for the breakage transport."},
  };
  static constexpr Row kLengthDistributionRows[] = {
      {ZEB_FIELD(FIBER_LENGTH_DISTRIBUTION_dMean), .key = "Mean", .tabs = kOneSpace,
       .doc = "Mean of the fibre length distribution."},
      {ZEB_FIELD(FIBER_LENGTH_DISTRIBUTION_dVariance), .key = "Variance", .tabs = kOneSpace,
       .doc = "Variance of the fibre length distribution."},
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
