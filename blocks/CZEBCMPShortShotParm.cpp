#include "blocks/CZEBCMPShortShotParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPShortShotParm::CZEBCMPShortShotParm() = default;
CZEBCMPShortShotParm::CZEBCMPShortShotParm(const CZEBCMPShortShotParm& other) = default;
CZEBCMPShortShotParm::~CZEBCMPShortShotParm() = default;
CZEBCMPShortShotParm& CZEBCMPShortShotParm::operator=(const CZEBCMPShortShotParm& other) = default;

double CZEBCMPShortShotParm::dTimeLimit() const { return m_dTimeLimit; }
double CZEBCMPShortShotParm::dFRLimit() const { return m_dFRLimit; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPShortShotParm>() {
  using T = CZEBCMPShortShotParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_dTimeLimit, &T::dTimeLimit>(), .key = "TimeLimit",
       .label = "m_dTimeLimit\t= ", .doc = "Limit of the time. Meaning defined by the solver."},
      {.field = field<&T::m_dFRLimit, &T::dFRLimit>(), .key = "FRLimit",
       .label = "m_dFRLimit\t\t= ", .doc = "Limit of the flow rate. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"ShortShot", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------ShortShot Parameters---------");
  return kTable;
}
