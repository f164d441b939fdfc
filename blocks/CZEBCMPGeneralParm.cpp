// What hosts call of the General block. Its keys stand in CZEBCMPGeneralParmTable.cpp.
#include "blocks/CZEBCMPGeneralParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPGeneralParm)

ZEB_GETTERS(CZEBCMPGeneralParm, iDeleteMultiTimeVox, iW3FFormat, iOutputD3FW3FType, iAutoHTC, iOutput_HTC_Value,
            dMax_HTC_Value, dMovingWallHTC, iOutput_VentingFace, iVentAirPressureProfile, iTurningBad, iCTGWarp,
            ddtNorLowerBound, ddtNorUpperBound, iFlowPack_Mode, iVentAnalysis, dVentGasConstant, dVentStopTime,
            dVentStartTime, iVentMode, dPressureDiffLimit, iOutput_VentFace, iEnhancedVenting, iEnhancedAirZoneSearch,
            iEnhancedAirP, iEnhancedTrapAir, iNelement_Criterion, dTrapAirVolFilled, dLength_Criterion, dReduceSAEF,
            dReduceSAVolFill, dSpruePressureMin, iBarrelCompressible, iAccelerationType, iCouple_VE,
            iCrystall_Viscosity, iUVWPT_VolumeFlux, iGravityMode, iIsToReCalFVol, iIsResetInitT, dHotInitT,
            dHotInitTDiff, dICMSecondFactor, iPrefill, iCMPrefill, dColdInitT, iIsICMNew, iIsEhnAccuracy,
            nParticleSubDt, nSIMPLE_LowerLimit, nVEF_CoupleTimes, iMFTScheme, iAllCF, dMassOut, dVisTempLimiterMax,
            iVPSwitchByClampingLimit, iIsWeightedFlowRate, iMCIMUpdateDen, iLimitViscousHeating,
            iInitChargeFiberOrientation)
const char* CZEBCMPGeneralParm::strInitChargeFiber() const { return m_strInitChargeFiber.get(); }
ZEB_GETTERS(CZEBCMPGeneralParm, iPIM, dPIMPowderDen, iFSIRemoveRunner, iICM_MeshDeformMethod, iDeformMethod,
            dPackdtControl, iNoRemoveF2F, iStressInterface, iSprueMethod, iLG_Mode, iFaceVisByHarmonicMean,
            iSmoothCutcellByAvgGauss, iCalculateFilltoInjectionpressure, iIsPackCalcFSI, dIsPackCalcFSI_Time,
            iMovingFaceMF, iOutputM3V, iNStage, iIsSRFbyRBF, iTempSubdt, dTempConvergToler, iIsShLowTempCorr,
            dFiberCTGRatio, dMovingFaceT, iOutputEOSc2f, iSSHR, dSSHRToler, iMeltFrontSpeedIndicator,
            iIsOutputFiberInfoOnSensor, iIsOutputNozzleQ, iHotRunnerSurfaceT_Dirichlet_BCType, dHotRunnerSurfaceT,
            iHotRunnerSurfaceTFromCool, iOutputParticleIndex, iCompressModeSwitchOpen, iCMSecondCompressProc, iHSDen)
const char* CZEBCMPGeneralParm::FirstMeshName() const { return m_szFirstMeshName.get(); }
const char* CZEBCMPGeneralParm::SecondM3FName() const { return m_szSecondM3FName.get(); }
const char* CZEBCMPGeneralParm::SecondM3OName() const { return m_szSecondM3OName.get(); }
ZEB_GETTERS(CZEBCMPGeneralParm, dCMFixedDt, iUseHRTempLimit, iIsCompressionFaceCK, dCompressionFaceCK,
            dCompressionFaceCp, iUseIBtoCalculateValvePin, iStopCMProcess, dValvePinmovedistancelimit, iIsCMCoreback,
            iIsOutputVisonSensorNode, iIsToUsePCG, iIsShowCompressForce, iShowCompressionSpeed, dCompressibilityFactor,
            iCMForceCtrl, dCMForceCtrlConst, iRIMInletConvSolver, dVECouplingDegree, iShowAirZoneResult,
            iShowNegativePressureField, dPreFillingPercent)

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
