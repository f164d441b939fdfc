// General settings of the analysis: the largest block.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// General settings of the analysis, from the section [General]. Values are kept as the file has them; nothing is
/// converted.
///
/// Keys and members differ in many rows, and some keys are misspelt on purpose: they are part of the file format. Three
/// keys also answer to the lines of longer ones: a line of PacktoCalcFSITime also sets iIsPackCalcFSI, one of
/// ICM_MeshDeformMethod also iDeformMethod, one of FixCompressionFaceCK also dCompressionFaceCK.
///
/// After reading, modifyParameters() of the parameter set may change iVentMode, dPressureDiffLimit, dReduceSAEF,
/// dTrapAirVolFilled, iUVWPT_VolumeFlux, iIsWeightedFlowRate, ddtNorLowerBound and iMFTScheme.
///
/// Copies share the four texts.
class CZEBCMPGeneralParm {
 public:
  CZEBCMPGeneralParm();
  CZEBCMPGeneralParm(const CZEBCMPGeneralParm& other);
  ~CZEBCMPGeneralParm();
  CZEBCMPGeneralParm& operator=(const CZEBCMPGeneralParm& other);

  int iDeleteMultiTimeVox() const;
  int iW3FFormat() const;
  int iOutputD3FW3FType() const;
  int iAutoHTC() const;
  int iOutput_HTC_Value() const;
  double dMax_HTC_Value() const;
  double dMovingWallHTC() const;
  int iOutput_VentingFace() const;
  int iVentAirPressureProfile() const;
  int iTurningBad() const;
  int iCTGWarp() const;
  double ddtNorLowerBound() const;
  double ddtNorUpperBound() const;
  int iFlowPack_Mode() const;
  int iVentAnalysis() const;
  double dVentGasConstant() const;
  double dVentStopTime() const;
  double dVentStartTime() const;
  int iVentMode() const;
  double dPressureDiffLimit() const;
  int iOutput_VentFace() const;
  int iEnhancedVenting() const;
  int iEnhancedAirZoneSearch() const;
  int iEnhancedAirP() const;
  int iEnhancedTrapAir() const;
  int iNelement_Criterion() const;
  double dTrapAirVolFilled() const;
  double dLength_Criterion() const;
  double dReduceSAEF() const;
  double dReduceSAVolFill() const;
  double dSpruePressureMin() const;
  int iBarrelCompressible() const;
  int iAccelerationType() const;
  /// Set by SetCouple_VE only; no file sets it.
  int iCouple_VE() const;
  int iCrystall_Viscosity() const;
  int iUVWPT_VolumeFlux() const;
  int iGravityMode() const;
  int iIsToReCalFVol() const;
  int iIsResetInitT() const;
  double dHotInitT() const;
  double dHotInitTDiff() const;
  double dICMSecondFactor() const;
  int iPrefill() const;
  int iCMPrefill() const;
  double dColdInitT() const;
  int iIsICMNew() const;
  int iIsEhnAccuracy() const;
  int nParticleSubDt() const;
  int nSIMPLE_LowerLimit() const;
  int nVEF_CoupleTimes() const;
  int iMFTScheme() const;
  int iAllCF() const;
  double dMassOut() const;
  double dVisTempLimiterMax() const;
  int iVPSwitchByClampingLimit() const;
  int iIsWeightedFlowRate() const;
  int iMCIMUpdateDen() const;
  int iLimitViscousHeating() const;
  int iInitChargeFiberOrientation() const;
  /// The exchange name of the initial fiber orientation of the charge: one word. Null while no file has named it. Valid
  /// until the block is destroyed; not owned by the caller.
  const char* strInitChargeFiber() const;
  int iPIM() const;
  double dPIMPowderDen() const;
  int iFSIRemoveRunner() const;
  int iICM_MeshDeformMethod() const;
  int iDeformMethod() const;
  double dPackdtControl() const;
  int iNoRemoveF2F() const;
  int iStressInterface() const;
  int iSprueMethod() const;
  int iLG_Mode() const;
  int iFaceVisByHarmonicMean() const;
  int iSmoothCutcellByAvgGauss() const;
  int iCalculateFilltoInjectionpressure() const;
  int iIsPackCalcFSI() const;
  double dIsPackCalcFSI_Time() const;
  int iMovingFaceMF() const;
  int iOutputM3V() const;
  int iNStage() const;
  int iIsSRFbyRBF() const;
  int iTempSubdt() const;
  double dTempConvergToler() const;
  int iIsShLowTempCorr() const;
  double dFiberCTGRatio() const;
  double dMovingFaceT() const;
  int iOutputEOSc2f() const;
  int iSSHR() const;
  double dSSHRToler() const;
  int iMeltFrontSpeedIndicator() const;
  int iIsOutputFiberInfoOnSensor() const;
  int iIsOutputNozzleQ() const;
  int iHotRunnerSurfaceT_Dirichlet_BCType() const;
  double dHotRunnerSurfaceT() const;
  int iHotRunnerSurfaceTFromCool() const;
  int iOutputParticleIndex() const;
  int iCompressModeSwitchOpen() const;
  int iCMSecondCompressProc() const;
  int iHSDen() const;
  /// The name of the first mesh. Null while no file has named it. Valid until the block is destroyed; not owned by the
  /// caller.
  const char* FirstMeshName() const;
  /// The name of the second M3F file. Null while no file has named it. Valid until the block is destroyed; not owned by
  /// the caller.
  const char* SecondM3FName() const;
  /// The name of the second M3O file. Null while no file has named it. Valid until the block is destroyed; not owned by
  /// the caller.
  const char* SecondM3OName() const;
  double dCMFixedDt() const;
  int iUseHRTempLimit() const;
  int iIsCompressionFaceCK() const;
  double dCompressionFaceCK() const;
  double dCompressionFaceCp() const;
  int iUseIBtoCalculateValvePin() const;
  int iStopCMProcess() const;
  double dValvePinmovedistancelimit() const;
  int iIsCMCoreback() const;
  int iIsOutputVisonSensorNode() const;
  int iIsToUsePCG() const;
  int iIsShowCompressForce() const;
  int iShowCompressionSpeed() const;
  double dCompressibilityFactor() const;
  int iCMForceCtrl() const;
  double dCMForceCtrlConst() const;
  int iRIMInletConvSolver() const;
  double dVECouplingDegree() const;
  int iShowAirZoneResult() const;
  int iShowNegativePressureField() const;
  double dPreFillingPercent() const;

  void SetBarrelCompressible(int barrelCompressible);
  void SetCouple_VE(int coupleVE);
  void SetDeformMethod(int deformMethod);
  void SetHotInitT(double hotInitT);
  void SetHotRunnerSurfaceT(double hotRunnerSurfaceT);
  void SetICM_MeshDeformMethod(int meshDeformMethod);
  void SetLength_Criterion(double lengthCriterion);
  void SetOutputEOSc2f(int outputEOSc2f);
  void SetParticleSubDt(int particleSubDt);
  void SetSIMPLE_LowerLimit(int lowerLimit);
  void SetSpruePressureMin(double spruePressureMin);
  void SetUVWPT_VolumeFlux(int volumeFlux);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPGeneralParm>();
  friend struct zeb::Repairs;

  int m_iDeleteMultiTimeVox = 1;
  int m_iW3FFormat = 3;
  int m_iOutputD3FW3FType = 0;
  int m_iAutoHTC = 0;
  int m_iOutput_HTC_Value = 0;
  double m_dMax_HTC_Value = 7500000.0;
  double m_dMovingWallHTC = 0.0;
  int m_iOutput_VentingFace = 0;
  int m_iVentAirPressureProfile = 2;
  int m_iTurningBad = 0;
  int m_iCTGWarp = 0;
  double m_ddtNorLowerBound = 0.05;
  double m_ddtNorUpperBound = 1.0;
  int m_iFlowPack_Mode = 0;
  int m_iVentAnalysis = 0;
  double m_dVentGasConstant = 1.25;
  double m_dVentStopTime = 1e+30;
  double m_dVentStartTime = -1e+30;
  int m_iVentMode = 0;
  double m_dPressureDiffLimit = 20.0;
  int m_iOutput_VentFace = 0;
  int m_iEnhancedVenting = 0;
  int m_iEnhancedAirZoneSearch = 0;
  int m_iEnhancedAirP = 0;
  int m_iEnhancedTrapAir = 0;
  int m_iNelement_Criterion = 0;
  double m_dTrapAirVolFilled = 0.98;
  double m_dLength_Criterion = 0.0;
  double m_dReduceSAEF = 1.0;
  double m_dReduceSAVolFill = 0.99;
  double m_dSpruePressureMin = 10.0;
  int m_iBarrelCompressible = 1;
  int m_iAccelerationType = 0;
  int m_iCouple_VE = 0;
  int m_iCrystall_Viscosity = 0;
  int m_iUVWPT_VolumeFlux = 0;
  int m_iGravityMode = 0;
  int m_iIsToReCalFVol = 0;
  int m_iIsResetInitT = 1;
  double m_dHotInitT = 0.0;
  double m_dHotInitTDiff = 20.0;
  double m_dICMSecondFactor = 0.4;
  int m_iPrefill = 0;
  int m_iCMPrefill = 0;
  double m_dColdInitT = 0.0;
  int m_iIsICMNew = 0;
  int m_iIsEhnAccuracy = 0;
  int m_nParticleSubDt = -1;
  int m_nSIMPLE_LowerLimit = 2;
  int m_nVEF_CoupleTimes = 1;
  int m_iMFTScheme = 1;
  int m_iAllCF = 0;
  double m_dMassOut = 1.0;
  double m_dVisTempLimiterMax = 1000.0;
  int m_iVPSwitchByClampingLimit = 0;
  int m_iIsWeightedFlowRate = 0;
  int m_iMCIMUpdateDen = 20;
  int m_iLimitViscousHeating = 1;
  int m_iInitChargeFiberOrientation = 0;
  zeb::OwnedText m_strInitChargeFiber;
  int m_iPIM = 0;
  double m_dPIMPowderDen = 8.0;
  int m_iFSIRemoveRunner = 1;
  int m_iICM_MeshDeformMethod = 2;
  int m_iDeformMethod = 0;
  double m_dPackdtControl = 1.0;
  int m_iNoRemoveF2F = 0;
  int m_iStressInterface = 1;
  int m_iSprueMethod = 0;
  int m_iLG_Mode = 0;
  int m_iFaceVisByHarmonicMean = 3;
  int m_iSmoothCutcellByAvgGauss = 1;
  int m_iCalculateFilltoInjectionpressure = 0;
  int m_iIsPackCalcFSI = 0;
  double m_dIsPackCalcFSI_Time = 0.5;
  int m_iMovingFaceMF = 0;
  int m_iOutputM3V = 0;
  int m_iNStage = 0;
  int m_iIsSRFbyRBF = 0;
  int m_iTempSubdt = 1;
  double m_dTempConvergToler = 0.001;
  int m_iIsShLowTempCorr = 1;
  double m_dFiberCTGRatio = 0.8;
  double m_dMovingFaceT = -1.0;
  int m_iOutputEOSc2f = 0;
  int m_iSSHR = 0;
  double m_dSSHRToler = 0.001;
  int m_iMeltFrontSpeedIndicator = 0;
  int m_iIsOutputFiberInfoOnSensor = 0;
  int m_iIsOutputNozzleQ = 0;
  int m_iHotRunnerSurfaceT_Dirichlet_BCType = 1;
  double m_dHotRunnerSurfaceT = -1.0;
  int m_iHotRunnerSurfaceTFromCool = 1;
  int m_iOutputParticleIndex = 0;
  int m_iCompressModeSwitchOpen = 0;
  int m_iCMSecondCompressProc = 0;
  int m_iHSDen = 0;
  zeb::OwnedText m_szFirstMeshName;
  zeb::OwnedText m_szSecondM3FName;
  zeb::OwnedText m_szSecondM3OName;
  double m_dCMFixedDt = 0.0;
  int m_iUseHRTempLimit = 1;
  int m_iIsCompressionFaceCK = 0;
  double m_dCompressionFaceCK = 50.0;
  double m_dCompressionFaceCp = 50.0;
  int m_iUseIBtoCalculateValvePin = 0;
  int m_iStopCMProcess = 0;
  double m_dValvePinmovedistancelimit = 0.1;
  int m_iIsCMCoreback = 1;
  int m_iIsOutputVisonSensorNode = 0;
  int m_iIsToUsePCG = 0;
  int m_iIsShowCompressForce = 0;
  int m_iShowCompressionSpeed = 0;
  double m_dCompressibilityFactor = 1.0;
  int m_iCMForceCtrl = 0;
  double m_dCMForceCtrlConst = 0.3;
  int m_iRIMInletConvSolver = 0;
  double m_dVECouplingDegree = 0.1;
  int m_iShowAirZoneResult = 0;
  int m_iShowNegativePressureField = 0;
  double m_dPreFillingPercent = 0.0;
};
