#include "blocks/CZEBCMPShortShotParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPShortShotParm)

ZEB_GETTERS(CZEBCMPShortShotParm, dTimeLimit, dFRLimit)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPShortShotParm>() {
  using T = CZEBCMPShortShotParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dTimeLimit), .key = "TimeLimit", .tabs = 1, .known = "Limit of the time."},
      {ZEB_FIELD(dFRLimit), .key = "FRLimit", .tabs = 2, .known = "Limit of the flow rate."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"ShortShot", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------ShortShot Parameters---------");
  return kTable;
}
