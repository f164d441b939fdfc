// The lines, fields and meanings of the positional section [FastCool]; never dumped.
#include "blocks/CZEBCoolFastCoolParm.h"

#include "blocks/CoolRows.hpp"
#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCoolFastCoolParm)

ZEB_GETTERS(CZEBCoolFastCoolParm, iGetcfcver_FastCool, iGetlsolvTP, iGetlsolvTM, iGetPreCondP, iGetPreCondM,
            iGetIluNLevelFill, iGetNiterP, iGetNiterM, iGetIterStep, iGetNiterGrad, iGetNTimeStep, iGetTimeStep, dGetDt,
            iGetBlendTime, dGetTolerP, dGetTolerM, dGetBlend, iGetNiterInP, iGetNiterInM, dGetTolerInP, dGetTolerInM,
            dGetRelaxP, dGetRelaxM, iGetlCmpChk, iGetNiterMP, dGetTolerMP, dGetBoundTempUnder, dGetBoundFluxUnder,
            dGetGeoRhsPUnder, dGetGeoRhsMUnder, dGetGeoTempPUnder, dGetGeoTempMUnder, iGetMBNx, iGetMBNy, iGetMBNz,
            iGetlCutMesh, dGetBoundTempUnder_PIP, dGetBoundFluxUnder_PIM, iGetIsCreateCTGMesh, dGetAllowTemperature_min,
            dGetAllowTemperature_max, dGetTimeStep_min, dGetHotRunnerHTC, iGetIsEnhanceStability_CyclAvg,
            dGetAllowMaxMinTemperatureDiff_Factor, iGetIfCalHeaterTemperature, dGetHeaterEfficicency)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCoolFastCoolParm>() {
  using T = CZEBCoolFastCoolParm;
  using Common = CoolRows<T>;
  // clang-format off
  static constexpr auto kVersion = std::to_array<Row>({
      {ZEB_FIELD(iGetcfcver_FastCool), .at = {{1, 1}},
       .doc = "Version of the layout; the section is read only when its first line holds this number."},
  });
  static constexpr auto kOwn = std::to_array<Row>({
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
  });
  // clang-format on
  static constexpr auto kRows =
      Common::inOrder(kVersion, Common::kTimeSteps, Common::kIterations, Common::kUnderRelaxation, kOwn);
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"FastCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
