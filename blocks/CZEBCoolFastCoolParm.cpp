// The lines, fields and meanings of the positional section [FastCool]; never dumped.
#include "blocks/CZEBCoolFastCoolParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCoolFastCoolParm)

int CZEBCoolFastCoolParm::iGetcfcver_FastCool() const { return m_iGetcfcver_FastCool; }
int CZEBCoolFastCoolParm::iGetlsolvTP() const { return m_iGetlsolvTP; }
int CZEBCoolFastCoolParm::iGetlsolvTM() const { return m_iGetlsolvTM; }
int CZEBCoolFastCoolParm::iGetPreCondP() const { return m_iGetPreCondP; }
int CZEBCoolFastCoolParm::iGetPreCondM() const { return m_iGetPreCondM; }
int CZEBCoolFastCoolParm::iGetIluNLevelFill() const { return m_iGetIluNLevelFill; }
int CZEBCoolFastCoolParm::iGetNiterP() const { return m_iGetNiterP; }
int CZEBCoolFastCoolParm::iGetNiterM() const { return m_iGetNiterM; }
int CZEBCoolFastCoolParm::iGetIterStep() const { return m_iGetIterStep; }
int CZEBCoolFastCoolParm::iGetNiterGrad() const { return m_iGetNiterGrad; }
int CZEBCoolFastCoolParm::iGetNTimeStep() const { return m_iGetNTimeStep; }
int CZEBCoolFastCoolParm::iGetTimeStep() const { return m_iGetTimeStep; }
double CZEBCoolFastCoolParm::dGetDt() const { return m_dGetDt; }
int CZEBCoolFastCoolParm::iGetBlendTime() const { return m_iGetBlendTime; }
double CZEBCoolFastCoolParm::dGetTolerP() const { return m_dGetTolerP; }
double CZEBCoolFastCoolParm::dGetTolerM() const { return m_dGetTolerM; }
double CZEBCoolFastCoolParm::dGetBlend() const { return m_dGetBlend; }
int CZEBCoolFastCoolParm::iGetNiterInP() const { return m_iGetNiterInP; }
int CZEBCoolFastCoolParm::iGetNiterInM() const { return m_iGetNiterInM; }
double CZEBCoolFastCoolParm::dGetTolerInP() const { return m_dGetTolerInP; }
double CZEBCoolFastCoolParm::dGetTolerInM() const { return m_dGetTolerInM; }
double CZEBCoolFastCoolParm::dGetRelaxP() const { return m_dGetRelaxP; }
double CZEBCoolFastCoolParm::dGetRelaxM() const { return m_dGetRelaxM; }
int CZEBCoolFastCoolParm::iGetlCmpChk() const { return m_iGetlCmpChk; }
int CZEBCoolFastCoolParm::iGetNiterMP() const { return m_iGetNiterMP; }
double CZEBCoolFastCoolParm::dGetTolerMP() const { return m_dGetTolerMP; }
double CZEBCoolFastCoolParm::dGetBoundTempUnder() const { return m_dGetBoundTempUnder; }
double CZEBCoolFastCoolParm::dGetBoundFluxUnder() const { return m_dGetBoundFluxUnder; }
double CZEBCoolFastCoolParm::dGetGeoRhsPUnder() const { return m_dGetGeoRhsPUnder; }
double CZEBCoolFastCoolParm::dGetGeoRhsMUnder() const { return m_dGetGeoRhsMUnder; }
double CZEBCoolFastCoolParm::dGetGeoTempPUnder() const { return m_dGetGeoTempPUnder; }
double CZEBCoolFastCoolParm::dGetGeoTempMUnder() const { return m_dGetGeoTempMUnder; }
int CZEBCoolFastCoolParm::iGetMBNx() const { return m_iGetMBNx; }
int CZEBCoolFastCoolParm::iGetMBNy() const { return m_iGetMBNy; }
int CZEBCoolFastCoolParm::iGetMBNz() const { return m_iGetMBNz; }
int CZEBCoolFastCoolParm::iGetlCutMesh() const { return m_iGetlCutMesh; }
double CZEBCoolFastCoolParm::dGetBoundTempUnder_PIP() const { return m_dGetBoundTempUnder_PIP; }
double CZEBCoolFastCoolParm::dGetBoundFluxUnder_PIM() const { return m_dGetBoundFluxUnder_PIM; }
int CZEBCoolFastCoolParm::iGetIsCreateCTGMesh() const { return m_iGetIsCreateCTGMesh; }
double CZEBCoolFastCoolParm::dGetAllowTemperature_min() const { return m_dGetAllowTemperature_min; }
double CZEBCoolFastCoolParm::dGetAllowTemperature_max() const { return m_dGetAllowTemperature_max; }
double CZEBCoolFastCoolParm::dGetTimeStep_min() const { return m_dGetTimeStep_min; }
double CZEBCoolFastCoolParm::dGetHotRunnerHTC() const { return m_dGetHotRunnerHTC; }
int CZEBCoolFastCoolParm::iGetIsEnhanceStability_CyclAvg() const { return m_iGetIsEnhanceStability_CyclAvg; }
double CZEBCoolFastCoolParm::dGetAllowMaxMinTemperatureDiff_Factor() const {
  return m_dGetAllowMaxMinTemperatureDiff_Factor;
}
int CZEBCoolFastCoolParm::iGetIfCalHeaterTemperature() const { return m_iGetIfCalHeaterTemperature; }
double CZEBCoolFastCoolParm::dGetHeaterEfficicency() const { return m_dGetHeaterEfficicency; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCoolFastCoolParm>() {
  using T = CZEBCoolFastCoolParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iGetcfcver_FastCool), .at = {{1, 1}},
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
      {ZEB_FIELD(dGetBoundTempUnder), .at = {{14, 1}}, .doc = "Under-relaxation of the boundary temperature."},
      {ZEB_FIELD(dGetBoundFluxUnder), .at = {{14, 2}}, .doc = "Under-relaxation of the boundary flux."},
      {ZEB_FIELD(dGetGeoRhsPUnder), .at = {{15, 1}}, .doc = "Under-relaxation of the right-hand side of P."},
      {ZEB_FIELD(dGetGeoRhsMUnder),
       .doc = "Under-relaxation of the right-hand side of M; no field of the section sets it."},
      {ZEB_FIELD(dGetGeoTempPUnder), .at = {{16, 1}}, .doc = "Under-relaxation of the temperature of P."},
      {ZEB_FIELD(dGetGeoTempMUnder), .at = {{15, 2}, {16, 2}},
       .doc = "Under-relaxation of the temperature of M; stands in two lines, the later one wins."},
      {ZEB_FIELD(iGetMBNx), .at = {{17, 1}}, .known = "Number MBN in x."},
      {ZEB_FIELD(iGetMBNy), .at = {{17, 2}}, .known = "Number MBN in y."},
      {ZEB_FIELD(iGetMBNz), .at = {{17, 3}}, .known = "Number MBN in z."},
      {ZEB_FIELD(iGetlCutMesh), .at = {{18, 1}}, .known = "Cutting of the mesh."},
      {ZEB_FIELD(dGetBoundTempUnder_PIP), .at = {{19, 1}},
       .doc = "Under-relaxation of the boundary temperature of PIP."},
      {ZEB_FIELD(dGetBoundFluxUnder_PIM), .at = {{19, 2}}, .doc = "Under-relaxation of the boundary flux of PIM."},
      {ZEB_FIELD(iGetIsCreateCTGMesh), .at = {{20, 1}}, .doc = "Switch: a CTG mesh is created."},
      {ZEB_FIELD(dGetAllowTemperature_min), .at = {{21, 1}}, .doc = "Lowest allowed temperature."},
      {ZEB_FIELD(dGetAllowTemperature_max), .at = {{21, 2}}, .doc = "Highest allowed temperature."},
      {ZEB_FIELD(dGetTimeStep_min), .at = {{21, 3}}, .doc = "Smallest time step."},
      {ZEB_FIELD(dGetHotRunnerHTC), .at = {{22, 1}}, .doc = "Heat transfer coefficient of the hot runner."},
      {ZEB_FIELD(iGetIsEnhanceStability_CyclAvg), .at = {{23, 1}},
       .doc = "Switch: enhanced stability of the cycle average."},
      {ZEB_FIELD(dGetAllowMaxMinTemperatureDiff_Factor), .at = {{23, 2}},
       .doc = "Factor of the allowed difference between highest and lowest temperature."},
      {ZEB_FIELD(iGetIfCalHeaterTemperature), .at = {{24, 1}}, .doc = "Switch: the heater temperature is calculated."},
      {ZEB_FIELD(dGetHeaterEfficicency), .at = {{24, 2}}, .doc = "Efficiency of the heater."},
  };
  // clang-format on
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"FastCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
