// Filling analysis: solver, options, gravity, freezing of the gates.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Settings of the solid (3-D) filling analysis, from the block `<SOLID_FILL>`. Gravity has two accepted spellings of
/// its keys, ValueGravyX and ValueGravityX (also for Y and Z). Assignment shares the text.
class CZEBCMX_SOLID_FILL {
 public:
  CZEBCMX_SOLID_FILL();
  CZEBCMX_SOLID_FILL(const CZEBCMX_SOLID_FILL& other);
  ~CZEBCMX_SOLID_FILL();
  CZEBCMX_SOLID_FILL& operator=(const CZEBCMX_SOLID_FILL& other);

  int iSolidFillBlockVersion() const;
  int iIDSolver() const;
  double dEfficiencyFactor() const;
  int iFiberEfficiencyFactor() const;
  double dFillEOFPercentage() const;
  int iMeshType() const;
  int iEstimateFiber() const;
  int iUnFilledCells() const;
  int iStopCalculateCriterionType() const;
  int bIsUseTemperatureDLL() const;
  int iUseTemperatureDLL_Level1() const;
  int iUseTemperatureDLL_Level2() const;
  int iEstimateCoolTime() const;
  double dGravX() const;
  double dGravY() const;
  double dGravZ() const;
  int ilStab() const;
  int ilTec() const;
  int ilHMAVI() const;
  int ilVisHeat() const;
  int ilGNF() const;
  int ilNIsoT() const;
  int ilInertia() const;
  int ilAnaMode() const;
  int ilCompressible() const;
  int ilFlowVEcoupling() const;
  int iCoreShiftMethod() const;
  double dVolumeFilledCallStress() const;
  int i2WayPSMethod() const;
  int iVentingOption() const;
  double dVentingPressure() const;
  double dVentingTemperature() const;
  int iParticleTracer() const;
  int nParticleGroup() const;
  int iWeldLineParticleTracer() const;
  int iCrystalline() const;
  int iInitChargeFiberOrientation() const;
  /// Name of the exchange file with the initial fiber orientation, never null and empty by default, in a buffer
  /// of 255 characters. Valid until the block is destroyed; not owned by the caller.
  const char* strInitChargeFiber() const;
  int iIMDCtrl() const;
  int iStopPackingAfterGateFreeze() const;
  int iGateFreezeByTemperature() const;
  double dGateFreezeByTemperature() const;
  int iGateFreezeByFlowRate() const;
  double dGateFreezeByFlowRate() const;
  int iGateFreezeByWeightDeviation() const;
  double dGateFreezeByWeightDeviation() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_FILL>();

  int m_iSolidFillBlockVersion = 0;
  int m_iIDSolver = 0;
  double m_dEfficiencyFactor = 0.0;
  int m_iFiberEfficiencyFactor = 0;
  double m_dFillEOFPercentage = 0.9995;
  int m_iMeshType = 0;
  int m_iEstimateFiber = 0;
  int m_iUnFilledCells = 10;
  int m_iStopCalculateCriterionType = 1;
  int m_bIsUseTemperatureDLL = 0;
  int m_iUseTemperatureDLL_Level1 = 0;
  int m_iUseTemperatureDLL_Level2 = 0;
  int m_iEstimateCoolTime = 0;
  double m_dGravX = 0.0;
  double m_dGravY = 0.0;
  double m_dGravZ = 0.0;
  int m_ilStab = 0;
  int m_ilTec = 0;
  int m_ilHMAVI = 0;
  int m_ilVisHeat = 1;
  int m_ilGNF = 1;
  int m_ilNIsoT = 1;
  int m_ilInertia = 1;
  int m_ilAnaMode = 0;
  int m_ilCompressible = 0;
  int m_ilFlowVEcoupling = 0;
  int m_iCoreShiftMethod = 0;
  double m_dVolumeFilledCallStress = 0.1;
  int m_i2WayPSMethod = 0;
  int m_iVentingOption = 0;
  double m_dVentingPressure = 0.1;
  double m_dVentingTemperature = 27.0;
  int m_iParticleTracer = 0;
  int m_nParticleGroup = 0;
  int m_iWeldLineParticleTracer = 0;
  int m_iCrystalline = 0;
  int m_iInitChargeFiberOrientation = 0;
  static constexpr unsigned short kNameSize = 255;
  zeb::OwnedText m_strInitChargeFiber{kNameSize};
  int m_iIMDCtrl = 0;
  int m_iStopPackingAfterGateFreeze = 0;
  int m_iGateFreezeByTemperature = 0;
  double m_dGateFreezeByTemperature = 0.0;
  int m_iGateFreezeByFlowRate = 0;
  double m_dGateFreezeByFlowRate = 0.0;
  int m_iGateFreezeByWeightDeviation = 0;
  double m_dGateFreezeByWeightDeviation = 0.1;
};
