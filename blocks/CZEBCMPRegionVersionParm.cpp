#include "blocks/CZEBCMPRegionVersionParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPRegionVersionParm)

int CZEBCMPRegionVersionParm::iRegionVersion() const { return m_iRegionVersion; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPRegionVersionParm>() {
  using T = CZEBCMPRegionVersionParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iRegionVersion, &T::iRegionVersion>(), .key = "RegionVersion", .tabs = 2,
       .doc = "Region version.", .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"RegionVersion", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------RegionVersion Parameters---------");
  return kTable;
}
