// The lines, fields and meanings of the positional section [StdCool]; never dumped.
#include "blocks/CZEBCoolStdCoolParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCoolStdCoolParm)

int CZEBCoolStdCoolParm::iGetcfcver_StdCool() const { return m_iGetcfcver_StdCool; }
int CZEBCoolStdCoolParm::iGetlsolvTP() const { return m_iGetlsolvTP; }
int CZEBCoolStdCoolParm::iGetlsolvTM() const { return m_iGetlsolvTM; }
int CZEBCoolStdCoolParm::iGetPreCondP() const { return m_iGetPreCondP; }
int CZEBCoolStdCoolParm::iGetPreCondM() const { return m_iGetPreCondM; }
int CZEBCoolStdCoolParm::iGetIluNLevelFill() const { return m_iGetIluNLevelFill; }
int CZEBCoolStdCoolParm::iGetNiterP() const { return m_iGetNiterP; }
int CZEBCoolStdCoolParm::iGetNiterM() const { return m_iGetNiterM; }
int CZEBCoolStdCoolParm::iGetIterStep() const { return m_iGetIterStep; }
int CZEBCoolStdCoolParm::iGetNiterGrad() const { return m_iGetNiterGrad; }
int CZEBCoolStdCoolParm::iGetNTimeStep() const { return m_iGetNTimeStep; }
int CZEBCoolStdCoolParm::iGetTimeStep() const { return m_iGetTimeStep; }
double CZEBCoolStdCoolParm::dGetDt() const { return m_dGetDt; }
int CZEBCoolStdCoolParm::iGetBlendTime() const { return m_iGetBlendTime; }
int CZEBCoolStdCoolParm::iGetNMaxTimeStep_Ct() const { return m_iGetNMaxTimeStep_Ct; }
double CZEBCoolStdCoolParm::dGetTolerP() const { return m_dGetTolerP; }
double CZEBCoolStdCoolParm::dGetTolerM() const { return m_dGetTolerM; }
double CZEBCoolStdCoolParm::dGetBlend() const { return m_dGetBlend; }
int CZEBCoolStdCoolParm::iGetNiterInP() const { return m_iGetNiterInP; }
int CZEBCoolStdCoolParm::iGetNiterInM() const { return m_iGetNiterInM; }
double CZEBCoolStdCoolParm::dGetTolerInP() const { return m_dGetTolerInP; }
double CZEBCoolStdCoolParm::dGetTolerInM() const { return m_dGetTolerInM; }
double CZEBCoolStdCoolParm::dGetRelaxP() const { return m_dGetRelaxP; }
double CZEBCoolStdCoolParm::dGetRelaxM() const { return m_dGetRelaxM; }
int CZEBCoolStdCoolParm::iGetlCmpChk() const { return m_iGetlCmpChk; }
int CZEBCoolStdCoolParm::iGetNiterMP() const { return m_iGetNiterMP; }
double CZEBCoolStdCoolParm::dGetTolerMP() const { return m_dGetTolerMP; }
double CZEBCoolStdCoolParm::dGetAllowMin_tolerMP() const { return m_dGetAllowMin_tolerMP; }
double CZEBCoolStdCoolParm::dGetMaxDifferTemperatureMP() const { return m_dGetMaxDifferTemperatureMP; }
double CZEBCoolStdCoolParm::dGetBoundTempUnder() const { return m_dGetBoundTempUnder; }
double CZEBCoolStdCoolParm::dGetBoundFluxUnder() const { return m_dGetBoundFluxUnder; }
double CZEBCoolStdCoolParm::dGetGeoRhsPUnder() const { return m_dGetGeoRhsPUnder; }
double CZEBCoolStdCoolParm::dGetGeoRhsMUnder() const { return m_dGetGeoRhsMUnder; }
double CZEBCoolStdCoolParm::dGetGeoTempPUnder() const { return m_dGetGeoTempPUnder; }
double CZEBCoolStdCoolParm::dGetGeoTempMUnder() const { return m_dGetGeoTempMUnder; }
double CZEBCoolStdCoolParm::dGetAllowTemperature_min() const { return m_dGetAllowTemperature_min; }
double CZEBCoolStdCoolParm::dGetAllowTemperature_max() const { return m_dGetAllowTemperature_max; }
double CZEBCoolStdCoolParm::dGetTimeStep_min() const { return m_dGetTimeStep_min; }
double CZEBCoolStdCoolParm::dGetOffsetEjectionTemp() const { return m_dGetOffsetEjectionTemp; }
int CZEBCoolStdCoolParm::dGetIfCalCtCoolTime() const { return m_dGetIfCalCtCoolTime; }
double CZEBCoolStdCoolParm::dGetUserMaxAllowCoolingTime() const { return m_dGetUserMaxAllowCoolingTime; }
int CZEBCoolStdCoolParm::dGetIfDynamicMatProperty() const { return m_dGetIfDynamicMatProperty; }
int CZEBCoolStdCoolParm::iGetIfCalPartInsertUsePartTemperature() const {
  return m_iGetIfCalPartInsertUsePartTemperature;
}
int CZEBCoolStdCoolParm::iGetIfModifyHeatFlux() const { return m_iGetIfModifyHeatFlux; }
int CZEBCoolStdCoolParm::iGetCt_BFacePType() const { return m_iGetCt_BFacePType; }
int CZEBCoolStdCoolParm::iGetCt_BFaceP_Niter() const { return m_iGetCt_BFaceP_Niter; }
double CZEBCoolStdCoolParm::dGetCt_BFaceP_MFactor() const { return m_dGetCt_BFaceP_MFactor; }
int CZEBCoolStdCoolParm::iGetIfIgnoreBadElement() const { return m_iGetIfIgnoreBadElement; }
int CZEBCoolStdCoolParm::iGetWriterResultType() const { return m_iGetWriterResultType; }
int CZEBCoolStdCoolParm::dGetIfCalHeaterTemperature() const { return m_dGetIfCalHeaterTemperature; }
double CZEBCoolStdCoolParm::dGetHeaterEfficency() const { return m_dGetHeaterEfficency; }
int CZEBCoolStdCoolParm::iGetCChannelCalculateStep() const { return m_iGetCChannelCalculateStep; }
double CZEBCoolStdCoolParm::dGetMoldAirHTCValue() const { return m_dGetMoldAirHTCValue; }
bool CZEBCoolStdCoolParm::bGetIfActiveHeatFluxHistory() const { return m_bGetIfActiveHeatFluxHistory; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCoolStdCoolParm>() {
  using T = CZEBCoolStdCoolParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iGetcfcver_StdCool), .at = {{1, 1}},
       .doc = "Version of the layout; the section is read only when its first line holds this number."},
      {ZEB_FIELD(iGetlsolvTP), .at = {{2, 1}}, .known = "Linear solver of TP."},
      {ZEB_FIELD(iGetlsolvTM), .at = {{2, 2}}, .known = "Linear solver of TM."},
      {ZEB_FIELD(iGetPreCondP), .at = {{3, 1}}, .known = "Preconditioner of P."},
      {ZEB_FIELD(iGetPreCondM), .at = {{3, 2}}, .known = "Preconditioner of M."},
      {ZEB_FIELD(iGetIluNLevelFill), .at = {{4, 1}}, .doc = "Fill level of the incomplete LU factorisation."},
      {ZEB_FIELD(iGetNiterP), .at = {{5, 1}}, .doc = "Number of iterations of P."},
      {ZEB_FIELD(iGetNiterM), .at = {{5, 2}}, .doc = "Number of iterations of M."},
      {ZEB_FIELD(iGetIterStep), .at = {{5, 3}}, .known = "Iteration step."},
      {ZEB_FIELD(iGetNiterGrad), .at = {{5, 4}}, .doc = "Number of iterations of the gradient."},
      {ZEB_FIELD(iGetNTimeStep), .at = {{6, 1}}, .doc = "Number of time steps."},
      {ZEB_FIELD(iGetTimeStep), .at = {{6, 2}}, .known = "Time step parameter."},
      {ZEB_FIELD(dGetDt), .at = {{6, 3}}, .doc = "Size of a time step."},
      {ZEB_FIELD(iGetBlendTime), .at = {{6, 4}}, .known = "Blending in time."},
      {ZEB_FIELD(iGetNMaxTimeStep_Ct), .at = {{6, 5}}, .known = "Largest number of time steps of Ct."},
      {ZEB_FIELD(dGetTolerP), .at = {{7, 1}}, .doc = "Tolerance of P."},
      {ZEB_FIELD(dGetTolerM), .at = {{7, 2}}, .doc = "Tolerance of M."},
      {ZEB_FIELD(dGetBlend), .at = {{8, 1}}, .doc = "Blending factor."},
      {ZEB_FIELD(iGetNiterInP), .at = {{9, 1}}, .doc = "Number of inner iterations of P."},
      {ZEB_FIELD(iGetNiterInM), .at = {{9, 2}}, .doc = "Number of inner iterations of M."},
      {ZEB_FIELD(dGetTolerInP), .at = {{10, 1}}, .doc = "Tolerance of the inner iterations of P."},
      {ZEB_FIELD(dGetTolerInM), .at = {{10, 2}}, .doc = "Tolerance of the inner iterations of M."},
      {ZEB_FIELD(dGetRelaxP), .at = {{11, 1}}, .doc = "Relaxation factor of P."},
      {ZEB_FIELD(dGetRelaxM), .at = {{11, 2}}, .doc = "Relaxation factor of M."},
      {ZEB_FIELD(iGetlCmpChk), .at = {{12, 1}}, .opaque = true},
      {ZEB_FIELD(iGetNiterMP), .at = {{13, 1}}, .doc = "Number of iterations between M and P."},
      {ZEB_FIELD(dGetTolerMP), .at = {{13, 2}}, .doc = "Tolerance of the iterations between M and P."},
      {ZEB_FIELD(dGetAllowMin_tolerMP), .at = {{13, 3}},
       .doc = "Smallest allowed tolerance of the iterations between M and P."},
      {ZEB_FIELD(dGetMaxDifferTemperatureMP), .at = {{13, 4}},
       .doc = "Largest temperature difference between M and P."},
      {ZEB_FIELD(dGetBoundTempUnder), .at = {{14, 1}}, .doc = "Under-relaxation of the boundary temperature."},
      {ZEB_FIELD(dGetBoundFluxUnder), .at = {{14, 2}}, .doc = "Under-relaxation of the boundary flux."},
      {ZEB_FIELD(dGetGeoRhsPUnder), .at = {{15, 1}}, .doc = "Under-relaxation of the right-hand side of P."},
      {ZEB_FIELD(dGetGeoRhsMUnder),
       .doc = "Under-relaxation of the right-hand side of M; no field of the section sets it."},
      {ZEB_FIELD(dGetGeoTempPUnder), .at = {{16, 1}}, .doc = "Under-relaxation of the temperature of P."},
      {ZEB_FIELD(dGetGeoTempMUnder), .at = {{15, 2}, {16, 2}},
       .doc = "Under-relaxation of the temperature of M; stands in two lines, the later one wins."},
      {ZEB_FIELD(dGetAllowTemperature_min), .at = {{17, 1}}, .doc = "Lowest allowed temperature."},
      {ZEB_FIELD(dGetAllowTemperature_max), .at = {{17, 2}}, .doc = "Highest allowed temperature."},
      {ZEB_FIELD(dGetTimeStep_min), .at = {{17, 3}}, .doc = "Smallest time step."},
      {ZEB_FIELD(dGetOffsetEjectionTemp), .at = {{18, 1}}, .doc = "Offset of the ejection temperature."},
      {ZEB_FIELD(dGetIfCalCtCoolTime), .at = {{18, 2}}, .doc = "Switch: the cooling time of Ct is calculated."},
      {ZEB_FIELD(dGetUserMaxAllowCoolingTime), .at = {{18, 3}}, .doc = "User's longest allowed cooling time."},
      {ZEB_FIELD(dGetIfDynamicMatProperty), .at = {{19, 1}}, .doc = "Switch: dynamic material properties."},
      {ZEB_FIELD(iGetIfCalPartInsertUsePartTemperature), .at = {{20, 1}},
       .doc = "Switch: part inserts are calculated with the part temperature."},
      {ZEB_FIELD(iGetIfModifyHeatFlux), .at = {{20, 2}}, .doc = "Switch: the heat flux is modified."},
      {ZEB_FIELD(iGetCt_BFacePType), .at = {{20, 3}}, .known = "Type of the boundary faces of Ct."},
      {ZEB_FIELD(iGetCt_BFaceP_Niter), .at = {{20, 4}}, .doc = "Number of iterations of the boundary faces of Ct."},
      {ZEB_FIELD(dGetCt_BFaceP_MFactor), .at = {{20, 5}}, .known = "Factor of the boundary faces of Ct."},
      {ZEB_FIELD(iGetIfIgnoreBadElement), .at = {{20, 6}}, .doc = "Switch: bad elements are ignored."},
      {ZEB_FIELD(iGetWriterResultType), .at = {{21, 1}}, .known = "Type of the written results."},
      {ZEB_FIELD(dGetIfCalHeaterTemperature), .at = {{22, 1}}, .doc = "Switch: the heater temperature is calculated."},
      {ZEB_FIELD(dGetHeaterEfficency), .at = {{22, 2}}, .doc = "Efficiency of the heater."},
      {ZEB_FIELD(iGetCChannelCalculateStep), .at = {{23, 1}}, .known = "Calculation step of the cooling channels."},
      {ZEB_FIELD(dGetMoldAirHTCValue), .at = {{24, 1}}, .doc = "Heat transfer coefficient between mold and air."},
      {ZEB_FIELD(bGetIfActiveHeatFluxHistory), .doc = "Switch: heat-flux history; no field of the section sets it."},
  };
  // clang-format on
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"StdCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
