// Fibre orientation and breakage.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the fibre orientation, breakage and length models, from eleven sections whose names begin with FIBER_.
/// Values are kept as the file has them; nothing is converted or checked.
///
/// The section [FIBER_PLOT_DYNAMIC] is closed by [/PLOT_DYNAMIC]: a closing line with the FIBER_ prefix does not end
/// it. Plain values; assignment copies them.
class CZEBCMPFiberParm {
 public:
  CZEBCMPFiberParm();
  CZEBCMPFiberParm(const CZEBCMPFiberParm& other);
  ~CZEBCMPFiberParm();
  CZEBCMPFiberParm& operator=(const CZEBCMPFiberParm& other);

  int PLOT_DYNAMIC_iFlagIsPlotDynamic() const;
  double PLOT_DYNAMIC_dExtenRate() const;
  double PLOT_DYNAMIC_dShearRate() const;
  double PLOT_DYNAMIC_dObserTime() const;

  int FIBER_ARD_iFlagIsARD() const;
  double FIBER_ARD_db1() const;
  double FIBER_ARD_db2() const;
  double FIBER_ARD_db3() const;
  double FIBER_ARD_db4() const;
  double FIBER_ARD_db5() const;

  int FIBER_SLOW_iFlagIsSLOW() const;
  double FIBER_SLOW_dk() const;
  double FIBER_SLOW_db() const;

  int FIBER_CLOSURE_iFlagClosureMode() const;

  int FIBER_Breakage_iFlagBreakage() const;
  int FIBER_Breakage_iFlagBreakInScrewAndNozzle() const;
  double FIBER_Breakage_dShearInScrew() const;
  double FIBER_Breakage_dDurationInScrew() const;
  double FIBER_Breakage_dShearInNozzle() const;
  double FIBER_Breakage_dDurationInNozzle() const;
  int FIBER_Breakage_iFlagScrewOwnBreakSetting() const;
  double FIBER_Breakage_dScrewBreak_CD() const;
  double FIBER_Breakage_dScrewBreak_CB() const;
  double FIBER_Breakage_dScrewBreak_S() const;

  int FIBER_ImproveRPR_iFlagObjectiveARD() const;
  int FIBER_ImproveRPR_iFlagImproveRPR() const;
  double FIBER_ImproveRPR_dra_SR() const;
  double FIBER_ImproveRPR_dCI_SR() const;
  double FIBER_ImproveRPR_dra_N() const;
  double FIBER_ImproveRPR_dCI_N() const;
  double FIBER_ImproveRPR_dCI_Kappa() const;

  int FIBER_InletCondition_iInletCondition() const;
  double FIBER_InletCondition_da0() const;
  double FIBER_InletCondition_da1() const;
  double FIBER_InletCondition_da2() const;
  double FIBER_InletCondition_da3() const;
  double FIBER_InletCondition_da4() const;
  double FIBER_InletCondition_da5() const;

  int FIBER_FlowCoupling_iFlowCoupling() const;
  double FIBER_FlowCoupling_dCof_N() const;
  double FIBER_FlowCoupling_dCof_C1() const;
  int FIBER_FlowCoupling_iFixedFiberOrientation() const;
  int FIBER_FlowCoupling_iExcludeRunner() const;
  double FIBER_FlowCoupling_dAxx() const;
  double FIBER_FlowCoupling_dAyy() const;
  double FIBER_FlowCoupling_dAzz() const;

  int FIBER_DEBUG_iFlagDebug() const;
  double FIBER_DEBUG_dSmallGradVRatio() const;

  int FIBER_COMPUPARAS_iBreakTransIter() const;
  int FIBER_COMPUPARAS_iBreakIntegralIter() const;
  double FIBER_COMPUPARAS_dBreakTransMatrixToler() const;
  int FIBER_COMPUPARAS_iBreakTransMatrixIter() const;

  double FIBER_LENGTH_DISTRIBUTION_dMean() const;
  double FIBER_LENGTH_DISTRIBUTION_dVariance() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPFiberParm>();

  int m_PLOT_DYNAMIC_iFlagIsPlotDynamic = 0;
  double m_PLOT_DYNAMIC_dExtenRate = 0.0;
  double m_PLOT_DYNAMIC_dShearRate = 0.0;
  double m_PLOT_DYNAMIC_dObserTime = 0.0;

  int m_FIBER_ARD_iFlagIsARD = 0;
  double m_FIBER_ARD_db1 = 0.0;
  double m_FIBER_ARD_db2 = 0.0;
  double m_FIBER_ARD_db3 = 0.0;
  double m_FIBER_ARD_db4 = 0.0;
  double m_FIBER_ARD_db5 = 0.0;

  int m_FIBER_SLOW_iFlagIsSLOW = 0;
  double m_FIBER_SLOW_dk = 0.0;
  double m_FIBER_SLOW_db = 0.0;

  int m_FIBER_CLOSURE_iFlagClosureMode = 0;

  int m_FIBER_Breakage_iFlagBreakage = 0;
  int m_FIBER_Breakage_iFlagBreakInScrewAndNozzle = 0;
  double m_FIBER_Breakage_dShearInScrew = 0.0;
  double m_FIBER_Breakage_dDurationInScrew = 0.0;
  double m_FIBER_Breakage_dShearInNozzle = 0.0;
  double m_FIBER_Breakage_dDurationInNozzle = 0.0;
  int m_FIBER_Breakage_iFlagScrewOwnBreakSetting = 0;
  double m_FIBER_Breakage_dScrewBreak_CD = 0.0;
  double m_FIBER_Breakage_dScrewBreak_CB = 0.0;
  double m_FIBER_Breakage_dScrewBreak_S = 0.0;

  int m_FIBER_ImproveRPR_iFlagObjectiveARD = 1;
  int m_FIBER_ImproveRPR_iFlagImproveRPR = 1;
  double m_FIBER_ImproveRPR_dra_SR = 500.0;
  double m_FIBER_ImproveRPR_dCI_SR = 500.0;
  double m_FIBER_ImproveRPR_dra_N = 2.0;
  double m_FIBER_ImproveRPR_dCI_N = 2.0;
  double m_FIBER_ImproveRPR_dCI_Kappa = 2.0;

  int m_FIBER_InletCondition_iInletCondition = 0;
  double m_FIBER_InletCondition_da0 = 0.1;
  double m_FIBER_InletCondition_da1 = 3.8;
  double m_FIBER_InletCondition_da2 = -7.78;
  double m_FIBER_InletCondition_da3 = 4.52;
  double m_FIBER_InletCondition_da4 = 2.92;
  double m_FIBER_InletCondition_da5 = -2.91;

  int m_FIBER_FlowCoupling_iFlowCoupling = 0;
  double m_FIBER_FlowCoupling_dCof_N = 0.0;
  double m_FIBER_FlowCoupling_dCof_C1 = 0.0;
  int m_FIBER_FlowCoupling_iFixedFiberOrientation = 0;
  int m_FIBER_FlowCoupling_iExcludeRunner = 0;
  double m_FIBER_FlowCoupling_dAxx = 0.3334;
  double m_FIBER_FlowCoupling_dAyy = 0.3333;
  double m_FIBER_FlowCoupling_dAzz = 0.3333;

  int m_FIBER_DEBUG_iFlagDebug = 0;
  double m_FIBER_DEBUG_dSmallGradVRatio = 0.0;

  int m_FIBER_COMPUPARAS_iBreakTransIter = 3;
  int m_FIBER_COMPUPARAS_iBreakIntegralIter = 3;
  double m_FIBER_COMPUPARAS_dBreakTransMatrixToler = 0.001;
  int m_FIBER_COMPUPARAS_iBreakTransMatrixIter = 10;

  double m_FIBER_LENGTH_DISTRIBUTION_dMean = 0.006;
  double m_FIBER_LENGTH_DISTRIBUTION_dVariance = 0.001;
};
