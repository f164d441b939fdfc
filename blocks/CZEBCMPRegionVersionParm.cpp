#include "blocks/CZEBCMPRegionVersionParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPRegionVersionParm::CZEBCMPRegionVersionParm() = default;
CZEBCMPRegionVersionParm::CZEBCMPRegionVersionParm(const CZEBCMPRegionVersionParm& other) = default;
CZEBCMPRegionVersionParm::~CZEBCMPRegionVersionParm() = default;
CZEBCMPRegionVersionParm& CZEBCMPRegionVersionParm::operator=(const CZEBCMPRegionVersionParm& other) = default;

int CZEBCMPRegionVersionParm::iRegionVersion() const { return m_iRegionVersion; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPRegionVersionParm>() {
  using T = CZEBCMPRegionVersionParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iRegionVersion, &T::iRegionVersion>(), .key = "RegionVersion",
       .label = "m_iRegionVersion\t\t= ",
       .doc = "Region version. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"RegionVersion", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------RegionVersion Parameters---------");
  return kTable;
}
