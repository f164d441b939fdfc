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
      {.field = field<&T::m_iGetcfcver_FastCool, &T::iGetcfcver_FastCool>(), .at = {{1, 1}},
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
      {.field = field<&T::m_iGetMBNx, &T::iGetMBNx>(), .at = {{17, 1}}, .doc = "Number MBN in x.", .opaque = true},
      {.field = field<&T::m_iGetMBNy, &T::iGetMBNy>(), .at = {{17, 2}}, .doc = "Number MBN in y.", .opaque = true},
      {.field = field<&T::m_iGetMBNz, &T::iGetMBNz>(), .at = {{17, 3}}, .doc = "Number MBN in z.", .opaque = true},
      {.field = field<&T::m_iGetlCutMesh, &T::iGetlCutMesh>(), .at = {{18, 1}}, .doc = "Cutting of the mesh.",
       .opaque = true},
      {.field = field<&T::m_dGetBoundTempUnder_PIP, &T::dGetBoundTempUnder_PIP>(), .at = {{19, 1}},
       .doc = "Under-relaxation of the boundary temperature of PIP."},
      {.field = field<&T::m_dGetBoundFluxUnder_PIM, &T::dGetBoundFluxUnder_PIM>(), .at = {{19, 2}},
       .doc = "Under-relaxation of the boundary flux of PIM."},
      {.field = field<&T::m_iGetIsCreateCTGMesh, &T::iGetIsCreateCTGMesh>(), .at = {{20, 1}},
       .doc = "Switch: a CTG mesh is created."},
      {.field = field<&T::m_dGetAllowTemperature_min, &T::dGetAllowTemperature_min>(), .at = {{21, 1}},
       .doc = "Lowest allowed temperature."},
      {.field = field<&T::m_dGetAllowTemperature_max, &T::dGetAllowTemperature_max>(), .at = {{21, 2}},
       .doc = "Highest allowed temperature."},
      {.field = field<&T::m_dGetTimeStep_min, &T::dGetTimeStep_min>(), .at = {{21, 3}}, .doc = "Smallest time step."},
      {.field = field<&T::m_dGetHotRunnerHTC, &T::dGetHotRunnerHTC>(), .at = {{22, 1}},
       .doc = "Heat transfer coefficient of the hot runner."},
      {.field = field<&T::m_iGetIsEnhanceStability_CyclAvg, &T::iGetIsEnhanceStability_CyclAvg>(), .at = {{23, 1}},
       .doc = "Switch: enhanced stability of the cycle average."},
      {.field = field<&T::m_dGetAllowMaxMinTemperatureDiff_Factor, &T::dGetAllowMaxMinTemperatureDiff_Factor>(),
       .at = {{23, 2}}, .doc = "Factor of the allowed difference between highest and lowest temperature."},
      {.field = field<&T::m_iGetIfCalHeaterTemperature, &T::iGetIfCalHeaterTemperature>(), .at = {{24, 1}},
       .doc = "Switch: the heater temperature is calculated."},
      {.field = field<&T::m_dGetHeaterEfficicency, &T::dGetHeaterEfficicency>(), .at = {{24, 2}},
       .doc = "Efficiency of the heater."},
  };
  // clang-format on
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"FastCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
