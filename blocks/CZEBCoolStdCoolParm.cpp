// The lines, fields and meanings of the positional section [StdCool]; never dumped.
#include "blocks/CZEBCoolStdCoolParm.h"

#include "blocks/CoolRows.hpp"
#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCoolStdCoolParm)

ZEB_GETTERS(CZEBCoolStdCoolParm, iGetcfcver_StdCool, iGetlsolvTP, iGetlsolvTM, iGetPreCondP, iGetPreCondM,
            iGetIluNLevelFill, iGetNiterP, iGetNiterM, iGetIterStep, iGetNiterGrad, iGetNTimeStep, iGetTimeStep, dGetDt,
            iGetBlendTime, iGetNMaxTimeStep_Ct, dGetTolerP, dGetTolerM, dGetBlend, iGetNiterInP, iGetNiterInM,
            dGetTolerInP, dGetTolerInM, dGetRelaxP, dGetRelaxM, iGetlCmpChk, iGetNiterMP, dGetTolerMP,
            dGetAllowMin_tolerMP, dGetMaxDifferTemperatureMP, dGetBoundTempUnder, dGetBoundFluxUnder, dGetGeoRhsPUnder,
            dGetGeoRhsMUnder, dGetGeoTempPUnder, dGetGeoTempMUnder, dGetAllowTemperature_min, dGetAllowTemperature_max,
            dGetTimeStep_min, dGetOffsetEjectionTemp, dGetIfCalCtCoolTime, dGetUserMaxAllowCoolingTime,
            dGetIfDynamicMatProperty, iGetIfCalPartInsertUsePartTemperature, iGetIfModifyHeatFlux, iGetCt_BFacePType,
            iGetCt_BFaceP_Niter, dGetCt_BFaceP_MFactor, iGetIfIgnoreBadElement, iGetWriterResultType,
            dGetIfCalHeaterTemperature, dGetHeaterEfficency, iGetCChannelCalculateStep, dGetMoldAirHTCValue,
            bGetIfActiveHeatFluxHistory)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCoolStdCoolParm>() {
  using T = CZEBCoolStdCoolParm;
  using Common = CoolRows<T>;
  // clang-format off
  static constexpr auto kVersion = std::to_array<Row>({
      {ZEB_FIELD(iGetcfcver_StdCool), .at = {{1, 1}},
       .doc = "Version of the layout; the section is read only when its first line holds this number."},
  });
  static constexpr auto kCtSteps = std::to_array<Row>({
      {ZEB_FIELD(iGetNMaxTimeStep_Ct), .at = {{6, 5}}, .known = "Largest number of time steps of Ct."},
  });
  static constexpr auto kTemperatureSteps = std::to_array<Row>({
      {ZEB_FIELD(dGetAllowMin_tolerMP), .at = {{13, 3}},
       .doc = "Smallest allowed tolerance of the iterations between M and P."},
      {ZEB_FIELD(dGetMaxDifferTemperatureMP), .at = {{13, 4}},
       .doc = "Largest temperature difference between M and P."},
  });
  static constexpr auto kOwn = std::to_array<Row>({
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
  });
  // clang-format on
  static constexpr auto kRows = Common::inOrder(kVersion, Common::kTimeSteps, kCtSteps, Common::kIterations,
                                                kTemperatureSteps, Common::kUnderRelaxation, kOwn);
  static constexpr PositionalLayout kLayout{.lines = 24, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"StdCool", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
