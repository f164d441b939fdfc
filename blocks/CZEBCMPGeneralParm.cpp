// What hosts call of the General block. Its keys stand in CZEBCMPGeneralParmTable.cpp.
#include "blocks/CZEBCMPGeneralParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPGeneralParm)

int CZEBCMPGeneralParm::iDeleteMultiTimeVox() const { return m_iDeleteMultiTimeVox; }
int CZEBCMPGeneralParm::iW3FFormat() const { return m_iW3FFormat; }
int CZEBCMPGeneralParm::iOutputD3FW3FType() const { return m_iOutputD3FW3FType; }
int CZEBCMPGeneralParm::iAutoHTC() const { return m_iAutoHTC; }
int CZEBCMPGeneralParm::iOutput_HTC_Value() const { return m_iOutput_HTC_Value; }
double CZEBCMPGeneralParm::dMax_HTC_Value() const { return m_dMax_HTC_Value; }
double CZEBCMPGeneralParm::dMovingWallHTC() const { return m_dMovingWallHTC; }
int CZEBCMPGeneralParm::iOutput_VentingFace() const { return m_iOutput_VentingFace; }
int CZEBCMPGeneralParm::iVentAirPressureProfile() const { return m_iVentAirPressureProfile; }
int CZEBCMPGeneralParm::iTurningBad() const { return m_iTurningBad; }
int CZEBCMPGeneralParm::iCTGWarp() const { return m_iCTGWarp; }
double CZEBCMPGeneralParm::ddtNorLowerBound() const { return m_ddtNorLowerBound; }
double CZEBCMPGeneralParm::ddtNorUpperBound() const { return m_ddtNorUpperBound; }
int CZEBCMPGeneralParm::iFlowPack_Mode() const { return m_iFlowPack_Mode; }
int CZEBCMPGeneralParm::iVentAnalysis() const { return m_iVentAnalysis; }
double CZEBCMPGeneralParm::dVentGasConstant() const { return m_dVentGasConstant; }
double CZEBCMPGeneralParm::dVentStopTime() const { return m_dVentStopTime; }
double CZEBCMPGeneralParm::dVentStartTime() const { return m_dVentStartTime; }
int CZEBCMPGeneralParm::iVentMode() const { return m_iVentMode; }
double CZEBCMPGeneralParm::dPressureDiffLimit() const { return m_dPressureDiffLimit; }
int CZEBCMPGeneralParm::iOutput_VentFace() const { return m_iOutput_VentFace; }
int CZEBCMPGeneralParm::iEnhancedVenting() const { return m_iEnhancedVenting; }
int CZEBCMPGeneralParm::iEnhancedAirZoneSearch() const { return m_iEnhancedAirZoneSearch; }
int CZEBCMPGeneralParm::iEnhancedAirP() const { return m_iEnhancedAirP; }
int CZEBCMPGeneralParm::iEnhancedTrapAir() const { return m_iEnhancedTrapAir; }
int CZEBCMPGeneralParm::iNelement_Criterion() const { return m_iNelement_Criterion; }
double CZEBCMPGeneralParm::dTrapAirVolFilled() const { return m_dTrapAirVolFilled; }
double CZEBCMPGeneralParm::dLength_Criterion() const { return m_dLength_Criterion; }
double CZEBCMPGeneralParm::dReduceSAEF() const { return m_dReduceSAEF; }
double CZEBCMPGeneralParm::dReduceSAVolFill() const { return m_dReduceSAVolFill; }
double CZEBCMPGeneralParm::dSpruePressureMin() const { return m_dSpruePressureMin; }
int CZEBCMPGeneralParm::iBarrelCompressible() const { return m_iBarrelCompressible; }
int CZEBCMPGeneralParm::iAccelerationType() const { return m_iAccelerationType; }
int CZEBCMPGeneralParm::iCouple_VE() const { return m_iCouple_VE; }
int CZEBCMPGeneralParm::iCrystall_Viscosity() const { return m_iCrystall_Viscosity; }
int CZEBCMPGeneralParm::iUVWPT_VolumeFlux() const { return m_iUVWPT_VolumeFlux; }
int CZEBCMPGeneralParm::iGravityMode() const { return m_iGravityMode; }
int CZEBCMPGeneralParm::iIsToReCalFVol() const { return m_iIsToReCalFVol; }
int CZEBCMPGeneralParm::iIsResetInitT() const { return m_iIsResetInitT; }
double CZEBCMPGeneralParm::dHotInitT() const { return m_dHotInitT; }
double CZEBCMPGeneralParm::dHotInitTDiff() const { return m_dHotInitTDiff; }
double CZEBCMPGeneralParm::dICMSecondFactor() const { return m_dICMSecondFactor; }
int CZEBCMPGeneralParm::iPrefill() const { return m_iPrefill; }
int CZEBCMPGeneralParm::iCMPrefill() const { return m_iCMPrefill; }
double CZEBCMPGeneralParm::dColdInitT() const { return m_dColdInitT; }
int CZEBCMPGeneralParm::iIsICMNew() const { return m_iIsICMNew; }
int CZEBCMPGeneralParm::iIsEhnAccuracy() const { return m_iIsEhnAccuracy; }
int CZEBCMPGeneralParm::nParticleSubDt() const { return m_nParticleSubDt; }
int CZEBCMPGeneralParm::nSIMPLE_LowerLimit() const { return m_nSIMPLE_LowerLimit; }
int CZEBCMPGeneralParm::nVEF_CoupleTimes() const { return m_nVEF_CoupleTimes; }
int CZEBCMPGeneralParm::iMFTScheme() const { return m_iMFTScheme; }
int CZEBCMPGeneralParm::iAllCF() const { return m_iAllCF; }
double CZEBCMPGeneralParm::dMassOut() const { return m_dMassOut; }
double CZEBCMPGeneralParm::dVisTempLimiterMax() const { return m_dVisTempLimiterMax; }
int CZEBCMPGeneralParm::iVPSwitchByClampingLimit() const { return m_iVPSwitchByClampingLimit; }
int CZEBCMPGeneralParm::iIsWeightedFlowRate() const { return m_iIsWeightedFlowRate; }
int CZEBCMPGeneralParm::iMCIMUpdateDen() const { return m_iMCIMUpdateDen; }
int CZEBCMPGeneralParm::iLimitViscousHeating() const { return m_iLimitViscousHeating; }
int CZEBCMPGeneralParm::iInitChargeFiberOrientation() const { return m_iInitChargeFiberOrientation; }
const char* CZEBCMPGeneralParm::strInitChargeFiber() const { return m_strInitChargeFiber.get(); }
int CZEBCMPGeneralParm::iPIM() const { return m_iPIM; }
double CZEBCMPGeneralParm::dPIMPowderDen() const { return m_dPIMPowderDen; }
int CZEBCMPGeneralParm::iFSIRemoveRunner() const { return m_iFSIRemoveRunner; }
int CZEBCMPGeneralParm::iICM_MeshDeformMethod() const { return m_iICM_MeshDeformMethod; }
int CZEBCMPGeneralParm::iDeformMethod() const { return m_iDeformMethod; }
double CZEBCMPGeneralParm::dPackdtControl() const { return m_dPackdtControl; }
int CZEBCMPGeneralParm::iNoRemoveF2F() const { return m_iNoRemoveF2F; }
int CZEBCMPGeneralParm::iStressInterface() const { return m_iStressInterface; }
int CZEBCMPGeneralParm::iSprueMethod() const { return m_iSprueMethod; }
int CZEBCMPGeneralParm::iLG_Mode() const { return m_iLG_Mode; }
int CZEBCMPGeneralParm::iFaceVisByHarmonicMean() const { return m_iFaceVisByHarmonicMean; }
int CZEBCMPGeneralParm::iSmoothCutcellByAvgGauss() const { return m_iSmoothCutcellByAvgGauss; }
int CZEBCMPGeneralParm::iCalculateFilltoInjectionpressure() const { return m_iCalculateFilltoInjectionpressure; }
int CZEBCMPGeneralParm::iIsPackCalcFSI() const { return m_iIsPackCalcFSI; }
double CZEBCMPGeneralParm::dIsPackCalcFSI_Time() const { return m_dIsPackCalcFSI_Time; }
int CZEBCMPGeneralParm::iMovingFaceMF() const { return m_iMovingFaceMF; }
int CZEBCMPGeneralParm::iOutputM3V() const { return m_iOutputM3V; }
int CZEBCMPGeneralParm::iNStage() const { return m_iNStage; }
int CZEBCMPGeneralParm::iIsSRFbyRBF() const { return m_iIsSRFbyRBF; }
int CZEBCMPGeneralParm::iTempSubdt() const { return m_iTempSubdt; }
double CZEBCMPGeneralParm::dTempConvergToler() const { return m_dTempConvergToler; }
int CZEBCMPGeneralParm::iIsShLowTempCorr() const { return m_iIsShLowTempCorr; }
double CZEBCMPGeneralParm::dFiberCTGRatio() const { return m_dFiberCTGRatio; }
double CZEBCMPGeneralParm::dMovingFaceT() const { return m_dMovingFaceT; }
int CZEBCMPGeneralParm::iOutputEOSc2f() const { return m_iOutputEOSc2f; }
int CZEBCMPGeneralParm::iSSHR() const { return m_iSSHR; }
double CZEBCMPGeneralParm::dSSHRToler() const { return m_dSSHRToler; }
int CZEBCMPGeneralParm::iMeltFrontSpeedIndicator() const { return m_iMeltFrontSpeedIndicator; }
int CZEBCMPGeneralParm::iIsOutputFiberInfoOnSensor() const { return m_iIsOutputFiberInfoOnSensor; }
int CZEBCMPGeneralParm::iIsOutputNozzleQ() const { return m_iIsOutputNozzleQ; }
int CZEBCMPGeneralParm::iHotRunnerSurfaceT_Dirichlet_BCType() const { return m_iHotRunnerSurfaceT_Dirichlet_BCType; }
double CZEBCMPGeneralParm::dHotRunnerSurfaceT() const { return m_dHotRunnerSurfaceT; }
int CZEBCMPGeneralParm::iHotRunnerSurfaceTFromCool() const { return m_iHotRunnerSurfaceTFromCool; }
int CZEBCMPGeneralParm::iOutputParticleIndex() const { return m_iOutputParticleIndex; }
int CZEBCMPGeneralParm::iCompressModeSwitchOpen() const { return m_iCompressModeSwitchOpen; }
int CZEBCMPGeneralParm::iCMSecondCompressProc() const { return m_iCMSecondCompressProc; }
int CZEBCMPGeneralParm::iHSDen() const { return m_iHSDen; }
const char* CZEBCMPGeneralParm::FirstMeshName() const { return m_szFirstMeshName.get(); }
const char* CZEBCMPGeneralParm::SecondM3FName() const { return m_szSecondM3FName.get(); }
const char* CZEBCMPGeneralParm::SecondM3OName() const { return m_szSecondM3OName.get(); }
double CZEBCMPGeneralParm::dCMFixedDt() const { return m_dCMFixedDt; }
int CZEBCMPGeneralParm::iUseHRTempLimit() const { return m_iUseHRTempLimit; }
int CZEBCMPGeneralParm::iIsCompressionFaceCK() const { return m_iIsCompressionFaceCK; }
double CZEBCMPGeneralParm::dCompressionFaceCK() const { return m_dCompressionFaceCK; }
double CZEBCMPGeneralParm::dCompressionFaceCp() const { return m_dCompressionFaceCp; }
int CZEBCMPGeneralParm::iUseIBtoCalculateValvePin() const { return m_iUseIBtoCalculateValvePin; }
int CZEBCMPGeneralParm::iStopCMProcess() const { return m_iStopCMProcess; }
double CZEBCMPGeneralParm::dValvePinmovedistancelimit() const { return m_dValvePinmovedistancelimit; }
int CZEBCMPGeneralParm::iIsCMCoreback() const { return m_iIsCMCoreback; }
int CZEBCMPGeneralParm::iIsOutputVisonSensorNode() const { return m_iIsOutputVisonSensorNode; }
int CZEBCMPGeneralParm::iIsToUsePCG() const { return m_iIsToUsePCG; }
int CZEBCMPGeneralParm::iIsShowCompressForce() const { return m_iIsShowCompressForce; }
int CZEBCMPGeneralParm::iShowCompressionSpeed() const { return m_iShowCompressionSpeed; }
double CZEBCMPGeneralParm::dCompressibilityFactor() const { return m_dCompressibilityFactor; }
int CZEBCMPGeneralParm::iCMForceCtrl() const { return m_iCMForceCtrl; }
double CZEBCMPGeneralParm::dCMForceCtrlConst() const { return m_dCMForceCtrlConst; }
int CZEBCMPGeneralParm::iRIMInletConvSolver() const { return m_iRIMInletConvSolver; }
double CZEBCMPGeneralParm::dVECouplingDegree() const { return m_dVECouplingDegree; }
int CZEBCMPGeneralParm::iShowAirZoneResult() const { return m_iShowAirZoneResult; }
int CZEBCMPGeneralParm::iShowNegativePressureField() const { return m_iShowNegativePressureField; }
double CZEBCMPGeneralParm::dPreFillingPercent() const { return m_dPreFillingPercent; }

void CZEBCMPGeneralParm::SetBarrelCompressible(int barrelCompressible) { m_iBarrelCompressible = barrelCompressible; }
void CZEBCMPGeneralParm::SetCouple_VE(int coupleVE) { m_iCouple_VE = coupleVE; }
void CZEBCMPGeneralParm::SetDeformMethod(int deformMethod) { m_iDeformMethod = deformMethod; }
void CZEBCMPGeneralParm::SetHotInitT(double hotInitT) { m_dHotInitT = hotInitT; }
void CZEBCMPGeneralParm::SetHotRunnerSurfaceT(double hotRunnerSurfaceT) { m_dHotRunnerSurfaceT = hotRunnerSurfaceT; }
void CZEBCMPGeneralParm::SetICM_MeshDeformMethod(int meshDeformMethod) { m_iICM_MeshDeformMethod = meshDeformMethod; }
void CZEBCMPGeneralParm::SetLength_Criterion(double lengthCriterion) { m_dLength_Criterion = lengthCriterion; }
void CZEBCMPGeneralParm::SetOutputEOSc2f(int outputEOSc2f) { m_iOutputEOSc2f = outputEOSc2f; }
void CZEBCMPGeneralParm::SetParticleSubDt(int particleSubDt) { m_nParticleSubDt = particleSubDt; }
void CZEBCMPGeneralParm::SetSIMPLE_LowerLimit(int lowerLimit) { m_nSIMPLE_LowerLimit = lowerLimit; }
void CZEBCMPGeneralParm::SetSpruePressureMin(double spruePressureMin) { m_dSpruePressureMin = spruePressureMin; }
void CZEBCMPGeneralParm::SetUVWPT_VolumeFlux(int volumeFlux) { m_iUVWPT_VolumeFlux = volumeFlux; }
