// The lines, fields and meanings of the positional section [3DCoolingChannel]; never dumped.
#include "blocks/CZEBCool3DCoolingChannelParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCool3DCoolingChannelParm)

ZEB_GETTERS(CZEBCool3DCoolingChannelParm, i_GetcfcVer_3DCChannel, iGet3DCChanelDebug, iGetNiterC, dGetTolerC,
            iGetNiterInC, dGetTolerInC, dGetGeoTempCUnder, dGetGeoRhsCUnder, dGetBlendC, dGetRelaxC,
            dGetAllowCChannelBoundaryChangeTemperature, iGetCChannelCalculateStep)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCool3DCoolingChannelParm>() {
  using T = CZEBCool3DCoolingChannelParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(i_GetcfcVer_3DCChannel), .at = {{1, 1}},
       .doc = "Version of the layout; the section is read only when its first line holds this number."},
      {ZEB_FIELD(iGet3DCChanelDebug), .at = {{2, 1}}, .known = "Debugging of the cooling channels."},
      {ZEB_FIELD(iGetNiterC), .at = {{3, 1}, {4, 1}},
       .doc = "Number of iterations of C; stands in two lines, the later one wins."},
      {ZEB_FIELD(dGetTolerC), .doc = "Tolerance of C; no field of the section sets it."},
      {ZEB_FIELD(iGetNiterInC), .doc = "Number of inner iterations of C; no field of the section sets it."},
      {ZEB_FIELD(dGetTolerInC), .doc = "Tolerance of the inner iterations of C; no field of the section sets it."},
      {ZEB_FIELD(dGetGeoTempCUnder), .at = {{5, 1}}, .doc = "Under-relaxation of the temperature of C."},
      {ZEB_FIELD(dGetGeoRhsCUnder), .at = {{5, 2}}, .doc = "Under-relaxation of the right-hand side of C."},
      {ZEB_FIELD(dGetBlendC), .at = {{6, 1}}, .doc = "Blending factor of C."},
      {ZEB_FIELD(dGetRelaxC), .at = {{6, 2}}, .doc = "Relaxation factor of C."},
      {ZEB_FIELD(dGetAllowCChannelBoundaryChangeTemperature), .at = {{7, 1}},
       .doc = "Allowed change of the boundary temperature of the cooling channels."},
      {ZEB_FIELD(iGetCChannelCalculateStep), .at = {{7, 2}}, .known = "Calculation step of the cooling channels."},
  };
  // clang-format on
  static constexpr PositionalLayout kLayout{.lines = 7, .versioned = true};
  static constexpr Section kSections[] = {positionalSection<"3DCoolingChannel", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
