// Resin transfer molding.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Resin transfer molding, from the section [RTM].
///
/// IsVentInlet = 1 announces a list: the next line gives NVentInlet and each of as many lines a VentInletID. Reading
/// goes on with the list's last line, so other keys count on that line and not on the one with IsVentInlet. Copies and
/// assignment share the list.
class CZEBCMPRTMParm {
 public:
  CZEBCMPRTMParm();
  CZEBCMPRTMParm(const CZEBCMPRTMParm& other);
  ~CZEBCMPRTMParm();
  CZEBCMPRTMParm& operator=(const CZEBCMPRTMParm& other);

  int iUseDllTemp() const;
  int iOutputM3K() const;
  int iUseMessage() const;
  int iShowVentBC() const;
  int iUseShowK11() const;
  int iUseShowK22() const;
  int iUseShowK33() const;
  int iSurf_XYZ() const;
  int iCell_XYZ() const;
  int iOutputKPTID() const;
  int iUseErrMesh() const;
  int iUsePARDISO() const;
  int iUsePCG() const;
  int iRTMAlgorithm() const;
  int iVoidPrediction() const;
  double dKTube() const;
  double dKTow() const;
  double dTowThick() const;
  double dMacroCoeff1() const;
  double dMacroCoeff2() const;
  double dmicroCoeff1() const;
  double dmicroCoeff2() const;
  double dRTMTimeConstant() const;
  double dTCTol() const;
  int iGCStable() const;
  int iUseSetInitialdt() const;
  int iBarrelPressureDrop() const;
  double dBarrelHTop() const;
  double dBarrelHBottom() const;
  double dBarrelDiameter() const;
  double dInletH() const;
  int iUseFiberConv() const;
  double dDenfiber() const;
  double dDenresin() const;
  double dCpfiber() const;
  double dCpresin() const;
  double dKfiber() const;
  double dKresin() const;
  int iUseAirP() const;
  double dVentPressure() const;
  int iUseShowFiberOnly() const;
  int iOutputFiberMatOrient() const;
  int iRTMTubeRunner() const;
  int iRTMVentingBoundaryConditionType() const;
  int iRTMCureSpeedUp() const;
  int iUseRTMPultrusionPreprocessor() const;
  int iUseRTMPultrusionCalc() const;
  double dPultrusionPorosity() const;
  double dPultrusionK11() const;
  double dPultrusionK33() const;
  double dPultrusionVelocity() const;
  int iUseOutletVelBC() const;
  int iUseDrapePorosity() const;
  int iReadFilePorosity() const;
  double dModifyProperitybyPressure_Coeff() const;
  double dModifyProperitybyPressure_P0() const;
  int iModifyProperitybyFiberAngle() const;
  int iUseKozenyCarmanShearAngle() const;
  int iOutputErrorMesh() const;
  int iIsVentInlet() const;
  int iNVentInlet() const;
  /// Copies the numbers of the vent inlets 1 to N = iNVentInlet() into out[1] to out[N]; out[0] is not touched, so
  /// `out` needs N + 1 ints. A number that the file does not give is 0. Returns 0, or -1 when a number has nowhere to
  /// go (`out` is null).
  int getVentInletID(int* out) const;
  /// As getVentInletID().
  int piVentInletID(int* out) const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPRTMParm>();

  int m_iUseDllTemp = 0;
  int m_iOutputM3K = 0;
  int m_iUseMessage = 0;
  int m_iShowVentBC = 0;
  int m_iUseShowK11 = 0;
  int m_iUseShowK22 = 0;
  int m_iUseShowK33 = 0;
  int m_iSurf_XYZ = 0;
  int m_iCell_XYZ = 0;
  int m_iOutputKPTID = 0;
  int m_iUseErrMesh = 0;
  int m_iUsePARDISO = 0;
  int m_iUsePCG = 0;
  int m_iRTMAlgorithm = 1;
  int m_iVoidPrediction = 0;
  double m_dKTube = 0.0;
  double m_dKTow = 0.0;
  double m_dTowThick = 0.0;
  double m_dMacroCoeff1 = 0.0;
  double m_dMacroCoeff2 = 0.0;
  double m_dmicroCoeff1 = 0.0;
  double m_dmicroCoeff2 = 0.0;
  double m_dRTMTimeConstant = 0.2;
  double m_dTCTol = 0.01;
  int m_iGCStable = 0;
  int m_iUseSetInitialdt = 0;
  int m_iBarrelPressureDrop = 0;
  double m_dBarrelHTop = 0.0;
  double m_dBarrelHBottom = 0.0;
  double m_dBarrelDiameter = 0.0;
  double m_dInletH = 0.0;
  int m_iUseFiberConv = 0;
  double m_dDenfiber = 0.0;
  double m_dDenresin = 0.0;
  double m_dCpfiber = 0.0;
  double m_dCpresin = 0.0;
  double m_dKfiber = 0.0;
  double m_dKresin = 0.0;
  int m_iUseAirP = 0;
  double m_dVentPressure = 0.0;
  int m_iUseShowFiberOnly = 0;
  int m_iOutputFiberMatOrient = 0;
  int m_iRTMTubeRunner = 0;
  int m_iRTMVentingBoundaryConditionType = 0;
  int m_iRTMCureSpeedUp = 0;
  int m_iUseRTMPultrusionPreprocessor = 0;
  int m_iUseRTMPultrusionCalc = 0;
  double m_dPultrusionPorosity = 0.5;
  double m_dPultrusionK11 = 1e-5;
  double m_dPultrusionK33 = 1e-6;
  double m_dPultrusionVelocity = 1.0;
  int m_iUseOutletVelBC = 0;
  int m_iUseDrapePorosity = 0;
  int m_iReadFilePorosity = 0;
  double m_dModifyProperitybyPressure_Coeff = 0.0;
  double m_dModifyProperitybyPressure_P0 = 10.0;
  int m_iModifyProperitybyFiberAngle = 0;
  int m_iUseKozenyCarmanShearAngle = 0;
  int m_iOutputErrorMesh = 0;
  int m_iIsVentInlet = 0;
  int m_iNVentInlet = 0;
  zeb::SharedArray<int> m_piVentInletID;
};
