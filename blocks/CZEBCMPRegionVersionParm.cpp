#include "blocks/CZEBCMPRegionVersionParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPRegionVersionParm)

ZEB_GETTERS(CZEBCMPRegionVersionParm, iRegionVersion)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPRegionVersionParm>() {
  using T = CZEBCMPRegionVersionParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iRegionVersion), .key = "RegionVersion", .tabs = 2, .known = "Region version."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"RegionVersion", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------RegionVersion Parameters---------");
  return kTable;
}
