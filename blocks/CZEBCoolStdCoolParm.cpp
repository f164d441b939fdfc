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
      {.field = field<&T::m_iGetcfcver_StdCool, &T::iGetcfcver_StdCool>(), .at = {{1, 1}},
       .doc = "Version of the layout; the section is read only when its first line holds this number."},
      {.field = field<&T::m_iGetlsolvTP, &T::iGetlsolvTP>(), .at = {{2, 1}}, .doc = "Linear solver of TP.",
       .opaque = true},
      {.field = field<&T::m_iGetlsolvTM, &T::iGetlsolvTM>(), .at = {{2, 2}}, .doc = "Linear solver of TM.",
       .opaque = true},
      {.field = field<&T::m_iGetPreCondP, &T::iGetPreCondP>(), .at = {{3, 1}}, .doc = "Preconditioner of P.",
       .opaque = true},
      {.field = field<&T::m_iGetPreCondM, &T::iGetPreCondM>(), .at = {{3, 2}}, .doc = "Preconditioner of M.",
       .opaque = true},
      {.field = field<&T::m_iGetIluNLevelFill, &T::iGetIluNLevelFill>(), .at = {{4, 1}},
       .doc = "Fill level of the incomplete LU factorisation."},
      {.field = field<&T::m_iGetNiterP, &T::iGetNiterP>(), .at = {{5, 1}}, .doc = "Number of iterations of P."},
      {.field = field<&T::m_iGetNiterM, &T::iGetNiterM>(), .at = {{5, 2}}, .doc = "Number of iterations of M."},
      {.field = field<&T::m_iGetIterStep, &T::iGetIterStep>(), .at = {{5, 3}}, .doc = "Iteration step.",
       .opaque = true},
      {.field = field<&T::m_iGetNiterGrad, &T::iGetNiterGrad>(), .at = {{5, 4}},
       .doc = "Number of iterations of the gradient."},
      {.field = field<&T::m_iGetNTimeStep, &T::iGetNTimeStep>(), .at = {{6, 1}}, .doc = "Number of time steps."},
      {.field = field<&T::m_iGetTimeStep, &T::iGetTimeStep>(), .at = {{6, 2}}, .doc = "Time step parameter.",
       .opaque = true},
      {.field = field<&T::m_dGetDt, &T::dGetDt>(), .at = {{6, 3}}, .doc = "Size of a time step."},
      {.field = field<&T::m_iGetBlendTime, &T::iGetBlendTime>(), .at = {{6, 4}}, .doc = "Blending in time.",
       .opaque = true},
      {.field = field<&T::m_iGetNMaxTimeStep_Ct, &T::iGetNMaxTimeStep_Ct>(), .at = {{6, 5}},
       .doc = "Largest number of time steps of Ct.", .opaque = true},
      {.field = field<&T::m_dGetTolerP, &T::dGetTolerP>(), .at = {{7, 1}}, .doc = "Tolerance of P."},
      {.field = field<&T::m_dGetTolerM, &T::dGetTolerM>(), .at = {{7, 2}}, .doc = "Tolerance of M."},
      {.field = field<&T::m_dGetBlend, &T::dGetBlend>(), .at = {{8, 1}}, .doc = "Blending factor."},
      {.field = field<&T::m_iGetNiterInP, &T::iGetNiterInP>(), .at = {{9, 1}},
       .doc = "Number of inner iterations of P."},
      {.field = field<&T::m_iGetNiterInM, &T::iGetNiterInM>(), .at = {{9, 2}},
       .doc = "Number of inner iterations of M."},
      {.field = field<&T::m_dGetTolerInP, &T::dGetTolerInP>(), .at = {{10, 1}},
       .doc = "Tolerance of the inner iterations of P."},
      {.field = field<&T::m_dGetTolerInM, &T::dGetTolerInM>(), .at = {{10, 2}},
       .doc = "Tolerance of the inner iterations of M."},
      {.field = field<&T::m_dGetRelaxP, &T::dGetRelaxP>(), .at = {{11, 1}}, .doc = "Relaxation factor of P."},
      {.field = field<&T::m_dGetRelaxM, &T::dGetRelaxM>(), .at = {{11, 2}}, .doc = "Relaxation factor of M."},
      {.field = field<&T::m_iGetlCmpChk, &T::iGetlCmpChk>(), .at = {{12, 1}}, .opaque = true},
      {.field = field<&T::m_iGetNiterMP, &T::iGetNiterMP>(), .at = {{13, 1}},
       .doc = "Number of iterations between M and P."},
      {.field = field<&T::m_dGetTolerMP, &T::dGetTolerMP>(), .at = {{13, 2}},
       .doc = "Tolerance of the iterations between M and P."},
      {.field = field<&T::m_dGetAllowMin_tolerMP, &T::dGetAllowMin_tolerMP>(), .at = {{13, 3}},
       .doc = "Smallest allowed tolerance of the iterations between M and P."},
      {.field = field<&T::m_dGetMaxDifferTemperatureMP, &T::dGetMaxDifferTemperatureMP>(), .at = {{13, 4}},
       .doc = "Largest temperature difference between M and P."},
      {.field = field<&T::m_dGetBoundTempUnder, &T::dGetBoundTempUnder>(), .at = {{14, 1}},
       .doc = "Under-relaxation of the boundary temperature."},
      {.field = field<&T::m_dGetBoundFluxUnder, &T::dGetBoundFluxUnder>(), .at = {{14, 2}},
       .doc = "Under-relaxation of the boundary flux."},
      {.field = field<&T::m_dGetGeoRhsPUnder, &T::dGetGeoRhsPUnder>(), .at = {{15, 1}},
       .doc = "Under-relaxation of the right-hand side of P."},
      {.field = field<&T::m_dGetGeoRhsMUnder, &T::dGetGeoRhsMUnder>(),
       .doc = "Under-relaxation of the right-hand side of M; no field of the section sets it."},
      {.field = field<&T::m_dGetGeoTempPUnder, &T::dGetGeoTempPUnder>(), .at = {{16, 1}},
       .doc = "Under-relaxation of the temperature of P."},
      {.field = field<&T::m_dGetGeoTempMUnder, &T::dGetGeoTempMUnder>(), .at = {{15, 2}, {16, 2}},
       .doc = "Under-relaxation of the temperature of M; stands in two lines, the later one wins."},
      {.field = field<&T::m_dGetAllowTemperature_min, &T::dGetAllowTemperature_min>(), .at = {{17, 1}},
       .doc = "Lowest allowed temperature."},
      {.field = field<&T::m_dGetAllowTemperature_max, &T::dGetAllowTemperature_max>(), .at = {{17, 2}},
       .doc = "Highest allowed temperature."},
      {.field = field<&T::m_dGetTimeStep_min, &T::dGetTimeStep_min>(), .at = {{17, 3}}, .doc = "Smallest time step."},
      {.field = field<&T::m_dGetOffsetEjectionTemp, &T::dGetOffsetEjectionTemp>(), .at = {{18, 1}},
       .doc = "Offset of the ejection temperature."},
      {.field = field<&T::m_dGetIfCalCtCoolTime, &T::dGetIfCalCtCoolTime>(), .at = {{18, 2}},
       .doc = "Switch: the cooling time of Ct is calculated."},
      {.field = field<&T::m_dGetUserMaxAllowCoolingTime, &T::dGetUserMaxAllowCoolingTime>(), .at = {{18, 3}},
       .doc = "User's longest allowed cooling time."},
      {.field = field<&T::m_dGetIfDynamicMatProperty, &T::dGetIfDynamicMatProperty>(), .at = {{19, 1}},
       .doc = "Switch: dynamic material properties."},
      {.field = field<&T::m_iGetIfCalPartInsertUsePartTemperature, &T::iGetIfCalPartInsertUsePartTemperature>(),
       .at = {{20, 1}}, .doc = "Switch: part inserts are calculated with the part temperature."},
      {.field = field<&T::m_iGetIfModifyHeatFlux, &T::iGetIfModifyHeatFlux>(), .at = {{20, 2}},
       .doc = "Switch: the heat flux is modified."},
      {.field = field<&T::m_iGetCt_BFacePType, &T::iGetCt_BFacePType>(), .at = {{20, 3}},
       .doc = "Type of the boundary faces of Ct.", .opaque = true},
      {.field = field<&T::m_iGetCt_BFaceP_Niter, &T::iGetCt_BFaceP_Niter>(), .at = {{20, 4}},
       .doc = "Number of iterations of the boundary faces of Ct."},
      {.field = field<&T::m_dGetCt_BFaceP_MFactor, &T::dGetCt_BFaceP_MFactor>(), .at = {{20, 5}},
       .doc = "Factor of the boundary faces of Ct.", .opaque = true},
      {.field = field<&T::m_iGetIfIgnoreBadElement, &T::iGetIfIgnoreBadElement>(), .at = {{20, 6}},
       .doc = "Switch: bad elements are ignored."},
      {.field = field<&T::m_iGetWriterResultType, &T::iGetWriterResultType>(), .at = {{21, 1}},
       .doc = "Type of the written results.", .opaque = true},
      {.field = field<&T::m_dGetIfCalHeaterTemperature, &T::dGetIfCalHeaterTemperature>(), .at = {{22, 1}},
       .doc = "Switch: the heater temperature is calculated."},
      {.field = field<&T::m_dGetHeaterEfficency, &T::dGetHeaterEfficency>(), .at = {{22, 2}},
       .doc = "Efficiency of the heater."},
      {.field = field<&T::m_iGetCChannelCalculateStep, &T::iGetCChannelCalculateStep>(), .at = {{23, 1}},
       .doc = "Calculation step of the cooling channels.", .opaque = true},
      {.field = field<&T::m_dGetMoldAirHTCValue, &T::dGetMoldAirHTCValue>(), .at = {{24, 1}},
       .doc = "Heat transfer coefficient between mold and air."},
      {.field = field<&T::m_bGetIfActiveHeatFluxHistory, &T::bGetIfActiveHeatFluxHistory>(),
       .doc = "Switch: heat-flux history; no field of the section sets it."},
  };
  // clang-format on
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"StdCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
