#include "blocks/CZEBCMPOutletParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPOutletParm)

ZEB_GETTERS(CZEBCMPOutletParm, iIsOutlet, dAirPressure)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPOutletParm>() {
  using T = CZEBCMPOutletParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsOutlet), .key = "IsOutlet", .tabs = 4, .doc = "Switch: the cavity has air outlets."},
      {ZEB_FIELD(dAirPressure), .key = "AirPressure", .rule = {.scale = 1e7}, .tabs = 4, .unit = "dyn/cm^2 (file: MPa)",
       .doc = "Pressure of the air at the outlets."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Outlet", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Outlet Parameters---------");
  return kTable;
}
