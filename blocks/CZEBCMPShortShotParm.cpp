#include "blocks/CZEBCMPShortShotParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPShortShotParm)

double CZEBCMPShortShotParm::dTimeLimit() const { return m_dTimeLimit; }
double CZEBCMPShortShotParm::dFRLimit() const { return m_dFRLimit; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPShortShotParm>() {
  using T = CZEBCMPShortShotParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_dTimeLimit, &T::dTimeLimit>(), .key = "TimeLimit", .tabs = 1, .doc = "Limit of the time.",
       .opaque = true},
      {.field = field<&T::m_dFRLimit, &T::dFRLimit>(), .key = "FRLimit", .tabs = 2, .doc = "Limit of the flow rate.",
       .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"ShortShot", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------ShortShot Parameters---------");
  return kTable;
}
